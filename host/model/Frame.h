// The frame: a plot type and at most one data set.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/DataSet.h"

namespace quorvia::host {

class Frame {
public:
    /// `uniqueId` is the frame's; what is in it has greater ones.
    explicit Frame(std::int64_t uniqueId = 1) : uniqueId_(uniqueId), ids_(uniqueId) {}
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;
    ~Frame() { reset(); }

    std::int64_t uniqueId() const { return uniqueId_; }
    std::int32_t plotType() const { return plotType_; } // QuorPlotType_e
    void setPlotType(std::int32_t plotType) { plotType_ = plotType; }

    /// Null if there is none.
    DataSet* dataSet() const { return dataSet_.get(); }
    /// A new data set without zones, in place of one that is there. Throws std::bad_alloc, and the
    /// old one stays then.
    DataSet& createDataSet(std::string loaderName, std::string title,
                           const std::vector<std::string>& variableNames);
    /// No data set, and the plot type of a frame that never had one.
    void reset();
    /// The same, and unique ids begin again behind that of the frame.
    void startAnew();

private:
    std::int64_t uniqueId_;
    IdSource ids_;
    std::int32_t plotType_ = QuorPlotType_None;
    std::unique_ptr<DataSet> dataSet_;
};

} // namespace quorvia::host
