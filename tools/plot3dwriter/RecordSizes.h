// How many bytes the parts of a file take, in binary encodings.
#pragma once

#include <cstdint>
#include <optional>

#include "plot3dwriter/FileDescription.h"

namespace quorvia::plot3dwriter {

/// The product of two counts; empty if either is negative or the product does not fit.
std::optional<std::int64_t> checkedProduct(std::optional<std::int64_t> a,
                                           std::optional<std::int64_t> b);

std::optional<std::int64_t> checkedSum(std::optional<std::int64_t> a,
                                       std::optional<std::int64_t> b);

/// Bytes of a real: 4 or 8.
std::int64_t realWidth(const FileForm_s& form);

/// Bytes of the dimensions, with all that the header holds behind the count of grids.
std::int64_t headerBytes(const FileDescription_s& description);

/// Bytes of one grid's scalars, of which Overflow's integer takes 4.
std::int64_t scalarsBytes(const FileDescription_s& description, const FileForm_s& form,
                          std::size_t grid);

/// Payload of one record of variables: everything of the grid but its scalars; in 3-D Planes
/// everything of one K plane. Empty if it does not fit 64 bits.
std::optional<std::int64_t> dataBytes(const FileDescription_s& description, const FileForm_s& form,
                                      const GridDims_s& grid);

} // namespace quorvia::plot3dwriter
