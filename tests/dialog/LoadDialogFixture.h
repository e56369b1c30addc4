// The add-on's load dialog before a user who does what a test says.
#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "addon/AddOnFixture.h"
#include "dialog/DialogControls.h"
#include "dialog/LoadDialog.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

using host::Control_s;
using host::ControlKind_e;
using testsupport::Texts;

/// Each test has a dialog of its own, made and hidden.
class LoadDialogTest : public testsupport::AddOnTest {
protected:
    using Script = std::vector<host::ScriptEntry>;

    void SetUp() override {
        AddOnTest::SetUp();
        const HostLock lock(addOnID);
        createLoadDialog();
        host().clearFaults();
    }

    // ---- What the user does ---------------------------------------------------------------------

    static host::ScriptEntry show(std::int32_t page) { return act(host::ShowPage_s{page}); }
    static host::ScriptEntry set(std::int32_t toggle, bool on) {
        return act(host::SetToggle_s{toggle, on});
    }
    static host::ScriptEntry choose(std::int32_t control, std::int32_t item) {
        return act(host::ChooseItem_s{control, item});
    }
    static host::ScriptEntry press(std::int32_t button) { return act(host::PressButton_s{button}); }
    static host::ScriptEntry select(std::int32_t list, std::vector<std::int32_t> positions) {
        return act(host::SelectItems_s{list, std::move(positions)});
    }
    static host::ScriptEntry type(std::int32_t field, const std::string& text) {
        return act(host::TypeText_s{field, text});
    }
    static host::ScriptEntry pick(Texts files) { return host::FileChoice(std::move(files)); }
    static host::ScriptEntry pickNothing() { return host::FileChoice(); }
    static host::ScriptEntry pressOk() { return press(host::DialogButton_e::Ok); }
    static host::ScriptEntry pressCancel() { return press(host::DialogButton_e::Cancel); }
    static host::ScriptEntry pressHelp() { return press(host::DialogButton_e::Help); }
    /// The test looks, or does something at the host, while the dialog waits for the user.
    static host::ScriptEntry meanwhile(std::function<void()> look) {
        return host::ScriptLook(std::move(look));
    }

    /// Launches the dialog before the user, who cancels when the script is played.
    void open(Script script = {}) {
        host().script().addToScript(std::move(script));
        {
            const HostLock lock(addOnID);
            QuorGUIDialogLaunch(loadDialog);
        }
        expectPlayed();
    }
    /// The user picks files in the host's import menu, and the advanced options.
    void importFiles(const Texts& files, Script script = {}) {
        constexpr bool advanced = true;
        constexpr bool append = true;
        host().script().addToScript(std::move(script));
        host().importSelection(files, advanced, !append);
        expectPlayed();
    }

    /// What the next launch starts from.
    static void retain(const Texts& grids, const Texts& solutions = {}, const Texts& functions = {},
                       const std::string& nameFile = {}) {
        gRetainedGridFiles = grids;
        gRetainedSolutionFiles = solutions;
        gRetainedFunctionFiles = functions;
        gRetainedNameFile = nameFile;
    }

    /// A data set that another program left at the host.
    static void makeDataSet() {
        const HostLock lock(addOnID);
        AddOnTest::makeDataSet({"old"}, "Another Loader", "Old");
    }

    // ---- What the user sees ---------------------------------------------------------------------

    static const host::Dialog_s& dialog() {
        for (const host::Dialog_s& dialog : host().toolkit().dialogs())
            if (dialog.id == loadDialog)
                return dialog;
        throw std::logic_error("there is no dialog");
    }
    static const Control_s& control(std::int32_t id) {
        const Control_s* found = findControl(dialog(), id);
        if (found == nullptr)
            throw std::logic_error("there is no control " + std::to_string(id));
        return *found;
    }
    /// A button that the add-on itself needs no more once it is made.
    static std::int32_t buttonAt(std::int32_t y) {
        for (const Control_s& control : dialog().controls)
            if (control.kind == ControlKind_e::Button && control.geometry.y == y)
                return control.id;
        throw std::logic_error("there is no button at " + std::to_string(y));
    }
    static bool isSensitive(std::int32_t id) { return control(id).sensitive; }
    static bool isOn(std::int32_t toggle) { return control(toggle).value == 1; }
    static std::int32_t chosen(std::int32_t id) { return control(id).value; }
    static const std::string& text(std::int32_t field) { return control(field).text; }
    static const Texts& items(std::int32_t list) { return control(list).items; }

private:
    static host::ScriptEntry act(host::DialogAction action) {
        return host::DialogStep([action = std::move(action)](const host::Dialog_s&) {
            return host::DialogMove_s{action, ""};
        });
    }
    static host::ScriptEntry press(host::DialogButton_e button) {
        return act(host::PressDialogButton_s{button});
    }
    static void expectPlayed() {
        EXPECT_EQ(host().script().problem(), "");
        EXPECT_EQ(host().script().entriesLeft(), 0);
    }
};

} // namespace quorvia::quorutildataio
