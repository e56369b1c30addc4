#include "desktop/dialog/DialogWindow.h"

#include <utility>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr int margin = 9;

bool leavesFieldsAlone(DialogButton_e button) {
    return button == DialogButton_e::Cancel || button == DialogButton_e::Help;
}

bool leavesFieldsAlone(const DialogAction& action) {
    const auto* press = std::get_if<PressDialogButton_s>(&action);
    return press != nullptr && leavesFieldsAlone(press->button);
}

} // namespace

DialogWindow::DialogWindow(const Dialog_s& dialog, ActionSink act, QWidget* parent)
    : QDialog(parent), sink_(std::move(act)), scale_(DialogScale::fitting(dialog, *this)) {
    setWindowTitle(shown(dialog.title));
    setObjectName(QStringLiteral("dialog%1").arg(dialog.id));
    setWindowModality(Qt::ApplicationModal);
    if (dialog.tabs)
        addTabs(dialog);
    addControls(dialog);
    addButtons(dialog);
    placeParts(dialog);
    showFrontPage(dialog);
    moveFocus(dialog);
}

DialogWindow::~DialogWindow() = default;

void DialogWindow::addTabs(const Dialog_s& dialog) {
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("tabs"));
    addPages(dialog);
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
        for (const auto& [id, page] : pages_)
            if (page == tabs_->widget(index))
                act(ShowPage_s{id});
    });
}

void DialogWindow::addPages(const Dialog_s& dialog) {
    const QSignalBlocker silence(tabs_);
    for (const Page_s& page : dialog.tabs->pages) {
        if (pages_.count(page.id) != 0)
            continue;
        auto* widget = new QWidget;
        tabs_->addTab(widget, shownCaption(page.caption));
        pages_[page.id] = widget;
    }
}

void DialogWindow::addButtons(const Dialog_s& dialog) {
    buttons_ = new QDialogButtonBox(this);
    const auto add = [this](QuorGUICallback callback, QDialogButtonBox::StandardButton standard,
                            DialogButton_e button) {
        if (callback == nullptr)
            return;
        QPushButton* widget = buttons_->addButton(standard);
        if (leavesFieldsAlone(button))
            widget->setFocusPolicy(Qt::TabFocus); // a click would take the focus from the field
        connect(widget, &QPushButton::clicked, this,
                [this, button] { act(PressDialogButton_s{button}); });
    };
    add(dialog.ok, QDialogButtonBox::Ok, DialogButton_e::Ok);
    add(dialog.apply, QDialogButtonBox::Apply, DialogButton_e::Apply);
    add(dialog.cancel, QDialogButtonBox::Cancel, DialogButton_e::Cancel);
    add(dialog.help, QDialogButtonBox::Help, DialogButton_e::Help);
    if (QPushButton* ok = buttons_->button(QDialogButtonBox::Ok))
        ok->setDefault(true);
}

QWidget* DialogWindow::parentOf(const Control_s& control) {
    const auto page = pages_.find(control.parent);
    return page != pages_.end() ? page->second : this;
}

void DialogWindow::addControls(const Dialog_s& dialog) {
    for (const Control_s& control : dialog.controls) {
        if (views_.count(control.id) != 0)
            continue;
        const auto use = [this](const DialogAction& action) {
            if (std::holds_alternative<TypeText_s>(action))
                tell(action);
            else
                act(action);
        };
        views_[control.id] = makeControlView(dialog, control, use, scale_, parentOf(control));
        views_[control.id]->widget()->show();
    }
}

// The tab control's place is that of its pages: the tabs stand above it.
void DialogWindow::placeParts(const Dialog_s& dialog) {
    const int buttonHeight = buttons_->sizeHint().height();
    const QSize size(scale_.width(dialog.width), scale_.height(dialog.height));
    int top = 0;
    if (tabs_ != nullptr) {
        QRect place = scale_.rect(dialog.tabs->geometry);
        place.setTop(place.top() - tabs_->tabBar()->sizeHint().height());
        top = place.top() < 0 ? -place.top() : 0;
        tabs_->setGeometry(place.translated(0, top));
    }
    buttons_->setGeometry(margin, size.height() + top + margin, size.width() - 2 * margin,
                          buttonHeight);
    setFixedSize(size.width(), size.height() + top + buttonHeight + 2 * margin);
}

void DialogWindow::refresh(const Dialog_s& dialog) {
    if (tabs_ != nullptr)
        addPages(dialog);
    addControls(dialog);
    for (const Control_s& control : dialog.controls)
        views_.at(control.id)->refresh(control);
    showFrontPage(dialog);
    moveFocus(dialog);
    isAnswered_ = true;
}

void DialogWindow::showFrontPage(const Dialog_s& dialog) {
    if (tabs_ == nullptr)
        return;
    const QSignalBlocker silence(tabs_);
    const auto page = pages_.find(dialog.tabs->frontPage);
    if (page != pages_.end())
        tabs_->setCurrentWidget(page->second);
}

// The guest's focus is taken once: afterwards the user goes where he likes.
void DialogWindow::moveFocus(const Dialog_s& dialog) {
    if (dialog.focus == focus_)
        return;
    focus_ = dialog.focus;
    const auto view = views_.find(focus_);
    if (view != views_.end())
        view->second->widget()->setFocus();
}

void DialogWindow::act(const DialogAction& action) {
    if (!leavesFieldsAlone(action))
        for (const auto& [id, view] : views_)
            view->commit();
    tell(action);
}

void DialogWindow::tell(const DialogAction& action) {
    isAnswered_ = false;
    sink_(action);
}

void DialogWindow::reject() {
    act(PressDialogButton_s{DialogButton_e::Cancel});
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QDialog::keyPressEvent(event);
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
}

} // namespace quorvia::host
