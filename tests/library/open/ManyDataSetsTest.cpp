// Several data sets at once: opened, read, moved and closed in any order, on any thread.
#include <optional>
#include <thread>

#include <plot3d/FieldReader.h>

#include "SeriesFixture.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using writer::FileKind_e;

class ManyDataSets : public SeriesTest {
protected:
    /// A grid whose values are of that step; text, so that some are held in memory.
    std::string writeGrid(int step) const {
        return writeStep("grid" + std::to_string(step) + ".x", FileKind_e::Grid, step, 0.0,
                         step % 2 == 0 ? doubleForm() : textForm());
    }
    static plot3d::OpenOptions asDoubles() {
        plot3d::OpenOptions options;
        options.instructions = {{"ASCIIISDOUBLE", "Yes"}};
        return options;
    }
    DataSet openGrid(int step) const { return DataSet::open({writeGrid(step)}, asDoubles()); }
};

TEST_F(ManyDataSets, KeepTheirValuesBesideEachOther) {
    const DataSet first = openGrid(1);
    const DataSet second = openGrid(2);
    const DataSet third = openGrid(3);
    EXPECT_TRUE(isOfStep(second, 1, 0, 2, 2, 1));
    EXPECT_TRUE(isOfStep(first, 1, 0, 2, 1, 1));
    EXPECT_TRUE(isOfStep(third, 1, 0, 2, 3, 1));
}

TEST_F(ManyDataSets, MayBeClosedInAnyOrder) {
    std::optional<DataSet> first(openGrid(1));
    std::optional<DataSet> second(openGrid(2));
    first.reset();
    const DataSet third = openGrid(3);
    EXPECT_TRUE(isOfStep(*second, 0, 0, 2, 2, 0));
    second.reset();
    EXPECT_TRUE(isOfStep(third, 0, 0, 2, 3, 0));
}

TEST_F(ManyDataSets, CanBeMoved) {
    DataSet data = openGrid(1);
    DataSet other = openGrid(2);
    other = std::move(data);
    const DataSet last = std::move(other);
    EXPECT_TRUE(isOfStep(last, 1, 0, 2, 1, 1));
}

TEST_F(ManyDataSets, LeaveReadersThatGoOn) {
    std::optional<DataSet> data(openGrid(1));
    const plot3d::FieldReader reader = data->reader(1, 2);
    const std::vector<double> expected = data->values(1, 2);
    data.reset();
    std::vector<double> found(expected.size());
    reader.readAsDouble(plot3d::Box::whole(reader.size()), found.data());
    EXPECT_EQ(found, expected);
}

TEST_F(ManyDataSets, AreOpenedReadAndClosedOnAnyThread) {
    constexpr int threadCount = 8;
    for (int step = 0; step < threadCount; ++step)
        writeGrid(step);
    std::vector<std::thread> threads;
    for (int step = 0; step < threadCount; ++step)
        threads.emplace_back([this, step] {
            for (int round = 0; round < 10; ++round) {
                const DataSet data =
                    DataSet::open({file("grid" + std::to_string(step) + ".x")}, asDoubles());
                EXPECT_TRUE(isOfStep(data, 1, 0, 2, step, 1));
            }
        });
    for (std::thread& thread : threads)
        thread.join();
}

TEST_F(ManyDataSets, AreReadByManyThreadsAtOnce) {
    const DataSet data = openGrid(4);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&data] {
            for (int round = 0; round < 20; ++round)
                EXPECT_TRUE(isOfStep(data, 0, 0, 2, 4, 0));
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
} // namespace plot3dtest
