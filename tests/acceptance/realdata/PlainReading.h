// A second reading of real files, as plain as can be: numbers at known places of a binary file, and
// the tokens of a text file in their order. It knows nothing of PLOT3D and shares no code with what
// it bears witness against.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quorvia::testsupport {

/// How the reals of a binary file stand in it.
struct PlainReals_s {
    int width = 4; // bytes of a real, 4 or 8
    bool isBigEndian = false;
};

/// `count` reals from the byte `position` on. Throws std::runtime_error if the file is shorter.
std::vector<double> plainReals(const std::string& path, std::int64_t position, std::int64_t count,
                               const PlainReals_s& form);

/// All numbers of a text file, headers included, repeat counts written out. The text is converted
/// to 64-bit reals.
std::vector<double> plainTokens(const std::string& path);

/// A stretch of `numbers`; throws std::out_of_range if they end before it.
std::vector<double> stretch(const std::vector<double>& numbers, std::int64_t first,
                            std::int64_t count);
/// The numbers as 32-bit reals hold them.
std::vector<double> narrowed(std::vector<double> numbers);

/// Tells the first place where the two differ by more than `tolerance`, or that their lengths do.
::testing::AssertionResult sameNumbers(const std::vector<double>& found,
                                       const std::vector<double>& expected, double tolerance = 0.0);

} // namespace quorvia::testsupport
