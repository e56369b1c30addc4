// Real files, where they lie beside the checkout. Without them the tests are skipped.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "acceptance/realdata/PlainReading.h"
#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {

class RealDataTest : public LoadedAddOnTest {
protected:
    void SetUp() override {
        if (!std::filesystem::is_directory(folder()))
            GTEST_SKIP() << "the real files are not here; PLOT3D_REAL_DATA tells where they lie";
    }

    static std::filesystem::path folder() {
        const char* const told = std::getenv("PLOT3D_REAL_DATA");
        return told != nullptr ? told : PLOT3D_REAL_DATA_FOLDER;
    }
    static std::string realFile(const char* name) { return (folder() / name).string(); }

    static void expectOrderedZone(std::int32_t number, std::int64_t i, std::int64_t j,
                                  std::int64_t k) {
        EXPECT_EQ(zone(number).type, QuorZoneType_Ordered);
        EXPECT_EQ(zone(number).i, i);
        EXPECT_EQ(zone(number).j, j);
        EXPECT_EQ(zone(number).k, k);
    }

    /// Holds `count` variables of a zone, from `firstVariable` on, against numbers that stand one
    /// field after the other.
    static void expectFields(std::int32_t zoneNumber, std::int32_t firstVariable,
                             std::int32_t count, const std::vector<double>& numbers) {
        const std::int64_t points = zone(zoneNumber).i * zone(zoneNumber).j * zone(zoneNumber).k;
        ASSERT_EQ(static_cast<std::int64_t>(numbers.size()), count * points);
        for (std::int32_t index = 0; index < count; ++index)
            EXPECT_TRUE(sameNumbers(values(zoneNumber, firstVariable + index),
                                    stretch(numbers, index * points, points)))
                << "zone " << zoneNumber << ", variable " << firstVariable + index;
    }
};

} // namespace quorvia::testsupport
