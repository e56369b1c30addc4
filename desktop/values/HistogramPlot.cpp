#include "desktop/values/HistogramPlot.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "analysis/statistics/Histogram.h"
#include "console/Words.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr double linesOfCounts = 4;
constexpr int gap = 6; // pixels between a line and its text

/// The next of 1, 2, 5, 10, 20, ... from `least` on.
double roundStep(double least) {
    double step = 1;
    while (true) {
        for (const double factor : {1, 2, 5})
            if (factor * step >= least)
                return factor * step;
        step *= 10;
    }
}

QString countText(double count) {
    return shown(console::grouped(static_cast<std::int64_t>(std::llround(count))));
}

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()),
            mix(one.blue(), other.blue())};
}

/// All with as few digits as tell them apart.
QStringList textsOf(const std::vector<double>& edges) {
    constexpr int fewest = 4;
    constexpr int most = 17;
    if (edges.front() == edges.back())
        return {shownNumber(edges.front()), {}};
    QStringList texts;
    for (int digits = fewest; digits <= most; ++digits) {
        texts.clear();
        for (const double edge : edges)
            texts.append(QString::number(edge, 'g', digits));
        if (QStringList(texts).removeDuplicates() == 0)
            break;
    }
    return texts;
}

} // namespace

double Histogram_s::edge(std::size_t index) const {
    return plot3d::analysis::binEdge(min, max, counts.size(), index);
}

HistogramPlot::HistogramPlot(Chosen chosen, QWidget* parent)
    : QWidget(parent), chosen_(std::move(chosen)) {
    setAccessibleName(QStringLiteral("Histogram"));
    setAccessibleDescription(QStringLiteral("The table beside it tells the same"));
    constexpr QSize smallest(240, 160);
    setMinimumSize(smallest);
}

QSize HistogramPlot::sizeHint() const {
    constexpr QSize usual(520, 320);
    return usual;
}

void HistogramPlot::setHistogram(Histogram_s histogram) {
    histogram_ = std::move(histogram);
    marked_.reset();
    most_ = histogram_.counts.empty() ? 0 : *std::ranges::max_element(histogram_.counts);
    countStep_ = roundStep(static_cast<double>(most_) / linesOfCounts);
    update();
}

void HistogramPlot::mark(std::optional<std::size_t> bin) {
    marked_ = bin;
    update();
}

// ---- Places, in pixels --------------------------------------------------------------------------

QRect HistogramPlot::area() const {
    const int width = fontMetrics().horizontalAdvance(countText(static_cast<double>(most_)));
    const int line = fontMetrics().lineSpacing();
    const int halfEdge = fontMetrics().averageCharWidth() * 4;
    return rect().adjusted(std::max(width + 2 * gap, halfEdge), line / 2 + 1, -halfEdge,
                           -line - 2 * gap);
}

double HistogramPlot::leftOf(std::size_t bin) const {
    const QRect inside = area();
    return inside.left() + inside.width() * static_cast<double>(bin) /
                               static_cast<double>(histogram_.counts.size());
}

double HistogramPlot::topOf(double count) const {
    constexpr double share = 0.96; // of the height for the highest bar
    const QRect inside = area();
    return inside.bottom() -
           share * inside.height() * count / static_cast<double>(std::max<std::int64_t>(1, most_));
}

std::optional<std::size_t> HistogramPlot::binAt(const QPoint& place) const {
    const QRect inside = area();
    if (histogram_.counts.empty() || !inside.contains(place))
        return std::nullopt;
    const double share = (place.x() - inside.left()) / static_cast<double>(inside.width());
    const auto bin =
        static_cast<std::size_t>(share * static_cast<double>(histogram_.counts.size()));
    return std::min(bin, histogram_.counts.size() - 1);
}

// ---- Drawing ------------------------------------------------------------------------------------

void HistogramPlot::paintEvent(QPaintEvent*) {
    if (histogram_.counts.empty())
        return;
    QPainter painter(this);
    painter.fillRect(area(), palette().color(QPalette::Base));
    drawCounts(painter);
    drawBars(painter);
    drawEdges(painter);
}

void HistogramPlot::drawCounts(QPainter& painter) const {
    const QRect inside = area();
    const int line = fontMetrics().lineSpacing();
    for (double count = 0; count <= static_cast<double>(most_); count += countStep_) {
        const int y = static_cast<int>(std::lround(topOf(count)));
        painter.setPen(mixed(palette().color(QPalette::Base), palette().color(QPalette::Text),
                             count == 0 ? 0.6 : 0.15));
        painter.drawLine(inside.left(), y, inside.right(), y);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(0, y - line / 2, inside.left() - gap, line),
                         Qt::AlignRight | Qt::AlignVCenter, countText(count));
    }
}

void HistogramPlot::drawBars(QPainter& painter) const {
    const QColor marked = palette().color(QPalette::Highlight);
    const QColor usual = mixed(palette().color(QPalette::Base), marked, 0.65);
    for (std::size_t bin = 0; bin < histogram_.counts.size(); ++bin) {
        const double left = leftOf(bin);
        const double space = leftOf(bin + 1) - left > 4 ? 1 : 0; // between bars that are not thin
        const double bottom = topOf(0);
        double top = topOf(static_cast<double>(histogram_.counts[bin]));
        if (histogram_.counts[bin] > 0)
            top = std::min(top, bottom - 1); // a single value is seen beside millions
        painter.fillRect(QRectF(left, top, leftOf(bin + 1) - left - space, bottom - top),
                         bin == marked_ ? marked : usual);
    }
}

/// As many edges as have room, always the first and the last one.
void HistogramPlot::drawEdges(QPainter& painter) const {
    const QRect inside = area();
    const std::size_t bins = histogram_.counts.size();
    constexpr int letters = 12;
    const int room = letters * fontMetrics().averageCharWidth();
    const int line = fontMetrics().lineSpacing();
    const auto most = static_cast<std::size_t>(std::max(1, inside.width() / room));
    std::size_t step = (bins + most - 1) / most;
    while (bins % step != 0)
        ++step;
    std::vector<double> edges;
    for (std::size_t bin = 0; bin <= bins; bin += step)
        edges.push_back(histogram_.edge(bin));
    const QStringList texts = textsOf(edges);
    painter.setPen(palette().color(QPalette::WindowText));
    for (std::size_t bin = 0; bin <= bins; bin += step) {
        const int x = static_cast<int>(std::lround(leftOf(bin)));
        painter.drawLine(x, inside.bottom(), x, inside.bottom() + gap / 2);
        painter.drawText(QRect(x - room, inside.bottom() + gap, 2 * room, line),
                         Qt::AlignHCenter | Qt::AlignTop, texts[static_cast<int>(bin / step)]);
    }
}

// ---- What is pointed at -------------------------------------------------------------------------

QString HistogramPlot::textOf(std::size_t bin) const {
    return QStringLiteral("%1 to %2: %3")
        .arg(shownNumber(histogram_.edge(bin)), shownNumber(histogram_.edge(bin + 1)),
             shownCount(static_cast<std::size_t>(histogram_.counts[bin]), "value", "values"));
}

void HistogramPlot::mousePressEvent(QMouseEvent* event) {
    if (const auto bin = binAt(event->pos()))
        chosen_(*bin);
}

bool HistogramPlot::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const auto bin = binAt(help->pos()))
        QToolTip::showText(help->globalPos(), textOf(*bin), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace quorvia::host
