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

void readyNothing(Guest_s&) {}

void readyDialog(Guest_s& guest) {
    guest.dialog = QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 5003, 2003, "Guest", pressed,
                                            pressed, nullptr, nullptr, nullptr);
}

void readyTabs(Guest_s& guest) {
    readyDialog(guest);
    guest.tabs = QuorGUITabAdd(guest.dialog, 0, 0, 100, 100, chosen, chosen);
}

void readyToggle(Guest_s& guest) {
    readyDialog(guest);
    guest.control = QuorGUIToggleAdd(guest.dialog, 0, 0, 10, 10, longText, chosen);
}

void readyRadioBox(Guest_s& guest) {
    readyDialog(guest);
    guest.control = QuorGUIRadioBoxAdd(guest.dialog, 0, 0, 10, 10, longText, longText, nullptr,
                                       nullptr, nullptr, chosen);
}

void readyOptionMenu(Guest_s& guest) {
    readyDialog(guest);
    guest.control = QuorGUIOptionMenuAdd(guest.dialog, 0, 0, 10, 10, "one,two", chosen);
}

void readyList(Guest_s& guest) {
    readyDialog(guest);
    guest.control = QuorGUIListAdd(guest.dialog, 0, 0, 10, 10, true, chosen);
    QuorGUIListAppendItem(guest.control, longText);
    QuorGUIListAppendItem(guest.control, longText);
}

void play(std::vector<DialogAction> actions) {
    std::vector<ScriptEntry> entries;
    for (DialogAction& action : actions)
        entries.emplace_back(DialogStep([action = std::move(action)](const Dialog_s&) {
            return DialogMove_s{action, "", false};
        }));
    ReferenceHost::instance().script().addToScript(std::move(entries));
}

void readySelection(Guest_s& guest) {
    readyList(guest);
    play({SelectItems_s{guest.control, {1, 2}}});
    QuorGUIDialogLaunch(guest.dialog);
}

void readyField(Guest_s& guest) {
    readyDialog(guest);
    guest.control = QuorGUITextFieldAdd(guest.dialog, 0, 0, 10, 10, typed);
    QuorGUITextFieldSetString(guest.control, "a text from before");
}

void readyLongField(Guest_s& guest) {
    readyField(guest);
    QuorGUITextFieldSetString(guest.control, longText);
}

void readyIndexField(Guest_s& guest) {
    readyField(guest);
    QuorGUITextFieldSetLgIndex(guest.control, 7, false);
}

void readySetField(Guest_s& guest) {
    readyField(guest);
    QuorGUITextFieldSetString(guest.control, "1-3,7,11,13");
}

void readyFieldAndSet(Guest_s& guest) {
    readySetField(guest);
    guest.set = Made::setOf({2, 4, 6, 8, 10, 12, 14, 16, 18, 20});
}

/// Types a long text into the field, and leaves the dialog.
class TypingUser : public User {
public:
    DialogAction nextAction(const Dialog_s& dialog) override {
        const Control_s& field = dialog.controls.front();
        if (field.text == longText)
            return PressDialogButton_s{DialogButton_e::Cancel};
        return TypeText_s{field.id, longText};
    }
    bool answer(const std::string&) override { return false; }
    std::vector<std::string> chooseFiles(const FileRequest_s&) override { return {}; }
};

void readyUser(Guest_s& guest) {
    static TypingUser user;
    readyField(guest);
    ReferenceHost::instance().setUser(&user);
}

Ended_e made(std::int32_t id) {
    return told(id != QuorGUIId_None);
}

// ---- The calls of a guest -----------------------------------------------------------------------

std::vector<ServiceScenario_s> makingScenarios() {
    return {
        {"QuorGUIDialogCreateModal", readyNothing,
         [](Guest_s&) {
             return made(QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 5, 5, longText, pressed,
                                                  pressed, pressed, pressed, pressed));
         }},
        {"QuorGUITabAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUITabAdd(guest.dialog, 0, 0, 10, 10, chosen, chosen));
         }},
        {"QuorGUITabAddPage", readyTabs,
         [](Guest_s& guest) { return made(QuorGUITabAddPage(guest.tabs, longText)); }},
        {"QuorGUIFrameAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUIFrameAdd(guest.dialog, 0, 0, 10, 10, longText));
         }},
        {"QuorGUILabelAdd", readyDialog,
         [](Guest_s& guest) { return made(QuorGUILabelAdd(guest.dialog, 0, 0, longText)); }},
        {"QuorGUIToggleAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUIToggleAdd(guest.dialog, 0, 0, 10, 10, longText, chosen));
         }},
        {"QuorGUIButtonAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUIButtonAdd(guest.dialog, 0, 0, 10, 10, longText, pressed));
         }},
        {"QuorGUIListAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUIListAdd(guest.dialog, 0, 0, 10, 10, true, chosen));
         }},
        {"QuorGUITextFieldAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUITextFieldAdd(guest.dialog, 0, 0, 10, 10, typed));
         }},
        {"QuorGUIRadioBoxAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUIRadioBoxAdd(guest.dialog, 0, 0, 10, 10, longText, longText, "three",
                                            nullptr, nullptr, chosen));
         }},
        {"QuorGUIOptionMenuAdd", readyDialog,
         [](Guest_s& guest) {
             return made(QuorGUIOptionMenuAdd(guest.dialog, 0, 0, 10, 10,
                                              "the first of two items,the second of two items",
                                              chosen));
         }},
    };
}

