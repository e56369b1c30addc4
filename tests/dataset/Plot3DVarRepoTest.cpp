#include "dataset/ondemand/Plot3DVarRepo.h"
#include "DatasetFixture.h"
#include "dataset/ondemand/LoadOnDemand.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

class VarRepo : public DatasetTest {
protected:
    Plot3DVarRepo& repo = Plot3DVarRepo::instance();
};

TEST_F(VarRepo, TellsAllThatAReadNeeds) {
    Plot3DFile_s& file = recordOf("dir/q.bin");
    file.encoding = Plot3DEncoding_FortranUnformatted;
    file.isDoublePrecision = true;
    file.byteSwap = true;
    file.markerSize = 8;
    file.segmentBoundaries = {7, 11};
    const auto variable = repo.getVariable(file);
    EXPECT_EQ(variable->fileName, "dir/q.bin");
    EXPECT_EQ(variable->encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_TRUE(variable->isDoublePrecision && variable->byteSwap);
    EXPECT_EQ(variable->markerSize, 8U);
    EXPECT_EQ(variable->segmentBoundaries, (std::vector<std::int64_t>{7, 11}));
}

TEST_F(VarRepo, SharesOneRecordForAFile) {
    Plot3DFile_s& file = recordOf("q");
    EXPECT_EQ(repo.getVariable(file), repo.getVariable(file));
    EXPECT_NE(repo.getVariable(file), repo.getVariable(recordOf("q")));
}

TEST_F(VarRepo, LetsGoWhenCleared) {
    Plot3DFile_s& file = recordOf("q");
    const std::weak_ptr<Plot3DVariable_s> first = repo.getVariable(file);
    repo.clear();
    EXPECT_TRUE(first.expired());
}

TEST_F(VarRepo, MakesANewRecordForTheNextFileSet) {
    Plot3DFile_s& file = recordOf("q");
    const auto first = repo.getVariable(file);
    repo.clear();
    EXPECT_NE(repo.getVariable(file), first);
}

TEST(LodRecord, IsASharedPointerAndTwoNumbers) {
    EXPECT_EQ(sizeof(Plot3DLodRecord_s), sizeof(std::shared_ptr<Plot3DVariable_s>) + 16);
}

} // namespace
