#include "desktop/Person.h"

#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "desktop/dialog/DialogWindow.h"

namespace quorvia::host {
namespace {

constexpr int millisecondsBetweenLooks = 10;

template <typename Window>
Window* findVisible() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<Window*>(widget); window != nullptr && window->isVisible())
            return window;
    return nullptr;
}

bool isMarked(const QWidget& widget) {
    return qobject_cast<const QCheckBox*>(&widget) != nullptr ||
           qobject_cast<const QRadioButton*>(&widget) != nullptr;
}

QString textOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button != nullptr ? button->text().remove(QLatin1Char('&')) : QString();
}

/// Names in quotation marks, as several files are written in a file selection.
QString quoted(const std::vector<std::string>& files) {
    QStringList names;
    for (const std::string& file : files)
        names.append(QStringLiteral("\"%1\"").arg(QString::fromStdString(file)));
    return names.join(QLatin1Char(' '));
}

void setOption(QFileDialog& dialog, const char* name, bool on) {
    auto* box = dialog.findChild<QCheckBox*>(QLatin1String(name));
    if (box != nullptr && box->isChecked() != on)
        click(*box);
}

void accept(QFileDialog& dialog) {
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : buttons->buttons())
        if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
            click(*button);
}

} // namespace

QFileDialog* visibleSelection() {
    return findVisible<QFileDialog>();
}

QMessageBox* visibleBox() {
    return findVisible<QMessageBox>();
}

QDialog* guestDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->objectName().startsWith(QLatin1String("dialog")))
            return qobject_cast<QDialog*>(widget);
    return nullptr;
}

namespace {

/// The guest's dialog once a person can work at it: it shows what was done before, nothing stands
/// before it, and it has the keyboard. That comes some time after it is seen; a field that is typed
/// into before would not notice that it is left.
QDialog* usableDialog() {
    auto* dialog = dynamic_cast<DialogWindow*>(guestDialog());
    const bool isUsable = dialog != nullptr && dialog->isAnswered() &&
                          QApplication::activeModalWidget() == dialog &&
                          QApplication::activeWindow() == dialog;
    return isUsable ? dialog : nullptr;
}

} // namespace

QWidget* namedWidget(QWidget& window, const QString& name, int which) {
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && (widget->accessibleName() == name || textOf(*widget) == name) &&
            !widget->inherits("QLabel") && which-- == 0)
            return widget;
    return nullptr;
}

QLineEdit* visibleField(QWidget& window, int which) {
    for (QLineEdit* field : window.findChildren<QLineEdit*>())
        if (field->isVisible() && which-- == 0)
            return field;
    return nullptr;
}

void click(QWidget& widget) {
    constexpr int onTheMark = 8;
    const QPoint where =
        isMarked(widget) ? QPoint(onTheMark, widget.height() / 2) : widget.rect().center();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, where);
}

Person::Person() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { act(); });
    timer_.start(millisecondsBetweenLooks);
}

// A step may bring up a modal window, which runs this timer from within the step.
void Person::act() {
    if (acting_ || steps_.empty())
        return;
    acting_ = true;
    NamedStep_s next = std::move(steps_.front());
    steps_.pop_front();
    acting_ = false;
    if (next.step())
        ++doneCount_;
    else
        steps_.push_front(std::move(next));
}

void Person::then(std::string what, Step step) {
    steps_.push_back({std::move(what), std::move(step)});
}

void Person::pickFiles(std::vector<std::string> files, bool advanced, bool append) {
    then("a file selection", [files = std::move(files), advanced, append] {
        QFileDialog* dialog = visibleSelection();
        if (dialog == nullptr)
            return false;
        setOption(*dialog, "advanced", advanced);
        setOption(*dialog, "append", append);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(quoted(files));
        accept(*dialog);
        return true;
    });
}

void Person::cancelFileSelection() {
    then("a file selection to cancel", [] {
        QFileDialog* dialog = visibleSelection();
        if (dialog != nullptr)
            QTest::keyClick(dialog, Qt::Key_Escape);
        return dialog != nullptr;
    });
}

void Person::answerBox(QMessageBox::StandardButton button) {
    then("a box", [this, button] {
        QMessageBox* box = visibleBox();
        if (box == nullptr || box->button(button) == nullptr)
            return false;
        boxTexts_.push_back(box->text().toStdString());
        click(*box->button(button));
        return true;
    });
}

void Person::inDialog(std::string what, std::function<void(QDialog&)> act) {
    then(std::move(what), [act = std::move(act)] {
        QDialog* dialog = usableDialog();
        if (dialog == nullptr)
            return false;
        act(*dialog);
        return true;
    });
}

void Person::pressKeyInDialog(Qt::Key key) {
    inDialog("the dialog for a key", [key](QDialog& dialog) { QTest::keyClick(&dialog, key); });
}

void Person::showPage(int index) {
    inDialog("the dialog with its tabs", [index](QDialog& dialog) {
        QTabBar* tabs = dialog.findChild<QTabWidget*>()->tabBar();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    });
}

void Person::clickInDialog(const QString& text, int which) {
    then("\"" + text.toStdString() + "\" to be usable in the dialog", [text, which] {
        QDialog* dialog = usableDialog();
        if (dialog == nullptr)
            return false;
        QWidget* widget = namedWidget(*dialog, text, which);
        if (widget == nullptr || !widget->isEnabled())
            return false;
        click(*widget);
        return true;
    });
}

void Person::typeInto(int field, const QString& text, Leave_e leave) {
    inDialog("field " + std::to_string(field), [field, text, leave](QDialog& dialog) {
        QLineEdit* const edit = visibleField(dialog, field);
        click(*edit);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        if (leave == Leave_e::WithTab)
            QTest::keyClick(edit, Qt::Key_Tab);
    });
}

} // namespace quorvia::host
