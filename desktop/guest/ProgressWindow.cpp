#include "desktop/guest/ProgressWindow.h"

#include <utility>

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr int millisecondsBetweenLooks = 33;
constexpr qint64 millisecondsBeforeShown = 300;
constexpr int barLength = 1000; // steps of the bar from 0 to 1
constexpr int windowWidth = 480;

} // namespace

ProgressWindow::ProgressWindow(ProgressFeed& feed, Cancellation_s cancellation, QWidget* parent)
    : QDialog(parent), feed_(feed), cancellation_(std::move(cancellation)),
      cancelButton_(QStringLiteral("Cancel")) {
    setObjectName(QStringLiteral("progress"));
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    text_.setTextFormat(Qt::PlainText);
    text_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    text_.setObjectName(QStringLiteral("progressText"));
    bar_.setFormat(QStringLiteral("%p%"));
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(layout->spacing() * 2);
    layout->addWidget(&text_);
    layout->addWidget(&bar_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(&cancelButton_);
    layout->addLayout(buttons);
    setFixedWidth(windowWidth);
    connect(&cancelButton_, &QPushButton::clicked, this, [this] { reject(); });
    connect(&lookTimer_, &QTimer::timeout, this, [this] { look(); });
}

void ProgressWindow::begin(const QString& title) {
    setWindowTitle(title);
    barIsOpen_ = false;
    showFraction(0.0);
    fullText_.clear();
    feed_.take(); // what is left of earlier work
    sinceBegin_.start();
    lookTimer_.start(millisecondsBetweenLooks);
}

void ProgressWindow::end() {
    lookTimer_.stop();
    hide();
}

void ProgressWindow::look() {
    if (const std::optional<ProgressState_s> state = feed_.take())
        showState(*state);
    if (barIsOpen_ && !isVisible() && sinceBegin_.elapsed() >= millisecondsBeforeShown)
        comeUp();
}

void ProgressWindow::showState(const ProgressState_s& state) {
    barIsOpen_ = state.open;
    if (!state.open) {
        hide();
        return;
    }
    showFraction(state.fraction);
    fullText_ = shown(state.text);
    showCancellation();
}

// A guest that has not counted a step yet, or never does, is at work all the same: the bar moves
// without an end.
void ProgressWindow::showFraction(double fraction) {
    bar_.setRange(0, fraction > 0.0 ? barLength : 0);
    bar_.setValue(static_cast<int>(fraction * barLength));
}

void ProgressWindow::comeUp() {
    // A box that waits for an answer must stay in front.
    if (QApplication::activeModalWidget() != nullptr)
        return;
    show();
    cancelButton_.setFocus();
}

void ProgressWindow::showText() {
    const QString text = cancellation_.isRequested() ? QStringLiteral("Cancelling...") : fullText_;
    text_.setText(text_.fontMetrics().elidedText(text, Qt::ElideMiddle, text_.width()));
    text_.setToolTip(text);
}

void ProgressWindow::showCancellation() {
    cancelButton_.setEnabled(!cancellation_.isRequested());
    showText();
}

// What has ended since the last look can't be stopped, and the next load is not meant.
void ProgressWindow::reject() {
    look();
    if (!barIsOpen_)
        return;
    cancellation_.request();
    showCancellation();
}

void ProgressWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    showText();
}

} // namespace quorvia::host
