#include "convert/output/UniqueNames.h"

#include <set>

namespace plot3d::program {

std::vector<std::string> uniqueNames(const std::vector<std::string>& names, std::size_t longest) {
    std::vector<std::string> unique;
    std::set<std::string> taken;
    for (std::size_t index = 0; index < names.size(); ++index) {
        std::string wanted = names[index];
        if (wanted.find_first_not_of(' ') == std::string::npos)
            wanted = "variable " + std::to_string(index + 1);
        std::string name = longest > 0 ? wanted.substr(0, longest) : wanted;
        for (int number = 2; !taken.insert(name).second; ++number) {
            const std::string suffix = "_" + std::to_string(number);
            name = (longest > 0 ? wanted.substr(0, longest - suffix.size()) : wanted) + suffix;
        }
        unique.push_back(name);
    }
    return unique;
}

} // namespace plot3d::program
