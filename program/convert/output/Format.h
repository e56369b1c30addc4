// The formats that a data set is converted to, and how they are told from a word or a file's name.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plot3d::program {

enum class Format_e : unsigned char { Plot3D, Vtk, Cgns, Npz, Csv };

struct FormatFacts_s {
    Format_e format = Format_e::Plot3D;
    const char* word = "";               // of --to
    std::vector<std::string> extensions; // in lower case, with the point
};

const std::vector<FormatFacts_s>& formats();

/// The word of --to.
std::string wordOf(Format_e format);
/// By word; case does not count.
std::optional<Format_e> formatOfWord(std::string_view word);
/// By the extension of a file's name; case does not count.
std::optional<Format_e> formatOfName(const std::string& file);

/// ".vtm, .pvd, ... (vtk); ..." for messages.
std::string describeFormats();

/// "out/wing.vtm" without ".vtm".
std::string withoutExtension(const std::string& file);
/// ".vtm" of "out/wing.VTM"; empty if there is none.
std::string extensionOf(const std::string& file);

} // namespace plot3d::program
