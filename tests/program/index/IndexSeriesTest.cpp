// Several times of two grids through each index.
#include <fstream>
#include <limits>

#include "IndexFixture.h"

namespace quorvia::testsupport {
namespace {

class IndexSeries : public IndexTest, public ::testing::WithParamInterface<bool> {};

TEST_P(IndexSeries, HoldsEveryValueOfEveryTime) {
    const std::string where = folder("series");
    const std::vector<std::string> files = writeSeries(where, 3, GetParam());
    for (const std::string ending : {"cgns", "json", "xmf2", "p3d"})
        EXPECT_EQ(index(files, where + "/out." + ending), 0);
    expectWhatTheLibraryFinds(where, files);
    expectReadBack(4);
}

INSTANTIATE_TEST_SUITE_P(Grids, IndexSeries, ::testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Move" : "StandStill"; });

struct StrangeTime_s {
    double time;
    const char* word;  // where JSON has no such number
    const char* shown; // to people
};

/// A time that is no number, or none that JSON has, behind one that is.
class IndexOfStrangeTimes : public IndexTest, public ::testing::WithParamInterface<StrangeTime_s> {
protected:
    void SetUp() override {
        files_ = writeSeries(where_, 2, false);
        auto contents = contentsOfStep(FileKind_e::ClassicSolution, 1);
        for (std::vector<double>& scalars : contents.scalars)
            scalars.back() = GetParam().time;
        writeFile(files_.back(), contents);
    }

    std::string where_ = folder("times");
    std::vector<std::string> files_;
};

TEST_P(IndexOfStrangeTimes, HasThemInWords) {
    const std::string output = where_ + "/out.json";
    ASSERT_EQ(index(files_, output), 0);
    std::ifstream in(output);
    const std::string json{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    EXPECT_NE(json.find(std::string("\\\"time\\\":\\\"") + GetParam().word + "\\\""),
              std::string::npos);
}

TEST_P(IndexOfStrangeTimes, RefusesThemWhereReadersTakeOthers) {
    for (const std::string ending : {"p3d", "xmf2"}) {
        std::string err;
        EXPECT_EQ(index(files_, where_ + "/out." + ending, &err), 1);
        EXPECT_EQ(err.find(std::string("plot3d: error: one of the 2 times is ") + GetParam().shown +
                           ", which readers of this format don't know\n"),
                  0U)
            << err;
    }
}

TEST_P(IndexOfStrangeTimes, TakesOneAlone) {
    const std::string alone = folder("alone");
    const std::vector<std::string> files = {files_.front(), files_.back()};
    for (const std::string ending : {"cgns", "json", "xmf2", "p3d"})
        EXPECT_EQ(index(files, alone + "/out." + ending), 0);
    EXPECT_EQ(index(files_, where_ + "/out.cgns"), 0);
}

constexpr double infinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(Infinite, IndexOfStrangeTimes,
                         ::testing::Values(StrangeTime_s{infinity, "Infinity", "inf"},
                                           StrangeTime_s{-infinity, "-Infinity", "-inf"},
                                           StrangeTime_s{std::numeric_limits<double>::quiet_NaN(),
                                                         "NaN", "nan"}));

class PatternOfSolutions : public IndexTest {
protected:
    void SetUp() override { files_ = writeSeries(where_, 3, false); }
    int index(std::string* err = nullptr) const {
        return IndexTest::index(files_, where_ + "/out.vp3d", err);
    }

    std::string where_ = folder("series");
    std::vector<std::string> files_;
};

TEST_F(PatternOfSolutions, FitsThemAll) {
    ASSERT_EQ(index(), 0);
    std::ifstream in(where_ + "/out.vp3d");
    std::string lines;
    for (std::string line; std::getline(in, line);)
        if (!line.starts_with("# "))
            lines += line + "\n";
    EXPECT_EQ(lines, "GRID " + where_ + "/m.x\nSOLUTION " + where_ +
                         "/m_*.q\nMULTI_GRID\nC_BINARY\nLITTLE_ENDIAN\n3D\nIBLANKING\n"
                         "SINGLE_PRECISION\nSOLUTION_TIME_ACCURATE\n");
}

TEST_F(PatternOfSolutions, IsRefusedIfItFitsAnotherFile) {
    std::ofstream(where_ + "/m_7.q") << "another one";
    std::string err;
    EXPECT_EQ(index(&err), 1);
    EXPECT_NE(err.find("no pattern fits the names of the solutions and of no other file"),
              std::string::npos)
        << err;
}

} // namespace
} // namespace quorvia::testsupport
