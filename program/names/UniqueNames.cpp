#include "names/UniqueNames.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace plot3d::program {

namespace {

std::string asNode(std::string name) {
    std::replace(name.begin(), name.end(), '/', '_');
    name.erase(name.find_last_not_of(' ') + 1);
    return name == "." || name == ".." ? std::string() : name;
}

} // namespace

std::vector<std::string> uniqueNames(std::vector<std::string> names, std::size_t longest) {
    const std::size_t most = longest > 0 ? longest : std::string::npos;
    std::set<std::string> taken;
    std::map<std::string, int> lastNumbers; // so that many zones of one name cost no more each
    for (std::size_t index = 0; index < names.size(); ++index) {
        std::string wanted = std::move(names[index]);
        if (wanted.find_first_not_of(' ') == std::string::npos)
            wanted = "unnamed " + std::to_string(index + 1);
        std::string name = wanted.substr(0, most);
        int& last = lastNumbers.try_emplace(name, 1).first->second;
        while (!taken.insert(name).second) {
            const std::string suffix = "_" + std::to_string(++last);
            name = wanted.substr(0, most - suffix.size()) + suffix;
        }
        names[index] = std::move(name);
    }
    return names;
}

std::vector<std::string> nodeNames(std::vector<std::string> names, std::size_t longest) {
    std::transform(names.begin(), names.end(), names.begin(), asNode);
    return uniqueNames(std::move(names), longest);
}

} // namespace plot3d::program
