#include "session/SeparateFrame.h"

#include <iterator>
#include <new>
#include <utility>

#include "state/HostState.h"

namespace quorvia::host {

namespace {

void addViolationsTo(HostLog_s& log, std::vector<std::string>& violations,
                     std::int64_t lost) noexcept {
    log.lostViolations += lost;
    try {
        log.violations.insert(log.violations.end(), std::make_move_iterator(violations.begin()),
                              std::make_move_iterator(violations.end()));
    } catch (const std::bad_alloc&) {
        log.lostViolations += static_cast<std::int64_t>(violations.size());
    }
}

} // namespace

SeparateFrame::SeparateFrame()
    : host_(hostState()), before_(host_.frame()), frame_(host_.frames.add()) {
    exchange();
    host_.frames.makeCurrent(frame_);
}

SeparateFrame::~SeparateFrame() {
    host_.frames.close(frame_);
    host_.frames.makeCurrent(before_);
    exchange();
    addViolationsTo(host_.log, log_.violations, log_.lostViolations);
}

void SeparateFrame::exchange() noexcept {
    std::swap(host_.user, otherUser_);
    std::swap(host_.settings, settings_);
    std::swap(host_.log, log_);
    host_.faults.swap(faults_);
    std::swap(host_.transcript, transcript_);
    std::swap(host_.lastError, lastError_);
    std::swap(host_.entryLockDepth, balances_.entryLockDepth);
    std::swap(host_.guestLockDepth, balances_.guestLockDepth);
    std::swap(host_.openUndoStates, balances_.openUndoStates);
    std::swap(host_.openProgressBars, balances_.openProgressBars);
    std::swap(host_.timeDeferrers, balances_.timeDeferrers);
    std::swap(host_.solutionTimesChanged, balances_.solutionTimesChanged);
}

} // namespace quorvia::host
