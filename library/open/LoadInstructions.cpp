#include "open/LoadInstructions.h"

#include "instructions/OptionKeys.h"

namespace plot3dlib {

namespace {

using namespace quorvia::quorutildataio;
using Options = Plot3DLoadOptions_s;

class Composer {
public:
    Composer() : texts_{standardSyntaxWord, standardSyntaxVersion} {}

    void add(const char* key, const std::string& value) {
        texts_.emplace_back(key);
        texts_.push_back(value);
    }
    void add(const char* key, bool value) { add(key, std::string(value ? trueWord : falseWord)); }
    void addFiles(const char* key, const std::vector<std::string>& files) {
        if (files.empty())
            return;
        add(key, std::to_string(files.size()));
        texts_.insert(texts_.end(), files.begin(), files.end());
    }
    std::vector<std::string> finish() && { return std::move(texts_); }

private:
    std::vector<std::string> texts_;
};

/// Several function files are time steps if their names tell times; nothing else could.
bool areTimesInNames(const plot3d::FileLists& files) {
    return files.solution.empty() && files.function.size() > 1;
}

} // namespace

std::vector<std::string> composeInstructions(const plot3d::FileLists& files,
                                             const plot3d::OpenOptions& options,
                                             bool withBoundary) {
    Composer list;
    list.addFiles(optionKeyWord(&Options::gridFiles), files.grid);
    list.addFiles(optionKeyWord(&Options::solutionFiles), files.solution);
    list.addFiles(optionKeyWord(&Options::functionFiles), files.function);
    if (!files.name.empty())
        list.add(optionKeyWord(&Options::nameFile), files.name);
    list.add(optionKeyWord(&Options::loadBoundary), withBoundary);
    list.add(optionKeyWord(&Options::solutionsShareStructure), options.shareStructure);
    list.add(optionKeyWord(&Options::uniformGridStructure), options.shareStructure);
    list.add(optionKeyWord(&Options::assignStrandIdsRequested), true);
    list.add(optionKeyWord(&Options::assignNewStrandIdForEachTimeStep), false);
    list.add(optionKeyWord(&Options::extractTimeFromSolFileNames), areTimesInNames(files));
    for (const auto& [key, value] : options.instructions)
        list.add(key.c_str(), value);
    return std::move(list).finish();
}

} // namespace plot3dlib
