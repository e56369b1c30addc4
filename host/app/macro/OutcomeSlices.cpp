#include "app/macro/OutcomeSlices.h"

#include <utility>

namespace quorvia::host {
namespace {

/// `told` is how many were there at the last cut, and becomes how many there are now.
template <typename Entries>
void dropTold(Entries& entries, std::size_t& told) {
    const std::size_t before = std::exchange(told, entries.size());
    entries.erase(entries.begin(),
                  entries.begin() + static_cast<typename Entries::difference_type>(before));
}

} // namespace

void OutcomeSlices::cut(Outcome_s& outcome) {
    dropTold(outcome.messages, messages_);
    outcome.progress.dropFirst(std::exchange(progress_, outcome.progress.count()));
    dropTold(outcome.stateChanges, stateChanges_);
    dropTold(outcome.undo, undo_);
    outcome.redraws -= std::exchange(redraws_, outcome.redraws);
}

} // namespace quorvia::host
