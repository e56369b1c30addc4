#include "state/HostState.h"

#include <utility>

namespace quorvia::host {

bool HostState::fetch(FieldStorage& storage) {
    cache.setLimit(settings.memoryLimitBytes);
    return cache.fetch(storage);
}

void HostState::showMessage(Message message) {
    const MessageKind kind = message.kind;
    log.messages.push_back(std::move(message));
    if (settings.messageObserver)
        settings.messageObserver(log.messages.back());
    if (kind != MessageKind::Question)
        user->read(log.messages.back().text, kind == MessageKind::Error);
}

void HostState::tellSolutionTimes() {
    if (!solutionTimesChanged || timeDeferrers > 0)
        return;
    solutionTimesChanged = false;
    ++log.solutionTimeNotifications;
}

} // namespace quorvia::host
