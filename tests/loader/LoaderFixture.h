// A load linked in with the reference host: small files, and options as the instructions leave
// them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "support/HostedTest.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

inline const GridList oneGrid = {{2, 3, 5}}; // like the zones of makeOldDataSet
inline const GridList twoGrids = {{2, 3, 5}, {3, 5, 7}};
inline const Texts gridAndSolution = {"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};

constexpr bool fromSelection = true; // for loads: the user chose the files

class LoaderTest : public HostedTest {
protected:
    LoaderTest();
    ~LoaderTest() override;

    /// Loads `options`; they may have changed afterwards.
    bool load(bool selection = false);

    /// The lists of names and their flags, as instructions set them.
    void useFiles(const Texts& grids, const Texts& solutions = {}, const Texts& functions = {});

    // Multi-grid files with values that name their places, in plain binary unless `form` says else.
    FileForm_s form;
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

    /// A data set that another program left: the variables and as many zones of 2 x 3 x 5 points.
    void makeOldDataSet(const Texts& variables, std::int32_t zones);

    TemporaryDirectory directory;
    quorutildataio::Plot3DLoadOptions_s options;

private:
    SmallFiles filesOn(const GridList& grids, Layout_e layout = Layout_e::ThreeDWhole) const;
};

/// Records that no file stands behind, for rules that look at nothing but the records.
quorutildataio::Plot3DFilePtr recordOf(const std::string& name, std::int32_t gridCount,
                                       quorutildataio::Plot3DStyle_e style);

} // namespace quorvia::testsupport
