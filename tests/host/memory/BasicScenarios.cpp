// The operations that need no data set: life of an add-on, registration, messages, memory, strings,
// lists, sets.
#include "memory/ServiceScenarios.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

constexpr bool showErrors = true;

void readyNothing(Guest&) {}

void readyList(Guest& guest) {
    guest.list = HostStringList(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(guest.list.get(), longText);
    QuorUtilStringListAppendString(guest.list.get(), longText);
}

void readyTwoLists(Guest& guest) {
    readyList(guest);
    guest.otherList = HostStringList(QuorUtilStringListAlloc());
    for (int text = 0; text < 5; ++text)
        QuorUtilStringListAppendString(guest.otherList.get(), longText);
}

void readyArguments(Guest& guest) {
    guest.arguments = HostArgList(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(guest.arguments.get(), "First", longText);
}

void readyArgumentsAndList(Guest& guest) {
    readyArguments(guest);
    readyList(guest);
}

void readySet(Guest& guest) {
    guest.set = Made::setOf({2, 3, 5});
}

void readyBlock(Guest& guest) {
    guest.array = QuorUtilStringAlloc(24, "a label that is longer than others");
}

void readyText(Guest& guest) {
    guest.text = HostString::copyOf(longText);
}

bool loadNothing(QuorStringListHandle) {
    return false;
}
void selectNothing(QuorStringListHandle, bool, bool) {}

void readyLoaderArguments(Guest& guest) {
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

void readyLoader(Guest& guest) {
    readyLoaderArguments(guest);
    QuorUtilImportAddLoaderX(guest.arguments.get());
    readyList(guest);
}

void readyAnswer(Guest&) {
    ReferenceHost::instance().setAnswers({}, true);
}

void readyChoice(Guest&) {
    ReferenceHost::instance().setFileChoices({{longText}, {longText}});
}

void readyChoices(Guest&) {
    ReferenceHost::instance().setFileChoices({{longText, longText}, {longText, longText}});
}

void readyLastError(Guest&) {
    hostState().lastError = longText;
}

void noteNothing(std::int32_t) {}

void readyUndo(Guest&) {
    QuorUtilUndoStateBegin(9);
}

// The places that there are at first are used up, so that the next entry needs another one.
void readyManyEntries(Guest& guest) {
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

std::vector<ServiceScenario> lifeScenarios() {
    return {
        {"QuorUtilGetQuorviaVersion", readyNothing,
         [](Guest&) { return told(QuorUtilGetQuorviaVersion()); }},
        {"QuorUtilAddOnRegister", readyNothing,
         [](Guest&) { return told(QuorUtilAddOnRegister(100, longText, "1", "Tests")); }},
        {"QuorUtilLockOn", readyNothing,
         [](Guest&) {
             QuorUtilLockOn();
             return Ended_e::Silent;
         }},
        {"QuorUtilLockOff", [](Guest&) { QuorUtilLockOn(); },
         [](Guest&) {
             QuorUtilLockOff();
             return Ended_e::Silent;
         }},
        {"QuorUtilLockStart", readyNothing,
         [](Guest& guest) {
             QuorUtilLockStart(guest.addOn);
             return Ended_e::Silent;
         }},
        {"QuorUtilLockFinish", [](Guest& guest) { QuorUtilLockStart(guest.addOn); },
         [](Guest& guest) {
             QuorUtilLockFinish(guest.addOn);
             return Ended_e::Silent;
         }},
        {"QuorUtilStateChangeAddCallback", readyManyEntries,
         [](Guest&) {
             QuorUtilStateChangeAddCallback(noteNothing);
             return Ended_e::Done;
         },
         true},
        {"QuorUtilStateChanged", readyManyEntries,
         [](Guest& guest) {
             QuorUtilStateChanged(QuorStateChange_ZonesAdded, guest.set.get());
             return Ended_e::Done;
         }},
        {"QuorUtilUndoStateBegin", readyManyEntries,
         [](Guest&) {
             QuorUtilUndoStateBegin(9);
             return Ended_e::Done;
         }},
        {"QuorUtilUndoStateEnd", readyUndo,
         [](Guest&) {
             QuorUtilUndoStateEnd(false, true);
             return Ended_e::Done;
         }},
        {"QuorUtilUndoStateEnd",
         [](Guest& guest) {
             readyManyEntries(guest);
             QuorUtilUndoStateBegin(9);
         },
         [](Guest&) {
             QuorUtilUndoStateEnd(false, true);
             return Ended_e::Done;
         }},
        {"QuorUtilInterruptIsSet", readyNothing,
         [](Guest&) {
             QuorUtilInterruptIsSet();
             return Ended_e::Silent;
         }},
        {"QuorUtilImportAddLoaderX", readyLoaderArguments,
         [](Guest& guest) { return told(QuorUtilImportAddLoaderX(guest.arguments.get())); }},
        {"QuorUtilImportSetLoaderInstr", readyLoader,
         [](Guest& guest) {
             return told(QuorUtilImportSetLoaderInstr(longText, guest.list.get()));
         }},
    };
}

std::vector<ServiceScenario> messageScenarios() {
    return {
        {"QuorUtilDialogErrMsg", readyNothing,
         [](Guest&) {
             QuorUtilDialogErrMsg(longText);
             return Ended_e::Done;
         }},
        {"QuorUtilDialogErrMsg", readyManyEntries,
         [](Guest&) {
             QuorUtilDialogErrMsg(longText);
             return Ended_e::Done;
         }},
        {"QuorUtilDialogMessageBox", readyAnswer,
         [](Guest&) { return told(QuorUtilDialogMessageBox(longText, QuorMessageBox_YesNo)); }},
        {"QuorUtilDialogMessageBox", readyNothing,
         [](Guest&) {
             return told(QuorUtilDialogMessageBox(longText, QuorMessageBox_Information));
         }},
        {"QuorUtilPostLastErrorMessage", readyLastError,
         [](Guest&) {
             QuorUtilPostLastErrorMessage();
             return Ended_e::Done;
         }},
        {"QuorUtilDialogGetFileName", readyChoice,
         [](Guest& guest) {
             return told(QuorUtilDialogGetFileName(0, guest.text.outArgument(), longText, longText,
                                                   longText));
         }},
        {"QuorUtilDialogGetFileNames", readyChoices,
         [](Guest& guest) {
             return told(QuorUtilDialogGetFileNames(1, guest.list.outArgument(), longText, nullptr,
                                                    longText));
         }},
        {"QuorUtilGetBasePath", readyNothing,
         [](Guest& guest) {
             guest.text = HostString(QuorUtilGetBasePath("/a/long/path/of/folders/file.x"));
             return told(guest.text);
         }},
        {"QuorUtilHelp", readyManyEntries,
         [](Guest&) {
             QuorUtilHelp(longText, false, 0);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario> listScenarios() {
    return {
        {"QuorUtilStringAlloc", readyNothing,
         [](Guest& guest) { return kept<void*>(QuorUtilStringAlloc(24, longText), guest.array); }},
        {"QuorUtilStringDealloc", readyText,
         [](Guest& guest) {
             guest.text.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilArrayDealloc", readyBlock,
         [](Guest& guest) {
             QuorUtilArrayDealloc(&guest.array);
             return Ended_e::Done;
         }},
        {"QuorUtilStringListAlloc", readyNothing,
         [](Guest& guest) {
             guest.list = HostStringList(QuorUtilStringListAlloc());
             return told(guest.list);
         }},
        {"QuorUtilStringListDealloc", readyList,
         [](Guest& guest) {
             guest.list.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilStringListGetCount", readyList,
         [](Guest& guest) { return told(QuorUtilStringListGetCount(guest.list.get()) == 2); }},
        {"QuorUtilStringListGetString", readyList,
         [](Guest& guest) {
             guest.text = HostString(QuorUtilStringListGetString(guest.list.get(), 2));
             return told(guest.text);
         }},
        {"QuorUtilStringListSetString", readyList,
         [](Guest& guest) {
             return told(QuorUtilStringListSetString(guest.list.get(), 7, longText));
         }},
        {"QuorUtilStringListAppendString", readyList,
         [](Guest& guest) {
             return told(QuorUtilStringListAppendString(guest.list.get(), longText));
         }},
        {"QuorUtilStringListAppend", readyTwoLists,
         [](Guest& guest) {
             return told(QuorUtilStringListAppend(guest.list.get(), guest.otherList.get()));
         }},
        {"QuorUtilStringListAppend", readyTwoLists,
         [](Guest& guest) {
             return told(QuorUtilStringListAppend(guest.list.get(), guest.list.get()));
         }},
    };
}

std::vector<ServiceScenario> argumentScenarios() {
    return {
        {"QuorUtilArgListAlloc", readyNothing,
         [](Guest& guest) {
             guest.arguments = HostArgList(QuorUtilArgListAlloc());
             return told(guest.arguments);
         }},
        {"QuorUtilArgListClear", readyArguments,
         [](Guest& guest) {
             QuorUtilArgListClear(guest.arguments.get());
             return Ended_e::Done;
         }},
        {"QuorUtilArgListDealloc", readyArguments,
         [](Guest& guest) {
             guest.arguments.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilArgListAppendString", readyArguments,
         [](Guest& guest) {
             return told(QuorUtilArgListAppendString(guest.arguments.get(), longText, longText));
         }},
        {"QuorUtilArgListAppendInt", readyArguments,
         [](Guest& guest) {
             return told(QuorUtilArgListAppendInt(guest.arguments.get(), longText, 2));
         }},
        {"QuorUtilArgListAppendDouble", readyArguments,
         [](Guest& guest) {
             return told(QuorUtilArgListAppendDouble(guest.arguments.get(), longText, 2.0));
         }},
        {"QuorUtilArgListAppendStringList", readyArgumentsAndList,
         [](Guest& guest) {
             return told(QuorUtilArgListAppendStringList(guest.arguments.get(), longText,
                                                         guest.list.get()));
         }},
        {"QuorUtilArgListAppendArray", readyArguments,
         [](Guest& guest) {
             return told(QuorUtilArgListAppendArray(guest.arguments.get(), longText, longText));
         }},
        {"QuorUtilArgListAppendFunction", readyArguments,
         [](Guest& guest) {
             return told(QuorUtilArgListAppendFunction(
                 guest.arguments.get(), longText, reinterpret_cast<QuorFunction>(noteNothing)));
         }},
    };
}

std::vector<ServiceScenario> setScenarios() {
    return {
        {"QuorUtilSetAlloc", readyNothing,
         [](Guest& guest) {
             guest.set = HostSet(QuorUtilSetAlloc(showErrors));
             return told(guest.set);
         }},
        {"QuorUtilSetDealloc", readySet,
         [](Guest& guest) {
             guest.set.reset();
             return Ended_e::Done;
         }},
        {"QuorUtilSetAddMember", readySet,
         [](Guest& guest) { return told(QuorUtilSetAddMember(guest.set.get(), 7, showErrors)); }},
        {"QuorUtilSetRemoveMember", readySet,
         [](Guest& guest) {
             QuorUtilSetRemoveMember(guest.set.get(), 3);
             return Ended_e::Done;
         }},
        {"QuorUtilSetIsMember", readySet,
         [](Guest& guest) { return told(QuorUtilSetIsMember(guest.set.get(), 3)); }},
        {"QuorUtilSetIsEmpty", readySet,
         [](Guest& guest) { return told(!QuorUtilSetIsEmpty(guest.set.get())); }},
        {"QuorUtilSetGetMemberCount", readySet,
         [](Guest& guest) { return told(QuorUtilSetGetMemberCount(guest.set.get()) == 3); }},
        {"QuorUtilSetGetNextMember", readySet,
         [](Guest& guest) { return told(QuorUtilSetGetNextMember(guest.set.get(), 3) == 5); }},
    };
}

} // namespace

std::vector<ServiceScenario> basicScenarios() {
    std::vector<ServiceScenario> scenarios;
    for (const auto& group : {lifeScenarios(), messageScenarios(), listScenarios(),
                              argumentScenarios(), setScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
