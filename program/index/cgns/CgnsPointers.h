// Names of nodes as values of a node: 32 letters each, with blanks behind.
#pragma once

#include <string>
#include <vector>

#include "names/CgnsNames.h"

namespace plot3d::program {

inline std::string pointerText(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += name + std::string(cgnsNameLength - name.size(), ' ');
    return text;
}

} // namespace plot3d::program
