#include "app/HostSession.h"

#include <filesystem>

#include "describe/GatherOutcome.h"

namespace quorvia::host {
namespace {

/// The library that is built with this program lies beside it, wherever both are moved.
std::string defaultAddOnPath() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / "lib" / "plot3dloader.so").string();
}

} // namespace

HostSession::HostSession(const Console_s& console, ProgressLine& progress,
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
        tellMessage(console.err, describeMessage(message));
    };
}

HostSession::~HostSession() {
    host().reset();
}

std::string addOnPath(const std::string& asGiven) {
    return asGiven.empty() ? defaultAddOnPath() : std::filesystem::absolute(asGiven).string();
}

} // namespace quorvia::host
