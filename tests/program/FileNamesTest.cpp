#include <plot3d/FileNames.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace plot3d {
namespace {

TEST(FileNames, SortAsPeopleCount) {
    const std::vector<std::string> sorted = {"",
                                             "10.q",
                                             "a",
                                             "a2.q",
                                             "a02.q",
                                             "a10.q",
                                             "a10b2.q",
                                             "a10b10.q",
                                             "a99999999999999999999.q",
                                             "a100000000000000000000.q",
                                             "aB.q",
                                             "ab.q"};
    std::vector<std::string> names = sorted;
    std::mt19937 random(1);
    for (int round = 0; round < 20; ++round) {
        std::shuffle(names.begin(), names.end(), random);
        std::sort(names.begin(), names.end(), naturalLess);
        EXPECT_EQ(names, sorted);
    }
}

} // namespace
} // namespace plot3d
