#include "manners/FileList.h"

#include <istream>

namespace plot3d::program {

std::vector<std::string> filesNamed(const std::vector<std::string>& names, std::istream& in) {
    std::vector<std::string> files;
    for (const std::string& name : names) {
        if (name != "-") {
            files.push_back(name);
            continue;
        }
        for (std::string line; std::getline(in, line);) {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            if (!line.empty())
                files.push_back(line);
        }
    }
    return files;
}

} // namespace plot3d::program