std::vector<ServiceScenario_s> valueScenarios() {
    return {
        {"QuorGUIDialogLaunch", readyUser,
         [](Guest_s& guest) {
             QuorGUIDialogLaunch(guest.dialog);
             return Ended_e::Silent;
         }},
        {"QuorGUIDialogDrop",
         [](Guest_s& guest) {
             readyDialog(guest);
             for (const Dialog_s& dialog : hostState().toolkit.dialogs())
                 hostState().toolkit.opened(*hostState().toolkit.dialog(dialog.id));
         },
         [](Guest_s& guest) {
             QuorGUIDialogDrop(guest.dialog);
             return Ended_e::Done;
         }},
        {"QuorGUIToggleSet", readyToggle,
         [](Guest_s& guest) {
             QuorGUIToggleSet(guest.control, 1);
             return Ended_e::Done;
         }},
        {"QuorGUIRadioBoxSetToggle", readyRadioBox,
         [](Guest_s& guest) {
             QuorGUIRadioBoxSetToggle(guest.control, 2);
             return Ended_e::Done;
         }},
        {"QuorGUIOptionMenuSet", readyOptionMenu,
         [](Guest_s& guest) {
             QuorGUIOptionMenuSet(guest.control, 2);
             return Ended_e::Done;
         }},
        {"QuorGUIListDeleteAllItems", readyList,
         [](Guest_s& guest) {
             QuorGUIListDeleteAllItems(guest.control);
             return Ended_e::Done;
         }},
        {"QuorGUIListAppendItem", readyList,
         [](Guest_s& guest) {
             QuorGUIListAppendItem(guest.control, longText);
             return Ended_e::Silent;
         }},
        {"QuorGUIListGetSelectedItems", readySelection,
         [](Guest_s& guest) {
             std::int32_t* positions = nullptr;
             std::int32_t count = 7;
             QuorGUIListGetSelectedItems(guest.control, &positions, &count);
             guest.array = positions;
             return positions != nullptr && count == 2   ? Ended_e::Done
                    : positions == nullptr && count == 0 ? Ended_e::Refused
                                                         : Ended_e::Silent;
         }},
        {"QuorGUISetSensitivity", readyToggle,
         [](Guest_s& guest) {
             QuorGUISetSensitivity(guest.control, false);
             return Ended_e::Done;
         }},
        {"QuorGUISetInputFocus", readyToggle,
         [](Guest_s& guest) {
             QuorGUISetInputFocus(guest.control);
             return Ended_e::Done;
         }},
    };
}

std::vector<ServiceScenario_s> textFieldScenarios() {
    return {
        {"QuorGUITextFieldSetString", readyField,
         [](Guest_s& guest) {
             QuorGUITextFieldSetString(guest.control, longText);
             return Ended_e::Silent;
         }},
        {"QuorGUITextFieldGetString", readyLongField,
         [](Guest_s& guest) {
             guest.text = HostString(QuorGUITextFieldGetString(guest.control));
             return told(guest.text);
         }},
        {"QuorGUITextFieldSetLgIndex", readyField,
         [](Guest_s& guest) {
             QuorGUITextFieldSetLgIndex(guest.control, 1234567890123456789, true);
             return Ended_e::Silent;
         }},
        {"QuorGUITextFieldGetLgIndex", readyIndexField,
         [](Guest_s& guest) {
             std::int64_t index = 0;
             return told(QuorGUITextFieldGetLgIndex(guest.control, &index) && index == 7);
         }},
        {"QuorGUITextFieldValidateLgIndex", readyIndexField,
         [](Guest_s& guest) {
             return told(QuorGUITextFieldValidateLgIndex(guest.control, longText, 1, 9, false));
         }},
        {"QuorGUITextFieldValidateLgIndex", readyLongField, // the user is told that it is none
         [](Guest_s& guest) {
             const bool isValid =
                 QuorGUITextFieldValidateLgIndex(guest.control, longText, 1, 9, false);
             const bool isTold = !hostState().log.messages.empty();
             return !isValid && isTold ? Ended_e::Silent : Ended_e::Refused;
         }},
        {"QuorGUITextFieldSetSet", readyFieldAndSet,
         [](Guest_s& guest) {
             QuorGUITextFieldSetSet(guest.control, guest.set.get(), false);
             return Ended_e::Silent;
         }},
        {"QuorGUITextFieldGetSet", readySetField,
         [](Guest_s& guest) {
             return told(QuorGUITextFieldGetSet(guest.control, guest.newSet.outArgument()));
         }},
        {"QuorGUITextFieldGetSet", readyFieldAndSet, // into a set that is there
         [](Guest_s& guest) {
             QuorSetHandle set = guest.set.get();
             return told(QuorGUITextFieldGetSet(guest.control, &set));
         }},
    };
}

} // namespace

std::vector<ServiceScenario_s> dialogScenarios() {
    std::vector<ServiceScenario_s> scenarios;
    for (const auto& group : {makingScenarios(), valueScenarios(), textFieldScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
