// Tables as text for other programs: cells separated by tabs, rows by line ends.
#pragma once

#include <cstdint>
#include <functional>

#include <QString>
#include <QTableView>

#include <plot3d/Field.h>

namespace quorvia::host {

/// Rows and columns from 0, the last ones included.
struct CellRange_s {
    int firstRow = 0;
    int lastRow = -1;
    int firstColumn = 0;
    int lastColumn = -1;
    bool hasHeadings = false; // of its columns, and of its rows where they say something

    std::int64_t count() const {
        return (std::int64_t{lastRow} - firstRow + 1) *
               (std::int64_t{lastColumn} - firstColumn + 1);
    }
};

/// What is copied at once, at most.
constexpr std::int64_t mostCellsCopied = 1'000'000;

/// The cells that are selected, which are one rectangle; with none selected the whole table and its
/// headings.
CellRange_s cellsToCopy(const QTableView& table);
/// Why so many cells are not copied; empty if they are.
QString refusalOf(const CellRange_s& cells);

using HeadingText = std::function<QString(int section)>;
/// The row of headings and its line end; empty for cells without. `hasRowHeadings`: they get a
/// column ahead of the cells.
QString headingLine(const CellRange_s& cells, bool hasRowHeadings, const HeadingText& ofColumn);
/// Cells of a table that is in memory. A cell's text for others is that of the role exactRole, or
/// else what is shown. Rows have no headings.
QString tabSeparated(const QTableView& table, const CellRange_s& cells);
constexpr int exactRole = Qt::UserRole;

/// With as many digits as tell the value from its neighbours of that type.
QString exactText(double value, plot3d::ValueType type);

} // namespace quorvia::host
