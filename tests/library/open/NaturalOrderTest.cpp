#include "open/NaturalOrder.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace plot3dlib {
namespace {

std::vector<std::string> sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end(), isNaturallyBefore);
    return names;
}

TEST(NaturalOrder, CountsAsPeopleDo) {
    EXPECT_EQ(sorted({"q.10", "q.9", "q.2", "q.100"}),
              (std::vector<std::string>{"q.2", "q.9", "q.10", "q.100"}));
}

TEST(NaturalOrder, ComparesNumbersLongerThanAnyInteger) {
    EXPECT_TRUE(isNaturallyBefore("99999999999999999999999999", "100000000000000000000000000"));
}

TEST(NaturalOrder, LetsLaterNumbersDecideAfterEqualOnes) {
    EXPECT_EQ(sorted({"a2_t10.q", "a2_t9.q", "a1_t11.q"}),
              (std::vector<std::string>{"a1_t11.q", "a2_t9.q", "a2_t10.q"}));
}

TEST(NaturalOrder, GivesNamesThatDifferInZerosAloneAnOrder) {
    EXPECT_EQ(sorted({"s007", "s7", "s07", "s8"}),
              (std::vector<std::string>{"s7", "s07", "s007", "s8"}));
    EXPECT_FALSE(isNaturallyBefore("s07", "s07"));
}

TEST(NaturalOrder, PutsBeginningsFirst) {
    EXPECT_EQ(sorted({"ab", "a1", "a", ""}), (std::vector<std::string>{"", "a", "a1", "ab"}));
}

} // namespace
} // namespace plot3dlib
