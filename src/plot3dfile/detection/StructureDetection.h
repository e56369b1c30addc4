// Finds a file's structure by trial: the layout parsers judge one candidate after the other, in a
// fixed order, and the first that is accepted is the file's structure. docs/detection.md tells the
// order.
#pragma once

#include <string>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Builds the records of one list of files. Later files reuse the first one's structure, or are
/// validated against it, as the options say.
class Plot3DFileBuilder {
public:
    /// The options are borrowed; detection writes to them.
    explicit Plot3DFileBuilder(Plot3DLoadOptions_s& loadOptions) : options(loadOptions) {}
    virtual ~Plot3DFileBuilder() = default;

    Plot3DLoadOptions_s& options;
    Plot3DFile_s* firstFile = nullptr; // borrowed from the caller's list; null until one is built
};

/// The record of a file, closed, its structure known. Null (told): refused, for want of memory
/// too. Null (not told): the user interrupted. A later file of a list
/// whose files are alike by the options takes the first one's structure, size included; if even
/// that does not fit it, its record is given back all the same, and only a file that does not open
/// or can't be read is refused. With `autoDetect`, the first file of a list
/// writes what was found to `dataStructure`, `isMultiGrid` and `style` of the options; for the
/// first two grid files speak before solution files, and these before function files.
[[nodiscard]] Plot3DFilePtr buildPlot3DFile(Plot3DFileBuilder& builder, const std::string& fileName,
                                            bool isSolutionOrFunction);

/// Detects a file by trial, or tests the manual description, as the options say. False (told): a
/// refusal. False (not told): the user interrupted. The file is closed afterwards. Throws
/// std::bad_alloc, so that exhausted memory does not pass for a file that fits nothing.
[[nodiscard]] bool detectStructure(Plot3DFileBuilder& builder, Plot3DFilePtr& file,
                                   const std::string& fileName, bool isSolutionOrFunction);

/// Compares a newly detected file with the first of its list. False (told): they differ.
[[nodiscard]] bool validateAgainstFirstFile(Plot3DFileBuilder& builder, Plot3DFile_s& file,
                                            bool isSolutionOrFunction);

} // namespace quorvia::quorutildataio
