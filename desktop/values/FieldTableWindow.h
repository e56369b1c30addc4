// A field's values as a table in a window of its own.
#pragma once

#include <QTableView>

#include "desktop/values/FieldTable.h"
#include "desktop/values/ValuesWindow.h"

namespace quorvia::host {

class FieldTableWindow : public ValuesWindow {
public:
    /// `zone` and `variable` from 0. Goes when it is closed.
    FieldTableWindow(std::shared_ptr<const plot3d::DataSet> data, std::size_t zone,
                     std::size_t variable, QWidget* parent);

    FieldTable& table() { return table_; }

protected:
    void copy(const CellRange_s& cells) override;

private:
    void addPlanes();

    FieldTable table_;
    QTableView* view_;
};

} // namespace quorvia::host
