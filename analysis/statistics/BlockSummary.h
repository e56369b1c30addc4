// The summary of one block of values.
#pragma once

#include <cstdint>
#include <span>

#include "analysis/fields/BlockSplit.h"
#include "analysis/statistics/FieldSummary.h"

namespace plot3d::analysis {

enum class Checksum_e : unsigned char { No, Yes };

/// Where the values of a block stand.
struct BlockPlace_s {
    std::size_t zone = 0; // from 0
    Box box;
};

/// Adds a block to the summary of what stands ahead of it. `values` are those of the block, I
/// fastest. `iBlank`: for each value that of its point, which does not count where it is 0; empty
/// if all count. Of integers with a table.
template <typename Value>
void addBlock(std::span<const Value> values, std::span<const std::int32_t> iBlank,
              const BlockPlace_s& place, Checksum_e checksum, FieldSummary_s& summary);

extern template void addBlock(std::span<const float>, std::span<const std::int32_t>,
                              const BlockPlace_s&, Checksum_e, FieldSummary_s&);
extern template void addBlock(std::span<const double>, std::span<const std::int32_t>,
                              const BlockPlace_s&, Checksum_e, FieldSummary_s&);
extern template void addBlock(std::span<const std::int32_t>, std::span<const std::int32_t>,
                              const BlockPlace_s&, Checksum_e, FieldSummary_s&);

} // namespace plot3d::analysis
