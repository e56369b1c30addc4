#include "loader/LoadScopes.h"

#include "dataset/items/CurrentTask.h"

namespace quorvia::quorutildataio {

LoadProgressBar::LoadProgressBar(Plot3DLoadContext_s& load) : context(load) {
    context.mainTask = createTaskProgressBar(2);
    context.mainTask->setMessage("Preparing to Load Plot3D Data...");
}

LoadProgressBar::~LoadProgressBar() {
    currentTask.reset(); // a task ends before its parent
    context.mainTask.reset();
    context.parentZones.reset();
}

void LoadUndoState::end(bool success) {
    constexpr bool doInvalidate = false;
    if (context.undoStarted)
        QuorUtilUndoStateEnd(doInvalidate, success);
    context.undoStarted = false;
}

} // namespace quorvia::quorutildataio
