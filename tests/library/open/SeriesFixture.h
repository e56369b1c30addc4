// Files of several time steps whose values name their step.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "OpenFixture.h"

namespace plot3dtest {

class SeriesTest : public OpenTest {
protected:
    /// Two grids of 2 x 3 x 5 and 5 x 2 x 3 points, reals of 64 bits.
    static double valueOf(int step, std::int32_t grid, std::int32_t variable, std::int64_t i,
                          std::int64_t j, std::int64_t k) {
        return 1e6 * step + 1e5 * grid + 1e4 * variable + static_cast<double>(i + 10 * j + 100 * k);
    }
    std::string writeStep(const std::string& name, writer::FileKind_e kind, int step,
                          double time = 0.0, writer::FileForm_s form = doubleForm()) const;
    static writer::FileForm_s doubleForm();

    /// Whether all variables from `first` to `last` of the zone have the values of that step.
    static ::testing::AssertionResult isOfStep(const plot3d::DataSet& data, std::size_t zone,
                                               std::size_t first, std::size_t last, int step,
                                               std::int32_t grid);
};

} // namespace plot3dtest
