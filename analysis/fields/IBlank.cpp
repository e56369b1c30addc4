#include "analysis/fields/IBlank.h"

namespace plot3d::analysis {

std::optional<std::size_t> iBlankVariable(const DataSet& data) {
    const auto variable = data.findVariable("IBlank");
    if (!variable || data.zones().empty())
        return std::nullopt;
    // A name file may call a variable so that is none.
    return data.type(0, *variable) == ValueType::Int32 ? variable : std::nullopt;
}

} // namespace plot3d::analysis
