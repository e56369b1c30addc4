#include "plot3dfile/layout/LayoutParsers.h"

#include <algorithm>

#include "plot3dfile/layout/DataSize.h"
#include "plot3dfile/layout/LayoutHeader.h"
#include "plot3dfile/layout/LayoutWalk.h"
#include "plot3dfile/layout/StyleRules.h"

namespace quorvia::quorutildataio {

namespace {

bool acceptsAnyFile(const Plot3DFile_s&) {
    return true;
}

bool existsIn2D(const Plot3DFile_s& file) {
    return styleRulesOf(file).existsIn2D;
}

/// Here the style that a manual description gives a grid file counts as well.
bool mayBeUnstructured(const Plot3DFile_s& file) {
    return styleRules(file.style).existsUnstructured && !file.hasIBlank;
}

bool haveOnlyPositiveDims(const Plot3DFile_s&, const Plot3DGridDims_s& dims) {
    return dims.i >= 1 && dims.j >= 1 && dims.k >= 1;
}

bool refuseLeastDimension(Plot3DFile_s& file, const Plot3DGridDims_s& dims,
                          std::int32_t gridIndex) {
    const std::int32_t first = dims.i < 1 ? dims.i : dims.j < 1 ? dims.j : dims.k;
    return refuseReading(file, Plot3DMisfit_e::Dimension, 1, first, gridIndex);
}

/// Nodes with triangles or with tetrahedra, never with both; beside a grid file 1 stands for both.
bool areNodesAndElements(const Plot3DFile_s& file, const Plot3DGridDims_s& dims) {
    if (dims.i < 1)
        return false;
    if (file.isSolutionOrFunction)
        return dims.j == 1 && dims.k == 1;
    return (dims.j == 0 && dims.k > 0) || (dims.k == 0 && dims.j >= 1);
}

bool refuseElements(Plot3DFile_s& file, const Plot3DGridDims_s& dims, std::int32_t gridIndex) {
    if (dims.i < 1 || dims.j < 0 || dims.k < 0)
        return refuseReading(file, Plot3DMisfit_e::Dimension, dims.i < 1 ? 1 : 0,
                             dims.i < 1 ? dims.i : std::min(dims.j, dims.k), gridIndex);
    if (file.isSolutionOrFunction)
        return refuseReading(file, Plot3DMisfit_e::NotNodesAlone, 1, dims.j != 1 ? dims.j : dims.k,
                             gridIndex);
    const bool hasBoth = dims.j > 0 && dims.k > 0;
    return refuseReading(file,
                         hasBoth ? Plot3DMisfit_e::TwoKindsOfElements : Plot3DMisfit_e::NoElements,
                         dims.j, dims.k, gridIndex);
}

double nodeCount(const Plot3DGridDims_s& dims) {
    return dims.i;
}

constexpr LayoutRules_s rules2D = {
    .acceptsFile = existsIn2D,
    .dimensionCount = 2,
    .lineHoldsGrid = true,
    .gridVariables = 2,
    .solutionVariables = 4,
    .acceptsDims = haveOnlyPositiveDims,
    .refuseDims = refuseLeastDimension,
    .pointCount = structuredPointCount,
};

constexpr LayoutRules_s rules3D = {
    .acceptsFile = acceptsAnyFile,
    .dimensionCount = 3,
    .lineHoldsGrid = true,
    .gridVariables = 3,
    .solutionVariables = 5,
    .acceptsDims = haveOnlyPositiveDims,
    .refuseDims = refuseLeastDimension,
    .pointCount = structuredPointCount,
};

constexpr LayoutRules_s rulesUnstructured = {
    .acceptsFile = mayBeUnstructured,
    .dimensionCount = 3,
    .lineHoldsGrid = false,
    .gridVariables = 3,
    .solutionVariables = 5,
    .acceptsDims = areNodesAndElements,
    .refuseDims = refuseElements,
    .pointCount = nodeCount,
};

bool judgeOrWalk(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                 const Plot3DItemReceiver_s* receiver) {
    return receiver == nullptr ? checkDataSize(file) : walkGrids(file, report, gridSet, *receiver);
}

bool parseGrids(Plot3DFile_s& file, const LayoutRules_s& rules, bool report, QuorSetHandle gridSet,
                const Plot3DItemReceiver_s* receiver) {
    if (!rules.acceptsFile(file))
        return refuseReading(file, Plot3DMisfit_e::NotInLayout);
    return readHeader(file, rules) && judgeOrWalk(file, report, gridSet, receiver);
}

} // namespace

bool parse1D(Plot3DFile_s& file, bool report, QuorSetHandle /*gridSet*/,
             const Plot3DItemReceiver_s* receiver) {
    if (!styleRulesOf(file).existsIn1D || file.hasIBlank || file.isMultiGrid)
        return refuseReading(file, Plot3DMisfit_e::NotInLayout);
    return read1DHeader(file) && judgeOrWalk(file, report, nullptr, receiver);
}

bool parse2D(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
             const Plot3DItemReceiver_s* receiver) {
    return parseGrids(file, rules2D, report, gridSet, receiver);
}

bool parse3D(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
             const Plot3DItemReceiver_s* receiver) {
    return parseGrids(file, rules3D, report, gridSet, receiver);
}

bool parseUnstructured(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                       const Plot3DItemReceiver_s* receiver) {
    return parseGrids(file, rulesUnstructured, report, gridSet, receiver);
}

bool parseLayout(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                 const Plot3DItemReceiver_s* receiver) {
    switch (file.dataStructure) {
    case Plot3DDataStructure_1D:
        return parse1D(file, report, gridSet, receiver);
    case Plot3DDataStructure_2D:
        return parse2D(file, report, gridSet, receiver);
    case Plot3DDataStructure_3DPlanes:
    case Plot3DDataStructure_3DWhole:
        return parse3D(file, report, gridSet, receiver);
    case Plot3DDataStructure_Unstructured:
        return parseUnstructured(file, report, gridSet, receiver);
    case Plot3DDataStructure_Unknown:
        break;
    }
    return true;
}

} // namespace quorvia::quorutildataio
