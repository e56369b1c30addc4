// From a data set and a view to what is drawn.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <stop_token>

#include <plot3d/Error.h>

#include "SceneFixture.h"
#include "support/BytesRead.h"

namespace plot3dtest {
namespace {

using plot3d::scene::PlotKind_e;
using plot3d::scene::Preparer;
using plot3d::scene::RangeOver_e;

using quorvia::testsupport::bytesReadSoFar;

using PreparerTest = SceneTest;

TEST_F(PreparerTest, ChoosesWhatTheViewLeavesOpen) {
    const DataSet cylinder = opened({"cylinder"});
    EXPECT_EQ(prepared(cylinder)->view.colour, "RHO");
    EXPECT_EQ(prepared(cylinder)->view.plot, PlotKind_e::Space);
    EXPECT_EQ(prepared(opened({"vortex"}))->view.plot, PlotKind_e::Plane);
    const DataSet tube = opened({"shocktube"});
    EXPECT_EQ(prepared(tube)->view.plot, PlotKind_e::Lines);
}

TEST_F(PreparerTest, ReadsNoMoreThanThePlaneThatIsShown) {
    const DataSet data = numbered({64, 64, 64});
    constexpr std::int64_t planeBytes = 4 * 64 * 64 * 4; // three coordinates and a function
    const std::int64_t before = bytesReadSoFar();
    const Content content = prepared(data, viewOf("k=17"));
    EXPECT_EQ(content->parts.at(0).mesh->pointCount(), 64 * 64);
    EXPECT_GE(bytesReadSoFar() - before, planeBytes);
    EXPECT_LT(bytesReadSoFar() - before, planeBytes + 4096);
}

TEST_F(PreparerTest, DrawsAGridAloneByItsLines) {
    const DataSet data = DataSet::open({sample({"cylinder"}).back()});
    const Content content = prepared(data);
    EXPECT_FALSE(content->hasValues);
    EXPECT_TRUE(content->parts.at(0).gridLines);
}

TEST_F(PreparerTest, TakesOverWhatIsTheSame) {
    const DataSet data = opened({"vortex", "--steps", "2"});
    Preparer preparer(data);
    View_s view;
    const Content first = preparer.prepare(view);
    view.map = "magma";
    const Content recoloured = preparer.prepare(view);
    EXPECT_EQ(recoloured->parts[0].values, first->parts[0].values);
    view.time = data.timeSteps()[1].time;
    const Content next = preparer.prepare(view);
    EXPECT_EQ(next->parts[0].mesh, first->parts[0].mesh);
    EXPECT_NE(next->parts[0].values, first->parts[0].values);
    EXPECT_EQ(next->title, "vortex.x, vortex_t0.25.q, time 0.25");
}

void writeTime(const std::string& solution, float time) {
    constexpr std::streamoff placeOfTime = 24; // behind count, sizes and three scalars
    std::fstream(solution, std::ios::in | std::ios::out | std::ios::binary)
        .seekp(placeOfTime)
        .write(reinterpret_cast<const char*>(&time), sizeof time);
}

TEST_F(PreparerTest, TakesATimeThatIsNotFiniteForNoneButItself) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float time : {-std::numeric_limits<float>::quiet_NaN(), infinity, -infinity}) {
        const std::vector<std::string> files = sample({"vortex", "--steps", "2"});
        writeTime(files.at(1), time);
        const DataSet data = DataSet::open(files);
        const auto titleAt = [&](double wanted) {
            View_s view;
            view.time = wanted;
            return prepared(data, view)->title;
        };
        EXPECT_EQ(titleAt(0.1), "vortex.x, vortex_t0.25.q, time 0.25") << time;
        EXPECT_EQ(titleAt(time).find("vortex.x, vortex_t0.00.q, time "), 0) << titleAt(time);
    }
}

TEST_F(PreparerTest, NamesTheFilesOfATimeWhateverOrderTheyStandIn) {
    const std::vector<std::string> files = sample({"vortex", "--steps", "3"});
    writeTime(files.at(1), 7);
    const DataSet data = DataSet::open(files);
    std::vector<std::string> titles;
    for (const auto& step : data.timeSteps()) {
        View_s view;
        view.time = step.time;
        titles.push_back(prepared(data, view)->title);
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"vortex.x, vortex_t0.25.q, time 0.25",
                                                "vortex.x, vortex_t0.50.q, time 0.5",
                                                "vortex.x, vortex_t0.00.q, time 7"}));
}

TEST_F(PreparerTest, TakesTheRangeFromWhatIsAskedFor) {
    const DataSet data = numbered({5, 3, 7});
    View_s view = viewOf("k=1");
    EXPECT_EQ(prepared(data, view)->range.most, 4 + 200);
    view.rangeOver = RangeOver_e::Time;
    EXPECT_EQ(prepared(data, view)->range.most, 4 + 200 + 60000);
    view.range = plot3d::scene::Range_s{1, 2};
    EXPECT_EQ(prepared(data, view)->range.most, 2);
}

TEST_F(PreparerTest, TakesTheRangeFromOneZoneThatNeedNotBeShown) {
    const DataSet data = opened({"cylinder"});
    const std::vector<double> values = data.values(1, data.variable("RHO"));
    View_s view;
    view.zones = {1};
    view.rangeOver = RangeOver_e::Zone;
    view.rangeZone = 2;
    const Content content = prepared(data, view);
    EXPECT_EQ(content->range.least, *std::min_element(values.begin(), values.end()));
    EXPECT_EQ(content->range.most, *std::max_element(values.begin(), values.end()));
    view.rangeZone = 3;
    EXPECT_THROW(prepared(data, view), plot3d::Error);
}

