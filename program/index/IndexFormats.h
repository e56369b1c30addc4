// The formats of an index, by the extension of its name. A new one is one row.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "index/contents/IndexFormat.h"

namespace plot3d::program {

struct IndexFormatRow_s {
    const char* extension = ""; // in lower case, with the point
    std::unique_ptr<IndexFormat> (*make)() = nullptr;
    const char* copyExtension = ""; // of what `plot3d convert` writes for the same readers
    const char* relativeNote = "";  // what readers need for relative paths; empty: nothing
};

const std::vector<IndexFormatRow_s>& indexFormats();

/// The row of the file's name; case does not count. Throws Error (Usage) if there is none.
const IndexFormatRow_s& indexFormatOf(const std::string& file);

} // namespace plot3d::program
