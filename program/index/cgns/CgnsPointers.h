// Names of nodes as values of a node: 32 letters each, with blanks behind.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace plot3d::program {

inline constexpr std::size_t cgnsNameLength = 32;

inline std::string pointerText(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += name + std::string(cgnsNameLength - name.size(), ' ');
    return text;
}

} // namespace plot3d::program
