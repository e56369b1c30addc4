// The operations of the toolkit.
#include "memory/ServiceScenarios.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

void pressed() {}
void chosen(const std::int32_t*) {}
bool typed(const char*) {
    return true;
}

void readyNothing(Guest&) {}

void readyDialog(Guest& guest) {
    guest.dialog = QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 5003, 2003, "Guest", pressed,
                                            pressed, nullptr, nullptr, nullptr);
}

void readyTabs(Guest& guest) {
    readyDialog(guest);
    guest.tabs = QuorGUITabAdd(guest.dialog, 0, 0, 100, 100, chosen, chosen);
}

void readyToggle(Guest& guest) {
    readyDialog(guest);
    guest.control = QuorGUIToggleAdd(guest.dialog, 0, 0, 10, 10, longText, chosen);
}

void readyRadioBox(Guest& guest) {
    readyDialog(guest);
    guest.control = QuorGUIRadioBoxAdd(guest.dialog, 0, 0, 10, 10, longText, longText, nullptr,
                                       nullptr, nullptr, chosen);
}

void readyOptionMenu(Guest& guest) {
    readyDialog(guest);
    guest.control = QuorGUIOptionMenuAdd(guest.dialog, 0, 0, 10, 10, "one,two", chosen);
}

void readyList(Guest& guest) {
    readyDialog(guest);
    guest.control = QuorGUIListAdd(guest.dialog, 0, 0, 10, 10, true, chosen);
    QuorGUIListAppendItem(guest.control, longText);
    QuorGUIListAppendItem(guest.control, longText);
}

void play(std::vector<DialogAction> actions) {
    std::vector<ScriptEntry> entries;
    for (DialogAction& action : actions)
        entries.emplace_back(DialogStep([action = std::move(action)](const Dialog&) {
            return DialogMove{action, "", false};
        }));
    ReferenceHost::instance().script().addToScript(std::move(entries));
}

void readySelection(Guest& guest) {
    readyList(guest);
    play({SelectItems{guest.control, {1, 2}}});
    QuorGUIDialogLaunch(guest.dialog);
}

void readyField(Guest& guest) {
    readyDialog(guest);
    guest.control = QuorGUITextFieldAdd(guest.dialog, 0, 0, 10, 10, typed);
    QuorGUITextFieldSetString(guest.control, "a text from before");
}

void readyLongField(Guest& guest) {
    readyField(guest);
    QuorGUITextFieldSetString(guest.control, longText);
}

void readyIndexField(Guest& guest) {
    readyField(guest);
    QuorGUITextFieldSetLgIndex(guest.control, 7, false);
}

void readySetField(Guest& guest) {
    readyField(guest);
    QuorGUITextFieldSetString(guest.control, "1-3,7,11,13");
}

void readyFieldAndSet(Guest& guest) {
    readySetField(guest);
    guest.set = Made::setOf({2, 4, 6, 8, 10, 12, 14, 16, 18, 20});
}

/// Types a long text into the field, and leaves the dialog.
class TypingUser : public User {
public:
    DialogAction nextAction(const Dialog& dialog) override {
        const Control& field = dialog.controls.front();
        if (field.text == longText)
            return PressDialogButton{DialogButton::Cancel};
        return TypeText{field.id, longText};
    }
    bool answer(const std::string&) override { return false; }
    std::vector<std::string> chooseFiles(const FileRequest&) override { return {}; }
};

void readyUser(Guest& guest) {
    static TypingUser user;
    readyField(guest);
    ReferenceHost::instance().setUser(&user);
}

Ended_e made(std::int32_t id) {
    return told(id != QuorGUIId_None);
}

// ---- The calls of a guest -----------------------------------------------------------------------

std::vector<ServiceScenario> makingScenarios() {
    return {
        {"QuorGUIDialogCreateModal", readyNothing,
         [](Guest&) {
             return made(QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 5, 5, longText, pressed,
                                                  pressed, pressed, pressed, pressed));
         }},
        {"QuorGUITabAdd", readyDialog,
         [](Guest& guest) {
             return made(QuorGUITabAdd(guest.dialog, 0, 0, 10, 10, chosen, chosen));
         }},
        {"QuorGUITabAddPage", readyTabs,
         [](Guest& guest) { return made(QuorGUITabAddPage(guest.tabs, longText)); }},
        {"QuorGUIFrameAdd", readyDialog,
         [](Guest& guest) { return made(QuorGUIFrameAdd(guest.dialog, 0, 0, 10, 10, longText)); }},
        {"QuorGUILabelAdd", readyDialog,
         [](Guest& guest) { return made(QuorGUILabelAdd(guest.dialog, 0, 0, longText)); }},
        {"QuorGUIToggleAdd", readyDialog,
         [](Guest& guest) {
             return made(QuorGUIToggleAdd(guest.dialog, 0, 0, 10, 10, longText, chosen));
         }},
        {"QuorGUIButtonAdd", readyDialog,
         [](Guest& guest) {
             return made(QuorGUIButtonAdd(guest.dialog, 0, 0, 10, 10, longText, pressed));
         }},
        {"QuorGUIListAdd", readyDialog,
         [](Guest& guest) {
             return made(QuorGUIListAdd(guest.dialog, 0, 0, 10, 10, true, chosen));
         }},
        {"QuorGUITextFieldAdd", readyDialog,
         [](Guest& guest) { return made(QuorGUITextFieldAdd(guest.dialog, 0, 0, 10, 10, typed)); }},
        {"QuorGUIRadioBoxAdd", readyDialog,
         [](Guest& guest) {
             return made(QuorGUIRadioBoxAdd(guest.dialog, 0, 0, 10, 10, longText, longText, "three",
                                            nullptr, nullptr, chosen));
         }},
        {"QuorGUIOptionMenuAdd", readyDialog,
         [](Guest& guest) {
             return made(QuorGUIOptionMenuAdd(guest.dialog, 0, 0, 10, 10,
                                              "the first of two items,the second of two items",
                                              chosen));
         }},
    };
}

