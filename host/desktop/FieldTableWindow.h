// A field's values as a table in a window of its own.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTableView>

#include "desktop/FieldTable.h"

namespace quorvia::host {

class FieldTableWindow : public QDialog {
public:
    /// `zone` and `variable` from 0. Goes when it is closed.
    FieldTableWindow(std::shared_ptr<const plot3d::DataSet> data, std::size_t zone,
                     std::size_t variable, QWidget* parent);

    FieldTable& table() { return table_; }

private:
    void addPlanes();

    FieldTable table_;
    QTableView* view_;
    QLabel* failure_;
};

} // namespace quorvia::host
