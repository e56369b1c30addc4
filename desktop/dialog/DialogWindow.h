// A guest's dialog on the screen. It shows what it is told, and tells what the user does; nothing
// that the user does closes it, since that is the guest's to say.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include <QDialog>
#include <QDialogButtonBox>
#include <QTabWidget>

#include "desktop/dialog/ControlView.h"
#include "toolkit/Dialog.h"

namespace quorvia::host {

class DialogWindow : public QDialog {
public:
    /// Modal for the whole program.
    DialogWindow(const Dialog_s& dialog, ActionSink act, QWidget* parent);
    ~DialogWindow() override;

    /// `dialog` is a later state of the same dialog; controls may have come to it.
    void refresh(const Dialog_s& dialog);
    /// Whether it shows what came of all that was told.
    bool isAnswered() const { return isAnswered_; }

    /// Esc asks for Cancel.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Return presses the button that has the focus, and elsewhere OK.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addTabs(const Dialog_s& dialog);
    void addPages(const Dialog_s& dialog);
    void addButtons(const Dialog_s& dialog);
    void addControls(const Dialog_s& dialog);
    void showFrontPage(const Dialog_s& dialog);
    void moveFocus(const Dialog_s& dialog);
    void placeParts(const Dialog_s& dialog);
    /// What was typed comes before what the user does next, unless that needs none of it.
    void act(const DialogAction& action);
    void tell(const DialogAction& action);
    QWidget* parentOf(const Control_s& control);

    ActionSink sink_;
    DialogScale scale_;
    QTabWidget* tabs_ = nullptr;
    QDialogButtonBox* buttons_ = nullptr;
    std::map<std::int32_t, QWidget*> pages_; // by their identifiers
    std::map<std::int32_t, std::unique_ptr<ControlView>> views_;
    std::int32_t focus_ = QuorGUIId_None;
    bool isAnswered_ = false;
};

} // namespace quorvia::host
