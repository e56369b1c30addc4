// The program plot3d-sample: what it writes, lists and refuses.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "plot3dsample/Run.h"
#include "support/HexBytes.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::plot3dsample {
namespace {

using testsupport::hexOf;
using testsupport::toHex;

class SampleProgram : public testing::Test {
protected:
    /// `line` is split at blanks; DIR stands for the test's own directory.
    int run(const std::string& line) {
        std::istringstream words(line);
        std::vector<std::string> args;
        for (std::string word; words >> word;)
            args.push_back(word == "DIR" ? directory_.path().string() : word);
        out_.str("");
        err_.str("");
        return plot3dsample::run(args, out_, err_);
    }

    std::string out() const { return out_.str(); }
    std::string err() const { return err_.str(); }

    std::string contents(const std::string& name) const {
        std::ifstream file(directory_.file(name), std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    std::vector<std::string> fileNames() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(directory_.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    /// The error line of a command that is bad usage.
    std::string refusal(const std::string& line) {
        EXPECT_EQ(run(line), 2) << line;
        EXPECT_EQ(out(), "") << line;
        return err();
    }

private:
    const testsupport::TemporaryDirectory directory_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(SampleProgram, ListsWhatItWrote) {
    EXPECT_EQ(run("functions DIR --size 5x3x2"), 0);
    EXPECT_EQ(out(), "functions.x              grid               376 bytes  5x3x2\n"
                     "functions_velocity.fun   function           500 bytes  5x3x2\n"
                     "functions_vorticity.fun  function           500 bytes  5x3x2\n"
                     "functions.nam            names              111 bytes\n");
    EXPECT_EQ(err(), "");
    EXPECT_EQ(contents("functions_velocity.fun").size(), 500U);
}

TEST_F(SampleProgram, NotesAFileThatPassesForAnother) {
    EXPECT_EQ(run("vortex DIR --steps 1 --double"), 0);
    EXPECT_EQ(err(),
              "plot3d-sample: note: vortex.x passes for a 3-D file unless it is described by "
              "hand; --single leaves no doubt\n");
    EXPECT_EQ(run("ball DIR --encoding text"), 0);
    EXPECT_EQ(err(), "plot3d-sample: note: ball.x passes for a 1-D file unless it is described by "
                     "hand; --single leaves no doubt\n");
    EXPECT_EQ(run("functions DIR --layout 3dplanes"), 0);
    EXPECT_EQ(err(), "plot3d-sample: note: functions.x passes for a 3-D Whole file unless it is "
                     "described by hand; --encoding fortran4 leaves no doubt\n");
}

TEST_F(SampleProgram, PutsTheTimeIntoNamesAndScalars) {
    EXPECT_EQ(run("vortex DIR --steps 3 --size 3x2 --double"), 0);
    EXPECT_EQ(fileNames(), (std::vector<std::string>{"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q",
                                                     "vortex_t0.50.q"}));
    constexpr std::size_t timeScalar = 4 + 8 + 3 * 8;
    EXPECT_EQ(toHex(contents("vortex_t0.25.q").substr(timeScalar, 8)), hexOf("00000000 0000D03F"));
}

TEST_F(SampleProgram, WritesNamesOfTimesEquallyWide) {
    EXPECT_EQ(run("vortex DIR --steps 41 --size 2x2"), 0);
    EXPECT_EQ(fileNames().size(), 42U);
    EXPECT_EQ(fileNames()[1], "vortex_t00.00.q");
    EXPECT_EQ(fileNames().back(), "vortex_t10.00.q");
}

TEST_F(SampleProgram, MovesTheVortexWithTime) {
    // At time 0.25 the centre has gone from x = -2.5 to -2.375, which is none of the 5 points.
    EXPECT_EQ(run("vortex DIR --steps 21 --size 5x3 --encoding text"), 0);
    EXPECT_NE(contents("vortex_t0.00.q").find("0.796516"), std::string::npos);
    EXPECT_EQ(contents("vortex_t0.25.q").find("0.796516"), std::string::npos);
    EXPECT_NE(contents("vortex_t5.00.q").find("0.796516"), std::string::npos);
}

TEST_F(SampleProgram, WritesOneGridWithoutACountIfAsked) {
    EXPECT_EQ(run("cylinder DIR --single --layout 2d --size 7x5 --big-endian"), 0);
    EXPECT_EQ(toHex(contents("cylinder.x").substr(0, 8)), "00000007 00000005");
    EXPECT_EQ(contents("cylinder.x").size(), 8U + 7 * 5 * 2 * 4);
}

TEST_F(SampleProgram, CutsTheCylinderOutOfItsBackground) {
    EXPECT_EQ(run("cylinder DIR --layout 2d --iblank --encoding text --size 41x5"), 0);
    const std::string grid = contents("cylinder.x");
    const std::string iblank = grid.substr(grid.rfind('.'));
    for (const char* value : {" 0 0 0 ", " -1 ", " 1 1 1 "})
        EXPECT_NE(iblank.find(value), std::string::npos) << value;
}

TEST_F(SampleProgram, WritesABoundaryFileIfAsked) {
    EXPECT_EQ(run("vortex DIR --boundaries --steps 1 --size 3x2"), 0);
    EXPECT_EQ(contents("vortex.x.fvbnd"),
              "FVBND 1 4\ninflow\noutflow\nsymmetry\nBOUNDARIES\n1 1 1 1 1 $ 1 $ F 0\n"
              "2 1 $ $ 1 $ 1 $ F 0\n3 1 1 $ 1 1 1 $ F 0\n3 1 1 $ $ $ 1 $ F 0\n");
    EXPECT_NE(out().find("vortex.x.fvbnd           boundary           125 bytes\n"),
              std::string::npos)
        << out();
}

TEST_F(SampleProgram, PutsTheWallRoundTheCylinder) {
    EXPECT_EQ(run("cylinder DIR --boundaries --size 7x5x2"), 0);
    EXPECT_EQ(contents("cylinder.x.fvbnd"),
              "FVBND 1 4\nwall\nsubsonic_inflow\nsubsonic_outflow\nsymmetry\nBOUNDARIES\n"
              "1 1 1 $ 1 1 1 $ F 0\n2 2 1 1 1 $ 1 $ F 0\n3 2 $ $ 1 $ 1 $ F 0\n"
              "4 1 1 $ 1 $ 1 1 F 0\n4 1 1 $ 1 $ $ $ F 0\n4 2 1 $ 1 $ 1 1 F 0\n"
              "4 2 1 $ 1 $ $ $ F 0\n");
}

TEST_F(SampleProgram, RefusesBoundariesWhereACaseHasNone) {
    EXPECT_EQ(refusal("ball DIR --boundaries"),
              "plot3d-sample: error: the case ball takes no --boundaries here\n");
}

TEST_F(SampleProgram, WritesTheShockTubeInOneDirection) {
    EXPECT_EQ(run("shocktube DIR --steps 1 --size 3 --encoding text"), 0);
    EXPECT_EQ(contents("shocktube.x"), "3\n0. 0.5 1.\n");
    EXPECT_EQ(contents("shocktube_t0.00.q"),
              "3\n0. 0. 0. 0.\n1. 0.125 0.125\n0. 0. 0.\n2.5 0.25 0.25\n");
}

TEST_F(SampleProgram, WritesSurfaceOrVolumeOfTheBall) {
    EXPECT_EQ(run("ball DIR --size 1 --encoding text"), 0);
    EXPECT_EQ(contents("ball.x").substr(0, 8), "1\n8 0 6\n");
    EXPECT_EQ(run("ball DIR --size 1 --encoding text --surface --single"), 0);
    EXPECT_EQ(contents("ball.x").substr(0, 7), "8 12 0\n");
}

TEST_F(SampleProgram, NamesTheVariablesOfAFunctionFile) {
    EXPECT_EQ(run("shocktube DIR --style function --steps 1 --size 3"), 0);
    EXPECT_EQ(contents("shocktube.nam"), "RHO; density\nRHO-U; momentum along X\n"
                                         "E; total energy per volume\n");
}

TEST_F(SampleProgram, GivesOverflowItsSpeciesAndTurbulence) {
    EXPECT_EQ(run("overflow DIR --size 3x2x2"), 0);
    constexpr std::size_t header = 4 + 2 * 12 + 8;
    constexpr std::size_t grid = (13 + 12 * 10) * 4;
    EXPECT_EQ(contents("overflow.q").size(), header + 2 * grid + 8);
    EXPECT_EQ(toHex(contents("overflow.q").substr(28, 8)), "0A000000 02000000");
}

TEST_F(SampleProgram, WritesEveryCaseInEveryEncoding) {
    for (const char* sample :
         {"cylinder", "vortex", "shocktube", "ball", "overflow", "functions"}) {
        for (const char* encoding : {"text", "binary", "binary --big-endian", "fortran4",
                                     "fortran4 --big-endian", "fortran8 --double"})
            EXPECT_EQ(run(std::string(sample) + " DIR --encoding " + encoding), 0) << err();
    }
}

TEST_F(SampleProgram, WritesEveryStyleAndLayout) {
    for (const char* choice :
         {"shocktube DIR --style swift", "shocktube DIR --layout 3dplanes --style overflow",
          "vortex DIR --style swift", "vortex DIR --layout 3dwhole --style overflow --iblank",
          "cylinder DIR --layout 3dplanes --iblank", "cylinder DIR --style function",
          "ball DIR --style function", "overflow DIR --layout 3dplanes --single --double",
          "functions DIR --layout 3dplanes"})
        EXPECT_EQ(run(choice), 0) << choice << "\n" << err();
}

TEST_F(SampleProgram, HelpTellsCasesExamplesAndExitCodes) {
    EXPECT_EQ(run("--help"), 0);
    for (const char* part :
         {"Writes PLOT3D sample data sets", "  --size SIZE           Points of the first grid",
          "  --encoding text|binary|fortran4|fortran8\n", "  shocktube             shock tube",
          "plot3d-sample cylinder samples",
          "Exit codes: 0 written, 1 could not write, 2 bad usage."})
        EXPECT_NE(out().find(part), std::string::npos) << part;
    EXPECT_EQ(err(), "");
}

TEST_F(SampleProgram, TellsItsVersion) {
    EXPECT_EQ(run("--version"), 0);
    EXPECT_EQ(out().rfind("plot3d-sample ", 0), 0U);
}

TEST_F(SampleProgram, RefusesWordsItDoesNotKnow) {
    EXPECT_EQ(refusal("nope DIR"),
              "plot3d-sample: error: no case 'nope', expected one of cylinder, "
              "vortex, shocktube, ball, overflow, functions\n");
    EXPECT_EQ(refusal("vortex DIR --style foo"),
              "plot3d-sample: error: --style: found 'foo', expected one of classic, function, "
              "overflow, swift\n");
    EXPECT_EQ(refusal("vortex DIR --encoding ascii"),
              "plot3d-sample: error: --encoding: found 'ascii', expected one of text, binary, "
              "fortran4, fortran8\n");
    EXPECT_EQ(refusal("vortex DIR --layout 4d"),
              "plot3d-sample: error: --layout: found '4d', expected one of 1d, 2d, 3dwhole, "
              "3dplanes, unstructured\n");
}

TEST_F(SampleProgram, RefusesSizesThatAreNone) {
    for (const char* size : {"0", "x", "3x", "3x4x5x6", "-3", "3,4", "99999999999"})
        EXPECT_EQ(refusal(std::string("vortex DIR --size ") + size),
                  std::string("plot3d-sample: error: --size: found '") + size +
                      "', expected one to three counts of points like 41x31x5\n");
    EXPECT_EQ(refusal("vortex DIR --size 1"),
              "plot3d-sample: error: --size: each direction needs at least 2 points\n");
    EXPECT_EQ(refusal("shocktube DIR --size 3x4"),
              "plot3d-sample: error: --size: layout 1d takes 1 of these\n");
    EXPECT_EQ(refusal("ball DIR --size 711"),
              "plot3d-sample: error: --size: a file can't count so many elements, expected fewer "
              "cells\n");
}

TEST_F(SampleProgram, RefusesOptionsThatACaseCannotFollow) {
    EXPECT_EQ(refusal("cylinder DIR --steps 2"),
              "plot3d-sample: error: the case cylinder takes no --steps here\n");
    EXPECT_EQ(refusal("shocktube DIR --iblank"),
              "plot3d-sample: error: the case shocktube takes no --iblank here\n");
    EXPECT_EQ(refusal("vortex DIR --surface"),
              "plot3d-sample: error: the case vortex takes no --surface here\n");
    EXPECT_EQ(refusal("overflow DIR --layout 2d"),
              "plot3d-sample: error: the case overflow has no layout 2d here, expected 3dwhole or "
              "3dplanes\n");
    EXPECT_EQ(refusal("vortex DIR --layout 2d --style overflow"),
              "plot3d-sample: error: the case vortex has no style overflow here, expected classic "
              "or function or swift\n");
    EXPECT_EQ(refusal("vortex DIR --encoding text --big-endian"),
              "plot3d-sample: error: --big-endian: text has no byte order\n");
    EXPECT_EQ(refusal("vortex DIR --steps 0"),
              "plot3d-sample: error: --steps: found 0, expected at least 1\n");
}

TEST_F(SampleProgram, RefusesAnIncompleteLine) {
    for (const char* line : {"", "vortex", "vortex DIR more"})
        EXPECT_EQ(refusal(line), "plot3d-sample: error: expected a case and a folder, like "
                                 "plot3d-sample cylinder samples; plot3d-sample --help lists the "
                                 "cases\n");
}

TEST_F(SampleProgram, TellsTheOptionThatComesNearest) {
    EXPECT_EQ(refusal("vortex DIR --step 2"), "plot3d-sample: error: plot3d-sample has no option "
                                              "--step; the nearest is --steps\n");
}

TEST_F(SampleProgram, TellsWhyItCouldNotWrite) {
    EXPECT_EQ(run("vortex /dev/null/here"), 1);
    EXPECT_EQ(err(), "plot3d-sample: error: /dev/null/here: cannot make the directory\n");
}

} // namespace
} // namespace quorvia::plot3dsample