TEST_F(PreparerTest, RefusesTheRangeOfAZoneWhoseValuesDoNotCount) {
    const DataSet data = numbered({2, 1, 1}, {{0, 0, 0}, {1, 0, 0}});
    View_s view = viewOf("outer");
    view.rangeOver = RangeOver_e::Zone;
    try {
        prepared(data, view);
        FAIL() << "a range of no values";
    } catch (const plot3d::Error& error) {
        EXPECT_EQ(error.message(), "zone 1 has no values of F1V1 that a range could be taken from");
    }
}

TEST_F(PreparerTest, ColoursByDerivedQuantitiesAsTheLibraryGivesThem) {
    const DataSet data = opened({"cylinder"});
    View_s view;
    for (const char* word : {"pressure", "vorticity"}) {
        view.colour = word;
        const Content content = prepared(data, view);
        const auto all = plot3d::derive(data, 0, *plot3d::findDerivedQuantity(word));
        const auto& part = content->parts[0];
        const auto& zone = data.zones()[0].size;
        for (std::int64_t point = 0; point < part.mesh->pointCount(); point += 7) {
            const auto place = part.mesh->placeOf(point);
            const auto at =
                static_cast<std::size_t>((place.k * zone.j + place.j) * zone.i + place.i);
            const double length =
                all.size() == 1 ? all[0][at] : std::hypot(all[0][at], all[1][at], all[2][at]);
            ASSERT_DOUBLE_EQ(part.values->values[static_cast<std::size_t>(point)], length);
        }
    }
}

TEST_F(PreparerTest, KeepsToTheZonesOfTheView) {
    const DataSet data = opened({"cylinder"});
    View_s view;
    view.zones = {2};
    const Content content = prepared(data, view);
    ASSERT_EQ(content->parts.size(), 1U);
    EXPECT_EQ(content->parts[0].zone, 1U);
    view.zones = {3};
    EXPECT_THROW(prepared(data, view), plot3d::Error);
}

TEST_F(PreparerTest, ShowsBoundariesByTheirNames) {
    const DataSet data = opened({"cylinder", "--boundaries"});
    const Content outer = prepared(data);
    EXPECT_EQ(outer->parts.size(), 2U);
    const Content boundaries = prepared(data, viewOf("boundary"));
    for (const auto& part : boundaries->parts)
        EXPECT_TRUE(data.zones()[part.zone].parent);
    EXPECT_GT(boundaries->parts.size(), 2U);
    EXPECT_THROW(prepared(data, viewOf("boundary=nothing*")), plot3d::Error);
}

TEST_F(PreparerTest, PlotsAlongALineOfTheGrid) {
    const DataSet data = numbered({5, 3, 7});
    View_s view;
    view.line = std::array<std::int64_t, 3>{2, -1, 0};
    const Content content = prepared(data, view);
    ASSERT_EQ(content->curves.size(), 1U);
    EXPECT_EQ(content->curves[0].ordinates,
              (std::vector<double>{201, 10201, 20201, 30201, 40201, 50201, 60201}));
    EXPECT_EQ(content->curves[0].abscissas[2], 2);
    EXPECT_EQ(content->abscissaNames[0], "Z"); // which changes most along it
}

TEST_F(PreparerTest, RefusesNamesThatAreNothingWithThoseThatThereAre) {
    const DataSet data = numbered({5, 3, 7});
    View_s view;
    view.colour = "densty";
    try {
        prepared(data, view);
        FAIL();
    } catch (const plot3d::Error& error) {
        EXPECT_EQ(
            error.message().rfind("nothing is called \"densty\"; there are X, Y, Z, F1V1, ", 0),
            0U);
    }
}

TEST_F(PreparerTest, StopsWhenItIsAskedToAndWorksAgainAfterwards) {
    const DataSet data = opened({"cylinder"});
    Preparer preparer(data);
    std::stop_source stop;
    plot3d::Watch watch;
    watch.stop = stop.get_token();
    watch.progress = [&](const plot3d::Progress&) { stop.request_stop(); };
    EXPECT_THROW(preparer.prepare({}, watch), plot3d::Error);
    EXPECT_EQ(preparer.prepare({})->parts.size(), 2U);
}

TEST_F(PreparerTest, HasArrowsWithTheVectorsOfTheirPoints) {
    const DataSet data = opened({"cylinder"});
    View_s view = viewOf("k=1");
    view.zones = {2}; // Cartesian
    view.vectors = "RHO-U,RHO-V,RHO-W";
    const auto arrows = prepared(data, view)->parts.at(0).arrows;
    ASSERT_TRUE(arrows);
    const plot3d::Extent size = data.zones()[1].size;
    const plot3d::Box plane{{0, size.i - 1, 1}, {0, size.j - 1, 1}, {0, 0, 1}};
    const auto x = data.values(1, 0, plane);
    const auto y = data.values(1, 1, plane);
    const auto momentum = data.values(1, data.variable("RHO-U"), plane);
    for (std::size_t arrow = 0; arrow < arrows->points.size() / 3; ++arrow) {
        std::size_t at = 0;
        while (x[at] != arrows->points[3 * arrow] || y[at] != arrows->points[3 * arrow + 1])
            ++at;
        ASSERT_EQ(arrows->directions[3 * arrow], momentum.at(at));
    }
    EXPECT_LT(arrows->points.size() / 3, 1000U);
}

TEST_F(PreparerTest, OutlinesTheTwelveEdgesOfAZone) {
    const DataSet data = numbered({5, 3, 7});
    View_s view;
    view.outlines = true;
    const auto outline = prepared(data, view)->parts.at(0).outline;
    ASSERT_EQ(outline->polylines.size(), 12U);
    EXPECT_EQ(outline->points.size(), 3U * 4 * (5 + 3 + 7));
}

} // namespace
} // namespace plot3dtest
