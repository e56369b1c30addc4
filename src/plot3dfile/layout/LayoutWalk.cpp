#include "plot3dfile/layout/LayoutWalk.h"

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace quorvia::quorutildataio {

namespace {

class GridWalk {
public:
    GridWalk(Plot3DFile_s& file, bool report, const Plot3DItemReceiver_s& receiver)
        : file_(file), report_(report), receiver_(receiver) {}

    void enterGrid(std::int32_t grid, bool include) {
        grid_ = grid;
        include_ = include;
        if (include)
            ++zone_;
    }

    bool deliverGrid() {
        if (!deliverScalars())
            return false;
        switch (file_.dataStructure) {
        case Plot3DDataStructure_Unstructured:
            return deliverUnstructured();
        case Plot3DDataStructure_3DPlanes:
            return deliverPlanes();
        case Plot3DDataStructure_1D:
        case Plot3DDataStructure_2D:
        case Plot3DDataStructure_3DWhole:
        case Plot3DDataStructure_Unknown:
            break;
        }
        return deliverFields(wholeField);
    }

private:
    bool deliver(Plot3DItemKind_e kind, std::int32_t varIndex, std::int32_t plane) {
        return receiver_.item(file_, kind, grid_, zone_, include_, varIndex, plane, report_,
                              receiver_.clientData);
    }

    /// Without scalars there is none to take the time from; the receiver knows it from elsewhere.
    bool deliverScalars() {
        if (file_.numScalars >= 1)
            return nextRecord(file_, report_, "Scalars") && deliver(Plot3DItem_Scalars, 0, noPlane);
        if (file_.isSolutionOrFunction && !hasScalars(file_) && receiver_.functionTime != nullptr)
            return receiver_.functionTime(file_, zone_, include_, receiver_.clientData);
        return true;
    }

    bool deliverPlanes() {
        const std::int32_t planeCount = file_.gridDims[static_cast<std::size_t>(grid_)].k;
        for (std::int32_t plane = 0; plane < planeCount; ++plane)
            if (!deliverFields(plane))
                return false;
        return true;
    }

    bool deliverFields(std::int32_t plane) {
        return deliverVariables(plane) &&
               (!file_.hasIBlank || deliver(Plot3DItem_IBlank, file_.numVars, plane));
    }

    bool deliverUnstructured() {
        return deliverVariables(noPlane) &&
               (file_.isSolutionOrFunction || deliver(Plot3DItem_Connectivity, 0, 0));
    }

    bool deliverVariables(std::int32_t plane) {
        if (!nextRecord(file_, report_, "Variable"))
            return false;
        for (std::int32_t varIndex = 0; varIndex < file_.numVars; ++varIndex)
            if (!deliver(Plot3DItem_Variable, varIndex, plane))
                return false;
        return true;
    }

    Plot3DFile_s& file_;
    const bool report_;
    const Plot3DItemReceiver_s& receiver_;
    std::int32_t grid_ = 0;
    std::int32_t zone_ = -1; // stays at the last selected grid's across others
    bool include_ = false;
};

} // namespace

bool walkGrids(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
               const Plot3DItemReceiver_s& receiver) {
    GridWalk walk(file, report, receiver);
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid) {
        walk.enterGrid(grid, isGridSelected(gridSet, std::int64_t{grid} + 1));
        if (!walk.deliverGrid())
            return false;
    }
    return true;
}

} // namespace quorvia::quorutildataio