std::vector<ServiceScenario> valueScenarios() {
    return {
        {"QuorGUIDialogLaunch", readyUser,
         [](Guest& guest) {
             QuorGUIDialogLaunch(guest.dialog);
             return Ended_e::Silent;
         }},
        {"QuorGUIDialogDrop",
         [](Guest& guest) {
             readyDialog(guest);
             for (const Dialog& dialog : hostState().toolkit.dialogs())
                 hostState().toolkit.opened(*hostState().toolkit.dialog(dialog.id));
         },
         [](Guest& guest) {
             QuorGUIDialogDrop(guest.dialog);
             return Ended_e::Done;
         }},
        {"QuorGUIToggleSet", readyToggle,
         [](Guest& guest) {
             QuorGUIToggleSet(guest.control, 1);
             return Ended_e::Done;
         }},
        {"QuorGUIRadioBoxSetToggle", readyRadioBox,
         [](Guest& guest) {
             QuorGUIRadioBoxSetToggle(guest.control, 2);
             return Ended_e::Done;
         }},
        {"QuorGUIOptionMenuSet", readyOptionMenu,
         [](Guest& guest) {
             QuorGUIOptionMenuSet(guest.control, 2);
             return Ended_e::Done;
         }},
        {"QuorGUIListDeleteAllItems", readyList,
         [](Guest& guest) {
             QuorGUIListDeleteAllItems(guest.control);
             return Ended_e::Done;
         }},
        {"QuorGUIListAppendItem", readyList,
         [](Guest& guest) {
             QuorGUIListAppendItem(guest.control, longText);
             return Ended_e::Silent;
         }},
        {"QuorGUIListGetSelectedItems", readySelection,
         [](Guest& guest) {
             std::int32_t* positions = nullptr;
             std::int32_t count = 7;
             QuorGUIListGetSelectedItems(guest.control, &positions, &count);
             guest.array = positions;
             return positions != nullptr && count == 2   ? Ended_e::Done
                    : positions == nullptr && count == 0 ? Ended_e::Refused
                                                         : Ended_e::Silent;
         }},
        {"QuorGUISetSensitivity", readyToggle,
         [](Guest& guest) {
             QuorGUISetSensitivity(guest.control, false);
             return Ended_e::Done;
         }},
        {"QuorGUISetInputFocus", readyToggle,
         [](Guest& guest) {
             QuorGUISetInputFocus(guest.control);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario> textFieldScenarios() {
    return {
        {"QuorGUITextFieldSetString", readyField,
         [](Guest& guest) {
             QuorGUITextFieldSetString(guest.control, longText);
             return Ended_e::Silent;
         }},
        {"QuorGUITextFieldGetString", readyLongField,
         [](Guest& guest) {
             guest.text = HostString(QuorGUITextFieldGetString(guest.control));
             return told(guest.text);
         }},
        {"QuorGUITextFieldSetLgIndex", readyField,
         [](Guest& guest) {
             QuorGUITextFieldSetLgIndex(guest.control, 1234567890123456789, true);
             return Ended_e::Silent;
         }},
        {"QuorGUITextFieldGetLgIndex", readyIndexField,
         [](Guest& guest) {
             std::int64_t index = 0;
             return told(QuorGUITextFieldGetLgIndex(guest.control, &index) && index == 7);
         }},
        {"QuorGUITextFieldValidateLgIndex", readyIndexField,
         [](Guest& guest) {
             return told(QuorGUITextFieldValidateLgIndex(guest.control, longText, 1, 9, false));
         }},
        {"QuorGUITextFieldValidateLgIndex", readyLongField, // the user is told that it is none
         [](Guest& guest) {
             const bool isValid =
                 QuorGUITextFieldValidateLgIndex(guest.control, longText, 1, 9, false);
             const bool isTold = !hostState().log.messages.empty();
             return !isValid && isTold ? Ended_e::Silent : Ended_e::Refused;
         }},
        {"QuorGUITextFieldSetSet", readyFieldAndSet,
         [](Guest& guest) {
             QuorGUITextFieldSetSet(guest.control, guest.set.get(), false);
             return Ended_e::Silent;
         }},
        {"QuorGUITextFieldGetSet", readySetField,
         [](Guest& guest) {
             return told(QuorGUITextFieldGetSet(guest.control, guest.newSet.outArgument()));
         }},
        {"QuorGUITextFieldGetSet", readyFieldAndSet, // into a set that is there
         [](Guest& guest) {
             QuorSetHandle set = guest.set.get();
             return told(QuorGUITextFieldGetSet(guest.control, &set));
         }},
    };
}

} // namespace

std::vector<ServiceScenario> dialogScenarios() {
    std::vector<ServiceScenario> scenarios;
    for (const auto& group : {makingScenarios(), valueScenarios(), textFieldScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
