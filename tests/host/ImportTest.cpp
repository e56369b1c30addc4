// Loads as the host's import menu and macros start them.
#include "GuestLoader.h"
#include "HostFixture.h"

namespace quorvia::host {
namespace {

class ImportTest : public HostTest {
protected:
    ImportTest() {
        freeLock();
        static const bool isRegistered = (guestloader::registerLoader(), true);
        EXPECT_TRUE(isRegistered);
    }
};

TEST_F(ImportTest, LoaderStaysRegisteredOverAReset) {
    host().reset();
    EXPECT_EQ(host().loaderNames(), Texts{"Guest Loader"});
}

TEST_F(ImportTest, InstructionsComeBackFromASelection) {
    const LoadResult_s result = host().importSelection({"a.guest", "b.guest"}, false, false);
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(host().log().instructions, (Texts{"a.guest", "b.guest"}));
    EXPECT_TRUE(host().log().instructionsHandedOver);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 4.5F);
}

TEST_F(ImportTest, InstructionsSucceedWithTheCallback) {
    EXPECT_TRUE(host().importInstructions({"LOAD"}).ok);
    EXPECT_FALSE(host().importInstructions({"FAIL"}).ok);
}

TEST_F(ImportTest, SelectionIsNotOkForInstructionsOfAnEarlierOne) {
    EXPECT_TRUE(host().importSelection({"a.guest"}, false, false).ok);
    EXPECT_FALSE(host().importSelection({"FAIL"}, false, false).ok);
    EXPECT_TRUE(host().log().instructionsHandedOver);
}

TEST_F(ImportTest, RefusedInstructionsFailTheLoad) {
    host().settings().refuseInstructions = true;
    EXPECT_FALSE(host().importSelection({"a.guest"}, false, false).ok);
    EXPECT_EQ(host().log().instructions, Texts{"a.guest"});
    EXPECT_FALSE(host().log().instructionsHandedOver);
}

TEST_F(ImportTest, HostRefusesWhatTheLoaderDoesNotAllow) {
    EXPECT_EQ(host().importSelection({"a.guest"}, true, false).hostError,
              "The loader \"Guest Loader\" has no advanced options.");
    EXPECT_EQ(host().importSelection({"a.guest"}, false, true).hostError,
              "The loader \"Guest Loader\" can't append.");
}

TEST_F(ImportTest, QuestionsAreAnswered) {
    EXPECT_FALSE(host().importInstructions({"ASK"}).ok);
    host().setAnswers({true}, false);
    EXPECT_TRUE(host().importInstructions({"ASK"}).ok);
}

TEST_F(ImportTest, InterruptionEndsWithTheLoad) {
    host().interruptAtStep(1);
    EXPECT_TRUE(host().importInstructions({"STEP"}).interrupted);
    EXPECT_FALSE(host().interruptRequested());
    host().clearFaults();
    const LoadResult_s result = host().importInstructions({"STEP"});
    EXPECT_TRUE(result.ok);
    EXPECT_FALSE(result.interrupted);
}

TEST_F(ImportTest, WhatALoadKeepsIsBlamed) {
    host().importInstructions({"KEEP A SET"});
    expectViolations({"QuorUtilSetAlloc: 1 not given back"});
}

TEST_F(ImportTest, LockThatALoadKeepsIsBlamedAndFreed) {
    host().importInstructions({"KEEP THE LOCK"});
    EXPECT_EQ(host().lockDepth(), 0);
    expectViolations({"QuorUtilLockStart: lock not ended (1 too many)"});
}

TEST_F(ImportTest, BorrowedListStaysTheHosts) {
    host().importInstructions({"TAKE THE LIST"});
    expectViolations({"QuorUtilStringListDealloc: the list is borrowed and stays the host's"});
}

TEST_F(ImportTest, LoaderMayRunOutOfMemory) {
    const LoadResult_s result = host().importInstructions({"RUN OUT OF MEMORY"});
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.hostError, "The add-on ran out of memory.");
}

TEST_F(ImportTest, OtherExceptionsAreBlamed) {
    EXPECT_FALSE(host().importInstructions({"THROW"}).ok);
    expectViolations({"The add-on has thrown an exception: thrown by the guest"});
}

} // namespace
} // namespace quorvia::host
