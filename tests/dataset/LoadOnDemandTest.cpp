#include "dataset/ondemand/LoadOnDemand.h"

#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "DatasetFixture.h"
#include "quorvia/QuorUtilityLibrary.h"
#include "support/FakeDisk.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

const GridList oneGrid = {{2, 3, 5}};

/// A data set of a zone of 7 points with X, and a file that X is read from.
class LoadOnDemand : public DatasetTest {
protected:
    void SetUp() override {
        makeDataSet({"X"});
        makeZone({7, 1, 1}, 1);
    }

    std::shared_ptr<Plot3DVariable_s> source(const std::string& bytes) {
        auto variable = std::make_shared<Plot3DVariable_s>();
        variable->fileName = directory.write("x.bin", bytes);
        variable->encoding = Plot3DEncoding_Binary;
        variable->isDoublePrecision = false;
        variable->byteSwap = false;
        variable->markerSize = 4;
        return variable;
    }

    static std::string bytesOf(const std::vector<float>& numbers) {
        std::string bytes(numbers.size() * sizeof(float), '\0');
        std::memcpy(bytes.data(), numbers.data(), bytes.size());
        return bytes;
    }

    const std::vector<float> sevenNumbers = {2, 3, 5, 7, 11, 13, 17};
    const Numbers sevenValues = {2, 3, 5, 7, 11, 13, 17};
};

TEST_F(LoadOnDemand, ReadsFromThePositionOfTheField) {
    ASSERT_TRUE(registerLodVariable(source("skip" + bytesOf(sevenNumbers) + "rest"), 1, 1, 4, 7));
    EXPECT_EQ(state(1, 1), host::FieldState_e::Deferred);
    EXPECT_EQ(values(1, 1), sevenValues);
}

TEST_F(LoadOnDemand, TakesOneOpenAndOneRead) {
    ASSERT_TRUE(registerLodVariable(source(bytesOf(sevenNumbers)), 1, 1, 0, 7));
    const FakeDisk files(FakeDisk::Behind_e::Platform);
    host().fetch(1, 1);
    EXPECT_EQ(files.opened.size(), 1U);
    EXPECT_EQ(files.readCount, 1);
    EXPECT_EQ(files.bytesRead, 28);
}

TEST_F(LoadOnDemand, ReversesTheOtherByteOrder) {
    std::string bytes = bytesOf(sevenNumbers);
    for (std::size_t at = 0; at < bytes.size(); at += 4) {
        std::swap(bytes[at], bytes[at + 3]);
        std::swap(bytes[at + 1], bytes[at + 2]);
    }
    const auto variable = source(bytes);
    variable->byteSwap = true;
    ASSERT_TRUE(registerLodVariable(variable, 1, 1, 0, 7));
    EXPECT_EQ(values(1, 1), sevenValues);
}

TEST_F(LoadOnDemand, ReadsTheSameBytesAgainAfterAnUnload) {
    ASSERT_TRUE(registerLodVariable(source(bytesOf(sevenNumbers)), 1, 1, 0, 7));
    values(1, 1);
    ASSERT_TRUE(host().unload(1, 1));
    EXPECT_EQ(host().fetchedBytes(), 0);
    EXPECT_EQ(values(1, 1), sevenValues);
}

// The payload breaks off behind 3 values; a trailing and a leading marker stand there.
TEST_F(LoadOnDemand, StepsOverTheMarkersBetweenSegments) {
    const std::string bytes = bytesOf(sevenNumbers);
    const auto variable = source("lead" + bytes.substr(0, 12) + "markmark" + bytes.substr(12));
    variable->encoding = Plot3DEncoding_FortranUnformatted;
    variable->segmentBoundaries = {16};
    ASSERT_TRUE(registerLodVariable(variable, 1, 1, 4, 7));
    EXPECT_EQ(values(1, 1), sevenValues);
}

TEST_F(LoadOnDemand, LetsGoOfTheFileWithTheLastField) {
    auto variable = source(bytesOf(sevenNumbers));
    const std::weak_ptr<Plot3DVariable_s> watched = variable;
    ASSERT_TRUE(registerLodVariable(variable, 1, 1, 0, 7));
    variable.reset();
    EXPECT_FALSE(watched.expired());
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
    EXPECT_TRUE(watched.expired());
}

TEST_F(LoadOnDemand, LeavesNothingBehindWhenTheHostRefuses) {
    auto variable = source(bytesOf(sevenNumbers));
    host().failCall("QuorUtilDataValueCustomLOD", 1);
    EXPECT_FALSE(registerLodVariable(variable, 1, 1, 0, 7));
    EXPECT_EQ(variable.use_count(), 1);
}

TEST_F(LoadOnDemand, TellsEachTimeThatTheFileIsGone) {
    const auto variable = source(bytesOf(sevenNumbers));
    ASSERT_TRUE(registerLodVariable(variable, 1, 1, 0, 7));
    std::filesystem::remove(variable->fileName);
    const std::string told = "The file " + variable->fileName + " could not be opened.";
    EXPECT_EQ(host().fetch(1, 1).error, told);
    EXPECT_FALSE(host().fetch(1, 1).ok);
    EXPECT_EQ(messages(), (Texts{told, told}));
}

TEST_F(LoadOnDemand, SaysNothingOfAFileThatIsTooShort) {
    ASSERT_TRUE(registerLodVariable(source(bytesOf({2, 3, 5})), 1, 1, 0, 7));
    EXPECT_FALSE(host().fetch(1, 1).ok);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(LoadOnDemand, FailsAtPositionsThatNoFileHas) {
    ASSERT_TRUE(registerLodVariable(source(bytesOf(sevenNumbers)), 1, 1, -1, 7));
    EXPECT_FALSE(host().fetch(1, 1).ok);
    ASSERT_TRUE(registerLodVariable(source(bytesOf(sevenNumbers)), 1, 1, 0, INT64_MAX));
    EXPECT_FALSE(host().fetch(1, 1).ok);
}

// 64-bit values of the file would run over the end of the host's 32-bit array.
TEST_F(LoadOnDemand, RefusesAnArrayOfNarrowerValues) {
    const auto variable = source(std::string(56, '\1'));
    variable->isDoublePrecision = true;
    ASSERT_TRUE(registerLodVariable(variable, 1, 1, 0, 7));
    EXPECT_FALSE(host().fetch(1, 1).ok);
}

TEST_F(LoadOnDemand, SaysNothingOfAnInterruption) {
    ASSERT_TRUE(registerLodVariable(source(bytesOf(sevenNumbers)), 1, 1, 0, 7));
    FakeDisk files(FakeDisk::Behind_e::Platform);
    files.onRead = [] { throw InterruptedException(); };
    EXPECT_FALSE(host().fetch(1, 1).ok);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(LoadOnDemand, TellsOfAnyOtherException) {
    ASSERT_TRUE(registerLodVariable(source(bytesOf(sevenNumbers)), 1, 1, 0, 7));
    FakeDisk files(FakeDisk::Behind_e::Platform);
    files.onRead = [] { throw std::runtime_error("the disk is on fire"); };
    EXPECT_FALSE(host().fetch(1, 1).ok);
    EXPECT_EQ(messages(),
              Texts{"An unknown error occurred while reading data from the Plot3D file"});
}

} // namespace
