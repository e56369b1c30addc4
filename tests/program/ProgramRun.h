// One run of the program plot3d as a function, and what came of it.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "app/Program.h"

namespace plot3d::program {

struct Ended_s {
    int code = -1;
    std::string out;
    std::string err;
};

inline Ended_s ended(const std::vector<std::string>& arguments, const std::string& input = {}) {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int code = run(arguments, in, out, err);
    return {code, out.str(), err.str()};
}

} // namespace plot3d::program
