#include "analysis/statistics/Histogram.h"

#include <algorithm>
#include <cmath>

namespace plot3d::analysis {

Histogram::Histogram(double min, double max, std::size_t bins)
    : min_(min), max_(max), counts_(bins) {
    for (std::size_t index = 0; index <= bins; ++index)
        edges_.push_back(binEdge(min, max, bins, index));
}

void Histogram::add(std::span<const double> values) {
    for (const double value : values)
        ++counts_[binOf(value)];
}

void Histogram::add(const Histogram& other) {
    for (std::size_t bin = 0; bin < counts_.size(); ++bin)
        counts_[bin] += other.counts_[bin];
}

std::size_t Histogram::binOf(double value) const {
    const std::size_t last = counts_.size() - 1;
    if (min_ == max_)
        return 0;
    // Halves, so that no difference overflows. Rounding may miss by one bin.
    const double share = (value / 2 - min_ / 2) / (max_ / 2 - min_ / 2);
    std::size_t bin = std::min(
        static_cast<std::size_t>(std::max(0.0, share * static_cast<double>(counts_.size()))), last);
    while (bin > 0 && value < edges_[bin])
        --bin;
    while (bin < last && value >= edges_[bin + 1])
        ++bin;
    return bin;
}

double binEdge(double min, double max, std::size_t bins, std::size_t index) {
    return std::lerp(min, max, static_cast<double>(index) / static_cast<double>(bins));
}

} // namespace plot3d::analysis
