// The connectivity of a finite-element zone: for each element the numbers of its corner nodes.
// Zones may hold one node map in common.
#pragma once

#include <cstdint>

#include "model/ValueBlock.h"

namespace quorvia::host {

class NodeMap {
public:
    /// Nothing is allocated before the first node is set or `prepare` is called.
    NodeMap(std::int64_t nodeCount, std::int64_t elementCount, std::int32_t cornerCount)
        : nodeCount_(nodeCount), elementCount_(elementCount), cornerCount_(cornerCount) {}

    std::int64_t nodeCount() const { return nodeCount_; }
    std::int64_t elementCount() const { return elementCount_; }
    std::int32_t cornerCount() const { return cornerCount_; } // of one element

    /// Makes the array, filled with 0. False: there is no memory.
    bool prepare();
    /// Counts from 1; the array must be prepared and the arguments inside their ranges.
    void set(std::int64_t element, std::int32_t corner, std::int32_t node);
    /// Node numbers from 1, 0 where none was set; the corner varies fastest. Null if nothing was
    /// set.
    const std::int32_t* nodes() const;

private:
    std::int64_t nodeCount_;
    std::int64_t elementCount_;
    std::int32_t cornerCount_;
    ValueBlock block_;
};

} // namespace quorvia::host
