#include "index/contents/NodeNames.h"

#include <algorithm>
#include <map>
#include <set>

namespace plot3d::program {

std::vector<std::string> nodeNames(const std::vector<std::string>& names, std::size_t longest) {
    std::vector<std::string> result;
    std::set<std::string> taken;
    std::map<std::string, int> lastNumbers; // so that many zones of one name cost no more each
    for (std::string wanted : names) {
        std::replace(wanted.begin(), wanted.end(), '/', '_');
        wanted.erase(wanted.find_last_not_of(' ') + 1);
        if (wanted.empty() || wanted == "." || wanted == "..")
            wanted = std::to_string(result.size() + 1);
        std::string name = wanted.substr(0, longest);
        int& last = lastNumbers.try_emplace(name, 1).first->second;
        while (!taken.insert(name).second) {
            const std::string suffix = "_" + std::to_string(++last);
            name = wanted.substr(0, longest - suffix.size()) + suffix;
        }
        result.push_back(name);
    }
    return result;
}

} // namespace plot3d::program
