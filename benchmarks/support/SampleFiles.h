// The files that the benchmarks work on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "plot3dwriter/FileDescription.h"

namespace quorvia::benchmarks {

/// Points of a grid in each direction.
struct Points_s {
    std::int32_t i = 17;
    std::int32_t j = 11;
    std::int32_t k = 7;
};

/// One 3-D grid file and `steps` Classic solution files, plain binary, 32-bit. Gives their names,
/// the grid's first.
std::vector<std::string> writeTimeSeries(const std::filesystem::path& directory, std::int32_t steps,
                                         const Points_s& points = {});

/// One grid file of `grids` grids of 2 x 2 x 2 points and `steps` Classic solution files, as above.
std::vector<std::string> writeManyGrids(const std::filesystem::path& directory, std::int32_t grids,
                                        std::int32_t steps);

/// A grid or Classic solution file of one 3-D grid of `points` in each direction, plain binary,
/// 32-bit, its values spread over ten from the number of their
/// variable. Throws std::runtime_error.
void writeFlow(const std::string& path, plot3dwriter::FileKind_e kind, std::int32_t points,
               plot3dwriter::ByteOrder_e order, bool isMultiGrid);

/// A single 3-D grid of `points` in each direction as text, about 44 bytes a point.
void writeTextGrid(const std::string& path, std::int32_t points);

/// A single 3-D grid or Classic solution file, plain binary, 64-bit, of about `megabytes`, its
/// values holes that cost no disk.
void writeSparseBinary(const std::string& path, std::int64_t megabytes, bool isSolution,
                       bool isBigEndian);

} // namespace quorvia::benchmarks
