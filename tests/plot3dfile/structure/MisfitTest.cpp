// What the parsers note of the first thing that does not fit, and who looks on.
#include <ostream>

#include "StructureTest.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace quorvia::quorutildataio {

static bool operator==(const Plot3DMisfit_s& a, const Plot3DMisfit_s& b) {
    return a.what == b.what && a.grid == b.grid && a.position == b.position &&
           a.expected == b.expected && a.found == b.found;
}

static void PrintTo(const Plot3DMisfit_s& misfit, std::ostream* out) {
    *out << "misfit " << static_cast<int>(misfit.what) << " of grid " << misfit.grid << " at "
         << misfit.position << ", expected " << misfit.expected << ", found " << misfit.found;
}

namespace {

using Misfit_e = Plot3DMisfit_e;

class Misfit : public StructureTest {
protected:
    /// What is noted if a grid file of these bytes is judged as the structure.
    Plot3DMisfit_s misfitOf(const std::string& bytes, Plot3DDataStructure_e dataStructure,
                            bool isMultiGrid = false) {
        auto file = openRecord(bytes, dataStructure);
        file->isMultiGrid = isMultiGrid;
        file->numGrids = 1;
        EXPECT_FALSE(judge(*file));
        return file->misfit;
    }
    /// The same of a solution or function file.
    Plot3DMisfit_s misfitOf(const std::string& bytes, Plot3DDataStructure_e dataStructure,
                            Plot3DStyle_e style) {
        auto file = openRecord(bytes, dataStructure, solutionOrFunction, style);
        EXPECT_FALSE(judge(*file));
        return file->misfit;
    }

    static constexpr bool multi = true;
};

// ---- Headers ------------------------------------------------------------------------------------

TEST_F(Misfit, TellsACountOfGridsThatCantBe) {
    EXPECT_EQ(
        misfitOf(FileBytes().integers({7}).equalReals(15).str(), Plot3DDataStructure_2D, multi),
        (Plot3DMisfit_s{Misfit_e::GridCount, 0, 4, 3, 7}));
    EXPECT_EQ(misfitOf("2 3 5\n" + std::string(60, '1'), Plot3DDataStructure_3DWhole, multi),
              (Plot3DMisfit_s{Misfit_e::IntegersLineGoesOn, 0, 2, 1, 0}));
    EXPECT_EQ(misfitOf("x 3 5\n" + std::string(60, '1'), Plot3DDataStructure_3DWhole, multi),
              (Plot3DMisfit_s{Misfit_e::IntegersMissing, 0, 0, 1, 0}));
    EXPECT_EQ(misfitOf(FileBytes().record(FileBytes().integers({2, 3, 5})).str(),
                       Plot3DDataStructure_3DWhole, multi),
              (Plot3DMisfit_s{Misfit_e::IntegersRecord, 0, 4, 4, 12}));
}

TEST_F(Misfit, TellsTheGridWhoseDimensionsDoNotFit) {
    const std::string values(100, '1');
    EXPECT_EQ(misfitOf("2\n2 3 5\n5 0 3\n" + values, Plot3DDataStructure_3DWhole, multi),
              (Plot3DMisfit_s{Misfit_e::Dimension, 1, 13, 1, 0}));
    EXPECT_EQ(misfitOf("2\n2 3 5\n5\n2 3\n" + values, Plot3DDataStructure_3DWhole, multi),
              (Plot3DMisfit_s{Misfit_e::DimensionsLineEnds, 1, 9, 3, 1}));
    EXPECT_EQ(misfitOf("2\n2 3 5\n5 x 3\n" + values, Plot3DDataStructure_3DWhole, multi),
              (Plot3DMisfit_s{Misfit_e::DimensionsMissing, 1, 10, 3, 1}));
}

TEST_F(Misfit, TellsWhereGridsEndThatPassTheFile) {
    EXPECT_EQ(misfitOf(FileBytes().integers({7, 11, 13}).equalReals(5).str(),
                       Plot3DDataStructure_3DWhole),
              (Plot3DMisfit_s{Misfit_e::GridsPassEnd, 0, 12, 1001, 32}));
}

TEST_F(Misfit, TellsElementsOfBothKindsAndOfNone) {
    EXPECT_EQ(misfitOf(FileBytes().integers({4, 2, 3}).equalReals(99).str(),
                       Plot3DDataStructure_Unstructured),
              (Plot3DMisfit_s{Misfit_e::TwoKindsOfElements, 0, 12, 2, 3}));
    EXPECT_EQ(misfitOf(FileBytes().integers({4, 0, 0}).equalReals(99).str(),
                       Plot3DDataStructure_Unstructured),
              (Plot3DMisfit_s{Misfit_e::NoElements, 0, 12, 0, 0}));
    EXPECT_EQ(misfitOf(FileBytes().integers({4, 1, 3}).equalReals(99).str(),
                       Plot3DDataStructure_Unstructured, Plot3DStyle_Classic),
              (Plot3DMisfit_s{Misfit_e::NotNodesAlone, 0, 12, 1, 3}));
}

TEST_F(Misfit, TellsWhatALayoutDoesNotHave) {
    EXPECT_EQ(misfitOf(FileBytes().integers({4}).equalReals(99).str(), Plot3DDataStructure_2D,
                       Plot3DStyle_Overflow)
                  .what,
              Misfit_e::NotInLayout);
    EXPECT_EQ(
        misfitOf(FileBytes().integers({4}).equalReals(99).str(), Plot3DDataStructure_1D, multi)
            .what,
        Misfit_e::NotInLayout);
}

// ---- Sizes --------------------------------------------------------------------------------------

TEST_F(Misfit, TellsBytesBehindTheHeader) {
    EXPECT_EQ(
        misfitOf(FileBytes().integers({2, 3, 5}).equalReals(91).str(), Plot3DDataStructure_3DWhole),
        (Plot3DMisfit_s{Misfit_e::DataSize, 0, 12, 360, 364}));
}

TEST_F(Misfit, TellsLengthsOfRecords) {
    const FileBytes header = FileBytes().record(FileBytes().integers({2, 3, 5}));
    EXPECT_EQ(misfitOf(FileBytes(header).record(FileBytes().equalReals(89)).str(),
                       Plot3DDataStructure_3DWhole),
              (Plot3DMisfit_s{Misfit_e::DataRecord, 0, 24, 360, 356}));
    EXPECT_EQ(misfitOf(FileBytes().record(FileBytes().integers({1, 1, 2})).str(),
                       Plot3DDataStructure_3DWhole),
              (Plot3DMisfit_s{Misfit_e::DataMissing, 0, 20, 24, 0}));
    EXPECT_EQ(misfitOf(FileBytes(header).record(FileBytes().equalReals(5)).str(),
                       Plot3DDataStructure_3DWhole, Plot3DStyle_Classic),
              (Plot3DMisfit_s{Misfit_e::ScalarsRecord, 0, 24, 16, 20}));
}

TEST_F(Misfit, TellsScalarsThatDoNotEndTheirLine) {
    EXPECT_EQ(misfitOf("2 3 5\n1 2 3 4 5\n" + std::string(60, '1'), Plot3DDataStructure_3DWhole,
                       Plot3DStyle_Classic),
              (Plot3DMisfit_s{Misfit_e::ScalarsLine, 0, 14, 4, 0}));
}

TEST_F(Misfit, IsNoneOfAReadingThatFits) {
    auto file = detect(FileBytes().integers({2, 3, 5}).equalReals(90).str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->misfit.what, Misfit_e::None);
}

// ---- Who looks on -------------------------------------------------------------------------------

class TrialRecorder final : public DetectionObserver {
public:
    bool takesTrial(const Plot3DFile_s& file, bool fits) override {
        misfits.push_back(file.misfit.what);
        fitting += fits ? 1 : 0;
        return fits && takesWhatFits;
    }
    bool goesOn() override { return letsGoOn; }

