// What the tests of layouts and detection share: a disk in memory and the
// words for building files and records.
#pragma once

#include <memory>
#include <string>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/detection/FileCreation.h"
#include "plot3dfile/detection/StructureDetection.h"
#include "plot3dfile/detection/StructureTrials.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/layout/DataSize.h"
#include "plot3dfile/layout/LayoutHeader.h"
#include "plot3dfile/layout/LayoutParsers.h"
#include "support/FakeDisk.h"
#include "support/FileBytes.h"
#include "support/HostedTest.h"

namespace quorvia::quorutildataio {

constexpr bool gridFile = false;          // for `isSolutionOrFunction`
constexpr bool solutionOrFunction = true; // for `isSolutionOrFunction`

using testsupport::FileBytes;
using testsupport::Order_e;

class StructureTest : public testsupport::HostedTest {
protected:
    StructureTest();
    /// The open record of a file of these bytes, its encoding sniffed, its structure as told.
    Plot3DFilePtr openRecord(const std::string& bytes, Plot3DDataStructure_e dataStructure,
                             bool isSolutionOrFunction = gridFile,
                             Plot3DStyle_e style = Plot3DStyle_Classic);

    /// Detects a file of these bytes, as the first of a list. Null: refused.
    Plot3DFilePtr detect(const std::string& bytes, bool isSolutionOrFunction = gridFile);

    /// Whether the parser of the record's structure accepts it.
    static bool judge(Plot3DFile_s& file) { return parseLayout(file, false, nullptr, nullptr); }

    /// A manual description, to be used by detect and by builders.
    void describe(Plot3DDataStructure_e dataStructure, Plot3DStyle_e style, bool isMultiGrid);

    testsupport::FakeDisk disk;
    Plot3DLoadOptions_s options;
};

} // namespace quorvia::quorutildataio
