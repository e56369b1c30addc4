#include "desktop/files/SeriesFiles.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <utility>

#include <plot3d/FileNames.h>

namespace quorvia::host {
namespace {

namespace fs = std::filesystem;
using Numbers = std::vector<std::string>;

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

struct Name_s {
    std::string skeleton; // with a zero byte in the place of each number
    Numbers numbers;      // "12" or "0.25"
};

Name_s takenApart(const std::string& name) {
    Name_s taken;
    for (std::size_t at = 0; at < name.size();) {
        if (!isDigit(name[at])) {
            taken.skeleton += name[at++];
            continue;
        }
        const std::size_t first = at;
        const auto goesOn = [&name, &at] {
            const bool isPoint = at + 1 < name.size() && name[at] == '.' && isDigit(name[at + 1]);
            return at < name.size() && (isDigit(name[at]) || isPoint);
        };
        while (goesOn())
            ++at;
        taken.numbers.push_back(name.substr(first, at - first));
        taken.skeleton += '\0';
    }
    return taken;
}

/// Numbers that stand in the ending with letters, as in "wing.p3d".
std::size_t countInEnding(const std::string& skeleton) {
    const std::size_t point = skeleton.rfind('.');
    if (point == std::string::npos || point + 2 >= skeleton.size())
        return 0; // no ending, or one letter or number
    return static_cast<std::size_t>(
        std::count(skeleton.begin() + static_cast<std::ptrdiff_t>(point), skeleton.end(), '\0'));
}

/// Files of one folder and skeleton.
class Series {
public:
    void add(Numbers numbers) { members_.insert(std::move(numbers)); }

    /// Settles which numbers may differ, once all are there.
    void settle(const std::string& skeleton) {
        const Numbers& first = *members_.begin();
        mayDiffer_.assign(first.size(), false);
        for (const Numbers& member : members_)
            for (std::size_t place = 0; place < first.size(); ++place)
                mayDiffer_[place] = mayDiffer_[place] || member[place] != first[place];
        const std::size_t inEnding = countInEnding(skeleton);
        if (members_.size() == 1 && first.size() > inEnding)
            mayDiffer_[first.size() - inEnding - 1] = true;
    }

    bool isContinuedBy(const Numbers& other) const {
        const Numbers& first = *members_.begin();
        for (std::size_t place = 0; place < first.size(); ++place)
            if (!mayDiffer_[place] && other[place] != first[place])
                return false;
        return members_.count(other) == 0;
    }

private:
    std::set<Numbers> members_;
    std::vector<bool> mayDiffer_;
};

using SeriesOfFolder = std::map<std::string, Series>; // by skeleton

void addOthers(const fs::path& folder, const SeriesOfFolder& series,
               std::vector<std::string>& others) {
    std::error_code failure; // of a folder that can't be listed: nothing new is seen there
    for (fs::directory_iterator entry(folder, failure); entry != fs::directory_iterator();
         entry.increment(failure)) {
        const Name_s name = takenApart(entry->path().filename().string());
        const auto found = series.find(name.skeleton);
        std::error_code unknown;
        if (found != series.end() && found->second.isContinuedBy(name.numbers) &&
            entry->is_regular_file(unknown))
            others.push_back((folder / entry->path().filename()).string());
        if (failure)
            return;
    }
}

} // namespace

std::vector<std::string> othersOfSeries(const std::vector<std::string>& files) {
    std::map<fs::path, SeriesOfFolder> folders;
    for (const std::string& file : files) {
        const fs::path path(file);
        Name_s name = takenApart(path.filename().string());
        if (!name.numbers.empty())
            folders[path.parent_path()][name.skeleton].add(std::move(name.numbers));
    }
    std::vector<std::string> others;
    for (auto& [folder, series] : folders) {
        for (auto& [skeleton, one] : series)
            one.settle(skeleton);
        addOthers(folder, series, others);
    }
    std::sort(others.begin(), others.end(), plot3d::naturalLess);
    return others;
}

} // namespace quorvia::host
