// Small files that are spelt out in the tests, byte for byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {

/// The bytes that pairs of hexadecimal digits stand for; blanks are for the reader's eye.
inline std::string fromHex(std::string_view text) {
    const std::string_view digits = "0123456789abcdef";
    std::string bytes;
    std::string pair;
    for (const char letter : text) {
        if (letter == ' ')
            continue;
        pair += letter;
        if (pair.size() < 2)
            continue;
        bytes += static_cast<char>(digits.find(pair[0]) * 16 + digits.find(pair[1]));
        pair.clear();
    }
    return bytes;
}

class GoldenFileTest : public LoadedAddOnTest {
protected:
    using Values = std::vector<double>;

    /// Loads a grid file of these bytes alone.
    void loadGrid(std::string_view bytes) const {
        expectLoads({{directory().write("golden.x", bytes)}, {}, {}, {}, {}});
    }
    void loadSolution(std::string_view gridBytes, std::string_view bytes) const {
        expectLoads({{directory().write("golden.x", gridBytes)},
                     {directory().write("golden.q", bytes)},
                     {},
                     {},
                     {}});
    }
    void loadFunction(std::string_view gridBytes, std::string_view bytes) const {
        expectLoads({{directory().write("golden.x", gridBytes)},
                     {},
                     {directory().write("golden.f", bytes)},
                     {},
                     {}});
    }

    static void expectZone(std::int64_t i, std::int64_t j, std::int64_t k) {
        EXPECT_EQ(dataSet().zoneCount(), 1);
        EXPECT_EQ(zone(1).i, i);
        EXPECT_EQ(zone(1).j, j);
        EXPECT_EQ(zone(1).k, k);
    }
};

} // namespace quorvia::testsupport
