// A function is found by its header: each source of the add-on stands under a header of its name.
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(Sources, OfTheAddOnHaveAHeaderOfTheirName) {
    std::vector<std::string> lonely;
    int sourceCount = 0;
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(PLOT3D_SOURCE_DIR) / "src")) {
        if (entry.path().extension() != ".cpp")
            continue;
        ++sourceCount;
        fs::path header = entry.path();
        if (!fs::exists(header.replace_extension(".h")))
            lonely.push_back(entry.path().filename().string());
    }
    EXPECT_GT(sourceCount, 5);
    EXPECT_EQ(lonely, std::vector<std::string>());
}

} // namespace
