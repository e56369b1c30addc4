// Compares fields of two data sets, block by block on several cores.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <plot3d/Error.h>

#include "analysis/fields/Fields.h"
#include "analysis/fields/ParallelWork.h"
#include "diff/BlockDifference.h"

namespace plot3d::program {

/// A field of each data set, by indices from 0. Both zones have the same size.
struct FieldPair_s {
    std::size_t zone = 0; // in both
    std::size_t firstVariable = 0;
    std::size_t secondVariable = 0;
    Box box;
};

/// What came of one pair.
struct FieldDifference_s {
    Difference_s difference;
    std::optional<Error> error; // why one of both can't be read; there is no difference then
};

/// One result for each pair, in their order. Fields that zones share are compared once. Throws
/// plot3d::Error (Interrupted).
std::vector<FieldDifference_s> compare(const analysis::Fields& first,
                                       const analysis::Fields& second,
                                       const std::vector<FieldPair_s>& pairs,
                                       const Tolerance_s& tolerance, int threads,
                                       const analysis::WorkWatch_s& watch = {});

} // namespace plot3d::program
