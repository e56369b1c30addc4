#include <plot3d/DataSet.h>

#include <algorithm>
#include <utility>

#include <plot3d/Error.h>

#include "open/BoundaryUse.h"
#include "open/ContentOfFrame.h"
#include "open/DataSetContent.h"
#include "open/Facts.h"
#include "open/FileSorting.h"
#include "open/GridDemand.h"
#include "open/HostLoad.h"
#include "open/HostLock.h"
#include "open/LoadFailure.h"
#include "open/LoadInstructions.h"
#include "open/LoadLimits.h"

namespace plot3d {

namespace {

using namespace plot3dlib;

void demandToGoOn(const Watch& watch) {
    if (watch.stop.stop_requested())
        throw Error(ErrorKind::Interrupted, "The load was stopped.");
}

Content_s loadExplained(const FileLists& files, const OpenOptions& options, bool withBoundary,
                        const Watch& watch) {
    try {
        const std::vector<std::string> instructions =
            composeInstructions(files, options, withBoundary);
        return options.addOn.empty() ? loadAtHost(instructions, watch)
                                     : loadByAddOn(options.addOn, instructions, watch);
    } catch (const Error& error) {
        throw explained(error, files, watch);
    }
}

/// Where the files were taken to be alike and can't have been read so, they are loaded once more,
/// each looked at by itself.
Content_s loadAsToldOrSafely(const FileLists& files, const OpenOptions& options, bool withBoundary,
                             const Watch& watch) {
    Content_s content = loadExplained(files, options, withBoundary, watch);
    if (!options.shareStructure || isComplete(content))
        return content;
    OpenOptions safe = options;
    safe.shareStructure = false;
    content = loadExplained(files, safe, withBoundary, watch);
    content.notes.push_back("Each file was looked at by itself: files of planes, and of "
                            "unstructured grids, can't be read by the structure of the first.");
    return content;
}

/// The host lock is held.
Content_s load(const FileLists& files, const std::vector<std::string>& boundaryFiles,
               const OpenOptions& options, const Watch& watch) {
    demandReadable(options);
    demandGrid(files);
    const BoundaryUse_s boundary = boundaryUse(files, boundaryFiles, options.boundaries);
    demandToGoOn(watch);
    Content_s content = loadAsToldOrSafely(files, options, boundary.isLoaded, watch);
    demandToGoOn(watch);
    content.files = files;
    content.notes.insert(content.notes.end(), boundary.notes.begin(), boundary.notes.end());
    return content;
}

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string_view withoutTail(std::string_view name) {
    const auto last = name.find_last_not_of(' ');
    return name.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// Case and blanks at the end don't count.
bool isSameName(std::string_view left, std::string_view right) {
    left = withoutTail(left);
    right = withoutTail(right);
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lowered(a) == lowered(b); });
}

} // namespace

DataSet::DataSet(std::shared_ptr<const Content> content) : content_(std::move(content)) {}
DataSet::DataSet(DataSet&& other) noexcept = default;
DataSet& DataSet::operator=(DataSet&& other) noexcept = default;
DataSet::~DataSet() = default;

DataSet DataSet::open(const std::vector<std::string>& files, const OpenOptions& options,
                      const Watch& watch) {
    SortedFiles_s sorted = sortByKind(files, watch);
    if (!options.nameFile.empty())
        sorted.lists.name = options.nameFile;
    demandFiles(sorted.lists);
    const HostLock lock;
    return DataSet(std::make_shared<const Content>(
        Content{load(sorted.lists, sorted.boundaryFiles, options, watch)}));
}

DataSet DataSet::open(const FileLists& files, const OpenOptions& options, const Watch& watch) {
    FileLists lists = files;
    if (!options.nameFile.empty())
        lists.name = options.nameFile;
    demandFiles(lists);
    const HostLock lock;
    return DataSet(std::make_shared<const Content>(Content{load(lists, {}, options, watch)}));
}

DataSet DataSet::of(const quorvia::host::Frame& frame) {
    const HostLock lock;
    return DataSet(
        std::make_shared<const Content>(Content{contentOf(frame, HostFields_e::LeftAtHost)}));
}

const std::string& DataSet::title() const {
    return content_->title;
}

const AuxiliaryData& DataSet::auxiliaryData() const {
    return content_->auxiliaryData;
}

int DataSet::dimensions() const {
    return content_->dimensions;
}

const std::vector<Variable>& DataSet::variables() const {
    return content_->variables;
}

const std::vector<Zone>& DataSet::zones() const {
    return content_->zones;
}

const std::vector<TimeStep>& DataSet::timeSteps() const {
    return content_->timeSteps;
}

const std::vector<std::string>& DataSet::notes() const {
    return content_->notes;
}

const FileLists& DataSet::files() const {
    return content_->files;
}

std::optional<std::size_t> DataSet::findVariable(std::string_view name) const {
    const auto& all = content_->variables;
    const auto found = std::find_if(all.begin(), all.end(), [name](const Variable& variable) {
        return isSameName(variable.name, name);
    });
    if (found == all.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - all.begin());
}

std::size_t DataSet::variable(std::string_view name) const {
    if (const std::optional<std::size_t> found = findVariable(name))
        return *found;
    std::string names;
    for (const Variable& variable : content_->variables)
        names += (names.empty() ? "" : ", ") + variable.name;
    throw Error(ErrorKind::Usage, "There is no variable \"" + std::string(name) + "\".",
                expecting("one of " + names));
}

} // namespace plot3d
