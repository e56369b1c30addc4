// Several frames at one host: what a guest asks is asked of the current one.
#include "GuestLoader.h"
#include "HostFixture.h"
#include "session/SeparateFrame.h"
#include "state/HostState.h"

namespace quorvia::host {
namespace {

class FramesTest : public HostTest {
protected:
    Frame& addCurrent() {
        Frame& frame = host().addFrame();
        host().makeCurrent(frame);
        return frame;
    }
    static Frame& first() { return *host().frames().front(); }
};

TEST_F(FramesTest, BeginWithOne) {
    ASSERT_EQ(host().frames().size(), 1u);
    EXPECT_EQ(&host().frame(), &first());
    EXPECT_EQ(QuorUtilFrameGetUniqueID(), 1);
}

TEST_F(FramesTest, OfWhichOneIsAddedLeaveTheCurrentOne) {
    host().addFrame();
    EXPECT_EQ(&host().frame(), &first());
    EXPECT_EQ(host().frames().size(), 2u);
}

TEST_F(FramesTest, HaveDataSetsAndPlotTypesOfTheirOwn) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    QuorUtilFrameSetPlotType(QuorPlotType_2D);
    addCurrent();
    EXPECT_FALSE(QuorUtilDataSetIsAvailable());
    EXPECT_EQ(QuorUtilFrameGetPlotType(), QuorPlotType_None);
    createDataSet({"A", "B"});
    host().makeCurrent(first());
    EXPECT_EQ(host().frame().dataSet()->variableCount(), 1);
    EXPECT_EQ(QuorUtilFrameGetPlotType(), QuorPlotType_2D);
}

TEST_F(FramesTest, HaveUniqueIdsOfTheirOwnAndCountInThemselves) {
    Frame& other = addCurrent();
    EXPECT_EQ(QuorUtilFrameGetUniqueID(), other.uniqueId());
    EXPECT_NE(other.uniqueId(), first().uniqueId());
    createDataSet({"X"});
    host().makeCurrent(first());
    createDataSet({"X"});
    EXPECT_EQ(first().dataSet()->uniqueId(), 2);
    EXPECT_EQ(other.dataSet()->uniqueId(), other.uniqueId() + 1);
}

TEST_F(FramesTest, NeverGetTheIdOfOneThatIsClosed) {
    Frame& second = host().addFrame();
    const std::int64_t id = second.uniqueId();
    host().closeFrame(second);
    EXPECT_NE(host().addFrame().uniqueId(), id);
}

TEST_F(FramesTest, AreResetByTheirIds) {
    createDataSet({"X"});
    Frame& other = addCurrent();
    createDataSet({"X"});
    QuorUtilFrameReset(first().uniqueId());
    EXPECT_EQ(first().dataSet(), nullptr);
    EXPECT_NE(other.dataSet(), nullptr);
    QuorUtilFrameReset(99);
    expectViolations({"QuorUtilFrameReset: there is no frame 99"});
}

TEST_F(FramesTest, CleanTheirFieldsUpWhenTheyAreClosed) {
    FakeSource_s source;
    Frame& other = addCurrent();
    createDataSet({"X"});
    addZone(2, 3, 5);
    ASSERT_TRUE(source.registerAt(1, 1));
    host().closeFrame(other);
    EXPECT_EQ(source.cleanUpCount, 1);
    EXPECT_EQ(&host().frame(), &first());
}

TEST_F(FramesTest, ThatAreNotCurrentLeaveTheCurrentOneWhenTheyAreClosed) {
    Frame& second = host().addFrame();
    Frame& third = addCurrent();
    host().closeFrame(second);
    EXPECT_EQ(&host().frame(), &third);
}

TEST_F(FramesTest, KeepTheFirstOfThem) {
    createDataSet({"X"});
    host().closeFrame(first());
    ASSERT_EQ(host().frames().size(), 1u);
    EXPECT_EQ(first().dataSet(), nullptr);
}

TEST_F(FramesTest, AreOneAgainAfterAReset) {
    addCurrent();
    host().reset();
    QuorUtilLockStart(addOn());
    ASSERT_EQ(host().frames().size(), 1u);
    EXPECT_EQ(host().addFrame().uniqueId(), 2);
}

TEST_F(FramesTest, HoldTheBlocksOfTheirFieldsForLaterLoads) {
    char* const block = QuorUtilStringAlloc(10, "client data");
    addCurrent();
    createDataSet({"X"});
    addZone(2, 3, 5);
    ASSERT_TRUE(QuorUtilDataValueCustomLOD(
        1, 1, FakeSource_s::load, nullptr, [](QuorFieldHandle) {}, nullptr, nullptr, block));
    host().makeCurrent(first());
    freeLock();
    host().checkForLeaks();
    char* given = block;
    QuorUtilStringDealloc(&given);
}

class SeparateFrameTest : public FramesTest {
protected:
    SeparateFrameTest() {
        freeLock();
        guestloader::registerLoader();
    }
    ~SeparateFrameTest() override { host().state().loaders = loadersBefore_; }

private:
    const std::vector<Loader_s> loadersBefore_ = host().loaders();
};

TEST_F(SeparateFrameTest, HidesItsLoadFromTheUser) {
    ASSERT_TRUE(host().importInstructions({"FIRST"}).ok);
    {
        SeparateFrame separate;
        EXPECT_TRUE(host().importInstructions({"SECOND"}).ok);
        EXPECT_EQ(&host().frame(), &separate.frame());
        EXPECT_EQ(host().log().instructions, Texts{"SECOND"});
    }
    EXPECT_EQ(&host().frame(), &first());
    EXPECT_EQ(host().log().instructions, Texts{"FIRST"});
    EXPECT_EQ(host().frames().size(), 1u);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 4.5F);
}

TEST_F(SeparateFrameTest, HasAUserOfItsOwn) {
    host().setAnswers({}, false);
    SeparateFrame separate;
    EXPECT_FALSE(host().importInstructions({"ASK"}).ok);
    separate.user().setAnswers({}, true);
    EXPECT_TRUE(host().importInstructions({"ASK"}).ok);
}

TEST_F(SeparateFrameTest, HasSettingsCountsAndInterruptionsOfItsOwn) {
    host().settings().refuseInstructions = true;
    host().interruptAtStep(1);
    {
        const SeparateFrame separate;
        EXPECT_FALSE(host().settings().refuseInstructions);
        EXPECT_TRUE(host().importInstructions({"STEP"}).ok);
        EXPECT_EQ(host().stepCount(), 1);
        host().requestInterrupt();
    }
    EXPECT_TRUE(host().settings().refuseInstructions);
    EXPECT_EQ(host().stepCount(), 0);
    EXPECT_FALSE(host().interruptRequested());
    EXPECT_TRUE(host().importInstructions({"STEP"}).interrupted);
}

TEST_F(SeparateFrameTest, LeavesItsViolationsBehind) {
    {
        const SeparateFrame separate;
        host().importInstructions({"KEEP THE LOCK"});
        EXPECT_EQ(host().lockDepth(), 0);
    }
    expectViolations({"QuorUtilLockStart: lock not ended (1 too many)"});
}

TEST_F(SeparateFrameTest, MayStandInAnother) {
    SeparateFrame outer;
    ASSERT_TRUE(host().importInstructions({"OUTER"}).ok);
    {
        const SeparateFrame inner;
        EXPECT_TRUE(host().importInstructions({"INNER"}).ok);
    }
    EXPECT_EQ(&host().frame(), &outer.frame());
    EXPECT_EQ(host().log().instructions, Texts{"OUTER"});
}

} // namespace
} // namespace quorvia::host
