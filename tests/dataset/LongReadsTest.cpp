// Reads that take long ask whether they are to go on.
#include "dataset/ondemand/LongReads.h"

#include <filesystem>

#include "DatasetFixture.h"
#include "dataset/ondemand/LoadOnDemand.h"
#include "support/FakeDisk.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

constexpr std::int64_t mebibyte = 1024 * 1024;
constexpr std::int64_t eightMiB = 8 * mebibyte;

class LongReads : public DatasetTest {
protected:
    /// A grid file of one grid of so many points that reads as zeros.
    Plot3DFile_s& writeSparse(const GridDims_s& dims, Encoding_e encoding = Encoding_e::Binary) {
        FileDescription_s grid = describeGrid({dims});
        grid.isHole = [](std::int32_t, std::int32_t, std::int32_t) { return true; };
        return write("x", grid, encoding == Encoding_e::Binary ? binary() : fortran());
    }
    /// Has the user interrupt while bytes are read, rather than between two fields.
    static void interruptAtByte(FakeDisk& files, std::int64_t byte) {
        files.onRead = [&files, byte] {
            if (files.bytesRead >= byte)
                host().requestInterrupt();
        };
    }
};

// 17.2 million points: every value is read, one of them is kept.
TEST_F(LongReads, OfAnIndexRangeEndOnInterruptionWithoutAWord) {
    options.iRange = options.jRange = options.kRange = {1, 1, 1};
    Plot3DFile_s& grid = writeSparse({257, 257, 261});
    FakeDisk files(FakeDisk::Behind_e::Platform);
    interruptAtByte(files, mebibyte);
    EXPECT_FALSE(load({step(&grid)}));
    EXPECT_EQ(messages(), Texts());
    EXPECT_LT(files.bytesRead, 65 * mebibyte);
}

TEST_F(LongReads, OfFieldsForAHostWithoutArraysEndOnInterruptionWithoutAWord) {
    options.iRange = {2, 0, 1};
    host().settings().plainArrays = false;
    Plot3DFile_s& grid = writeSparse({257, 257, 261}, Encoding_e::Fortran);
    FakeDisk files(FakeDisk::Behind_e::Platform);
    interruptAtByte(files, mebibyte);
    EXPECT_FALSE(load({step(&grid)}));
    EXPECT_EQ(messages(), Texts());
    EXPECT_LT(files.bytesRead, 65 * mebibyte);
}

// 4.4 million triangles.
TEST_F(LongReads, OfConnectivityEndOnInterruptionWithoutAWord) {
    FileDescription_s description = describeGrid({{3, 4'400'000, 0}}, Layout_e::Unstructured);
    description.corner = [](std::int32_t, std::int64_t, std::int32_t) { return 1; };
    Plot3DFile_s& grid = write("x", description);
    FakeDisk files(FakeDisk::Behind_e::Platform);
    interruptAtByte(files, mebibyte);
    EXPECT_FALSE(load({step(&grid)}));
    EXPECT_EQ(messages(), Texts());
    EXPECT_LT(files.bytesRead, 65 * mebibyte);
}

TEST_F(LongReads, OfALoadGoOnWhileNobodyInterrupts) {
    options.iRange = options.jRange = options.kRange = {1, 1, 1};
    ASSERT_TRUE(load({step(&writeSparse({257, 257, 261}))}));
    EXPECT_GT(host().callCount("QuorUtilInterruptIsSet"), 0);
    EXPECT_EQ(values(1, 3), Numbers{0});
}

TEST_F(LongReads, OfShortFilesAskNothing) {
    options.iRange = {2, 0, 1};
    ASSERT_TRUE(load({step(&writeSparse({101, 103, 107}))}));
    EXPECT_EQ(host().callCount("QuorUtilInterruptIsSet"), 0);
}

// ---- A fetch

TEST_F(LongReads, OfAFetchTakeABarOfTheirOwn) {
    FetchWatch watch(10 * eightMiB);
    EXPECT_EQ(host().callCount("createTaskProgressBar"), 0);
    EXPECT_TRUE(watch.goesOn(8 * eightMiB));
    EXPECT_EQ(host().callCount("createTaskProgressBar"), 1);
    EXPECT_EQ(host().callCount("TaskProgress::step"), 8);
    EXPECT_TRUE(watch.goesOn(eightMiB));
    EXPECT_EQ(host().callCount("TaskProgress::step"), 9);
}

TEST_F(LongReads, OfAFetchStopWhenAStepSaysSo) {
    FetchWatch watch(10 * eightMiB);
    host().failCall("TaskProgress::step", 9);
    EXPECT_TRUE(watch.goesOn(8 * eightMiB));
    EXPECT_FALSE(watch.goesOn(eightMiB));
}

// A host may fetch at any time, and needs no lock for it.
TEST_F(LongReads, OfAFetchNeedNoLock) {
    QuorUtilLockOff();
    {
        FetchWatch watch(10 * eightMiB);
        EXPECT_TRUE(watch.goesOn(8 * eightMiB));
    }
    QuorUtilLockOn();
    EXPECT_EQ(host().log().violations, Texts());
}

TEST_F(LongReads, OfAFetchForWhichThereIsNoBarAreTold) {
    ASSERT_TRUE(load({step(&writeSparse({257, 257, 261}))}));
    host().failCall("createTaskProgressBar", 1);
    EXPECT_FALSE(host().fetch(1, 1).ok);
    EXPECT_EQ(messages(),
              Texts{"An unknown error occurred while reading data from the Plot3D file"});
    EXPECT_TRUE(host().fetch(1, 1).ok);
}

} // namespace
