// The operations that need no data set: life of an add-on, registration, messages, memory, strings,
// lists, sets.
#include "memory/ServiceScenarios.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

constexpr bool showErrors = true;

void readyNothing(Guest_s&) {}

void readyList(Guest_s& guest) {
    guest.list = HostStringList(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(guest.list.get(), longText);
    QuorUtilStringListAppendString(guest.list.get(), longText);
}

void readyTwoLists(Guest_s& guest) {
    readyList(guest);
    guest.otherList = HostStringList(QuorUtilStringListAlloc());
    for (int text = 0; text < 5; ++text)
        QuorUtilStringListAppendString(guest.otherList.get(), longText);
}

void readyArguments(Guest_s& guest) {
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(guest.arguments.get(), "First", longText);
}

void readyArgumentsAndList(Guest_s& guest) {
    readyArguments(guest);
    readyList(guest);
}

void readySet(Guest_s& guest) {
    guest.set = Made::setOf({2, 3, 5});
}

void readyBlock(Guest_s& guest) {
    guest.array = QuorUtilStringAlloc(24, "a label that is longer than others");
}

void readyText(Guest_s& guest) {
    guest.text = HostString::copyOf(longText);
}

bool loadNothing(QuorStringListHandle) {
    return false;
}
void selectNothing(QuorStringListHandle, bool, bool) {}

void readyLoaderArguments(Guest_s& guest) {
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    const QuorArgListHandle arguments = guest.arguments.get();
    QuorUtilArgListAppendString(arguments, "LoaderName", longText);
    QuorUtilArgListAppendString(arguments, "FileNameExtensions", longText);
    QuorUtilArgListAppendInt(arguments, "LoaderCallbackVersion", 1);
    for (const char* key : {"AllowMultiFileSelection", "AllowAdvancedOptions", "AllowAppending"})
        QuorUtilArgListAppendInt(arguments, key, 1);
    QuorUtilArgListAppendFunction(arguments, "LoaderCallback",
                                  reinterpret_cast<QuorFunction>(loadNothing));
    QuorUtilArgListAppendFunction(arguments, "LoaderSelectedCallback",
                                  reinterpret_cast<QuorFunction>(selectNothing));
}

void readyLoader(Guest_s& guest) {
    readyLoaderArguments(guest);
    QuorUtilImportAddLoaderX(guest.arguments.get());
    readyList(guest);
}

void readyAnswer(Guest_s&) {
    ReferenceHost::instance().setAnswers({}, true);
}

void readyChoice(Guest_s&) {
    ReferenceHost::instance().setFileChoices({{longText}, {longText}});
}

void readyChoices(Guest_s&) {
    ReferenceHost::instance().setFileChoices({{longText, longText}, {longText, longText}});
}

void readyLastError(Guest_s&) {
    hostState().lastError = longText;
}

void noteNothing(std::int32_t) {}

void readyUndo(Guest_s&) {
    QuorUtilUndoStateBegin(9);
}

// The places that there are at first are used up, so that the next entry needs another one.
void readyManyEntries(Guest_s& guest) {
    readySet(guest);
    for (int entry = 0; entry < 8; ++entry) {
        QuorUtilUndoStateBegin(9);
        QuorUtilUndoStateEnd(false, true);
        QuorUtilStateChanged(QuorStateChange_ZonesAdded, guest.set.get());
        QuorUtilZoneStyleApplyAuto(guest.set.get());
        QuorUtilDialogErrMsg(longText);
        QuorUtilHelp(longText, false, 0);
        hostState().stateChangeCallbacks.push_back(noteNothing);
    }
}

template <typename Handle>
Ended_e kept(Handle handle, Handle& place) {
    place = handle;
    return told(handle != nullptr);
}

// ---- The calls of a guest -----------------------------------------------------------------------

std::vector<ServiceScenario_s> lifeScenarios() {
    return {
        {"QuorUtilGetQuorviaVersion", readyNothing,
         [](Guest_s&) { return told(QuorUtilGetQuorviaVersion()); }},
        {"QuorUtilAddOnRegister", readyNothing,
         [](Guest_s&) { return told(QuorUtilAddOnRegister(100, longText, "1", "Tests")); }},
        {"QuorUtilLockOn", readyNothing,
         [](Guest_s&) {
             QuorUtilLockOn();
             return Ended_e::Silent;
         }},
        {"QuorUtilLockOff", [](Guest_s&) { QuorUtilLockOn(); },
         [](Guest_s&) {
             QuorUtilLockOff();
             return Ended_e::Silent;
         }},
        {"QuorUtilLockStart", readyNothing,
         [](Guest_s& guest) {
             QuorUtilLockStart(guest.addOn);
             return Ended_e::Silent;
         }},
        {"QuorUtilLockFinish", [](Guest_s& guest) { QuorUtilLockStart(guest.addOn); },
         [](Guest_s& guest) {
             QuorUtilLockFinish(guest.addOn);
             return Ended_e::Silent;
         }},
        {"QuorUtilStateChangeAddCallback", readyManyEntries,
         [](Guest_s&) {
             QuorUtilStateChangeAddCallback(noteNothing);
             return Ended_e::Done;
         },
         true},
        {"QuorUtilStateChanged", readyManyEntries,
         [](Guest_s& guest) {
             QuorUtilStateChanged(QuorStateChange_ZonesAdded, guest.set.get());
             return Ended_e::Done;
         }},
        {"QuorUtilUndoStateBegin", readyManyEntries,
         [](Guest_s&) {
             QuorUtilUndoStateBegin(9);
             return Ended_e::Done;
         }},
        {"QuorUtilUndoStateEnd", readyUndo,
         [](Guest_s&) {
             QuorUtilUndoStateEnd(false, true);
             return Ended_e::Done;
         }},
        {"QuorUtilUndoStateEnd",
         [](Guest_s& guest) {
             readyManyEntries(guest);
             QuorUtilUndoStateBegin(9);
         },
         [](Guest_s&) {
             QuorUtilUndoStateEnd(false, true);
             return Ended_e::Done;
         }},
        {"QuorUtilInterruptIsSet", readyNothing,
         [](Guest_s&) {
             QuorUtilInterruptIsSet();
             return Ended_e::Silent;
         }},
        {"QuorUtilImportAddLoaderX", readyLoaderArguments,
         [](Guest_s& guest) { return told(QuorUtilImportAddLoaderX(guest.arguments.get())); }},
        {"QuorUtilImportSetLoaderInstr", readyLoader,
         [](Guest_s& guest) {
             return told(QuorUtilImportSetLoaderInstr(longText, guest.list.get()));
         }},
    };
}

std::vector<ServiceScenario_s> messageScenarios() {
    return {
        {"QuorUtilDialogErrMsg", readyNothing,
         [](Guest_s&) {
             QuorUtilDialogErrMsg(longText);
             return Ended_e::Done;
         }},
        {"QuorUtilDialogErrMsg", readyManyEntries,
         [](Guest_s&) {
             QuorUtilDialogErrMsg(longText);
             return Ended_e::Done;
         }},
        {"QuorUtilDialogMessageBox", readyAnswer,
         [](Guest_s&) { return told(QuorUtilDialogMessageBox(longText, QuorMessageBox_YesNo)); }},
        {"QuorUtilDialogMessageBox", readyNothing,
         [](Guest_s&) {
             return told(QuorUtilDialogMessageBox(longText, QuorMessageBox_Information));
         }},
        {"QuorUtilPostLastErrorMessage", readyLastError,
         [](Guest_s&) {
             QuorUtilPostLastErrorMessage();
             return Ended_e::Done;
         }},
        {"QuorUtilDialogGetFileName", readyChoice,
         [](Guest_s& guest) {
             return told(QuorUtilDialogGetFileName(0, guest.text.outArgument(), longText, longText,
                                                   longText));
         }},
        {"QuorUtilDialogGetFileNames", readyChoices,
         [](Guest_s& guest) {
             return told(QuorUtilDialogGetFileNames(1, guest.list.outArgument(), longText, nullptr,
                                                    longText));
         }},
        {"QuorUtilGetBasePath", readyNothing,
         [](Guest_s& guest) {
             guest.text = HostString(QuorUtilGetBasePath("/a/long/path/of/folders/file.x"));
             return told(guest.text);
         }},
        {"QuorUtilHelp", readyManyEntries,
         [](Guest_s&) {
             QuorUtilHelp(longText, false, 0);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario_s> listScenarios() {
    return {
        {"QuorUtilStringAlloc", readyNothing,
         [](Guest_s& guest) {
             return kept<void*>(QuorUtilStringAlloc(24, longText), guest.array);
         }},
        {"QuorUtilStringDealloc", readyText,
         [](Guest_s& guest) {
             guest.text.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilArrayDealloc", readyBlock,
         [](Guest_s& guest) {
             QuorUtilArrayDealloc(&guest.array);
             return Ended_e::Done;
         }},
        {"QuorUtilStringListAlloc", readyNothing,
         [](Guest_s& guest) {
             guest.list = HostStringList(QuorUtilStringListAlloc());
             return told(guest.list);
         }},
        {"QuorUtilStringListDealloc", readyList,
         [](Guest_s& guest) {
             guest.list.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilStringListGetCount", readyList,
         [](Guest_s& guest) { return told(QuorUtilStringListGetCount(guest.list.get()) == 2); }},
        {"QuorUtilStringListGetString", readyList,
         [](Guest_s& guest) {
             guest.text = HostString(QuorUtilStringListGetString(guest.list.get(), 2));
             return told(guest.text);
         }},
        {"QuorUtilStringListSetString", readyList,
         [](Guest_s& guest) {
             return told(QuorUtilStringListSetString(guest.list.get(), 7, longText));
         }},
        {"QuorUtilStringListAppendString", readyList,
         [](Guest_s& guest) {
             return told(QuorUtilStringListAppendString(guest.list.get(), longText));
         }},
        {"QuorUtilStringListAppend", readyTwoLists,
         [](Guest_s& guest) {
             return told(QuorUtilStringListAppend(guest.list.get(), guest.otherList.get()));
         }},
        {"QuorUtilStringListAppend", readyTwoLists,
         [](Guest_s& guest) {
             return told(QuorUtilStringListAppend(guest.list.get(), guest.list.get()));
         }},
    };
}

std::vector<ServiceScenario_s> argumentScenarios() {
    return {
        {"QuorUtilArgListAlloc", readyNothing,
         [](Guest_s& guest) {
             guest.arguments = HostArgList(QuorUtilArgListAlloc());
             return told(guest.arguments);
         }},
        {"QuorUtilArgListClear", readyArguments,
         [](Guest_s& guest) {
             QuorUtilArgListClear(guest.arguments.get());
             return Ended_e::Done;
         }},
        {"QuorUtilArgListDealloc", readyArguments,
         [](Guest_s& guest) {
             guest.arguments.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilArgListAppendString", readyArguments,
         [](Guest_s& guest) {
             return told(QuorUtilArgListAppendString(guest.arguments.get(), longText, longText));
         }},
        {"QuorUtilArgListAppendInt", readyArguments,
         [](Guest_s& guest) {
             return told(QuorUtilArgListAppendInt(guest.arguments.get(), longText, 2));
         }},
        {"QuorUtilArgListAppendDouble", readyArguments,
         [](Guest_s& guest) {
             return told(QuorUtilArgListAppendDouble(guest.arguments.get(), longText, 2.0));
         }},
        {"QuorUtilArgListAppendStringList", readyArgumentsAndList,
         [](Guest_s& guest) {
             return told(QuorUtilArgListAppendStringList(guest.arguments.get(), longText,
                                                         guest.list.get()));
         }},
        {"QuorUtilArgListAppendArray", readyArguments,
         [](Guest_s& guest) {
             return told(QuorUtilArgListAppendArray(guest.arguments.get(), longText, longText));
         }},
        {"QuorUtilArgListAppendFunction", readyArguments,
         [](Guest_s& guest) {
             return told(QuorUtilArgListAppendFunction(
                 guest.arguments.get(), longText, reinterpret_cast<QuorFunction>(noteNothing)));
         }},
    };
}

std::vector<ServiceScenario_s> setScenarios() {
    return {
        {"QuorUtilSetAlloc", readyNothing,
         [](Guest_s& guest) {
             guest.set = HostSet(QuorUtilSetAlloc(showErrors));
             return told(guest.set);
         }},
        {"QuorUtilSetDealloc", readySet,
         [](Guest_s& guest) {
             guest.set.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilSetAddMember", readySet,
         [](Guest_s& guest) { return told(QuorUtilSetAddMember(guest.set.get(), 7, showErrors)); }},
        {"QuorUtilSetRemoveMember", readySet,
         [](Guest_s& guest) {
             QuorUtilSetRemoveMember(guest.set.get(), 3);
             return Ended_e::Done;
         }},
        {"QuorUtilSetIsMember", readySet,
         [](Guest_s& guest) { return told(QuorUtilSetIsMember(guest.set.get(), 3)); }},
        {"QuorUtilSetIsEmpty", readySet,
         [](Guest_s& guest) { return told(!QuorUtilSetIsEmpty(guest.set.get())); }},
        {"QuorUtilSetGetMemberCount", readySet,
         [](Guest_s& guest) { return told(QuorUtilSetGetMemberCount(guest.set.get()) == 3); }},
        {"QuorUtilSetGetNextMember", readySet,
         [](Guest_s& guest) { return told(QuorUtilSetGetNextMember(guest.set.get(), 3) == 5); }},
    };
}

} // namespace

std::vector<ServiceScenario_s> basicScenarios() {
    std::vector<ServiceScenario_s> scenarios;
    for (const auto& group : {lifeScenarios(), messageScenarios(), listScenarios(),
                              argumentScenarios(), setScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
