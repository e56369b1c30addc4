// The three columns of files, which behave alike: selecting, removing and adding.
#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

struct ColumnRow_s {
    const char* name;
    Texts Plot3DLoadOptions_s::*files;
    Texts& retained;
    const std::int32_t& list;
    const std::int32_t& removeSelected;
    const std::int32_t& removeAll;
    std::int32_t addFilesY; // the place of the button
};

class FileColumn : public LoadDialogTest, public ::testing::WithParamInterface<ColumnRow_s> {
protected:
    static const ColumnRow_s& column() { return GetParam(); }
    static std::int32_t list() { return column().list; }
    static std::int32_t removeSelected() { return column().removeSelected; }
    static std::int32_t removeAll() { return column().removeAll; }
    static std::int32_t addFiles() { return buttonAt(column().addFilesY); }
    static const Texts& files() { return gLoadOptions.*column().files; }

    static void retainHere(const Texts& files) { column().retained = files; }
    /// The column in the record and before the user.
    static host::ScriptEntry expectFiles(const Texts& expected) {
        return meanwhile([expected] {
            EXPECT_EQ(files(), expected);
            EXPECT_EQ(items(list()), expected);
        });
    }
    static host::ScriptEntry expectSensitive(std::int32_t button, bool sensitive) {
        return meanwhile([button, sensitive] { EXPECT_EQ(isSensitive(button), sensitive); });
    }
};

TEST_P(FileColumn, RemoveSelectedIsUsableWhileSomethingIsSelected) {
    retainHere({"a", "b", "c"});
    open({select(list(), {2}), expectSensitive(removeSelected(), true), select(list(), {1, 3}),
          expectSensitive(removeSelected(), true), select(list(), {}),
          expectSensitive(removeSelected(), false)});
}

TEST_P(FileColumn, RefreshSelectsNothing) {
    retainHere({"a", "b"});
    open({select(list(), {2}), set(assignStrandToggle, false),
          expectSensitive(removeSelected(), false),
          meanwhile([] { EXPECT_TRUE(control(list()).selected.empty()); })});
}

TEST_P(FileColumn, TwoSelectedItemsAreBothRemovedAndTheButtonIsGreyedAgain) {
    retainHere({"a", "b", "c", "d", "e"});
    open({select(list(), {2, 4}), press(removeSelected()), expectFiles({"a", "c", "e"}),
          expectSensitive(removeSelected(), false), expectSensitive(removeAll(), true)});
}

TEST_P(FileColumn, LastFileCanBeRemoved) {
    retainHere({"a", "b"});
    open({select(list(), {1, 2}), press(removeSelected()), expectFiles({}),
          expectSensitive(removeAll(), false)});
}

TEST_P(FileColumn, RemoveAllEmptiesThisColumnAlone) {
    retain({"a", "b"}, {"a", "b"}, {"a", "b"});
    open({press(removeAll()), expectFiles({}), expectSensitive(removeAll(), false), meanwhile([] {
              const Plot3DLoadOptions_s& options = gLoadOptions;
              EXPECT_EQ(options.gridFiles.size() + options.solutionFiles.size() +
                            options.functionFiles.size(),
                        4u);
          })});
}

TEST_P(FileColumn, RemoveAllEmptiesItsListBeforeThePageIsRefreshed) {
    retainHere({"a"});
    open({meanwhile([] { host().recordTranscript(true); }), press(removeAll()), meanwhile([] {
              EXPECT_EQ(host().log().transcript[1],
                        "QuorGUIListDeleteAllItems(" + std::to_string(list()) + ")");
              EXPECT_EQ(host().log().transcript[2], "QuorUtilDataSetIsAvailable() = false");
          })});
}

TEST_P(FileColumn, AddFilesSettlesRemoveAllBehindTheRefresh) {
    open({meanwhile([] { host().recordTranscript(true); }), press(addFiles()), pick({"a"}),
          meanwhile([] {
              const Texts& calls = host().log().transcript;
              EXPECT_EQ(calls[calls.size() - 2],
                        "QuorGUISetSensitivity(" + std::to_string(removeAll()) + ", true)");
          })});
}

TEST_P(FileColumn, ListOfChosenNamesIsGivenBackBeforeThePageIsRefreshed) {
    Texts order;
    open({meanwhile([] { host().recordTranscript(true); }), press(addFiles()), pick({"a"}),
          meanwhile([&order] {
              for (const std::string& call : host().log().transcript)
                  for (const char* operation :
                       {"QuorUtilStringListDealloc", "QuorUtilDataSetIsAvailable"})
                      if (call.find(operation) == 0)
                          order.emplace_back(operation);
          })});
    EXPECT_EQ(order, (Texts{"QuorUtilStringListDealloc", "QuorUtilDataSetIsAvailable"}));
}

TEST_P(FileColumn, ChosenFilesAreAppendedWhateverTheyAreCalled) {
    retainHere({"a"});
    open({press(addFiles()), pick({"wing.q", "wing.x", "README"}),
          expectFiles({"a", "wing.q", "wing.x", "README"})});
}

TEST_P(FileColumn, DuplicatesAreKept) {
    retainHere({"a"});
    open({press(addFiles()), pick({"a", "a"}), expectFiles({"a", "a", "a"})});
}

TEST_P(FileColumn, AddedFilesMakeRemoveAllUsable) {
    open({expectSensitive(removeAll(), false), press(addFiles()), pick({"a"}),
          expectSensitive(removeAll(), true), expectSensitive(removeSelected(), false)});
}

TEST_P(FileColumn, CancelledChoiceChangesNothing) {
    retainHere({"a"});
    open({select(list(), {1}), meanwhile([] { host().clearFaults(); }), press(addFiles()),
          pickNothing(), expectFiles({"a"}), meanwhile([] {
              EXPECT_EQ(host().callCount("QuorGUIListDeleteAllItems"), 0) << "no refresh";
          }),
          expectSensitive(removeSelected(), true)});
}

TEST_P(FileColumn, ChoiceThatTheHostFailsChangesNothing) {
    retainHere({"a"});
    host().failCall("QuorUtilDialogGetFileNames", 1);
    open({press(addFiles()), expectFiles({"a"})});
    EXPECT_EQ(messages(), Texts());
}

TEST_P(FileColumn, NameThatTheHostCannotHandOutIsToldAndNothingIsAdded) {
    retainHere({"a"});
    host().failCall("QuorUtilStringListGetString", 2);
    open({press(addFiles()), pick({"b", "c", "d"}), expectFiles({"a"})});
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
}

TEST_P(FileColumn, FilesThatAreGoneFromTheRecordAreNotRemovedTwice) {
    retainHere({"a", "b", "c"});
    open({select(list(), {1, 3}), meanwhile([] { host().sendStateChange(15); }),
          press(removeSelected()), expectFiles({})});
}

INSTANTIATE_TEST_SUITE_P(
    EachColumn, FileColumn,
    ::testing::Values(ColumnRow_s{"Grid", &Plot3DLoadOptions_s::gridFiles, gRetainedGridFiles,
                                  gridList, gridRemoveSelected, gridRemoveAll, 1015},
                      ColumnRow_s{"Solution", &Plot3DLoadOptions_s::solutionFiles,
                                  gRetainedSolutionFiles, solutionList, solutionRemoveSelected,
                                  solutionRemoveAll, 1776},
                      ColumnRow_s{"Function", &Plot3DLoadOptions_s::functionFiles,
                                  gRetainedFunctionFiles, functionList, functionRemoveSelected,
                                  functionRemoveAll, 2531}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace quorvia::quorutildataio
