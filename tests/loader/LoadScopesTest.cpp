// What a load gives back on every way out.
#include "loader/LoadScopes.h"
#include "LoaderFixture.h"
#include "dataset/items/CurrentTask.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

class LoadScopes : public LoaderTest {
protected:
    LoadScopes() : context(options, false) {}

    void beginUndo() {
        QuorUtilUndoStateBegin(9);
        context.undoStarted = true;
    }
    /// How the undo states ended, in order.
    static std::vector<bool> undoEnds() {
        std::vector<bool> ends;
        for (const host::UndoEvent_s& event : host().log().undo)
            if (event.success)
                ends.push_back(*event.success);
        return ends;
    }

    HostLock lock{addOnID};
    Plot3DLoadContext_s context;
};

TEST_F(LoadScopes, EndAnUndoStateAsTold) {
    {
        LoadUndoState undo(context);
        beginUndo();
        undo.end(true);
    }
    EXPECT_EQ(undoEnds(), std::vector<bool>{true});
}

TEST_F(LoadScopes, EndAnUndoStateAsFailedWhenNobodyDoes) {
    {
        const LoadUndoState undo(context);
        beginUndo();
    }
    EXPECT_EQ(undoEnds(), std::vector<bool>{false});
}

TEST_F(LoadScopes, EndNoUndoStateThatWasNotBegun) {
    LoadUndoState(context).end(true);
    EXPECT_EQ(undoEnds(), std::vector<bool>());
}

// The host blames a task that outlives its parent, and memory that is not given back.
TEST_F(LoadScopes, EndTheTaskOfTheStageBeforeTheBar) {
    {
        const LoadProgressBar bar(context);
        context.mainTask->createSubTask(currentTask, 7);
        context.parentZones = HostArray<std::int32_t>::allocate(3, "Parent Zone Array");
    }
    EXPECT_EQ(currentTask, nullptr);
    EXPECT_EQ(context.mainTask, nullptr);
    EXPECT_FALSE(context.parentZones);
    EXPECT_EQ(progress(), Texts{"Preparing to Load Plot3D Data..."});
}

} // namespace
} // namespace quorvia::testsupport
