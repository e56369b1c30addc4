// An index that is a text.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace plot3d::program {

/// A stream that fills the file. Throws Error (Refused).
std::ofstream openedForText(const std::filesystem::path& file);
/// Ends the file. Throws Error (Refused) if not all could be written.
void finishText(std::ofstream& out);

/// All of a file. Throws Error (NotFound, Unreadable).
std::string textOfFile(const std::filesystem::path& file);

} // namespace plot3d::program
