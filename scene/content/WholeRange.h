// The range of a quantity over whole zones, not only over what is drawn of them.
#pragma once

#include <mutex>
#include <optional>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "content/Choices.h"
#include "surfaces/PatchReads.h"
#include "view/View.h"

namespace plot3d::scene {

class WholeRange {
public:
    /// The range of finite values at the zones' points; with `skipsBlanked` without those whose
    /// I-blank is 0. The data set is borrowed.
    WholeRange(const DataSet& data, const Quantity_s& quantity, const Gas& gas, bool skipsBlanked)
        : data_(data), quantity_(quantity), gas_(gas), skipsBlanked_(skipsBlanked) {}

    /// The object must stay where it is until they have run. Fields that zones share come once.
    void addReads(Pieces& pieces, const std::vector<std::size_t>& zones);
    /// Once the reads have run; nothing if there was no value.
    std::optional<Range_s> range() const { return range_; }

private:
    void take(std::size_t zone, const Box& box, const std::stop_token& stop);

    const DataSet& data_;
    Quantity_s quantity_;
    Gas gas_;
    bool skipsBlanked_;
    std::mutex lock_;
    std::optional<Range_s> range_;
};

/// Widens `range` by a value, if that is finite.
void widen(std::optional<Range_s>& range, double value);
void widen(std::optional<Range_s>& range, const std::optional<Range_s>& other);

} // namespace plot3d::scene
