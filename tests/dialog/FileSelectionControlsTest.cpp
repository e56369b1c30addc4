// What the controls of the first page store, and the files that they ask the user for. The lists of
// files have tests of their own.
#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

using SelectionControls = LoadDialogTest;

struct ToggleRow_s {
    const char* name;
    const std::int32_t& toggle;
    bool Plot3DLoadOptions_s::*flag;
};

class SelectionToggle : public LoadDialogTest, public ::testing::WithParamInterface<ToggleRow_s> {
protected:
    void SetUp() override {
        LoadDialogTest::SetUp();
        // All of the page's toggles are usable.
        makeDataSet();
        gLoadOptions.append = true;
        gLoadOptions.assignNewStrandIdForEachTimeStep = false;
        gLoadOptions.uniformGridStructure = false;
        retain({}, {"b.q"});
    }
};

TEST_P(SelectionToggle, StoresItsValueAndRefreshesThePage) {
    bool& flag = gLoadOptions.*GetParam().flag;
    for (const bool value : {true, false, true}) {
        flag = !value;
        const auto refreshes = [] { return host().callCount("QuorGUIListDeleteAllItems"); };
        open({meanwhile([&] { host().clearFaults(); }), set(GetParam().toggle, value),
              meanwhile([&] {
                  EXPECT_EQ(flag, value);
                  EXPECT_EQ(isOn(GetParam().toggle), value);
                  EXPECT_EQ(refreshes(), 3) << "one for each list of the page";
              })});
    }
}

TEST_P(SelectionToggle, LeavesTheOtherFlagsAlone) {
    const auto others = [](const Plot3DLoadOptions_s& options) {
        std::vector<bool> flags;
        for (const auto flag : {&Plot3DLoadOptions_s::append, &Plot3DLoadOptions_s::assignStrandIds,
                                &Plot3DLoadOptions_s::addToExistingStrands,
                                &Plot3DLoadOptions_s::uniformGridStructure,
                                &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep,
                                &Plot3DLoadOptions_s::isMultiGrid, &Plot3DLoadOptions_s::autoDetect,
                                &Plot3DLoadOptions_s::assignStrandIdsRequested})
            if (flag != GetParam().flag)
                flags.push_back(options.*flag);
        return flags;
    };
    const std::vector<bool> before = others(gLoadOptions);
    open({set(GetParam().toggle, !(gLoadOptions.*GetParam().flag))});
    EXPECT_EQ(others(gLoadOptions), before);
}

