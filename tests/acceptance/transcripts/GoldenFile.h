// Texts of lines that are kept beside the tests and compared as a whole. With
// PLOT3D_UPDATE_GOLDEN=1 in the environment they are written anew instead, for review with the
// version control's diff.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quorvia::testsupport {

/// Whether `lines` are those of the golden file; tells the first differing stretch if not.
::testing::AssertionResult isGolden(const std::string& name, const std::vector<std::string>& lines);

/// What differs between the first and the last differing line: '-' expected, '+' found, and one
/// line before and after.
std::string differenceOf(const std::vector<std::string>& expected,
                         const std::vector<std::string>& found);

} // namespace quorvia::testsupport
