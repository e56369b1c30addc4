#include "state/HostState.h"

#include <cstddef>

namespace quorvia::host {

bool HostState_s::fetch(FieldStorage& storage) {
    cache.setLimit(settings.memoryLimitBytes);
    return cache.fetch(storage);
}

void HostState_s::showMessage(MessageKind_e kind, std::string_view text,
                              std::optional<bool> answer) {
    const Message_s lost{kind, "Out of memory.", answer}; // so short a text needs none
    const bool isKept = log.addMessage(kind, text, answer);
    const auto shown = [&]() -> const Message_s& { return isKept ? log.messages.back() : lost; };
    show([&] {
        if (settings.messageObserver)
            settings.messageObserver(shown());
    });
    show([&] {
        if (kind != MessageKind_e::Question)
            user->read(shown().text, kind == MessageKind_e::Error);
    });
}

void HostState_s::tellLosses() {
    if (log.lostViolations > 0)
        log.violations.push_back(
            joined("violations that could not be kept for want of memory: ", log.lostViolations));
    log.lostViolations = 0;
    if (log.lostEntries > 0)
        log.messages.push_back({MessageKind_e::Error,
                                joined("The host had no memory to keep or to show all that "
                                       "happened (",
                                       log.lostEntries, " times)."),
                                std::nullopt});
    log.lostEntries = 0;
    if (log.lostLines > 0)
        log.transcript.push_back(joined("(lines lost for want of memory: ", log.lostLines, ")"));
    log.lostLines = 0;
}

template <typename Show>
void HostState_s::show(Show showIt) {
    try {
        showIt();
    } catch (const std::bad_alloc&) {
        ++log.lostEntries;
    }
}

void HostState_s::tellSolutionTimes() {
    if (!solutionTimesChanged || timeDeferrers > 0)
        return;
    solutionTimesChanged = false;
    ++log.solutionTimeNotifications;
}

void HostState_s::callStateChangeCallbacks(std::int32_t code) {
    const std::size_t count = stateChangeCallbacks.size();
    for (std::size_t index = 0; index < count && index < stateChangeCallbacks.size(); ++index)
        stateChangeCallbacks[index](code);
}

} // namespace quorvia::host
