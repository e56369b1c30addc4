// Loads by an add-on in a library of its own, whose fields are known through the host alone.
#include <filesystem>
#include <optional>
#include <thread>

#include "SeriesFixture.h"
#include "plot3d/FieldReader.h"
#include "session/ReferenceHost.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using plot3d::ErrorKind;
using plot3d::FieldKind;
using quorvia::host::ReferenceHost;
using writer::FileKind_e;

class OtherAddOn : public SeriesTest {
protected:
    OtherAddOn() { host().reset(); }
    ~OtherAddOn() override {
        EXPECT_TRUE(host().log().violations.empty());
        EXPECT_EQ(host().frames().size(), 1u);
        host().reset();
    }
    static ReferenceHost& host() { return ReferenceHost::instance(); }

    static plot3d::OpenOptions byAddOn(const std::string& path = PLOT3DLOADER_FILE) {
        plot3d::OpenOptions options;
        options.addOn = path;
        return options;
    }
    std::vector<std::string> files(int step = 1) const {
        const std::string number = std::to_string(step);
        return {writeStep("wing" + number + ".x", FileKind_e::Grid, 0),
                writeStep("wing" + number + ".q", FileKind_e::ClassicSolution, step, 0.25)};
    }
    std::optional<DataSet> opened(int step = 1) const {
        return DataSet::open(files(step), byAddOn());
    }
    static bool isStep(const DataSet& data, int step) {
        return isOfStep(data, 0, 0, 2, 0, 0) && isOfStep(data, 0, 3, 7, step, 0) &&
               isOfStep(data, 1, 3, 7, step, 1);
    }
    static ErrorKind readFailure(const plot3d::FieldReader& reader, std::stop_token stop = {}) {
        std::vector<double> values(30);
        try {
            reader.read(values.data(), std::move(stop));
        } catch (const plot3d::Error& error) {
            return error.kind();
        }
        return ErrorKind::Usage; // which no read of a whole field ends with
    }
};

TEST_F(OtherAddOn, BringsTheValuesInThroughTheHost) {
    const auto data = opened();
    ASSERT_EQ(data->zones().size(), 2u);
    EXPECT_EQ(data->kind(1, 4), FieldKind::AtHost);
    EXPECT_EQ(data->files().solution, (std::vector<std::string>{file("wing1.q")}));
    EXPECT_TRUE(isStep(*data, 1));
}

TEST_F(OtherAddOn, TellsNoSource) {
    EXPECT_THROW(opened()->source(1, 4), plot3d::Error);
}

TEST_F(OtherAddOn, MayHaveSeveralDataSetsClosedInAnyOrder) {
    auto first = opened(1);
    auto second = opened(2);
    const auto linked = DataSet::open(files(3));
    EXPECT_EQ(host().frames().size(), 3u);
    first.reset();
    EXPECT_TRUE(isStep(*second, 2));
    EXPECT_TRUE(isStep(linked, 3));
}

TEST_F(OtherAddOn, ServesReadersThatOutliveTheDataSet) {
    auto data = opened();
    const plot3d::FieldReader reader = data->reader(0, 0);
    data.reset();
    std::vector<double> values(30);
    reader.read(values.data());
    EXPECT_EQ(values[1], valueOf(0, 0, 0, 1, 0, 0));
}

TEST_F(OtherAddOn, ServesSeveralThreads) {
    const auto data = opened();
    std::vector<std::thread> threads;
    std::vector<int> isRight(3);
    for (std::size_t n = 0; n < isRight.size(); ++n)
        threads.emplace_back([&, n] { isRight[n] = isStep(*data, 1); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(isRight, (std::vector<int>{1, 1, 1}));
}

TEST_F(OtherAddOn, LeavesASessionOfTheHostAlone) {
    DataSet::open({writeStep("first.x", FileKind_e::Grid, 7)});
    ASSERT_TRUE(host()
                    .importInstructions({"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1",
                                         writeStep("own.x", FileKind_e::Grid, 4)},
                                        host().loaders().front())
                    .ok);
    const auto data = opened();
    const auto ofSession = DataSet::of(host().frame());
    EXPECT_TRUE(isOfStep(ofSession, 1, 0, 2, 4, 1));
    EXPECT_TRUE(isStep(*data, 1));
    EXPECT_EQ(ofSession.kind(0, 0), FieldKind::InFile);
    EXPECT_EQ(host().fetchedBytes(), 0);
}

TEST_F(OtherAddOn, SaysWhenTheHostHasEndedItsData) {
    const auto data = opened();
    const plot3d::FieldReader reader = data->reader(0, 0);
    host().reset();
    EXPECT_EQ(readFailure(reader), ErrorKind::Unreadable);
}

TEST_F(OtherAddOn, SaysWhatItCouldNotRead) {
    const auto names = files();
    const auto data = DataSet::open(names, byAddOn());
    std::filesystem::remove(names[1]);
    EXPECT_TRUE(isOfStep(data, 0, 0, 2, 0, 0));
    EXPECT_EQ(readFailure(data.reader(0, 4)), ErrorKind::Unreadable);
    EXPECT_TRUE(host().log().messages.empty());
}

TEST_F(OtherAddOn, StopsWhenItIsTold) {
    const auto data = opened();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(readFailure(data->reader(0, 4), stop.get_token()), ErrorKind::Interrupted);
    EXPECT_TRUE(isStep(*data, 1));
}

TEST_F(OtherAddOn, FailsAsTheOneInside) {
    const std::string none = write("none.x", std::string(99, 'n'));
    const plot3d::Error other = failureOf({none}, byAddOn());
    EXPECT_STREQ(other.what(), failureOf({none}).what());
    EXPECT_EQ(other.kind(), ErrorKind::NotPlot3D);
}

TEST_F(OtherAddOn, IsRefusedIfItIsNone) {
    const auto grid = writeStep("wing.x", FileKind_e::Grid, 0);
    EXPECT_EQ(failureOf({grid}, byAddOn(file("gone.so"))).kind(), ErrorKind::NotFound);
    EXPECT_EQ(failureOf({grid}, byAddOn(PLOT3D_FILE)).kind(), ErrorKind::Unsupported);
    EXPECT_EQ(failureOf({grid}, byAddOn(grid)).kind(), ErrorKind::Unsupported);
}

} // namespace
} // namespace plot3dtest
