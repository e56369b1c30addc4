#include "desktop/values/IBlankWindow.h"

#include <utility>

#include "analysis/fields/IBlank.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

std::optional<std::size_t> IBlankWindow::iBlankOf(const plot3d::DataSet& data) {
    return plot3d::analysis::iBlankVariable(data);
}

IBlankWindow::IBlankWindow(std::shared_ptr<const plot3d::DataSet> data, const ValuesScope_s& scope,
                           QWidget* parent)
    : StatisticsWindow("iBlank", data, scope, {QStringLiteral("Value"), QStringLiteral("Points")},
                       parent),
      iBlank_(*iBlankOf(*data)) {
    constexpr QSize roomForSomeValues(480, 360);
    resize(roomForSomeValues);
    tableOfAll().setAccessibleName(QStringLiteral("Values of I-blank"));
    add(&scopeBar());
    add(&tableOfAll(), 1);
    count();
}

void IBlankWindow::showFound(const Found& found) {
    const plot3d::analysis::FieldSummary_s& summary = found.whole.summary;
    const bool hasOthers = summary.beyondTable > 0;
    tableOfAll().clearSelection();
    tableOfAll().setRowCount(static_cast<int>(summary.table.size()) + (hasOthers ? 1 : 0));
    int row = 0;
    for (const auto& [value, count] : summary.table) {
        const QString text = QString::number(value);
        setCell(row, 0, text, text);
        setCount(row++, 1, count);
    }
    if (hasOthers) {
        setCell(row, 0, QStringLiteral("others"), QStringLiteral("others"));
        setCount(row, 1, summary.beyondTable);
    }
    const QString unread = unreadText(found);
    say(shownCount(static_cast<std::size_t>(summary.moments.count), "point", "points") +
        (unread.isEmpty() ? unread : QLatin1Char('\n') + unread));
}

} // namespace quorvia::host
