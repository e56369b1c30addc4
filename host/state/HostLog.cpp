#include "state/HostLog.h"

#include <cstddef>
#include <utility>

#include "model/Room.h"

namespace quorvia::host {

namespace {

constexpr std::size_t firstRoom = 8;       // entries of a kind
constexpr std::size_t usualLength = 1024;  // no message of a loader is longer
constexpr std::size_t usualNumbers = 1024; // zones or variables told of at a time

} // namespace

HostLog_s::HostLog_s() : spareText_(usualLength), spareNumbers_(usualNumbers) {
    makeRoomIfPossible(messages, firstRoom);
    makeRoomIfPossible(stateChanges, firstRoom);
    makeRoomIfPossible(undo, firstRoom);
    makeRoomIfPossible(autoStyledZones, firstRoom);
    makeRoomIfPossible(helpTargets, firstRoom);
}

bool HostLog_s::addMessage(MessageKind_e kind, std::string_view text,
                           std::optional<bool> answer) noexcept {
    return add(messages, {kind, copyOf(text), answer});
}

void HostLog_s::addStateChange(std::int32_t code, const std::set<std::int64_t>& members) noexcept {
    add(stateChanges, {code, copyOf(members)});
}

void HostLog_s::addUndo(const UndoEvent_s& event) noexcept {
    add(undo, event);
}

void HostLog_s::addAutoStyled(const std::set<std::int64_t>& zones) noexcept {
    add(autoStyledZones, copyOf(zones));
}

void HostLog_s::addHelpTarget(std::string_view target) noexcept {
    add(helpTargets, copyOf(target));
}

template <typename Entry>
bool HostLog_s::add(std::vector<Entry>& entries, Entry entry) noexcept {
    makeRoomIfPossible(entries);
    if (!hasRoom(entries)) {
        ++lostEntries;
        return false;
    }
    entries.push_back(std::move(entry));
    makeRoomIfPossible(entries);
    spareText_.refill();
    spareNumbers_.refill();
    return true;
}

std::string HostLog_s::copyOf(std::string_view text) noexcept {
    std::string copy = spareText_.copyOf(text);
    if (copy.size() < text.size())
        ++lostEntries;
    return copy;
}

std::vector<std::int64_t> HostLog_s::copyOf(const std::set<std::int64_t>& numbers) noexcept {
    std::vector<std::int64_t> copy = spareNumbers_.copyOf(numbers);
    if (copy.size() < numbers.size())
        ++lostEntries;
    return copy;
}

} // namespace quorvia::host
