// Which values I-blank has, and how many points each.
#pragma once

#include "desktop/values/StatisticsWindow.h"

namespace quorvia::host {

class IBlankWindow : public StatisticsWindow {
public:
    /// Nothing if the data set has no I-blank.
    static std::optional<std::size_t> iBlankOf(const plot3d::DataSet& data);

    /// The data set has I-blank.
    IBlankWindow(std::shared_ptr<const plot3d::DataSet> data, const ValuesScope_s& scope,
                 QWidget* parent);

protected:
    Question_s question() const override { return {iBlank_, 0}; }
    QString subject() const override { return QStringLiteral("Values of I-blank"); }
    void showFound(const Found& found) override;

private:
    std::size_t iBlank_; // index from 0
};

} // namespace quorvia::host
