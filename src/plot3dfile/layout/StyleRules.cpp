#include "plot3dfile/layout/StyleRules.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quorvia::quorutildataio {

namespace {

constexpr const char* solutionTime = nullptr;
constexpr std::int32_t fewestGammas = 2;

constexpr std::array classicScalars = {
    StyleScalar_s{"Common.ReferenceMachNumber", true},
    StyleScalar_s{"Common.AngleOfAttack", true},
    StyleScalar_s{"Common.ReynoldsNumber", true},
    StyleScalar_s{solutionTime, false},
};

constexpr std::array swiftScalars = {
    StyleScalar_s{"Common.ReferenceMachNumber", true},
    StyleScalar_s{"Common.AngleOfAttack", true},
    StyleScalar_s{"Common.ReynoldsNumber", true},
    StyleScalar_s{solutionTime, false},
    StyleScalar_s{"OMAR", false},
};

constexpr std::array overflowScalars = {
    StyleScalar_s{"Common.ReferenceMachNumber", true},
    StyleScalar_s{"Common.AngleOfAttack", true},
    StyleScalar_s{"Common.ReynoldsNumber", true},
    StyleScalar_s{solutionTime, false},
    StyleScalar_s{"G", false},
    StyleScalar_s{"B", false},
    StyleScalar_s{"T", false},
    StyleScalar_s{"I", false},
    StyleScalar_s{"H", false},
    StyleScalar_s{"H1", false},
    StyleScalar_s{"H2", false},
};

constexpr std::array rows = {
    StyleRules_s{
        .style = Plot3DStyle_Classic,
        .existsIn2D = true,
        .existsIn1D = true,
        .existsUnstructured = true,
        .variableCount = VariableCount_e::OfLayout,
        .scalars = classicScalars,
        .hasSpecies = false,
    },
    StyleRules_s{
        .style = Plot3DStyle_Function,
        .existsIn2D = true,
        .existsIn1D = true,
        .existsUnstructured = true,
        .variableCount = VariableCount_e::OfEachGrid,
        .scalars = {},
        .hasSpecies = false,
    },
    StyleRules_s{
        .style = Plot3DStyle_Overflow,
        .existsIn2D = false,
        .existsIn1D = false,
        .existsUnstructured = false,
        .variableCount = VariableCount_e::OfFile,
        .scalars = overflowScalars,
        .hasSpecies = true,
    },
    StyleRules_s{
        .style = Plot3DStyle_Swift,
        .existsIn2D = true,
        .existsIn1D = true,
        .existsUnstructured = false,
        .variableCount = VariableCount_e::OfLayout,
        .scalars = swiftScalars,
        .hasSpecies = false,
    },
};

constexpr StyleRules_s unknownStyle = {
    .style = Plot3DStyle_Unknown,
    .existsIn2D = true,
    .existsIn1D = true,
    .existsUnstructured = true,
    .variableCount = VariableCount_e::OfLayout,
    .scalars = {},
    .hasSpecies = false,
};

} // namespace

std::span<const StyleRules_s> allStyleRules() {
    return rows;
}

const StyleRules_s& styleRules(Plot3DStyle_e style) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [style](const StyleRules_s& r) { return r.style == style; });
    return row != rows.end() ? *row : unknownStyle;
}

const StyleRules_s& styleRulesOf(const Plot3DFileStructure_s& file) {
    return file.isSolutionOrFunction ? styleRules(file.style) : unknownStyle;
}

bool hasScalars(const Plot3DFile_s& file) {
    return !styleRulesOf(file).scalars.empty();
}

std::int32_t scalarCount(const StyleRules_s& rules, std::int32_t speciesCount) {
    const auto named = static_cast<std::int32_t>(rules.scalars.size());
    if (!rules.hasSpecies)
        return named;
    // An absurd count of species must not wrap to a small number of scalars.
    const std::int32_t mostGammas = std::numeric_limits<std::int32_t>::max() - named;
    return named + std::min(std::max(speciesCount, fewestGammas), mostGammas);
}

} // namespace quorvia::quorutildataio
