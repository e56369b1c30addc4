#include "acceptance/macros/FieldOfFile.h"

#include <vector>

#include <fmt/core.h>

#include "describe/Statistics.h"

namespace quorvia::testsupport {

namespace {

std::vector<std::int32_t> indicesOf(const Range_s& range, std::int32_t points) {
    const std::int32_t last = range.end == 0 ? points : range.end;
    std::vector<std::int32_t> indices;
    for (std::int32_t index = range.start; index < last; index += range.skip)
        indices.push_back(index - 1);
    indices.push_back(last - 1); // in any case, also where the skip would pass it
    return indices;
}

template <typename Value>
bool holdsAs(const Json& field, const FieldOfFile_s& expected, QuorFieldDataType_e type) {
    std::vector<Value> values;
    for (const std::int32_t k : indicesOf(expected.k, expected.dims.k))
        for (const std::int32_t j : indicesOf(expected.j, expected.dims.j))
            for (const std::int32_t i : indicesOf(expected.i, expected.dims.i))
                values.push_back(static_cast<Value>(
                    expected.form == FieldForm_e::IBlank
                        ? placeIBlank(expected.grid, i, j, k)
                        : placeValue(expected.grid, expected.variable, i, j, k) + expected.shift));
    const auto count = static_cast<std::int64_t>(values.size());
    const std::uint32_t crc32 = host::describeValues(type, values.data(), count).crc32;
    return field["count"] == count && field.contains("crc32") &&
           field["crc32"] == fmt::format("{:08x}", crc32);
}

} // namespace

bool holds(const Json& field, const FieldOfFile_s& expected) {
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
