// How the values of a variable are spread: bars, the same in a table, and in a line what they come
// to.
#pragma once

#include <QComboBox>
#include <QSpinBox>

#include "desktop/values/HistogramPlot.h"
#include "desktop/values/StatisticsWindow.h"

namespace quorvia::host {

class HistogramWindow : public StatisticsWindow {
public:
    /// `variable`: an index from 0, chosen at first.
    HistogramWindow(std::shared_ptr<const plot3d::DataSet> data, std::size_t variable,
                    const ValuesScope_s& scope, QWidget* parent);

    HistogramPlot& plot() { return *plot_; }

protected:
    Question_s question() const override;
    QString subject() const override;
    void showFound(const Found& found) override;
    void showNothing() override;

private:
    void addChoices();
    void fillTable(const Histogram_s& histogram);

    QComboBox* variable_;
    QSpinBox* bins_;
    HistogramPlot* plot_;
};

} // namespace quorvia::host
