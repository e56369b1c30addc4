// The library comes and goes: loaded, used, unloaded and loaded again, it leaves nothing behind.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "acceptance/behaviour/Snapshot.h"
#include "session/AddOnLibrary.h"
#include "support/HostedTest.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

class LibraryLife : public HostedTest {
protected:
    void TearDown() override { EXPECT_FALSE(isInMemory()); }

    static std::unique_ptr<host::AddOnLibrary> open() {
        std::string error;
        auto library = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
        EXPECT_NE(library, nullptr) << error;
        return library;
    }
    static bool isInMemory() {
        void* const handle = dlopen(PLOT3D_ADDON_PATH, RTLD_NOW | RTLD_NOLOAD);
        if (handle != nullptr)
            dlclose(handle);
        return handle != nullptr;
    }
    static bool load(const std::string& grid) {
        return host()
            .importInstructions({"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", grid})
            .ok;
    }

    TemporaryDirectory directory_;
    const std::string grid_ = SmallFiles(directory_.path().string()).grid("a.x", true);
};

TEST_F(LibraryLife, EndsWithTheUnload) {
    const auto library = open();
    EXPECT_TRUE(isInMemory());
    EXPECT_EQ(host().loaderNames(), Texts{"PLOT3D Loader"});
    library->unload();
    EXPECT_FALSE(isInMemory());
    EXPECT_EQ(host().loaderNames(), Texts());
}

TEST_F(LibraryLife, EndsWithFieldsThatWereNeverFetched) {
    const auto library = open();
    ASSERT_TRUE(load(grid_));
    library->unload();
    EXPECT_FALSE(isInMemory());
    EXPECT_FALSE(host().fetch(1, 1).ok); // empty by now
}

TEST_F(LibraryLife, BeginsAnewAfterEveryUnload) {
    std::string first;
    for (int round = 0; round < 3; ++round) {
        const auto library = open();
        ASSERT_TRUE(load(grid_)) << round;
        const std::string snapshot = snapshotOfFrame();
        if (round == 0)
            first = snapshot;
        EXPECT_EQ(snapshot, first) << round;
        library->unload();
        host().checkForLeaks();
        EXPECT_EQ(host().log().violations, Texts()) << round;
    }
}

TEST_F(LibraryLife, EndsAfterALoadThatFailed) {
    const auto library = open();
    host().failCall("QuorUtilDataValueCustomLOD", 2);
    EXPECT_FALSE(load(grid_));
    library->unload();
    EXPECT_FALSE(isInMemory());
}

TEST_F(LibraryLife, EndsAfterALoadThatRanOutOfMemory) {
    const auto library = open();
    host().failCall("createTaskProgressBar", 1);
    EXPECT_FALSE(load(grid_));
    EXPECT_TRUE(load(grid_));
    library->unload();
    EXPECT_FALSE(isInMemory());
}

TEST_F(LibraryLife, AtAHostThatIsTooOldRegistersNothing) {
    host().settings().version = 1000376;
    const auto library = open();
    ASSERT_EQ(host().log().messages.size(), 1u);
    EXPECT_EQ(host().log().messages[0].text,
              "Add-On \"PLOT3D Loader\" requires Quorvia version 10.0-3-77 or greater");
    EXPECT_EQ(host().loaderNames(), Texts());
    EXPECT_EQ(host().callCount("QuorUtilAddOnRegister"), 0);
    EXPECT_EQ(host().callCount("QuorUtilStateChangeAddCallback"), 0);
    host().sendStateChange(15);
    EXPECT_EQ(host().callCount("QuorUtilLockStart"), 0);
    library->unload();
}

TEST_F(LibraryLife, HearsOfStateChange15Alone) {
    const auto library = open();
    host().clearFaults();
    for (const std::int32_t code : {-1, 0, 1, 3, 14, 16})
        host().sendStateChange(code);
    EXPECT_EQ(host().callCount("QuorUtilLockStart"), 0);
    host().sendStateChange(15);
    EXPECT_EQ(host().callCount("QuorUtilLockStart"), 1);
    EXPECT_EQ(host().callCount("QuorUtilLockFinish"), 1);
    library->unload();
    host().sendStateChange(15);
    EXPECT_EQ(host().callCount("QuorUtilLockStart"), 1);
}

} // namespace
} // namespace quorvia::testsupport
