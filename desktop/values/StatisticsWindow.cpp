#include "desktop/values/StatisticsWindow.h"

#include <utility>

#include <QHeaderView>

#include "console/Words.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

StatisticsWindow::StatisticsWindow(const char* name, std::shared_ptr<const plot3d::DataSet> data,
                                   const ValuesScope_s& scope, const QStringList& headings,
                                   QWidget* parent)
    : ValuesWindow(name, parent), data_(std::move(data)),
      scope_(new ScopeBar(
          data_, scope, [this] { count(); }, this)),
      table_(new QTableWidget(0, static_cast<int>(headings.size()), this)) {
    table_->setHorizontalHeaderLabels(headings);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setAlternatingRowColors(true);
    table_->setTabKeyNavigation(false); // Tab leaves the table
    table_->verticalHeader()->hide();
    constexpr int spaceOfRow = 6; // pixels
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + spaceOfRow);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    offerCopy(*table_);
}

void StatisticsWindow::count() {
    setWindowTitle(QStringLiteral("%1, %2").arg(subject(), textOf(*data_, scope_->scope())));
    start([this, data = data_, scope = scope_->scope(),
           asked = question()](const plot3d::Watch& watch) -> LatestWork::Finish {
        return [this, found = statisticsOf(*data, asked.variable, scope, asked.bins, watch)] {
            showFound(found);
        };
    });
}

void StatisticsWindow::showNothing() {
    table_->setRowCount(0);
}

void StatisticsWindow::showFailure(const std::optional<std::string>& failure) {
    showNothing();
    ValuesWindow::showFailure(failure);
}

void StatisticsWindow::setCell(int row, int column, const QString& text, const QString& exact) {
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cell->setData(exactRole, exact);
    table_->setItem(row, column, cell);
}

void StatisticsWindow::setCount(int row, int column, std::int64_t count) {
    setCell(row, column, shown(console::grouped(count)), QString::number(count));
}

QString StatisticsWindow::unreadText(const Found& found) {
    std::size_t unread = 0;
    QString first;
    for (const auto& zone : found.zones)
        if (zone.error && ++unread == 1)
            first = QStringLiteral("Zone %1 can't be read and is left out: %2")
                        .arg(zone.zone + 1)
                        .arg(shown(zone.error->what()));
    if (unread > 1)
        first += QStringLiteral(" So are %1.").arg(shownCount(unread - 1, "other", "others"));
    return first;
}

void StatisticsWindow::copy(const CellRange_s& cells) {
    if (work().isRunning() || cells.count() == 0)
        say(QStringLiteral("There is nothing to copy yet."));
    else
        putOnClipboard(tabSeparated(*table_, cells), cells);
}

} // namespace quorvia::host
