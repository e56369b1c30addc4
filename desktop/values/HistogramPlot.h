// A histogram drawn: a bar for each bin, counts to the left, the edges of the bins below.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include <QWidget>

namespace quorvia::host {

struct Histogram_s {
    double min = 0;
    double max = 0;
    std::vector<std::int64_t> counts; // of bins of equal width; none: there is nothing to show

    /// Where a bin begins; with the count of bins for an index the end of the last one.
    double edge(std::size_t index) const;
};

class HistogramPlot : public QWidget {
public:
    /// Gets the bin, from 0, that was clicked at.
    using Chosen = std::function<void(std::size_t bin)>;

    HistogramPlot(Chosen chosen, QWidget* parent);

    void setHistogram(Histogram_s histogram);
    void mark(std::optional<std::size_t> bin);
    std::optional<std::size_t> marked() const { return marked_; }
    /// At a place of the widget, in pixels, whatever its bar's height.
    std::optional<std::size_t> binAt(const QPoint& place) const;
    /// "0.25 to 0.5: 12 values"
    QString textOf(std::size_t bin) const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    QRect area() const;
    double leftOf(std::size_t bin) const;
    double topOf(double count) const;
    void drawCounts(QPainter& painter) const;
    void drawBars(QPainter& painter) const;
    void drawEdges(QPainter& painter) const;

    Chosen chosen_;
    Histogram_s histogram_;
    std::int64_t most_ = 0;
    double countStep_ = 1; // between the lines of counts
    std::optional<std::size_t> marked_;
};

} // namespace quorvia::host
