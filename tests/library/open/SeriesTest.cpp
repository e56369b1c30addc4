// Data sets of several time steps.
#include "SeriesFixture.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using writer::FileKind_e;

/// A grid and three solutions, whose numbers and times say their order.
class SteadyGrid : public SeriesTest {
protected:
    std::vector<std::string> files() const {
        return {writeStep("wing_10.q", FileKind_e::ClassicSolution, 3, 0.75),
                writeStep("wing_2.q", FileKind_e::ClassicSolution, 1, 0.25),
                writeStep("wing_9.q", FileKind_e::ClassicSolution, 2, 0.5),
                writeStep("wing.x", FileKind_e::Grid, 0)};
    }
};

TEST_F(SteadyGrid, HasItsStepsInTheOrderInWhichPeopleCount) {
    const auto data = DataSet::open(files());
    EXPECT_EQ(data.files().solution,
              (std::vector<std::string>{file("wing_2.q"), file("wing_9.q"), file("wing_10.q")}));
    ASSERT_EQ(data.timeSteps().size(), 3u);
    EXPECT_EQ(data.timeSteps()[2].time, 0.75);
    EXPECT_EQ(data.timeSteps()[2].zones, (std::vector<std::size_t>{4, 5}));
    for (std::size_t zone = 0; zone < 6; ++zone)
        EXPECT_TRUE(isOfStep(data, zone, 3, 7, static_cast<int>(zone / 2) + 1,
                             static_cast<std::int32_t>(zone % 2)));
}

TEST_F(SteadyGrid, TiesAGridThroughTimeByItsStrand) {
    const auto data = DataSet::open(files());
    ASSERT_EQ(data.zones().size(), 6u);
    EXPECT_NE(data.zones()[0].strand, data.zones()[1].strand);
    EXPECT_EQ(data.zones()[0].strand, data.zones()[4].strand);
}

TEST_F(SteadyGrid, SharesItsCoordinatesWithTheFirstStep) {
    const auto data = DataSet::open(files());
    EXPECT_EQ(data.holder(0, 1), 0u);
    EXPECT_EQ(data.holder(5, 1), 1u);
    EXPECT_EQ(data.holder(5, 4), 5u);
    EXPECT_EQ(data.source(5, 1).file, file("wing.x"));
    EXPECT_TRUE(isOfStep(data, 5, 0, 2, 0, 1));
}

TEST_F(SteadyGrid, MayBeToldThatItsFilesAreAlike) {
    plot3d::OpenOptions options;
    options.shareStructure = true;
    const auto data = DataSet::open(files(), options);
    ASSERT_EQ(data.zones().size(), 6u);
    EXPECT_TRUE(isOfStep(data, 4, 3, 7, 3, 0));
}

TEST_F(SteadyGrid, LooksAtEachFileByItself) {
    auto mixed = files();
    writer::FileForm_s form = doubleForm();
    form.encoding = writer::Encoding_e::Fortran;
    form.byteOrder = writer::ByteOrder_e::Big;
    writeStep("wing_9.q", FileKind_e::ClassicSolution, 2, 0.5, form);
    const auto data = DataSet::open(mixed);
    ASSERT_EQ(data.zones().size(), 6u);
    EXPECT_EQ(data.source(2, 3).order, plot3d::ByteOrder::Big);
    EXPECT_TRUE(isOfStep(data, 2, 3, 7, 2, 0));
    EXPECT_TRUE(isOfStep(data, 4, 3, 7, 3, 0));
}

TEST_F(SeriesTest, OfMovingGridsHasCoordinatesOfItsOwnAtEachStep) {
    std::vector<std::string> files;
    for (int step = 1; step <= 3; ++step) {
        files.push_back(writeStep("wing_" + std::to_string(step) + ".x", FileKind_e::Grid, step));
        files.push_back(writeStep("wing_" + std::to_string(step) + ".q",
                                  FileKind_e::ClassicSolution, step + 3, 0.5 * step));
    }
    const auto data = DataSet::open(files);
    ASSERT_EQ(data.zones().size(), 6u);
    for (std::size_t zone = 0; zone < 6; ++zone) {
        const auto grid = static_cast<std::int32_t>(zone % 2);
        EXPECT_TRUE(isOfStep(data, zone, 0, 2, static_cast<int>(zone / 2) + 1, grid));
        EXPECT_TRUE(isOfStep(data, zone, 3, 7, static_cast<int>(zone / 2) + 4, grid));
        EXPECT_EQ(data.zones()[zone].strand, data.zones()[zone % 2].strand);
    }
}

TEST_F(SeriesTest, OfFunctionsHasTheTimesOfTheirNames) {
    const auto data = DataSet::open({writeStep("wing.x", FileKind_e::Grid, 0),
                                     writeStep("wing_0.25.f", FileKind_e::Function, 1),
                                     writeStep("wing_0.5.f", FileKind_e::Function, 2)});
    ASSERT_EQ(data.timeSteps().size(), 2u);
    EXPECT_EQ(data.timeSteps()[1].time, 0.5);
    EXPECT_TRUE(isOfStep(data, data.timeSteps()[1].zones[0], 3, 4, 2, 0));
}

TEST_F(SeriesTest, PairsSolutionsAndFunctionsByTheirOrder) {
    const auto data = DataSet::open({writeStep("wing.x", FileKind_e::Grid, 0),
                                     writeStep("wing_1.q", FileKind_e::ClassicSolution, 1, 0.25),
                                     writeStep("wing_2.q", FileKind_e::ClassicSolution, 2, 0.5),
                                     writeStep("wing_1.f", FileKind_e::Function, 3),
                                     writeStep("wing_2.f", FileKind_e::Function, 4)});
    ASSERT_EQ(data.timeSteps().size(), 2u);
    EXPECT_TRUE(isOfStep(data, 2, 3, 7, 2, 0));
    EXPECT_TRUE(isOfStep(data, 2, 8, 9, 4, 0));
}

TEST_F(SeriesTest, WithEqualTimesSaysWhatItWasAsked) {
    const auto data = DataSet::open({writeStep("wing.x", FileKind_e::Grid, 0),
                                     writeStep("a.q", FileKind_e::ClassicSolution, 1, 0.5),
                                     writeStep("b.q", FileKind_e::ClassicSolution, 2, 0.5)});
    ASSERT_EQ(data.notes().size(), 1u);
    EXPECT_NE(data.notes()[0].find("(answered: yes)"), std::string::npos) << data.notes()[0];
}

} // namespace
} // namespace plot3dtest
