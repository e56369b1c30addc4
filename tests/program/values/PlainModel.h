// Statistics as one would do them by hand: all values in a list, gone over one by one.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "support/Json.h"

namespace plot3d::program {

struct PlainValue_s {
    double value = 0;
    std::array<std::int64_t, 4> place = {}; // zone, i, j, k from 1
    bool isBlanked = false;
};

/// Whether `told`, the JSON of a variable or a zone, is what the values come to: counts, extremes
/// and their places to the letter, mean and deviation to twelve digits.
testing::AssertionResult tells(const quorvia::testsupport::Json& told,
                               const std::vector<PlainValue_s>& values);

} // namespace plot3d::program
