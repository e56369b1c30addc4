// Progress bars and interruption.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

class ProgressTest : public HostTest {
protected:
    std::unique_ptr<TaskProgress> bar_ = createTaskProgressBar(2);
};

TEST_F(ProgressTest, TextsAreKeptInOrder) {
    EXPECT_TRUE(bar_->setMessage("Preparing"));
    EXPECT_TRUE(bar_->step());
    EXPECT_TRUE(bar_->stepWithMessage("Cleaning up..."));
    EXPECT_EQ(host().log().progress.texts(), (Texts{"Preparing", "Cleaning up..."}));
}

TEST_F(ProgressTest, InterruptsAtTheNthStepAndAllAfterIt) {
    host().interruptAtStep(2);
    EXPECT_TRUE(bar_->setMessage("first"));
    EXPECT_FALSE(QuorUtilInterruptIsSet());
    EXPECT_FALSE(bar_->step());
    EXPECT_FALSE(bar_->stepWithMessage("third"));
    EXPECT_TRUE(QuorUtilInterruptIsSet());
    EXPECT_EQ(host().stepCount(), 3);
}

TEST_F(ProgressTest, InterruptionStandsOverTheNextBarOfTheSameLoad) {
    host().interruptAtStep(1);
    EXPECT_FALSE(bar_->step());
    bar_.reset();
    bar_ = createTaskProgressBar(2);
    EXPECT_FALSE(bar_->step());
}

TEST_F(ProgressTest, UserInterruptsAtOnce) {
    host().requestInterrupt();
    EXPECT_FALSE(bar_->step());
    host().clearFaults();
    EXPECT_TRUE(bar_->step());
}

TEST_F(ProgressTest, StepThatFailsIsNoInterruption) {
    host().failCall("TaskProgress::step", 1);
    EXPECT_FALSE(bar_->step());
    EXPECT_FALSE(QuorUtilInterruptIsSet());
    EXPECT_TRUE(bar_->step());
}

TEST_F(ProgressTest, SubTaskEndsBeforeItsParent) {
    std::unique_ptr<TaskProgress> subTask;
    EXPECT_EQ(&bar_->createSubTask(subTask, 5), &subTask);
    bar_.reset();
    subTask->step();
    subTask.reset();
    expectViolations({"TaskProgress::~TaskProgress: the task ends before its sub-task"});
}

TEST_F(ProgressTest, ReplacedSubTaskEnds) {
    std::unique_ptr<TaskProgress> subTask;
    bar_->createSubTask(subTask, 5);
    bar_->createSubTask(subTask, 7);
    EXPECT_EQ(host().callCount("TaskProgress::~TaskProgress"), 1);
}

class ProgressFractionTest : public ProgressTest {
protected:
    ProgressFractionTest() {
        host().settings().progressObserver = [this](const ProgressState_s& state) {
            seen_ = state;
        };
    }
    ~ProgressFractionTest() override { host().settings().progressObserver = nullptr; }
    ProgressState_s seen_;
};

TEST_F(ProgressFractionTest, GrowsWithTheSteps) {
    bar_->setStepCount(5);
    bar_->step();
    bar_->step();
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.4);
}

TEST_F(ProgressFractionTest, SubTasksTakeTheirWeight) {
    bar_->setStepCount(0);
    std::unique_ptr<TaskProgress> light;
    std::unique_ptr<TaskProgress> heavy;
    bar_->createSubTask(light, 1);
    bar_->createSubTask(heavy, 3);
    heavy->setStepCount(3);
    heavy->stepWithMessage("heavy");
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.25);
    EXPECT_EQ(seen_.text, "heavy");
    light.reset();
    heavy->step();
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.75);
}

TEST_F(ProgressFractionTest, SubTaskThatTellsNoStepsTakesAsManyAsItWeighs) {
    bar_->setStepCount(0);
    std::unique_ptr<TaskProgress> subTask;
    bar_->createSubTask(subTask, 5);
    subTask->step();
    subTask->stepWithMessage("two of five");
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.4);
}

// As that of a field which a load makes the host fetch.
TEST_F(ProgressFractionTest, BarInsideAnotherIsNotShown) {
    bar_->step();
    const std::unique_ptr<TaskProgress> inner = createTaskProgressBar(4);
    inner->step();
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.5);
}

TEST_F(ProgressFractionTest, BarInsideAnotherDoesNotCloseIt) {
    bar_->step();
    createTaskProgressBar(4).reset();
    EXPECT_TRUE(seen_.open);
    bar_.reset();
    EXPECT_FALSE(seen_.open);
}

TEST_F(ProgressFractionTest, NeverGoesBack) {
    bar_->step();
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.5);
    std::unique_ptr<TaskProgress> subTask;
    bar_->createSubTask(subTask, 100);
    subTask->setMessage("much more to do");
    EXPECT_DOUBLE_EQ(seen_.fraction, 0.5);
}

TEST_F(ProgressFractionTest, ClosingIsToldOnce) {
    bar_->setMessage("open");
    EXPECT_TRUE(seen_.open);
    bar_.reset();
    EXPECT_FALSE(seen_.open);
}

} // namespace
} // namespace quorvia::host
