// The files of one case of the matrix on disk, and what a load of them must come to.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "acceptance/matrix/FileReading.h"
#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {

/// The files of one load: a grid file, and for most a solution or function file.
struct CaseFiles_s {
    WrittenFile_s grid;
    std::optional<WrittenFile_s> other;
};

/// How the load is expected to read them.
struct CaseReadings_s {
    FileReading grid;
    std::optional<FileReading> other;
};

class MatrixTest : public LoadedAddOnTest {
protected:
    /// Writes the file of the case, and the grid file beside it if it is another kind of file.
    CaseFiles_s writeCase(const MatrixCase_s& matrixCase) const;

    /// The load of these files, with what text files need to be told.
    static Load_s loadOf(const CaseFiles_s& files);
    /// The same with the structure described by hand.
    static Load_s describedLoadOf(const CaseFiles_s& files);

    /// Everything that the load left in the frame: plot type, variables, zones, auxiliary data,
    /// times, connectivity, and each field with every value.
    static void expectFrame(const CaseReadings_s& readings);
};

/// Names of variables as they come from files like those of contentsOf().
Texts expectedVariableNames(const CaseReadings_s& readings);
/// The scalars of a grid as auxiliary data of its zone.
std::map<std::string, std::string> expectedZoneAuxData(const FileReading& reading,
                                                       std::int32_t grid);
std::map<std::string, std::string> expectedDataSetAuxData(const CaseReadings_s& readings);

} // namespace quorvia::testsupport
