// The road of a file selection has host calls of its own ahead of the load; where one of them fails
// nothing may be loaded but the whole selection.
#include <filesystem>

#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

class FaultySelection : public LoadedAddOnTest {
protected:
    SmallFiles files_{directory().path().string()};
};

TEST_F(FaultySelection, OfEveryHostCallEndsCleanly) {
    const Texts selected = {files_.grid("a.x"), files_.solution("a.q", 0.25)};
    expectSelectionLoads(selected);
    const Texts zones = zoneNames(); // named after the solution file
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail()) {
        for (std::int64_t n = 1; true; ++n) {
            host().reset();
            host().failCall(operation, n);
            const host::LoadResult_s result = select(selected);
            const bool happened = host().callCount(operation) >= n;
            host().clearFaults();
            EXPECT_EQ(host().log().violations, Texts()) << operation << ' ' << n;
            EXPECT_EQ(host().lockDepth(), 0) << operation << ' ' << n;
            if (result.ok) {
                EXPECT_EQ(zoneNames(), zones) << operation << ' ' << n;
            }
            if (!happened)
                break;
        }
    }
}

TEST_F(FaultySelection, OfANameThatTheHostWithholdsLoadsNothing) {
    const Texts selected = {files_.grid("a.x"), files_.solution("a.q", 0.25)};
    host().failCall("QuorUtilStringListGetString", 2);
    EXPECT_FALSE(select(selected).ok);
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

/// Files in a folder that looks like a grid file.
class FaultyFolder : public LoadedAddOnTest {
protected:
    void SetUp() override {
        const std::string folder = directory().file("runs.in.old");
        std::filesystem::create_directory(folder);
        const SmallFiles files(folder);
        selected_ = {files.grid("a.x"), files.solution("a.q", 0.25)};
    }
    void expectNothing(const host::LoadResult_s& result) {
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
        EXPECT_EQ(host().frame().dataSet(), nullptr);
    }

    Texts selected_;
};

TEST_F(FaultyFolder, DoesNotDecideTheKindOfAFile) {
    expectSelectionLoads(selected_);
    EXPECT_EQ(zoneNames(), (Texts{"a.q:1", "a.q:2"}));
}

TEST_F(FaultyFolder, ThatTheHostWithholdsLoadsNothing) {
    for (const int name : {1, 2}) {
        host().reset();
        host().failCall("QuorUtilGetBasePath", name);
        expectNothing(select(selected_));
    }
}

TEST_F(FaultyFolder, ThatTheHostWithholdsOfAListOfDataFilesLoadsNothing) {
    host().failCall("QuorUtilGetBasePath", 2);
    expectNothing(load({.settings = {{"FILELIST_DATAFILES", "2"}, {selected_[0], selected_[1]}}}));
}

} // namespace
} // namespace quorvia::testsupport
