#include "state/GuestWatch.h"

#include <algorithm>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "state/HostState.h"

namespace quorvia::host {

namespace {

// What the user typed into a dialog is the guest's to keep, as the dialog is: until the host ends.
bool isReadFromField(OperationId origin) {
    return origin.name() == "QuorGUITextFieldGetSet";
}

} // namespace

GuestWatch::GuestWatch(HostState_s& host)
    : GuestWatch(host, {host.serials.last(), host.handles.heldCount(), host.memory.count(),
                        host.entryLockDepth, host.guestLockDepth, host.openUndoStates,
                        host.openProgressBars, host.timeDeferrers}) {}

GuestWatch GuestWatch::since(HostState_s& host, std::int64_t serial) {
    return GuestWatch(host, {serial, 0, 0, host.entryLockDepth, host.guestLockDepth,
                             host.openUndoStates, host.openProgressBars, host.timeDeferrers});
}

GuestWatch GuestWatch::sinceRest(HostState_s& host, std::int64_t serial) {
    return GuestWatch(host, {serial, 0, 0, 0, 0, 0, 0, 0});
}

void GuestWatch::finish() noexcept {
    if (host_.handles.heldCount() > before_.handles)
        report(&GuestWatch::reportHandles);
    if (host_.memory.count() > before_.blocks)
        report(&GuestWatch::reportBlocks);
    checkBalances();
}

// Nothing is allocated before there is something to blame.
void GuestWatch::report(void (GuestWatch::*reportThem)()) noexcept {
    try {
        (this->*reportThem)();
    } catch (const std::bad_alloc&) {
        ++host_.log.lostViolations;
    }
}

void GuestWatch::checkBalances() noexcept {
    checkBalance(host_.entryLockDepth, before_.entryLocks, "QuorUtilLockOn: lock");
    checkBalance(host_.guestLockDepth, before_.guestLocks, "QuorUtilLockStart: lock");
    checkBalance(host_.openUndoStates, before_.undoStates, "QuorUtilUndoStateBegin: undo state");
    checkEnded(host_.openProgressBars, before_.progressBars, "createTaskProgressBar: progress bar");
    checkEnded(host_.timeDeferrers, before_.timeDeferrers,
               "SolutionTimeNotificationDeferrer: deferrer");
}

void GuestWatch::reportHandles() {
    std::map<std::string, int> countsByOrigin;
    host_.handles.tellHeldSince(before_.serial, [&countsByOrigin](OperationId origin) {
        if (!isReadFromField(origin))
            ++countsByOrigin[std::string(origin.name())];
    });
    for (const auto& [origin, count] : countsByOrigin)
        host_.addViolation(origin, ": ", count, " not given back");
}

void GuestWatch::reportBlocks() {
    // What hangs on client data is held rightly until the clean-up, and the host can't see how far
    // that reaches.
    if (isAnyBlockClientData())
        return;
    struct Sum_s {
        int count = 0;
        std::int64_t bytes = 0;
    };
    std::map<std::pair<std::string, std::string>, Sum_s> sums;
    for (const HeldBlock_s& held : host_.memory.heldSince(before_.serial)) {
        Sum_s& sum = sums[{std::string(held.origin.name()), held.label}];
        ++sum.count;
        sum.bytes += held.byteCount;
    }
    for (const auto& [source, sum] : sums)
        host_.addViolation(source.first, ": ", sum.count, " not given back, labelled \"",
                           source.second, "\" (", sum.bytes, " bytes)");
}

bool GuestWatch::isAnyBlockClientData() const {
    const auto holdsBlock = [this](const Field_s& field) {
        const Deferral* deferral = field.storage != nullptr ? field.storage->deferral() : nullptr;
        return deferral != nullptr && host_.memory.contains(deferral->clientData());
    };
    const auto hasSuchAField = [&](const std::unique_ptr<Zone_s>& zone) {
        return std::any_of(zone->fields.begin(), zone->fields.end(), holdsBlock);
    };
    const auto& frames = host_.frames.all();
    return std::any_of(frames.begin(), frames.end(), [&](const std::unique_ptr<Frame>& frame) {
        const DataSet* const data = frame->dataSet();
        return data != nullptr &&
               std::any_of(data->zones().begin(), data->zones().end(), hasSuchAField);
    });
}

void GuestWatch::checkBalance(std::int64_t& now, std::int64_t before, const char* what) {
    checkEnded(now, before, what);
    if (now < before)
        host_.addViolation(what, " ended too often (by ", before - now, ")");
    now = before;
}

void GuestWatch::checkEnded(std::int64_t now, std::int64_t before, const char* what) {
    if (now > before)
        host_.addViolation(what, " not ended (", now - before, " too many)");
}

} // namespace quorvia::host
