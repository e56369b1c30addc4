// Reads a text out of a CGNS index.
#pragma once

#include <filesystem>
#include <string>

namespace plot3d::program {

/// The text of the node `name` below the first base that has it. Throws Error (NotFound,
/// Unreadable).
std::string readCgnsText(const std::filesystem::path& file, const std::string& name);

} // namespace plot3d::program
