#include "acceptance/macros/SessionFiles.h"

#include <stdexcept>

#include <fmt/core.h>

#include "acceptance/behaviour/SmallFiles.h"
#include "describe/Statistics.h"

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

FileDescription_s describeFile(const SessionFiles& files, FileKind_e kind, double shift) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = files.layout;
    description.isMultiGrid = files.layout != Layout_e::OneD;
    description.grids = files.grids;
    description.value = [shift](std::int32_t grid, std::int32_t variable, std::int32_t i,
                                std::int32_t j, std::int32_t k) {
        return placeValue(grid, variable, i, j, k) + shift;
    };
    return description;
}

std::vector<std::int32_t> indicesOf(const Range_s& range, std::int32_t points) {
    const std::int32_t last = range.end == 0 ? points : range.end;
    std::vector<std::int32_t> indices;
    for (std::int32_t index = range.start; index < last; index += range.skip)
        indices.push_back(index - 1);
    indices.push_back(last - 1); // in any case, also where the skip would pass it
    return indices;
}

std::int32_t iBlankAt(std::int32_t i) {
    return i % 2;
}

template <typename Value>
bool holdsAs(const nlohmann::ordered_json& field, const FieldOfFile_s& expected,
             QuorFieldDataType_e type) {
    std::vector<Value> values;
    for (const std::int32_t k : indicesOf(expected.k, expected.dims.k))
        for (const std::int32_t j : indicesOf(expected.j, expected.dims.j))
            for (const std::int32_t i : indicesOf(expected.i, expected.dims.i))
                values.push_back(static_cast<Value>(
                    expected.form == FieldForm_e::IBlank
                        ? iBlankAt(i)
                        : placeValue(expected.grid, expected.variable, i, j, k) + expected.shift));
    const auto count = static_cast<std::int64_t>(values.size());
    const std::uint32_t crc32 = host::describeValues(type, values.data(), count).crc32;
    return field["count"] == count && field.value("crc32", "") == fmt::format("{:08x}", crc32);
}

} // namespace

std::string SessionFiles::grid(const std::string& name, bool hasIBlank) const {
    constexpr double unshifted = 0;
    FileDescription_s description = describeFile(*this, FileKind_e::Grid, unshifted);
    description.hasIBlank = hasIBlank;
    description.iblank = [](std::int32_t, std::int32_t i, std::int32_t, std::int32_t) {
        return iBlankAt(i);
    };
    return write(name, description);
}

std::string SessionFiles::solution(const std::string& name, double time, double shift) const {
    FileDescription_s description = describeFile(*this, FileKind_e::ClassicSolution, shift);
    description.scalars.assign(grids.size(), {0.5, 2.0, 1000.0, time});
    return write(name, description);
}

std::string SessionFiles::function(const std::string& name, std::int32_t variableCount,
                                   double shift) const {
    FileDescription_s description = describeFile(*this, FileKind_e::Function, shift);
    description.numVars = variableCount;
    return write(name, description);
}

std::string SessionFiles::write(const std::string& name,
                                const FileDescription_s& description) const {
    const std::string path = folder_ + "/" + name;
    const WriteOutcome_s outcome = writePlot3DFile(path, description, form);
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
    return path;
}

bool holds(const nlohmann::ordered_json& field, const FieldOfFile_s& expected) {
    switch (expected.form) {
    case FieldForm_e::Single:
        return holdsAs<float>(field, expected, QuorFieldDataType_Float);
    case FieldForm_e::Double:
        return holdsAs<double>(field, expected, QuorFieldDataType_Double);
    case FieldForm_e::IBlank:
        return holdsAs<std::int32_t>(field, expected, QuorFieldDataType_Int32);
    }
    return false;
}

} // namespace quorvia::testsupport
