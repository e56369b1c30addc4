#include "model/Frame.h"

#include <utility>

namespace quorvia::host {

DataSet& Frame::createDataSet(std::string loaderName, std::string title,
                              const std::vector<std::string>& variableNames) {
    // The old data set ends last: its clean-up calls the guest, who must find the new one.
    auto old = std::exchange(dataSet_, std::make_unique<DataSet>(ids_, std::move(loaderName),
                                                                 std::move(title), variableNames));
    return *dataSet_;
}

void Frame::reset() {
    plotType_ = QuorPlotType_None;
    const std::unique_ptr<DataSet> old = std::move(dataSet_);
}

void Frame::startAnew() {
    reset();
    ids_ = IdSource(uniqueId_);
}

} // namespace quorvia::host
