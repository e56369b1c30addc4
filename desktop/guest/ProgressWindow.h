// How far the guest's work has come, with a button to stop it.
#pragma once

#include <functional>

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "session/ProgressFeed.h"

namespace quorvia::host {

/// How the work is stopped.
struct Cancellation_s {
    std::function<void()> request;
    std::function<bool()> isRequested; // and stands: a later load of the same work may go on
};

class ProgressWindow : public QDialog {
public:
    /// `feed` is borrowed.
    ProgressWindow(ProgressFeed& feed, Cancellation_s cancellation, QWidget* parent);

    /// From the beginning of a piece of work to its end the window looks at the feed. It comes up
    /// once there is something to tell, and not for work that is over at once.
    void begin(const QString& title);
    void end();
    /// Looks at the feed now.
    void look();

    /// Esc and the window's frame ask for the same as Cancel.
    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showState(const ProgressState_s& state);
    void showText();
    void showCancellation();
    void showFraction(double fraction);
    void comeUp();

    ProgressFeed& feed_;
    Cancellation_s cancellation_;
    QLabel text_;
    QProgressBar bar_;
    QPushButton cancelButton_;
    QTimer lookTimer_;
    QElapsedTimer sinceBegin_;
    QString fullText_;
    bool barIsOpen_ = false; // the guest has something to tell
};

} // namespace quorvia::host
