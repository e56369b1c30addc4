// Reads pieces of fields block by block, with the I-blank of their points. One for each core.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <stop_token>
#include <vector>

#include "analysis/fields/BlockSplit.h"
#include "analysis/fields/Fields.h"
#include "analysis/fields/ValueTypes.h"
#include "analysis/statistics/FieldPlan.h"

namespace plot3d::analysis {

class PieceReader {
public:
    /// `fields` is borrowed.
    PieceReader(const Fields& fields, std::stop_token stop)
        : fields_(&fields), stop_(std::move(stop)) {}

    /// Calls `take` with the values of each block of the stretch in order, its I-blank (empty if
    /// all points count), and its box. Throws plot3d::Error.
    template <typename Take>
    void forEachBlock(const PlannedField_s& field, std::size_t stretch, Take take) {
        const Box& whole = field.stretches[stretch];
        const std::span<const std::int32_t> iBlank = iBlankOf(field, whole);
        const auto open = fields_->open(field.zone, field.variable);
        std::size_t done = 0;
        for (const Box& box : blocksOf(whole, pointsOfBlock)) {
            const auto count = static_cast<std::size_t>(box.count());
            const auto blockBlank = iBlank.empty() ? iBlank : iBlank.subspan(done, count);
            withValueOf(field.type, [&]<typename Value>(Value) {
                const std::span<Value> values = values_.of<Value>(box.count());
                open->read(box, values.data(), stop_);
                take(std::span<const Value>(values), blockBlank, box);
            });
            done += count;
        }
    }

    /// Calls `take` with the values of each block that count, as 64-bit reals, in order.
    template <typename Take>
    void forEachCounting(const PlannedField_s& field, std::size_t stretch, Take take) {
        forEachBlock(field, stretch,
                     [&](auto values, std::span<const std::int32_t> iBlank, const Box&) {
                         counting_.clear();
                         for (std::size_t index = 0; index < values.size(); ++index) {
                             const auto value = static_cast<double>(values[index]);
                             if (std::isfinite(value) && (iBlank.empty() || iBlank[index] != 0))
                                 counting_.push_back(value);
                         }
                         take(std::span<const double>(counting_));
                     });
    }

private:
    // What is read at once stays in the cache of its core until it is gone over.
    static constexpr std::int64_t pointsOfBlock = std::int64_t{1} << 16;

    std::span<const std::int32_t> iBlankOf(const PlannedField_s& field, const Box& box);

    const Fields* fields_;
    std::stop_token stop_;
    BlockRoom values_;
    std::vector<double> counting_;
    // Of the last zone and box that were asked for.
    std::vector<std::int32_t> iBlank_;
    std::size_t iBlankZone_ = 0;
    Box iBlankBox_;
};

} // namespace plot3d::analysis
