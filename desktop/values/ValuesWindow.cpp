#include "desktop/values/ValuesWindow.h"

#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QPushButton>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr const char* showsValues = "showsValues";
constexpr int millisecondsBetweenLooks = 50;

} // namespace

ValuesWindow::ValuesWindow(const char* name, QWidget* parent)
    : QDialog(parent), parts_(new QVBoxLayout), message_(new QLabel(this)), foot_(new QHBoxLayout),
      work_([this](const std::optional<std::string>& failure) { showFailure(failure); }) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QLatin1String(name));
    setProperty(showsValues, true);
    message_->setObjectName(QStringLiteral("message"));
    message_->setTextFormat(Qt::PlainText);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    message_->setWordWrap(true);
    row_ = new WorkRow(work_, "cancelWork", this);
    row_->hide();
    foot_->addWidget(message_, 1);
    foot_->addWidget(row_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(parts_, 1);
    layout->addLayout(foot_);
    connect(&stateTimer_, &QTimer::timeout, this, [this] { showState(); });
}

void ValuesWindow::closeAll(const QObject& parent) {
    for (QDialog* window : parent.findChildren<QDialog*>())
        if (window->property(showsValues).toBool())
            window->close();
}

void ValuesWindow::say(const QString& text) {
    message_->setText(text);
}

// ---- Work ---------------------------------------------------------------------------------------

void ValuesWindow::start(LatestWork::Work work) {
    work_.start([work = std::move(work), this](const plot3d::Watch& watch) {
        return LatestWork::Finish([this, finish = work(watch)] {
            finish();
            showState();
        });
    });
    stateTimer_.start(millisecondsBetweenLooks);
}

void ValuesWindow::showState() {
    const bool isRunning = work_.isRunning();
    if (isRunning)
        showPending();
    else
        stateTimer_.stop();
    row_->showState();
    row_->setVisible(isRunning);
    message_->setVisible(!isRunning);
}

void ValuesWindow::showFailure(const std::optional<std::string>& failure) {
    say(shown(failure.value_or("Cancelled.")));
    showState();
}

// ---- Copying ------------------------------------------------------------------------------------

void ValuesWindow::offerCopy(QTableView& table) {
    table.setSelectionMode(QAbstractItemView::ContiguousSelection);
    auto* action = new QAction(QStringLiteral("&Copy"), this);
    action->setShortcut(QKeySequence::Copy);
    action->setToolTip(
        QStringLiteral("Copies the cells that are selected, or the whole table with its headings"));
    connect(action, &QAction::triggered, this, [this, &table] {
        const CellRange_s cells = cellsToCopy(table);
        const QString refusal = refusalOf(cells);
        if (refusal.isEmpty())
            copy(cells);
        else
            say(refusal);
    });
    table.addAction(action);
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* button = new QPushButton(action->text(), this);
    button->setToolTip(action->toolTip());
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    foot_->addWidget(button);
}

void ValuesWindow::putOnClipboard(const QString& text, const CellRange_s& cells) {
    QApplication::clipboard()->setText(text);
    say(QStringLiteral("Copied: %1")
            .arg(shownCount(static_cast<std::size_t>(cells.count()), "cell", "cells")));
}

} // namespace quorvia::host
