#include "services/NewFields.h"

#include <algorithm>
#include <cstring>

namespace quorvia::host {

std::vector<std::int32_t> readTypes(Call& call, ArgumentReader& reader, std::size_t count) {
    const void* array = reader.arrayOrNull("VarDataType");
    std::vector<std::int32_t> types(count);
    if (array != nullptr && count > 0)
        std::memcpy(types.data(), array, count * sizeof(std::int32_t));
    const auto wrong = std::find_if(types.begin(), types.end(),
                                    [](std::int32_t type) { return valueWidth(type) == 0; });
    if (wrong == types.end())
        return types;
    call.violate("\"VarDataType\" holds ", *wrong, ", which is no field type");
    return {};
}

bool createField(Call& call, Field_s& field, std::int64_t valueCount, bool isDeferred) {
    if (isDeferred)
        return true;
    field.storage = FieldStorage::stored(field.type, valueCount);
    return field.storage != nullptr || call.refuse("no memory for a field");
}

std::string describeTypes(const std::vector<std::int32_t>& types) {
    std::string text = "VarDataType [";
    const char* separator = "";
    for (const std::int32_t type : types) {
        text += separator + std::to_string(type);
        separator = ", ";
    }
    return text + ']';
}

} // namespace quorvia::host
