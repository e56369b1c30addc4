#include "addon/FileSelectionRoute.h"

#include "addon/AddOnFixture.h"
#include "addon/LoaderCallbacks.h"
#include "state/AddOnIdentity.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class FileSelection : public testsupport::AddOnTest {
protected:
    static constexpr bool append = true;
    static constexpr bool advanced = true;

    static Texts composed(const SelectedFiles_s& files, bool isAppending) {
        const HostLock lock(addOnID);
        const HostStringList list = composeInstructions(files, isAppending);
        Texts texts;
        for (std::int64_t i = 1; list && i <= QuorUtilStringListGetCount(list.get()); ++i)
            texts.push_back(HostString(QuorUtilStringListGetString(list.get(), i)).str());
        return texts;
    }

    bool aLoadWasBegun() { return host().callCount("createTaskProgressBar") > 0; }

    testsupport::TemporaryDirectory directory_;
    const std::string grid_ = directory_.file("a.x");
    const std::string solution_ = directory_.file("a.q");
};

TEST_F(FileSelection, OfGridAndSolutionBecomesInstructions) {
    EXPECT_EQ(
        composed({{grid_}, {solution_}, {}, ""}, !append),
        (Texts{"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", grid_, "FILELIST_SOLUTIONFILES",
               "1", solution_, "SOLUTIONSSHARESTRUCTURE", "Yes", "ASSIGNSTRANDIDS", "Yes"}));
}

TEST_F(FileSelection, OfAllKindsBecomesInstructionsInOneOrder) {
    EXPECT_EQ(composed({{}, {}, {"a.f", "b.f"}, "n.nam"}, append),
              (Texts{"STANDARDSYNTAX", "1.0", "FILELIST_FUNCTIONFILES", "2", "a.f", "b.f",
                     "FILENAME_NAMEFILE", "n.nam", "APPEND", "Yes", "SOLUTIONSSHARESTRUCTURE",
                     "Yes", "ASSIGNSTRANDIDS", "Yes"}));
}

TEST_F(FileSelection, TakesTheBoundaryFileBesideTheFirstGridFile) {
    directory_.write("a.x.fvbnd", "FVBND 1 4\n");
    EXPECT_EQ(
        composed({{grid_}, {}, {}, ""}, append),
        (Texts{"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", grid_, "LOADBOUNDARY", "Yes",
               "APPEND", "Yes", "SOLUTIONSSHARESTRUCTURE", "Yes", "ASSIGNSTRANDIDS", "Yes"}));
}

TEST_F(FileSelection, IsNeverComposedInPart) {
    for (std::int64_t n = 1; n <= 9; ++n) {
        host().clearFaults();
        host().failCall("QuorUtilStringListAppendString", n);
        EXPECT_EQ(composed({{grid_}, {}, {}, ""}, !append), Texts()) << n;
    }
}

TEST_F(FileSelection, LoadsAtOnce) {
    host().importSelection({grid_, solution_}, !advanced, !append);
    EXPECT_TRUE(aLoadWasBegun());
}

TEST_F(FileSelection, TellsThatThereIsNoMemoryForInstructions) {
    const HostLock lock(addOnID);
    const HostStringList files(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(files.get(), grid_.c_str());
    host().failCall("QuorUtilStringListAlloc", 1);
    loaderSelectedCallback(files.get(), !advanced, !append);
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
    EXPECT_FALSE(aLoadWasBegun());
}

TEST_F(FileSelection, WithTwoNameFilesBeginsNoLoad) {
    for (const bool isAdvanced : {advanced, !advanced}) {
        host().clearLog();
        host().importSelection({grid_, "a.nam", "b.nam"}, isAdvanced, !append);
        EXPECT_EQ(messages(), Texts{"Only one Name file can be loaded."});
        EXPECT_FALSE(aLoadWasBegun());
    }
}

TEST_F(FileSelection, OfUnknownFilesAloneBeginsNoLoad) {
    host().importSelection({"README"}, !advanced, !append);
    ASSERT_EQ(messages().size(), 2u);
    EXPECT_EQ(messages()[0].find("The following extensions are unrecognized: "), 0u);
    EXPECT_EQ(messages()[1], "Must have at least one grid, solution or function file.");
    EXPECT_FALSE(aLoadWasBegun());
}

TEST_F(FileSelection, WithAdvancedOptionsShowsTheDialogAndIgnoresAppend) {
    for (const bool isAppending : {append, !append}) {
        host().clearLog();
        host().importSelection({grid_, solution_, "n.nam"}, advanced, isAppending);
        EXPECT_EQ(host().toolkit().latest()->title, "Plot3D Loader");
        EXPECT_EQ(gRetainedGridFiles, Texts{grid_});
        EXPECT_EQ(gRetainedSolutionFiles, Texts{solution_});
        EXPECT_EQ(gRetainedFunctionFiles, Texts());
        EXPECT_EQ(gRetainedNameFile, "n.nam");
        EXPECT_FALSE(gLoadOptions.append);
        EXPECT_EQ(messages(), Texts());
        EXPECT_FALSE(aLoadWasBegun());
    }
    EXPECT_EQ(host().callCount("QuorGUIDialogLaunch"), 2);
}

TEST_F(FileSelection, GivesTheFocusToAddFilesOnlyWhenTheDialogIsNew) {
    host().importSelection({grid_}, advanced, !append);
    EXPECT_EQ(host().callCount("QuorGUISetInputFocus"), 1);
    EXPECT_EQ(host().toolkit().latest()->focus, gridAddFiles);
    host().importSelection({grid_}, advanced, !append);
    EXPECT_EQ(host().callCount("QuorGUISetInputFocus"), 1);
}

TEST_F(FileSelection, ThatIsRefusedShowsNoDialog) {
    host().importSelection({grid_, "a.nam", "b.nam"}, advanced, !append);
    EXPECT_EQ(loadDialog, noControl);
    EXPECT_EQ(host().callCount("QuorGUIDialogLaunch"), 0);
}

} // namespace
} // namespace quorvia::quorutildataio
