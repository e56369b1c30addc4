#include "desktop/values/TableText.h"

#include <array>
#include <charconv>

#include <QItemSelectionModel>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

template <typename Real>
QString shortestText(Real value) {
    std::array<char, 32> text = {};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
    return QString::fromLatin1(text.data(), static_cast<int>(end.ptr - text.data()));
}

} // namespace

CellRange_s cellsToCopy(const QTableView& table) {
    const QItemSelection selection = table.selectionModel()->selection();
    if (selection.isEmpty())
        return {0, table.model()->rowCount() - 1, 0, table.model()->columnCount() - 1, true};
    const QItemSelectionRange& range = selection.first();
    return {range.top(), range.bottom(), range.left(), range.right(), false};
}

QString refusalOf(const CellRange_s& cells) {
    if (cells.count() <= mostCellsCopied)
        return {};
    return QStringLiteral("%1 would be copied, and no more than %2 can be at once. Select fewer.")
        .arg(shownCount(static_cast<std::size_t>(cells.count()), "cell", "cells"),
             shownCount(static_cast<std::size_t>(mostCellsCopied), "cell", "cells"));
}

QString headingLine(const CellRange_s& cells, bool hasRowHeadings, const HeadingText& ofColumn) {
    if (!cells.hasHeadings)
        return {};
    QString text(hasRowHeadings ? QStringLiteral("\t") : QString());
    for (int column = cells.firstColumn; column <= cells.lastColumn; ++column)
        text += ofColumn(column) + QLatin1Char(column == cells.lastColumn ? '\n' : '\t');
    return text;
}

QString tabSeparated(const QTableView& table, const CellRange_s& cells) {
    const QAbstractItemModel& model = *table.model();
    QString text = headingLine(cells, /*hasRowHeadings=*/false, [&model](int column) {
        return model.headerData(column, Qt::Horizontal).toString();
    });
    for (int row = cells.firstRow; row <= cells.lastRow; ++row)
        for (int column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            const QModelIndex cell = model.index(row, column);
            const QVariant exact = cell.data(exactRole);
            text += (exact.isValid() ? exact : cell.data()).toString() +
                    QLatin1Char(column == cells.lastColumn ? '\n' : '\t');
        }
    return text;
}

QString exactText(double value, plot3d::ValueType type) {
    return type == plot3d::ValueType::Float32 ? shortestText(static_cast<float>(value))
                                              : shortestText(value);
}

} // namespace quorvia::host