INSTANTIATE_TEST_SUITE_P(
    EachToggle, SelectionToggle,
    ::testing::Values(
        ToggleRow_s{"Append", appendToggle, &Plot3DLoadOptions_s::append},
        ToggleRow_s{"AssignStrand", assignStrandToggle, &Plot3DLoadOptions_s::assignStrandIds},
        ToggleRow_s{"AddToStrands", addToStrandsToggle, &Plot3DLoadOptions_s::addToExistingStrands},
        ToggleRow_s{"UniformGrid", uniformGridToggle, &Plot3DLoadOptions_s::uniformGridStructure},
        ToggleRow_s{"NewStrandPerStep", newStrandPerStepToggle,
                    &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(SelectionControls, AppendSwitchedOffClearsAddingToStrandsEvenWhileThatIsGreyed) {
    makeDataSet();
    gLoadOptions.append = true;
    gLoadOptions.addToExistingStrands = true;
    open({meanwhile([] { EXPECT_FALSE(isSensitive(addToStrandsToggle)); }),
          set(appendToggle, false)});
    EXPECT_FALSE(gLoadOptions.addToExistingStrands);
    EXPECT_FALSE(isOn(addToStrandsToggle));
}

TEST_F(SelectionControls, AppendSwitchedOnLeavesAddingToStrands) {
    makeDataSet();
    gLoadOptions.addToExistingStrands = true;
    open({set(appendToggle, true)});
    EXPECT_TRUE(gLoadOptions.addToExistingStrands);
}

TEST_F(SelectionControls, TypedNameFileReplacesTheOneThatWasThere) {
    retain({"a.x"}, {"a.q"}, {}, "old.nam");
    open({type(nameFileField, "new.nam"),
          meanwhile([] { EXPECT_EQ(gLoadOptions.nameFile, "new.nam"); })});
}

TEST_F(SelectionControls, TypedNameFileAlwaysStands) {
    const auto typed = std::get<QuorGUITextCallback>(control(nameFileField).callback);
    EXPECT_TRUE(typed("new.nam"));
    EXPECT_TRUE(typed(""));
    EXPECT_EQ(gLoadOptions.nameFile, "");
}

class NameFileBrowse : public LoadDialogTest {
protected:
    static void doNothing() {}
    void browse(const host::ScriptEntry& choice = host::ScriptLook(doNothing)) {
        retain({"dir/a.x", "dir/b.x"}, {"a.q"}, {}, "old.nam");
        open({press(nameFileBrowse), choice, meanwhile([] {
                  shownName_ = text(nameFileField);
                  storedName_ = gLoadOptions.nameFile;
              })});
    }
    static inline std::string shownName_;
    static inline std::string storedName_;
};

TEST_F(NameFileBrowse, TakesTheChosenFile) {
    browse(pick({"dir/new.nam"}));
    EXPECT_EQ(shownName_, "dir/new.nam");
    EXPECT_EQ(storedName_, "dir/new.nam");
}

TEST_F(NameFileBrowse, CancelledLeavesTheName) {
    browse(pickNothing());
    EXPECT_EQ(shownName_, "old.nam");
    EXPECT_EQ(storedName_, "old.nam");
}

TEST_F(NameFileBrowse, ThatTheHostFailsLeavesTheName) {
    host().failCall("QuorUtilDialogGetFileName", 1);
    browse(); // the user is not asked
    EXPECT_EQ(storedName_, "old.nam");
}

/// Notes what the add-on asks files for.
class AskedUser : public host::ScriptedUser {
public:
    std::vector<host::FileRequest_s> requests;
    host::FileChoice chooseFiles(const host::FileRequest_s& request) override {
        requests.push_back(request);
        return ScriptedUser::chooseFiles(request);
    }
};

class FileRequests : public LoadDialogTest {
protected:
    host::FileRequest_s requestOf(std::int32_t button) {
        const HostLock lock(addOnID);
        host().setUser(&user_);
        std::get<QuorGUICallback>(control(button).callback)();
        host().setUser(nullptr);
        return user_.requests.back();
    }

private:
    AskedUser user_;
};

TEST_F(FileRequests, NameFileIsOneFileNextToTheFirstGridFile) {
    gLoadOptions.gridFiles = {"dir/a.x", "dir/b.x"};
    const host::FileRequest_s request = requestOf(nameFileBrowse);
    EXPECT_FALSE(request.severalFiles);
    EXPECT_EQ(request.kind, "Name");
    EXPECT_EQ(request.defaultName, "dir/a.x");
    EXPECT_EQ(request.filter, "*.nam");
}

TEST_F(FileRequests, NameFileWithoutGridFileHasNoDefault) {
    host().recordTranscript(true);
    EXPECT_EQ(requestOf(nameFileBrowse).defaultName, "");
    EXPECT_EQ(host().log().transcript[2],
              "QuorUtilDialogGetFileName(0, \"Name\", null, \"*.nam\") = false");
}

TEST_F(FileRequests, AddedFilesAreSeveralOfAnyName) {
    const std::vector<std::pair<std::int32_t, std::string>> buttons = {
        {gridAddFiles, "Grid"}, {buttonAt(1776), "Solution"}, {buttonAt(2531), "Function"}};
    for (const auto& [button, kind] : buttons) {
        const host::FileRequest_s request = requestOf(button);
        EXPECT_TRUE(request.severalFiles);
        EXPECT_EQ(request.kind, kind);
        EXPECT_EQ(request.filter, "*.*");
    }
}

} // namespace
} // namespace quorvia::quorutildataio