    std::vector<Misfit_e> misfits;
    int fitting = 0;
    bool takesWhatFits = true;
    bool letsGoOn = true;
};

TEST_F(Misfit, OfEveryTrialIsShownToTheObserver) {
    auto file = openRecord(FileBytes().integers({2, 3, 5}).equalReals(120).str(),
                           Plot3DDataStructure_Unknown);
    TrialRecorder trials;
    file->observer = &trials;
    EXPECT_TRUE(searchStructure(*file));
    // With a count of grids in 32 and in 64 bits, without and with I-blank; then without a count.
    const std::vector<Misfit_e> expected(4, Misfit_e::GridsPassEnd);
    ASSERT_EQ(trials.misfits.size(), 6U);
    EXPECT_EQ(std::vector<Misfit_e>(trials.misfits.begin(), trials.misfits.begin() + 4), expected);
    EXPECT_EQ(trials.misfits[4], Misfit_e::DataSize);
    EXPECT_EQ(trials.misfits[5], Misfit_e::None);
}

TEST_F(Misfit, SearchGoesOnBehindWhatTheObserverDoesNotTake) {
    auto file = openRecord(FileBytes().integers({2, 3, 5}).equalReals(90).str(),
                           Plot3DDataStructure_Unknown);
    TrialRecorder trials;
    trials.takesWhatFits = false;
    file->observer = &trials;
    EXPECT_FALSE(searchStructure(*file));
    EXPECT_EQ(trials.fitting, 2); // whole, and planes
    EXPECT_EQ(trials.misfits.size(), 40U);
}

TEST_F(Misfit, ObserverIsAskedInTheHostsPlaceAndEndsTheWalk) {
    const std::int64_t size = std::int64_t{65} << 20;
    disk.putSparse("zeros", "", size);
    auto file = makePlot3DFile("zeros");
    ASSERT_TRUE(openPlot3DFile(*file));
    file->fileSize = size;
    file->encoding = Plot3DEncoding_FortranUnformatted;
    TrialRecorder observer;
    file->observer = &observer;
    EXPECT_EQ(walkFortranRecords(*file), RecordWalk_e::Tiles);
    observer.letsGoOn = false;
    EXPECT_EQ(walkFortranRecords(*file), RecordWalk_e::Interrupted);
}

} // namespace
} // namespace quorvia::quorutildataio
