#include "dialog/FileLists.h"

#include <iterator>

#include "dialog/DialogControls.h"
#include "dialog/FileSelectionRefresh.h"
#include "dialog/WithinMemory.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

using Files = std::vector<std::string>;

/// What tells one column from another.
struct Column_s {
    const char* fileTypeWord; // what the host's file chooser calls the files
    Files Plot3DLoadOptions_s::*files;
    std::int32_t& list;
    std::int32_t& removeSelected;
    std::int32_t& removeAll;

    Files& chosen() const { return gLoadOptions.*files; }
};

constexpr Column_s gridColumn = {"Grid", &Plot3DLoadOptions_s::gridFiles, gridList,
                                 gridRemoveSelected, gridRemoveAll};
constexpr Column_s solutionColumn = {"Solution", &Plot3DLoadOptions_s::solutionFiles, solutionList,
                                     solutionRemoveSelected, solutionRemoveAll};
constexpr Column_s functionColumn = {"Function", &Plot3DLoadOptions_s::functionFiles, functionList,
                                     functionRemoveSelected, functionRemoveAll};

/// The selected positions of a list, from 1 and ascending.
class SelectedItems {
public:
    explicit SelectedItems(std::int32_t list) {
        QuorGUIListGetSelectedItems(list, &positions_, &count_);
    }
    ~SelectedItems() {
        void* array = positions_;
        if (array != nullptr)
            QuorUtilArrayDealloc(&array);
    }
    SelectedItems(const SelectedItems&) = delete;
    SelectedItems& operator=(const SelectedItems&) = delete;

    std::int32_t count() const { return count_; }
    std::int32_t operator[](std::int32_t index) const { return positions_[index]; }

private:
    std::int32_t* positions_ = nullptr;
    std::int32_t count_ = 0;
};

void removeSelectedFiles(std::int32_t list, Files& files) {
    const SelectedItems selected(list);
    // Backwards, so that the positions that are left stay true. The host may have made the record
    // forget its files while the list still shows them.
    for (std::int32_t index = selected.count() - 1; index >= 0; --index)
        if (selected[index] <= std::ssize(files))
            files.erase(files.begin() + (selected[index] - 1));
    showFiles(list, files);
}

/// False: the host could not hand out a name, which was told, and `files` is as it was.
bool appendNames(QuorStringListHandle names, Files& files) {
    Files added;
    const std::int64_t count = QuorUtilStringListGetCount(names);
    for (std::int64_t position = 1; position <= count; ++position) {
        const HostString name(QuorUtilStringListGetString(names, position));
        if (!name) {
            QuorUtilDialogErrMsg("Out of Memory!!!");
            return false;
        }
        added.push_back(name.str());
    }
    files.insert(files.end(), added.begin(), added.end());
    return true;
}

/// Lets the user choose files and appends them: the list that was chosen for them says what they
/// are, whatever they are called. False: cancelled.
bool addFilesToList(const char* fileTypeWord, Files& files) {
    constexpr std::int32_t severalExistingFiles = 1;
    {
        HostStringList names;
        if (!QuorUtilDialogGetFileNames(severalExistingFiles, names.outArgument(), fileTypeWord,
                                        nullptr, "*.*") ||
            !appendNames(names.get(), files))
            return false;
    }
    refreshFileSelectionPage(gLoadOptions);
    return true;
}

template <const Column_s& column>
void itemSelected(const std::int32_t*) {
    const HostLock lock(addOnID);
    const SelectedItems selected(column.list);
    QuorGUISetSensitivity(column.removeSelected, selected.count() > 0);
}

template <const Column_s& column>
void removeSelectedPressed() {
    const HostLock lock(addOnID);
    removeSelectedFiles(column.list, column.chosen());
    refreshFileSelectionPage(gLoadOptions);
}

template <const Column_s& column>
void removeAllPressed() {
    const HostLock lock(addOnID);
    column.chosen().clear();
    QuorGUIListDeleteAllItems(column.list);
    refreshFileSelectionPage(gLoadOptions);
}

template <const Column_s& column>
void addFilesPressed() {
    const HostLock lock(addOnID);
    if (runWithinMemory([] { return addFilesToList(column.fileTypeWord, column.chosen()); }))
        QuorGUISetSensitivity(column.removeAll, !column.chosen().empty());
}

// The blanks bring the captions of the buttons to one length.
constexpr const char* removeSelectedCaption = "Remove Selected";
constexpr const char* removeAllCaption = "Remove All           ";
constexpr const char* addFilesCaption = "Add Files...           ";

} // namespace

void buildGridFileList(PageBuilder& page) {
    gridList = page.list(137, 611, 7140, 599, itemSelected<gridColumn>);
    gridRemoveSelected =
        page.button(7387, 634, 1991, 144, removeSelectedCaption, removeSelectedPressed<gridColumn>);
    gridRemoveAll =
        page.button(7387, 824, 2018, 144, removeAllCaption, removeAllPressed<gridColumn>);
    gridAddFiles = page.button(7387, 1015, 1977, 144, addFilesCaption, addFilesPressed<gridColumn>);
}

void buildSolutionFileList(PageBuilder& page) {
    solutionList = page.list(137, 1372, 7140, 599, itemSelected<solutionColumn>);
    solutionRemoveSelected = page.button(7387, 1401, 1991, 144, removeSelectedCaption,
                                         removeSelectedPressed<solutionColumn>);
    solutionRemoveAll =
        page.button(7387, 1591, 2018, 144, removeAllCaption, removeAllPressed<solutionColumn>);
    page.button(7387, 1776, 1977, 144, addFilesCaption, addFilesPressed<solutionColumn>);
}

void buildFunctionFileList(PageBuilder& page) {
    functionList = page.list(137, 2128, 7140, 599, itemSelected<functionColumn>);
    functionRemoveSelected = page.button(7387, 2139, 1991, 144, removeSelectedCaption,
                                         removeSelectedPressed<functionColumn>);
    functionRemoveAll =
        page.button(7387, 2335, 2018, 144, removeAllCaption, removeAllPressed<functionColumn>);
    page.button(7387, 2531, 1977, 144, addFilesCaption, addFilesPressed<functionColumn>);
}

} // namespace quorvia::quorutildataio
