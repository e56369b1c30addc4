// What an opening tells on its way, and how it is stopped.
#include <stdexcept>

#include "SeriesFixture.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using plot3d::ErrorKind;
using writer::FileKind_e;

class OpeningWatched : public SeriesTest {
protected:
    std::vector<std::string> files() const {
        return {writeStep("wing.x", FileKind_e::Grid, 0),
                writeStep("wing.q", FileKind_e::ClassicSolution, 1, 0.25)};
    }
    static ErrorKind kindOfFailure(const std::vector<std::string>& files,
                                   const plot3d::Watch& watch) {
        try {
            DataSet::open(files, {}, watch);
        } catch (const plot3d::Error& error) {
            return error.kind();
        }
        throw std::logic_error("the files were opened");
    }
};

TEST_F(OpeningWatched, TellsHowFarItIs) {
    std::vector<double> fractions;
    plot3d::Watch watch;
    watch.progress = [&](const plot3d::Progress& progress) {
        fractions.push_back(progress.fraction);
        EXPECT_FALSE(progress.text.empty());
    };
    DataSet::open(files(), {}, watch);
    ASSERT_FALSE(fractions.empty());
    EXPECT_LE(fractions.back(), 1.0);
}

TEST_F(OpeningWatched, StopsBeforeItBegins) {
    std::stop_source source;
    source.request_stop();
    plot3d::Watch watch;
    watch.stop = source.get_token();
    EXPECT_EQ(kindOfFailure(files(), watch), ErrorKind::Interrupted);
}

TEST_F(OpeningWatched, StopsOnItsWayAndLeavesTheNextOneAlone) {
    std::stop_source source;
    plot3d::Watch watch;
    watch.stop = source.get_token();
    watch.progress = [&](const plot3d::Progress&) { source.request_stop(); };
    EXPECT_EQ(kindOfFailure(files(), watch), ErrorKind::Interrupted);
    EXPECT_TRUE(isOfStep(DataSet::open(files()), 1, 3, 7, 1, 1));
}

TEST_F(OpeningWatched, LetsThroughWhatItsCallerThrows) {
    plot3d::Watch watch;
    watch.progress = [](const plot3d::Progress&) { throw std::runtime_error("enough"); };
    EXPECT_THROW(DataSet::open(files(), {}, watch), std::runtime_error);
    EXPECT_EQ(DataSet::open(files()).zones().size(), 2u);
}

} // namespace
} // namespace plot3dtest
