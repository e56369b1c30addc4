#include "analysis/findings/InfoWords.h"
#include "program/InfoFixture.h"

namespace plot3d::program {
namespace {

class InfoText : public InfoFixture {};

TEST_F(InfoText, OfASolution) {
    EXPECT_EQ(told({"comb.q"}),
              "comb.q\n"
              "  kind       solution file, style Classic, 3-D whole, single grid\n"
              "  encoding   plain binary, big-endian, 32-bit reals\n"
              "  grid       57 x 33 x 25, 47,025 points\n"
              "  variables  5\n"
              "  scalars    Mach 0.5, alpha 2 degrees, Reynolds 1e+06, time 0\n"
              "  bytes      all 940,528 bytes used\n");
    EXPECT_EQ(code, 0);
}

TEST_F(InfoText, OfSeveralGrids) {
    EXPECT_EQ(told({"multi.x"}),
              "multi.x\n"
              "  kind       grid file, 3-D whole, multi-grid, with I-blank\n"
              "  encoding   Fortran records, 4-byte markers, little-endian, 64-bit reals\n"
              "  grids      3, 165 points in all\n"
              "             1-2  2 x 3 x 5\n"
              "             3    7 x 3 x 5\n"
              "  bytes      all 5,000 bytes used\n");
}

TEST_F(InfoText, GridsOfOneSizeTakeOneLine) {
    files["multi.x"].grids = {{2, 3, 5}, {2, 3, 5}};
    EXPECT_NE(told({"multi.x"}).find("  grids      2 of 2 x 3 x 5, 60 points in all\n  bytes"),
              std::string::npos);
}

TEST_F(InfoText, OfARefusedFileTellsWhatToTry) {
    EXPECT_EQ(told({"my blunt.q"}), "my blunt.q\n"
                                    "  kind       no PLOT3D file that can be read\n"
                                    "  encoding   plain binary, big-endian\n"
                                    "  bytes      none of 819,712 bytes used\n"
                                    "  problem    484 bytes too many (at byte 819,228, expected "
                                    "the file's end, found 484 bytes)\n"
                                    "  try        plot3d info --why 'my blunt.q'\n");
    EXPECT_EQ(code, 1);
}

TEST_F(InfoText, GoesOnBehindABadFileInTheOrderOfNames) {
    files["step10.q"] = wholeSolution();
    files["step2.q"] = refused();
    const std::string text = told({"step10.q", "step2.q"});
    EXPECT_LT(text.find("step2.q"), text.find("\n\nstep10.q\n"));
    EXPECT_EQ(code, 1);
    EXPECT_EQ(err.str(), "plot3d: 1 of 2 files can't be read as they are\n");
}

TEST_F(InfoText, FilesComeFromStandardInput) {
    in.str("multi.x\ncomb.q\n");
    const std::string text = told({"-"});
    EXPECT_LT(text.find("comb.q\n"), text.find("multi.x\n"));
}

TEST_F(InfoText, LongListsAreShortenedUnlessAllIsWanted) {
    FileInfo& info = files["multi.x"];
    info.grids.clear();
    for (std::int32_t size = 1; size <= 12; ++size)
        info.grids.push_back({size, 2, 2});
    EXPECT_NE(told({"multi.x"})
                  .find("             5  5 x 2 x 2\n"
                        "             ... up to 12; --all shows them\n"),
              std::string::npos);
    EXPECT_NE(told({"--all", "multi.x"}).find("             12  12 x 2 x 2\n"), std::string::npos);
}

TEST_F(InfoText, WarningsStandBesideAGoodFile) {
    FileInfo& info = files["comb.q"];
    info.bytes = {6296, 3956, 0, 2340};
    Misfit misfit;
    misfit.what = "2,340 of 6,296 bytes stand behind the last grid: a second grid without a count?";
    info.warnings = {{misfit, {"plot3d", "info", "--why", "comb.q"}}};
    const std::string text = told({"comb.q"});
    EXPECT_NE(text.find("  bytes      2,340 of 6,296 bytes left over, 3,956 used\n"
                        "  warning    2,340 of 6,296 bytes stand behind the last grid: a second "
                        "grid without a count?\n"
                        "  try        plot3d info --why comb.q\n"),
              std::string::npos);
    EXPECT_EQ(code, 0);
}

TEST_F(InfoText, BytesAreAccountedFor) {
    EXPECT_EQ(analysis::accountText({1000, 1000, 0, 0}), "all 1,000 bytes used");
    EXPECT_EQ(analysis::accountText({1000, 1484, 484, 0}), "484 missing, 1,000 bytes in the file");
    EXPECT_EQ(analysis::accountText({1000, 900, 0, 100}), "100 of 1,000 bytes left over, 900 used");
    EXPECT_EQ(analysis::accountText({1000, 0, 0, 1000}), "none of 1,000 bytes used");
    EXPECT_EQ(analysis::accountText({0, 0, 0, 0}), "none in the file");
}

TEST_F(InfoText, OfASolutionThatNoReadingFits) {
    files["my blunt.q"].kind = FileKind::Solution;
    EXPECT_NE(told({"my blunt.q"}).find("  kind       no solution file that can be read\n"),
              std::string::npos);
}

TEST_F(InfoText, FitsTheTerminal) {
    columns = 60;
    EXPECT_NE(told({"my blunt.q"})
                  .find("  problem    484 bytes too many (at byte 819,228, expected\n"
                        "             the file's end, found 484 bytes)\n"
                        "  try        plot3d info --why 'my blunt.q'\n"),
              std::string::npos);
}

TEST_F(InfoText, WhyShowsTheReadings) {
    columns = 90;
    EXPECT_NE(
        told({"--why", "my blunt.q"})
            .find("\n"
                  "  tried  reading                                  first misfit\n"
                  "    1-2  solution Classic, 3-D whole, single      484 bytes too many (at byte "
                  "819,228,\n"
                  "         grid, any I-blank, 32-bit, big-endian    expected the file's end, "
                  "found 484\n"
                  "                                                  bytes)\n"),
        std::string::npos);
    EXPECT_TRUE(asked.front().allReadings);
    EXPECT_TRUE(asked.front().trials);
}

TEST_F(InfoText, WhyShowsEachReadingIfAllIsWanted) {
    const std::string text = told({"--why", "--all", "my blunt.q"});
    EXPECT_NE(text.find("      1  solution Classic, 3-D whole, single grid, 32-bit, big-endian "),
              std::string::npos);
    EXPECT_NE(text.find("      2  solution Classic, 3-D whole, single grid, I-blank, 32-bit, "),
              std::string::npos);
    EXPECT_NE(text.find(", longer records allowed  none: fits\n"), std::string::npos);
}

/// As many as of a file of unknown kind, each with a misfit of its own; that of number 7 of a kind
/// is furthest behind.
std::vector<Trial> manyTrials() {
    std::vector<Trial> trials;
    for (const FileKind kind : {FileKind::Grid, FileKind::Solution})
        for (std::int64_t number = 1; number <= 20; ++number) {
            Misfit misfit;
            misfit.what = "misfit " + std::to_string(number);
            misfit.byte = number == 7 ? 1000 : 8;
            trials.push_back({{}, misfit});
            trials.back().candidate.kind = kind;
        }
    return trials;
}

TEST_F(InfoText, WhyShowsTheNearestReadingsOfEachKind) {
    files["my blunt.q"].trials = manyTrials();
    const std::string text = told({"--why", "my blunt.q"});
    for (const char* const shown : {"misfit 1 ", "misfit 4 ", "misfit 7 "})
        EXPECT_NE(text.find(shown), std::string::npos) << text;
    EXPECT_EQ(text.find("misfit 5 "), std::string::npos);
    EXPECT_NE(text.find("    ...  15 more as a grid file "), std::string::npos) << text;
    EXPECT_NE(text.find("    ...  15 more as a solution file "), std::string::npos);
}

TEST_F(InfoText, WhyShowsAllReadingsIfAllIsWanted) {
    files["my blunt.q"].trials = manyTrials();
    const std::string text = told({"--why", "--all", "my blunt.q"});
    EXPECT_NE(text.find("misfit 20 "), std::string::npos);
    EXPECT_EQ(text.find("..."), std::string::npos);
}

TEST_F(InfoText, AKindCanBeGiven) {
    told({"--as", "function", "comb.q"});
    EXPECT_EQ(asked.front().as, FileKind::Function);
    EXPECT_FALSE(asked.front().allReadings);
}

TEST_F(InfoText, OfANameFile) {
    FileInfo& info = files["comb.q"];
    info = {};
    info.ok = true;
    info.kind = FileKind::Name;
    info.encoding = Encoding::Text;
    info.names = {"density", "pressure"};
    info.bytes = {17, 17, 0, 0};
    EXPECT_EQ(told({"comb.q"}), "comb.q\n"
                                "  kind       name file\n"
                                "  encoding   text\n"
                                "  names      2: density, pressure\n"
                                "  bytes      all 17 bytes used\n");
}

} // namespace
} // namespace plot3d::program
