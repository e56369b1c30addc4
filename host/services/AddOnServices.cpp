// Add-on life, locks, undo, state changes.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

constexpr std::int32_t registrationWord113 = 100;

} // namespace

extern "C" {

std::int32_t QuorUtilGetQuorviaVersion() {
    Call call("QuorUtilGetQuorviaVersion");
    return call.result(call.host().settings.version);
}

QuorAddOnHandle QuorUtilAddOnRegister(std::int32_t registrationWord, const char* name,
                                      const char* versionText, const char* authorText) {
    // Version and author may change with every release; the transcript is about what is asked.
    Call call("QuorUtilAddOnRegister", registrationWord, name);
    if (registrationWord != registrationWord113 || name == nullptr || versionText == nullptr ||
        authorText == nullptr) {
        call.violate("bad registration word, or a text is null");
        return call.result(QuorAddOnHandle{});
    }
    return call.serve(QuorAddOnHandle{}, [&] {
        return call.host().handles.of(QuorAddOnHandle{}).add(call.operation(), {name});
    });
}

void QuorUtilLockOn() {
    Call call("QuorUtilLockOn");
    ++call.host().entryLockDepth;
}

void QuorUtilLockOff() {
    Call call("QuorUtilLockOff");
    if (call.host().entryLockDepth == 0)
        call.violation("the lock is not held");
    else
        --call.host().entryLockDepth;
}

void QuorUtilLockStart(QuorAddOnHandle addOn) {
    Call call("QuorUtilLockStart", addOn);
    call.object(addOn);
    ++call.host().guestLockDepth;
}

void QuorUtilLockFinish(QuorAddOnHandle addOn) {
    Call call("QuorUtilLockFinish", addOn);
    call.object(addOn);
    if (call.host().guestLockDepth == 0)
        call.violation("the lock is not held");
    else
        --call.host().guestLockDepth;
}

void QuorUtilStateChangeAddCallback(QuorStateChangeCallback callback) {
    Call call("QuorUtilStateChangeAddCallback", callback);
    if (callback == nullptr)
        call.violation("callback is null");
    else
        call.host().stateChangeCallbacks.push_back(callback);
}

void QuorUtilStateChanged(std::int32_t stateChangeCode, QuorSetHandle members) {
    Call call("QuorUtilStateChanged", stateChangeCode, members);
    const GuestSet_s* set = call.object(members);
    if (set == nullptr)
        return;
    if (stateChangeCode != QuorStateChange_VarsAltered &&
        stateChangeCode != QuorStateChange_VarsAdded &&
        stateChangeCode != QuorStateChange_ZonesAdded)
        call.violation("an add-on does not tell code ", stateChangeCode);
    call.host().log.addStateChange(stateChangeCode, set->members);
    call.host().callStateChangeCallbacks(stateChangeCode);
}

void QuorUtilUndoStateBegin(std::int32_t category) {
    Call call("QuorUtilUndoStateBegin", category);
    ++call.host().openUndoStates;
    call.host().log.addUndo({UndoKind_e::Begin, category, std::nullopt});
}

void QuorUtilUndoStateEnd(bool doInvalidate, bool success) {
    Call call("QuorUtilUndoStateEnd", doInvalidate, success);
    if (doInvalidate)
        call.violation("the first argument is always false");
    if (call.host().openUndoStates == 0) {
        call.violation("no undo state was begun");
        return;
    }
    --call.host().openUndoStates;
    call.host().log.addUndo({UndoKind_e::End, 0, success});
}

bool QuorUtilInterruptIsSet() {
    Call call("QuorUtilInterruptIsSet");
    return call.result(call.host().faults.isInterrupted());
}

} // extern "C"
