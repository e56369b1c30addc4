// What a guest takes and does not give back.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

class LeakTest : public HostTest {
protected:
    ~LeakTest() override {
        QuorUtilSetDealloc(&set_);
        QuorUtilStringListDealloc(&list_);
        QuorUtilArgListDealloc(&arguments_);
        QuorUtilStringDealloc(&text_);
    }
    QuorSetHandle set_ = nullptr;
    QuorStringListHandle list_ = nullptr;
    QuorArgListHandle arguments_ = nullptr;
    char* text_ = nullptr;
};

TEST_F(LeakTest, HandlesAreCountedByTheirOrigin) {
    freeLock();
    set_ = QuorUtilSetAlloc(true);
    list_ = QuorUtilStringListAlloc();
    arguments_ = QuorUtilArgListAlloc();
    host().checkForLeaks();
    expectViolations({"QuorUtilArgListAlloc: 1 not given back",
                      "QuorUtilSetAlloc: 1 not given back",
                      "QuorUtilStringListAlloc: 1 not given back"});
}

TEST_F(LeakTest, StringsAreNamedByTheirLabel) {
    freeLock();
    text_ = QuorUtilStringAlloc(13, "Parent Zone Array");
    host().checkForLeaks();
    expectViolations({"QuorUtilStringAlloc: 1 not given back, labelled \"Parent Zone Array\" (13 "
                      "bytes)"});
}

TEST_F(LeakTest, CopiesOfListedStringsAreTheGuestsToGiveBack) {
    freeLock();
    const HostStringList list(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(list.get(), "four");
    text_ = QuorUtilStringListGetString(list.get(), 1);
    host().checkForLeaks();
    expectViolations(
        {"QuorUtilStringListAlloc: 1 not given back",
         "QuorUtilStringListGetString: 1 not given back, labelled \"text\" (5 bytes)"});
}

TEST_F(LeakTest, LockAndUndoStateMustEnd) {
    QuorUtilUndoStateBegin(9);
    host().checkForLeaks();
    EXPECT_EQ(host().lockDepth(), 0);
    QuorUtilLockStart(addOn());
    expectViolations({"QuorUtilLockStart: lock not ended (1 too many)",
                      "QuorUtilUndoStateBegin: undo state not ended (1 too many)"});
}

TEST_F(LeakTest, ProgressBarsAndDeferrersMustEnd) {
    freeLock();
    {
        const std::unique_ptr<TaskProgress> bar = createTaskProgressBar(2);
        const SolutionTimeNotificationDeferrer deferrer;
        host().checkForLeaks();
    }
    expectViolations({"createTaskProgressBar: progress bar not ended (1 too many)",
                      "SolutionTimeNotificationDeferrer: deferrer not ended (1 too many)"});
}

TEST_F(LeakTest, NothingHeldIsNoViolation) {
    freeLock();
    { const HostSet set = setOf({1, 2}); }
    host().checkForLeaks();
    EXPECT_TRUE(host().log().violations.empty());
}

TEST_F(LeakTest, WhatWasHeldBeforeResetIsForgiven) {
    set_ = QuorUtilSetAlloc(true);
    freeLock();
    host().reset();
    host().checkForLeaks();
    EXPECT_TRUE(QuorUtilSetIsEmpty(set_));
}

TEST_F(LeakTest, BlocksMayHangOnClientDataUntilTheCleanUp) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    freeLock();
    text_ = QuorUtilStringAlloc(16, "Client Data");
    const auto load = [](QuorFieldHandle) { return false; };
    const auto cleanUp = [](QuorFieldHandle) {};
    QuorUtilLockStart(addOn());
    ASSERT_TRUE(QuorUtilDataValueCustomLOD(1, 1, load, nullptr, cleanUp, nullptr, nullptr, text_));
    QuorUtilLockFinish(addOn());
    host().checkForLeaks();
    EXPECT_TRUE(host().log().violations.empty());
    host().frame().reset();
    host().checkForLeaks();
    expectViolations(
        {"QuorUtilStringAlloc: 1 not given back, labelled \"Client Data\" (16 bytes)"});
}

} // namespace
} // namespace quorvia::host
