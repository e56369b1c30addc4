// What the windows that show values have in common: work beside the windows' thread that tells how
// far it is and can be cancelled, what it came to in words, and copying. A window goes when it is
// closed, and with the data set that it shows.
#pragma once

#include <optional>
#include <string>

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/parts/LatestWork.h"
#include "desktop/parts/WorkRow.h"
#include "desktop/values/TableText.h"

namespace quorvia::host {

class ValuesWindow : public QDialog {
public:
    /// Those that belong to `parent`.
    static void closeAll(const QObject& parent);

    LatestWork& work() { return work_; }
    std::string message() const { return message_->text().toStdString(); }

protected:
    ValuesWindow(const char* name, QWidget* parent);

    /// Above what all have.
    void add(QWidget* part, int stretch = 0) { parts_->addWidget(part, stretch); }
    /// Copies cells of the table by Ctrl+C, its context menu, and a button.
    void offerCopy(QTableView& table);
    void start(LatestWork::Work work);
    /// Nothing for no text.
    void say(const QString& text);
    void putOnClipboard(const QString& text, const CellRange_s& cells);

    /// As many as may be.
    virtual void copy(const CellRange_s& cells) = 0;
    /// What is shown is older than what is asked for, and that takes its time.
    virtual void showPending() {}
    /// Of what was started last; nothing if it was cancelled.
    virtual void showFailure(const std::optional<std::string>& failure);

private:
    void showState();

    QVBoxLayout* parts_;
    QLabel* message_;
    WorkRow* row_ = nullptr;
    QHBoxLayout* foot_;
    QTimer stateTimer_;
    LatestWork work_; // last: its thread ends first
};

} // namespace quorvia::host
