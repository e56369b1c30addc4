// A scripted person before the windows: watches for what comes up and does one step after the
// other with mouse and keys. Modal windows wait inside the program, so that the person acts from a
// timer.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

namespace quorvia::host {

class Person {
public:
    enum class Leave_e { WithTab, NotYet };
    /// False as long as what the step waits for is not there.
    using Step = std::function<bool()>;

    Person();

    void then(std::string what, Step step);

    // ---- Steps at the windows of the program ----

    /// At the next file selection: picks the files, sets the options, and presses Import or Open.
    void pickFiles(std::vector<std::string> files, bool advanced = false, bool append = false);
    void cancelFileSelection();
    /// At the next box: notes its text, and presses the button.
    void answerBox(QMessageBox::StandardButton button = QMessageBox::Ok);
    /// Once the guest's dialog is there and shows what was done before.
    void inDialog(std::string what, std::function<void(QDialog&)> act);
    void showPage(int index);
    /// Clicks the toggle, radio button or button of that text; the n-th from 0 of those with it.
    void clickInDialog(const QString& text, int which = 0);
    /// Types the text in place of the field's own. `field` counts the fields of the page, from 0.
    void typeInto(int field, const QString& text, Leave_e leave = Leave_e::WithTab);
    void pressKeyInDialog(Qt::Key key);

    bool isDone() const { return steps_.empty(); }
    int doneCount() const { return doneCount_; }
    /// What the person still waits for; empty when done.
    std::string waitsFor() const { return steps_.empty() ? "" : steps_.front().what; }
    /// Texts of the boxes, in order.
    const std::vector<std::string>& boxTexts() const { return boxTexts_; }

private:
    struct NamedStep_s {
        std::string what;
        Step step;
    };
    void act();

    QTimer timer_;
    std::deque<NamedStep_s> steps_;
    std::vector<std::string> boxTexts_;
    bool acting_ = false;
    int doneCount_ = 0;
};

// The windows that are open; null for none.

QFileDialog* visibleSelection();
QMessageBox* visibleBox();
/// The guest's.
QDialog* guestDialog();
/// The visible widget of the kind and accessible name, the `which`-th from 0; null if there is
/// none.
QWidget* namedWidget(QWidget& window, const QString& name, int which = 0);

/// The `which`-th text field that can be seen, from 0; null if there are not as many.
QLineEdit* visibleField(QWidget& window, int which);

/// Clicks with the left button in the widget's middle; a check box or radio button on its mark.
void click(QWidget& widget);

} // namespace quorvia::host
