// Bins of equal width from a minimum to a maximum.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace plot3d::analysis {

class Histogram {
public:
    /// `bins`: 1 at least.
    Histogram(double min, double max, std::size_t bins);

    /// A value at the edge of two bins is in the upper one; the maximum is in the last one. All
    /// must lie between minimum and maximum.
    void add(std::span<const double> values);
    void add(const Histogram& other);

    const std::vector<std::int64_t>& counts() const { return counts_; }

private:
    std::size_t binOf(double value) const;

    double min_;
    double max_;
    std::vector<double> edges_; // one more than bins
    std::vector<std::int64_t> counts_;
};

/// Where bin `index` of `bins` begins; with `bins` for an index the end of the last one.
double binEdge(double min, double max, std::size_t bins, std::size_t index);

} // namespace plot3d::analysis
