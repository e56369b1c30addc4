#include "selection/FileList.h"

#include <istream>

namespace plot3d::program {
namespace {

void appendLines(std::istream& in, std::vector<std::string>& files) {
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!line.empty())
            files.push_back(line);
    }
}

} // namespace

std::vector<std::string> withListedFiles(const std::vector<std::string>& names, std::istream& in) {
    std::vector<std::string> files;
    for (const std::string& name : names) {
        if (name == "-")
            appendLines(in, files);
        else
            files.push_back(name);
    }
    return files;
}

} // namespace plot3d::program
