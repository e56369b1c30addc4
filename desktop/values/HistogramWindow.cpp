#include "desktop/values/HistogramWindow.h"

#include <QHBoxLayout>
#include <QSplitter>

#include "desktop/parts/Labels.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

/// "3,280 values from 0.5 to 1.2, mean 0.9, deviation 0.1. Left out: 12 blanked, 3 NaN."
QString summaryText(const plot3d::analysis::FieldSummary_s& summary) {
    const auto count = [](std::int64_t number) { return static_cast<std::size_t>(number); };
    QString text = QStringLiteral("No value counts.");
    if (summary.moments.count > 0)
        text =
            QStringLiteral("%1 from %2 to %3, mean %4, deviation %5.")
                .arg(shownCount(count(summary.moments.count), "value", "values"),
                     shownNumber(summary.min), shownNumber(summary.max),
                     shownNumber(summary.moments.mean()), shownNumber(summary.moments.deviation()));
    QStringList leftOut;
    if (summary.blanked > 0)
        leftOut.append(shownCount(count(summary.blanked), "blanked", "blanked"));
    if (summary.nan > 0)
        leftOut.append(shownCount(count(summary.nan), "NaN", "NaN"));
    if (summary.infinite > 0)
        leftOut.append(shownCount(count(summary.infinite), "infinite", "infinite"));
    if (!leftOut.isEmpty())
        text += QStringLiteral(" Left out: %1.").arg(leftOut.join(QStringLiteral(", ")));
    return text;
}

QString exactOf(double value) {
    return exactText(value, plot3d::ValueType::Float64);
}

} // namespace

HistogramWindow::HistogramWindow(std::shared_ptr<const plot3d::DataSet> data, std::size_t variable,
                                 const ValuesScope_s& scope, QWidget* parent)
    : StatisticsWindow("histogram", std::move(data), scope,
                       {QStringLiteral("From"), QStringLiteral("To"), QStringLiteral("Values")},
                       parent),
      variable_(new QComboBox(this)), bins_(new QSpinBox(this)) {
    constexpr QSize roomForBars(900, 480);
    resize(roomForBars);
    addChoices();
    variable_->setCurrentIndex(static_cast<int>(variable));
    plot_ = new HistogramPlot(
        [this](std::size_t bin) { tableOfAll().selectRow(static_cast<int>(bin)); }, this);
    tableOfAll().setAccessibleName(QStringLiteral("Bins"));
    auto* panes = new QSplitter(this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(plot_);
    panes->addWidget(&tableOfAll());
    panes->setStretchFactor(0, 1);
    constexpr int plotWidth = 560;
    constexpr int tableWidth = 320;
    panes->setSizes({plotWidth, tableWidth});
    add(panes, 1);
    connect(variable_, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { count(); });
    connect(bins_, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] { count(); });
    connect(&tableOfAll(), &QTableWidget::itemSelectionChanged, this, [this] {
        const QList<QTableWidgetItem*> selected = tableOfAll().selectedItems();
        plot_->mark(selected.isEmpty()
                        ? std::nullopt
                        : std::optional(static_cast<std::size_t>(selected.front()->row())));
    });
    count();
}

void HistogramWindow::addChoices() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const plot3d::Variable& variable : data().variables())
        variable_->addItem(shown(variable.name).trimmed());
    addNamed(*layout, QStringLiteral("&Variable"), *variable_);
    layout->addWidget(&scopeBar());
    layout->addStretch();
    constexpr int usualBins = 20;
    constexpr int mostBins = 1000;
    bins_->setRange(1, mostBins);
    bins_->setValue(usualBins);
    bins_->setKeyboardTracking(false);
    addNamed(*layout, QStringLiteral("&Bins"), *bins_);
    add(row);
}

StatisticsWindow::Question_s HistogramWindow::question() const {
    return {static_cast<std::size_t>(variable_->currentIndex()),
            static_cast<std::size_t>(bins_->value())};
}

QString HistogramWindow::subject() const {
    return QStringLiteral("Histogram of %1").arg(variable_->currentText());
}

void HistogramWindow::showFound(const Found& found) {
    const plot3d::analysis::FieldSummary_s& summary = found.whole.summary;
    Histogram_s histogram = {summary.min, summary.max, found.whole.histogram};
    if (summary.min == summary.max) // all of one value: bins without width
        histogram.counts = {summary.moments.count};
    fillTable(histogram);
    plot_->setHistogram(std::move(histogram));
    const QString unread = unreadText(found);
    say(summaryText(summary) + (unread.isEmpty() ? unread : QLatin1Char('\n') + unread));
}

void HistogramWindow::fillTable(const Histogram_s& histogram) {
    tableOfAll().clearSelection();
    tableOfAll().setRowCount(static_cast<int>(histogram.counts.size()));
    for (std::size_t bin = 0; bin < histogram.counts.size(); ++bin) {
        const int row = static_cast<int>(bin);
        const double from = histogram.edge(bin);
        const double to = histogram.edge(bin + 1);
        setCell(row, 0, shownNumber(from), exactOf(from));
        setCell(row, 1, shownNumber(to), exactOf(to));
        setCount(row, 2, histogram.counts[bin]);
    }
}

void HistogramWindow::showNothing() {
    StatisticsWindow::showNothing();
    plot_->setHistogram({});
}

} // namespace quorvia::host
