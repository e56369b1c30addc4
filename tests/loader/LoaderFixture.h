// A load linked in with the reference host: files of a few points, options as the instructions
// leave them, and at the end of each test the host must have seen no violation and miss nothing.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "session/ReferenceHost.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

using Texts = std::vector<std::string>;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;
using GridList = std::vector<GridDims_s>;

inline const GridList oneGrid = {{2, 3, 5}}; // like the zones of makeOldDataSet
inline const GridList twoGrids = {{2, 3, 5}, {3, 5, 7}};
inline const Texts gridAndSolution = {"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};

constexpr bool fromSelection = true; // for loads: the user chose the files

/// The value at a place of a file, all counted from 0. Exact in 32 bits.
double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k);

class LoaderTest : public ::testing::Test {
protected:
    LoaderTest();
    /// Asks for what is left, when all that a test held has been given back.
    ~LoaderTest() override;

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    /// Loads `options`; they may have changed afterwards.
    bool load(bool selection = false);

    /// The lists of names and their flags, as instructions set them.
    void useFiles(const Texts& grids, const Texts& solutions = {}, const Texts& functions = {});

    // Multi-grid files with values that name their places, in plain binary unless `form` says else.
    plot3dwriter::FileForm_s form;
    double valueShift = 0; // is added to every value that is written
    std::string gridFile(const std::string& name, const GridList& grids,
                         Layout_e layout = Layout_e::ThreeDWhole);
    std::string iblankGridFile(const std::string& name, const GridList& grids);
    /// Classic solution; every grid has the time.
    std::string solutionFile(const std::string& name, const GridList& grids, double time,
                             Layout_e layout = Layout_e::ThreeDWhole);
    std::string functionFile(const std::string& name, const GridList& grids, std::int32_t varCount);

    /// Cuts bytes off the end of a file.
    static void shorten(const std::string& file, std::int64_t byteCount);

    /// The grids that a load takes, from 1; released with the options.
    void selectGrids(const std::vector<std::int64_t>& numbers);

    // What the user saw.
    static Texts messages();
    static Texts progress() { return host().log().progress.texts(); }
    static bool showedProgress(const std::string& text);

    // What is in the frame.
    static std::int32_t zoneCount();
    static Texts variableNames();
    static std::vector<double> solutionTimes();
    static std::vector<std::int32_t> strands();

    /// A data set that another program left: the variables and as many zones of 2 x 3 x 5 points.
    void makeOldDataSet(const Texts& variables, std::int32_t zones);

    TemporaryDirectory directory;
    quorutildataio::Plot3DLoadOptions_s options;

private:
    std::string write(const std::string& name, const plot3dwriter::FileDescription_s& description);
};

/// Records that no file stands behind, for rules that look at nothing but the records.
quorutildataio::Plot3DFilePtr recordOf(const std::string& name, std::int32_t gridCount,
                                       quorutildataio::Plot3DStyle_e style);

} // namespace quorvia::testsupport
