#include "desktop/FieldTableWindow.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSpinBox>
#include <QVBoxLayout>

#include "desktop/Texts.h"

namespace quorvia::host {

FieldTableWindow::FieldTableWindow(std::shared_ptr<const plot3d::DataSet> data, std::size_t zone,
                                   std::size_t variable, QWidget* parent)
    : QDialog(parent), table_(data, zone, variable), view_(new QTableView(this)),
      failure_(new QLabel(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("fieldTable"));
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
    failure_->setTextFormat(Qt::PlainText);
    failure_->setWordWrap(true);
    failure_->hide();
    new QVBoxLayout(this);
    addPlanes();
    layout()->addWidget(view_);
    layout()->addWidget(failure_);
    connect(&table_, &QAbstractItemModel::dataChanged, this, [this] {
        failure_->setText(shown(table_.failure()));
        failure_->setVisible(!table_.failure().empty());
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
    layout()->addWidget(row);
}

} // namespace quorvia::host
