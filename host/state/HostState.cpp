#include "state/HostState.h"

#include <utility>

namespace quorvia::host {

bool HostState::fetch(FieldStorage& storage) {
    cache.setLimit(settings.memoryLimitBytes);
    return cache.fetch(storage);
}

void HostState::showMessage(Message message) {
    log.messages.push_back(std::move(message));
    if (settings.messageObserver)
        settings.messageObserver(log.messages.back());
}

void HostState::tellSolutionTimes() {
    if (!solutionTimesChanged || timeDeferrers > 0)
        return;
    solutionTimesChanged = false;
    ++log.solutionTimeNotifications;
}

} // namespace quorvia::host
