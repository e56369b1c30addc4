#include "desktop/values/FieldTableWindow.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSpinBox>

#include "desktop/parts/Texts.h"

namespace quorvia::host {

FieldTableWindow::FieldTableWindow(std::shared_ptr<const plot3d::DataSet> data, std::size_t zone,
                                   std::size_t variable, QWidget* parent)
    : ValuesWindow("fieldTable", parent), table_(data, zone, variable),
      view_(new QTableView(this)) {
    setWindowTitle(QStringLiteral("%1 of zone %2  %3")
                       .arg(shown(data->variables()[variable].name).trimmed())
                       .arg(zone + 1)
                       .arg(shown(data->zones()[zone].name)));
    constexpr QSize roomForSomeColumns(760, 520);
    resize(roomForSomeColumns);
    constexpr int numberLetters = 16;
    const int letter = fontMetrics().averageCharWidth();
    // Sections of one size: measuring the cells would read them all.
    view_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->horizontalHeader()->setDefaultSectionSize(numberLetters * letter);
    view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_->setModel(&table_);
    addPlanes();
    add(view_, 1);
    offerCopy(*view_);
    connect(&table_, &QAbstractItemModel::dataChanged, this, [this] {
        if (!table_.failure().empty())
            say(shown(table_.failure()));
    });
}

void FieldTableWindow::addPlanes() {
    if (table_.planeCount() < 2)
        return;
    auto* row = new QWidget(this);
    auto* plane = new QSpinBox(row);
    plane->setAccessibleName(QStringLiteral("K plane"));
    plane->setRange(1, static_cast<int>(std::min<std::int64_t>(table_.planeCount(),
                                                               std::numeric_limits<int>::max())));
    plane->setPrefix(QStringLiteral("k "));
    connect(plane, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int k) { table_.showPlane(k - 1); });
    auto* inRow = new QHBoxLayout(row);
    inRow->setContentsMargins(0, 0, 0, 0);
    inRow->addWidget(plane);
    inRow->addWidget(new QLabel(QStringLiteral("of %1").arg(table_.planeCount()), row));
    inRow->addStretch();
    add(row);
}

void FieldTableWindow::copy(const CellRange_s& cells) {
    start([this, cells,
           copier = table_.copierOf(cells)](const plot3d::Watch& watch) -> LatestWork::Finish {
        return [this, cells, text = copier(watch)] { putOnClipboard(text, cells); };
    });
}

} // namespace quorvia::host
