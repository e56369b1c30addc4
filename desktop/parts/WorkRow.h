// How far work has come, in a row: what it is at, a bar, and a button that cancels it.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "desktop/parts/LatestWork.h"

namespace quorvia::host {

class WorkRow : public QWidget {
public:
    /// `work` outlives the row. `cancelName`: the object name of the button.
    WorkRow(LatestWork& work, const char* cancelName, QWidget* parent);

    void showState();

private:
    LatestWork& work_;
    QLabel* text_;
    QProgressBar* bar_;
};

} // namespace quorvia::host
