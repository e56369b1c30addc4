// Fields that are fetched on demand, dropped under a budget, and cleaned up exactly once.
#include "HostFixture.h"
#include "model/FieldCache.h"

namespace quorvia::host {
namespace {

class DeferredFieldTest : public HostTest {
protected:
    DeferredFieldTest() {
        createDataSet({"X", "Y", "Z"});
        for (int zone = 0; zone < 3; ++zone)
            addZone(2, 3, 5);
    }
    static constexpr std::int64_t fieldBytes = 2 * 3 * 5 * 4;
    FakeSource_s a_{.firstValue = 10.0F}, b_{.firstValue = 20.0F}, c_{.firstValue = 30.0F};
};

TEST_F(DeferredFieldTest, IsFetchedWhenAskedForAndNotAgain) {
    ASSERT_TRUE(a_.registerAt(1, 1));
    EXPECT_EQ(field(1, 1).state(), FieldState_e::Deferred);
    EXPECT_EQ(a_.loadCount, 0);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 10.0F);
    EXPECT_EQ(host().fetch(1, 1).count, 30);
    EXPECT_EQ(a_.loadCount, 1);
    EXPECT_EQ(host().fetchedBytes(), fieldBytes);
}

TEST_F(DeferredFieldTest, IsFetchedAgainAfterItWasDropped) {
    a_.registerAt(1, 1);
    host().fetch(1, 1);
    EXPECT_TRUE(host().unload(1, 1));
    EXPECT_EQ(host().fetchedBytes(), 0);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 10.0F);
    EXPECT_EQ(a_.loadCount, 2);
    EXPECT_EQ(a_.unloadCount, 1);
}

TEST_F(DeferredFieldTest, StaysInMemoryIfTheGuestWantsIt) {
    a_.registerAt(1, 1);
    a_.allowsUnload = false;
    host().fetch(1, 1);
    EXPECT_FALSE(host().unload(1, 1));
    EXPECT_EQ(host().fetchedBytes(), fieldBytes);
}

TEST_F(DeferredFieldTest, BudgetDropsTheLeastRecentlyUsed) {
    a_.registerAt(1, 1);
    b_.registerAt(2, 1);
    c_.registerAt(3, 1);
    host().settings().memoryLimitBytes = 2 * fieldBytes;
    host().fetch(1, 1);
    host().fetch(2, 1);
    host().fetch(1, 1);
    host().fetch(3, 1);
    EXPECT_EQ(host().fetchedBytes(), 2 * fieldBytes);
    EXPECT_EQ(b_.unloadCount, 1);
    host().fetch(1, 1);
    EXPECT_EQ(a_.loadCount, 1);
    EXPECT_EQ(firstFloat(host().fetch(2, 1)), 20.0F);
    EXPECT_EQ(b_.loadCount, 2);
}

TEST_F(DeferredFieldTest, StaysWithTheCacheThatHasFetchedIt) {
    a_.registerAt(1, 1);
    b_.registerAt(2, 1);
    FieldStorage& storage = *host().frame().dataSet()->zones()[0]->fields[0].storage;
    host().fetch(1, 1);
    host().fetch(2, 1);
    FieldCache other;
    EXPECT_TRUE(other.fetch(storage));
    EXPECT_EQ(other.bytesInMemory(), 0);
    EXPECT_EQ(a_.loadCount, 1);
    host().settings().memoryLimitBytes = 2 * fieldBytes;
    c_.registerAt(3, 1);
    host().fetch(3, 1); // where the other's fetch counted as a use
    EXPECT_EQ(a_.unloadCount, 0);
    EXPECT_EQ(b_.unloadCount, 1);
}

TEST_F(DeferredFieldTest, LargerThanTheBudgetIsFetchedAlone) {
    a_.registerAt(1, 1);
    b_.registerAt(2, 1);
    host().settings().memoryLimitBytes = fieldBytes - 1;
    EXPECT_TRUE(host().fetch(1, 1).ok);
    EXPECT_TRUE(host().fetch(2, 1).ok);
    EXPECT_EQ(host().fetchedBytes(), fieldBytes);
}

TEST_F(DeferredFieldTest, FailedLoadLeavesItDeferred) {
    a_.registerAt(1, 1);
    a_.loads = false;
    EXPECT_EQ(host().fetch(1, 1).error, "The values could not be read.");
    EXPECT_EQ(host().fetchedBytes(), 0);
    a_.loads = true;
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 10.0F);
}

bool loadWithMessages(QuorFieldHandle) {
    QuorUtilDialogErrMsg("first");
    QuorUtilDialogErrMsg("second");
    return false;
}

TEST_F(DeferredFieldTest, FailedLoadTellsItsMessages) {
    QuorUtilDataValueCustomLOD(1, 1, loadWithMessages, nullptr, FakeSource_s::cleanUp, nullptr,
                               nullptr, &a_);
    EXPECT_EQ(host().fetch(1, 1).error, "first\nsecond");
    EXPECT_EQ(host().log().messages.size(), 2U);
}

bool loadThrowing(QuorFieldHandle) {
    throw std::string("thrown");
}

TEST_F(DeferredFieldTest, ExceptionOfALoadIsBlamed) {
    QuorUtilDataValueCustomLOD(1, 1, loadThrowing, nullptr, FakeSource_s::cleanUp, nullptr, nullptr,
                               &a_);
    EXPECT_FALSE(host().fetch(1, 1).ok);
    expectViolations({"QuorUtilDataValueCustomLOD: the load callback has thrown an exception"});
}

QuorSetHandle gForgotten = nullptr;
bool loadForgetting(QuorFieldHandle) {
    gForgotten = QuorUtilSetAlloc(true);
    return true;
}

