// Guests that are linked into a program, and imports that go to one loader of several.
#include "session/GuestEntry.h"

#include <stdexcept>

#include "HostFixture.h"
#include "state/HostState.h"

namespace quorvia::host {
namespace {

std::string gLoaded; // by which loader, last

template <int number>
bool load(QuorStringListHandle) {
    gLoaded = "loader " + std::to_string(number);
    return true;
}
void select(QuorStringListHandle, bool, bool) {
    gLoaded = "selection";
}

template <int number>
void enter() {
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "LoaderName", "Entry Loader");
    QuorUtilArgListAppendString(arguments.get(), "FileNameExtensions", "*.entry");
    QuorUtilArgListAppendInt(arguments.get(), "LoaderCallbackVersion", 1);
    QuorUtilArgListAppendFunction(arguments.get(), "LoaderCallback",
                                  reinterpret_cast<QuorFunction>(load<number>));
    QuorUtilArgListAppendFunction(arguments.get(), "LoaderSelectedCallback",
                                  reinterpret_cast<QuorFunction>(select));
    for (const char* key : {"AllowMultiFileSelection", "AllowAdvancedOptions", "AllowAppending"})
        QuorUtilArgListAppendInt(arguments.get(), key, 0);
    QuorUtilLockOn();
    QuorUtilImportAddLoaderX(arguments.get());
    QuorUtilLockOff();
}

class GuestEntryTest : public HostTest {
protected:
    GuestEntryTest() { freeLock(); }
    ~GuestEntryTest() override { host().state().loaders = loadersBefore_; }

    std::string error_;

private:
    const std::vector<Loader_s> loadersBefore_ = host().loaders();
};

TEST_F(GuestEntryTest, GivesTheLoaderThatTheGuestHasRegistered) {
    const auto loader = enterLinkedGuest(enter<1>, error_);
    ASSERT_TRUE(loader.has_value()) << error_;
    EXPECT_EQ(loader->name, "Entry Loader");
    EXPECT_EQ(loader->load, load<1>);
}

TEST_F(GuestEntryTest, LeavesTheUsersImportsWhereTheyWent) {
    enter<2>();
    const auto linked = enterLinkedGuest(enter<3>, error_);
    ASSERT_TRUE(linked.has_value());
    EXPECT_TRUE(host().importInstructions({"LOAD"}).ok);
    EXPECT_EQ(gLoaded, "loader 2");
    EXPECT_TRUE(host().importInstructions({"LOAD"}, *linked).ok);
    EXPECT_EQ(gLoaded, "loader 3");
}

TEST_F(GuestEntryTest, IsRefusedWithoutALoader) {
    EXPECT_FALSE(enterLinkedGuest([] {}, error_).has_value());
    EXPECT_EQ(error_, "The linked-in add-on has registered no loader.");
}

TEST_F(GuestEntryTest, ThatThrowsIsShown) {
    EXPECT_FALSE(enterLinkedGuest([] { throw std::runtime_error("no"); }, error_).has_value());
    EXPECT_EQ(error_, "The entry of the linked-in add-on has thrown an exception.");
}

TEST_F(GuestEntryTest, ThatKeepsTheLockIsBlamed) {
    EXPECT_FALSE(enterLinkedGuest([] { QuorUtilLockOn(); }, error_).has_value());
    EXPECT_EQ(host().lockDepth(), 0);
    expectViolations({"QuorUtilLockOn: lock not ended (1 too many)"});
}

} // namespace
} // namespace quorvia::host
