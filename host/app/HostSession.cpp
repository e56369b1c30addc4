#include "app/HostSession.h"

namespace quorvia::host {

HostSession::HostSession(const Console_s& console, console::ProgressLine& progress,
                         std::int64_t memoryLimitBytes) {
    host().reset();
    auto& settings = host().settings();
    settings.memoryLimitBytes = memoryLimitBytes;
    settings.progressObserver = [&progress](const auto& state) {
        if (state.open)
            progress.show(state.fraction, state.text);
        else
            progress.clear();
    };
    settings.messageObserver = [&progress, &console](const auto& message) {
        progress.clear();
        tellMessage(console.err, message);
    };
}

HostSession::~HostSession() {
    host().reset();
}

} // namespace quorvia::host
