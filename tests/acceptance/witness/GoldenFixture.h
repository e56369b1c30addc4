// Small files that are spelt out in the tests, byte for byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/HexBytes.h"
#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {

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