TEST_F(DeferredFieldTest, WhatALoadForgetsIsToldAtOnce) {
    QuorUtilDataValueCustomLOD(1, 1, loadForgetting, nullptr, FakeSource_s::cleanUp, nullptr,
                               nullptr, &a_);
    EXPECT_TRUE(host().fetch(1, 1).ok);
    QuorUtilSetDealloc(&gForgotten);
    expectViolations({"QuorUtilSetAlloc: 1 not given back"});
}

TEST_F(DeferredFieldTest, NeedsNoLockForItsCallbacks) {
    a_.registerAt(1, 1);
    freeLock();
    EXPECT_TRUE(host().fetch(1, 1).ok);
    host().unloadAll();
    EXPECT_EQ(a_.unloadCount, 1);
}

TEST_F(DeferredFieldTest, HasNoArrayToLend) {
    a_.registerAt(1, 1);
    host().fetch(1, 1);
    void* array = this;
    QuorUtilDataValueGetRawPtr(1, 1, &array, nullptr);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(QuorUtilDataValueGetWritableRef(1, 1), nullptr);
}

TEST_F(DeferredFieldTest, IsCleanedUpOnceWithItsZone) {
    a_.registerAt(1, 1);
    host().fetch(1, 1);
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_EQ(a_.cleanUpCount, 1);
    EXPECT_EQ(host().fetchedBytes(), 0);
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
    EXPECT_EQ(a_.cleanUpCount, 1);
}

TEST_F(DeferredFieldTest, IsCleanedUpOnceWithItsVariable) {
    a_.registerAt(1, 2);
    QuorUtilDataSetDeleteVar(setOf({2}).get());
    EXPECT_EQ(a_.cleanUpCount, 1);
}

TEST_F(DeferredFieldTest, IsCleanedUpOnceWithItsDataSet) {
    a_.registerAt(1, 1);
    createDataSet({"X"});
    EXPECT_EQ(a_.cleanUpCount, 1);
}

TEST_F(DeferredFieldTest, IsCleanedUpWhenOtherCallbacksTakeItsPlace) {
    a_.registerAt(1, 1);
    host().fetch(1, 1);
    b_.registerAt(1, 1);
    EXPECT_EQ(a_.cleanUpCount, 1);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 20.0F);
}

TEST_F(DeferredFieldTest, IsCleanedUpWhenStorageOrSharingTakesItsPlace) {
    a_.registerAt(1, 1);
    QuorUtilDataValueAlloc(1, 1);
    EXPECT_EQ(a_.cleanUpCount, 1);
    b_.registerAt(2, 1);
    EXPECT_TRUE(QuorUtilDataValueShare(1, 2, 1));
    EXPECT_EQ(b_.cleanUpCount, 1);
}

TEST_F(DeferredFieldTest, IsNotCleanedUpIfTheHostRefusesIt) {
    host().failCall("QuorUtilDataValueCustomLOD", 1);
    EXPECT_FALSE(a_.registerAt(1, 1));
    EXPECT_FALSE(a_.registerAt(9, 1));
    EXPECT_EQ(a_.cleanUpCount, 0);
    expectViolations({"QuorUtilDataValueCustomLOD: there is no zone 9"});
}

TEST_F(DeferredFieldTest, NeedsItsCallbacksAndNoOthers) {
    const auto single = [](QuorFieldHandle, std::int64_t) { return 0.0; };
    EXPECT_FALSE(QuorUtilDataValueCustomLOD(1, 1, nullptr, nullptr, FakeSource_s::cleanUp, nullptr,
                                            nullptr, &a_));
    EXPECT_FALSE(QuorUtilDataValueCustomLOD(1, 1, FakeSource_s::load, nullptr,
                                            FakeSource_s::cleanUp, single, nullptr, &a_));
    expectViolations({"QuorUtilDataValueCustomLOD: the load or the clean-up callback is null",
                      "QuorUtilDataValueCustomLOD: the slots for single values stay empty"});
}

QuorFieldHandle gKept = nullptr;
bool loadKeeping(QuorFieldHandle field) {
    gKept = field;
    return true;
}

TEST_F(DeferredFieldTest, HandleEndsWithTheRegistration) {
    QuorUtilDataValueCustomLOD(1, 1, loadKeeping, nullptr, FakeSource_s::cleanUp, nullptr, nullptr,
                               &a_);
    host().fetch(1, 1);
    QuorUtilDataValueAlloc(1, 1);
    EXPECT_EQ(QuorUtilDataValueGetClientData(gKept), nullptr);
    expectViolations({"QuorUtilDataValueGetClientData: field was given back already"});
}

TEST_F(DeferredFieldTest, ArrayIsOnlyThereForTheLoad) {
    QuorUtilDataValueCustomLOD(1, 1, loadKeeping, nullptr, FakeSource_s::cleanUp, nullptr, nullptr,
                               &a_);
    host().fetch(1, 1);
    host().unload(1, 1);
    EXPECT_EQ(QuorUtilDataValueGetRawPtrByRef(gKept), nullptr);
    expectViolations({"QuorUtilDataValueGetRawPtrByRef: the field has no array outside its load "
                      "callback"});
}

TEST_F(DeferredFieldTest, OutlivesRenumbering) {
    c_.registerAt(3, 3);
    QuorUtilZoneDelete(setOf({1, 2}).get());
    QuorUtilDataSetDeleteVar(setOf({1}).get());
    EXPECT_EQ(firstFloat(host().fetch(1, 2)), 30.0F);
    EXPECT_EQ(c_.cleanUpCount, 0);
}

} // namespace
} // namespace quorvia::host
