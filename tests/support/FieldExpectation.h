// What a whole field should hold: its type, how it came out of the load, and every value. A field
// is compared value by value, and the first difference is told with its indices.
#pragma once

#include <cstdint>
#include <functional>

#include <gtest/gtest.h>

#include "session/ReferenceHost.h"

namespace quorvia::testsupport {

/// A value at indices from 0 of the zone; in a finite-element zone `i` is the node.
using ValueAt = std::function<double(std::int64_t i, std::int64_t j, std::int64_t k)>;

struct FieldExpectation_s {
    std::int32_t type = QuorFieldDataType_Float; // values are narrowed to it before comparing
    host::FieldState_e state = host::FieldState_e::Deferred;
    ValueAt value;
};

/// Holds the field of zone and variable (from 1) against the expectation, and fetches it for that.
/// Success only if type and state fit, the count is that of the zone's points, and every value is
/// the same bit for bit after narrowing.
::testing::AssertionResult fieldIs(host::ReferenceHost& host, std::int32_t zoneNumber,
                                   std::int32_t variable, const FieldExpectation_s& expected);

} // namespace quorvia::testsupport
