// Loading and unloading an add-on's library.
#include "HostFixture.h"

#include <dlfcn.h>

#include "session/AddOnLibrary.h"

namespace quorvia::host {
namespace {

class AddOnLibraryTest : public HostTest {
protected:
    AddOnLibraryTest() { freeLock(); }

    static std::size_t loaderCount() { return host().loaderNames().size(); }
    static bool isInMemory() {
        void* handle = dlopen(GUEST_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
        if (handle != nullptr)
            dlclose(handle);
        return handle != nullptr;
    }
    std::string error_;
};

TEST_F(AddOnLibraryTest, RegistersItsLoader) {
    const std::size_t before = loaderCount();
    const auto library = AddOnLibrary::open(GUEST_LIBRARY, error_);
    ASSERT_NE(library, nullptr) << error_;
    EXPECT_EQ(loaderCount(), before + 1);
    EXPECT_TRUE(host().importInstructions({"LOAD"}).ok);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 4.5F);
}

TEST_F(AddOnLibraryTest, LeavesNothingBehind) {
    const std::size_t before = loaderCount();
    auto library = AddOnLibrary::open(GUEST_LIBRARY, error_);
    ASSERT_NE(library, nullptr) << error_;
    host().importInstructions({"LOAD"});
    library->unload();
    EXPECT_EQ(loaderCount(), before);
    EXPECT_EQ(field(1, 1).state(), FieldState_e::Empty);
    EXPECT_FALSE(isInMemory());
}

TEST_F(AddOnLibraryTest, CanBeLoadedAgain) {
    for (int round = 0; round < 3; ++round) {
        const auto library = AddOnLibrary::open(GUEST_LIBRARY, error_);
        ASSERT_NE(library, nullptr) << error_;
        EXPECT_TRUE(host().importInstructions({"LOAD"}).ok);
    }
}

TEST_F(AddOnLibraryTest, WhatItHoldsIsToldWhenItGoes) {
    auto library = AddOnLibrary::open(GUEST_LIBRARY, error_);
    ASSERT_NE(library, nullptr) << error_;
    host().importInstructions({"KEEP A SET"});
    library->unload();
    expectViolations({"QuorUtilSetAlloc: 1 not given back", "QuorUtilSetAlloc: 1 not given back"});
}

TEST_F(AddOnLibraryTest, CanGoWhileSomeoneElseHoldsTheLock) {
    auto library = AddOnLibrary::open(GUEST_LIBRARY, error_);
    ASSERT_NE(library, nullptr) << error_;
    QuorUtilLockStart(addOn());
    library->unload();
    EXPECT_EQ(host().lockDepth(), 1);
    QuorUtilLockFinish(addOn());
}

TEST_F(AddOnLibraryTest, ThatIsMissingIsTold) {
    EXPECT_EQ(AddOnLibrary::open("/nowhere/addon.so", error_), nullptr);
    EXPECT_EQ(error_, "The add-on can't be loaded: /nowhere/addon.so: cannot open shared object "
                      "file: No such file or directory");
}

TEST_F(AddOnLibraryTest, ThatIsNoAddOnIsTold) {
    EXPECT_EQ(AddOnLibrary::open(STRANGER_LIBRARY, error_), nullptr);
    EXPECT_EQ(error_, std::string("The library ") + STRANGER_LIBRARY +
                          " is no add-on: it does not export InitQuorAddOn113.");
}

} // namespace
} // namespace quorvia::host
