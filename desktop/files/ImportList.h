// What a data set was made of: the load instructions that the host was handed after each import,
// in order. They repeat it, also with files that came later (docs/instructions.md tells their
// form).
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

namespace quorvia::host {

struct Import_s {
    std::vector<std::string> instructions;
    /// Files of the same series that were there and were not imported: whole paths. They are no
    /// news.
    std::vector<std::string> leftOut;
};

/// The first makes the data set, the others add to it.
using ImportList = std::vector<Import_s>;

struct ImportedFile_s {
    plot3d::FileKind kind = plot3d::FileKind::Grid;
    std::string name;

    friend bool operator==(const ImportedFile_s&, const ImportedFile_s&) = default;
};

/// Grid, solution and function files, and the name file, in the order of the instructions; each
/// file once. None for instructions of another form.
std::vector<ImportedFile_s> filesOf(const ImportList& imports);

/// Whether the instructions add to the data set that is there.
bool appends(const std::vector<std::string>& instructions);

/// The import that was done by these instructions, with what it left out. Reads folders.
Import_s importBy(std::vector<std::string> instructions);

/// Takes the files that have come since to those of their series, in the order in which people
/// count. Reads folders. Returns their number.
std::size_t addNewFiles(Import_s& import);

} // namespace quorvia::host
