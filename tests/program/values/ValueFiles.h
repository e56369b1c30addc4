// Files of values that are told by their place, for tests of what reads values, and runs of the
// program on them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "program/ProgramRun.h"
#include "support/BytesOfFile.h"
#include "support/Json.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace plot3d::program {

namespace writer = quorvia::plot3dwriter;

/// Of grid, variable, I, J and K, all from 0.
using Value = writer::ValueFunction;
using IBlank = writer::IBlankFunction;
using Sizes = quorvia::testsupport::GridList;
using quorvia::testsupport::binary;
using quorvia::testsupport::bytesOfFile;
using quorvia::testsupport::formOf;
using quorvia::testsupport::Json;

/// Of two grids.
inline const Sizes twoSizes = {{7, 5, 3}, {2, 3, 5}};

/// PLOT3D_TEST_SEED, or a new one; printed.
std::uint64_t seedOfRun();
/// 32 random bits that hang on the arguments alone.
std::uint32_t dice(std::uint64_t seed, std::int64_t a, std::int64_t b = 0, std::int64_t c = 0,
                   std::int64_t d = 0, std::int64_t e = 0);

/// Values that reals of 32 bits hold, between -1000 and 1000.
Value randomValues(std::uint64_t seed);
/// Values that name their place: i + 100 j + 10000 k, and a million for each variable.
double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k);

/// Several grids in 3-D, whole.
writer::FileDescription_s gridFile(const Sizes& sizes, const Value& value,
                                   const IBlank& iBlank = {});
writer::FileDescription_s functionFile(const Sizes& sizes, std::int32_t variables,
                                       const Value& value);
/// With the five variables of a Classic solution.
writer::FileDescription_s solutionFile(const Sizes& sizes, const Value& value, double time = 0);

/// Whether a run ended because a small function file has the bytes of something else as well, which
/// comes ahead of it in detection: one in a thousand of random ones.
bool isTakenForAnother(const Ended_s& run);

class ValueFilesTest : public testing::Test {
protected:
    /// Plain binary unless told. Gives the file's name.
    std::string write(const std::string& name, const writer::FileDescription_s& contents,
                      const writer::FileForm_s& form = {}) const;
    std::string file(const std::string& name) const { return directory_.file(name); }

private:
    quorvia::testsupport::TemporaryDirectory directory_;
};

} // namespace plot3d::program
