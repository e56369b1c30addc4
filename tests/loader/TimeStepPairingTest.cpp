// How files pair up whose numbers are refused ahead of it, and which sizes are compared. What loads
// make of their files: tests/facts/FileCountsTest.cpp and HeaderAgreementTest.cpp.
#include "loader/TimeStepPairing.h"
#include "LoaderFixture.h"
#include "support/AllocationFaults.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

struct PairingCase_s {
    std::size_t g;
    std::size_t s;
    std::size_t f;
    const char* steps; // time steps, each with its files by list and index
};

class TimeSteps : public LoaderTest {
protected:
    static void fill(Plot3DFileList& files, const std::string& letter, std::size_t count,
                     Plot3DStyle_e style) {
        for (std::size_t index = 0; index < count; ++index)
            files.push_back(recordOf(letter + std::to_string(index), 1, style));
    }
    void fillLists(std::size_t g, std::size_t s, std::size_t f) {
        fill(grids, "G", g, Plot3DStyle_Classic);
        fill(solutions, "S", s, Plot3DStyle_Classic);
        fill(functions, "F", f, Plot3DStyle_Function);
    }
    bool pair() { return pairFilesIntoHandlers(options, grids, solutions, functions, handlers); }
    bool dimensionsAgree() {
        return checkHandlerDimensions(handlers, options.uniformGridStructure);
    }
    static std::string nameOf(const Plot3DFile_s* file) {
        return file != nullptr ? file->fileName.str() : "-";
    }
    std::string steps() const {
        std::string text;
        for (const Plot3DFileHandler& handler : handlers) {
            text += "[" + nameOf(handler.gridFile) + " " + nameOf(handler.solutionFile);
            for (const Plot3DFile_s* file : handler.functionFiles)
                text += " " + nameOf(file);
            text += "]";
        }
        return text;
    }

    Plot3DFileList grids;
    Plot3DFileList solutions;
    Plot3DFileList functions;
    std::vector<Plot3DFileHandler> handlers;
};

class RefusedCounts : public TimeSteps, public ::testing::WithParamInterface<PairingCase_s> {};

TEST_P(RefusedCounts, MakeTheTimeStepsThatTheyHaveFilesFor) {
    const PairingCase_s& row = GetParam();
    fillLists(row.g, row.s, row.f);
    EXPECT_TRUE(pair());
    EXPECT_EQ(steps(), row.steps);
}

INSTANTIATE_TEST_SUITE_P(Rules, RefusedCounts,
                         ::testing::Values(PairingCase_s{0, 0, 0, ""}, PairingCase_s{0, 2, 3, ""},
                                           PairingCase_s{0, 1, 2, "[- S0 F0 F1]"},
                                           PairingCase_s{2, 0, 3, ""},
                                           PairingCase_s{3, 0, 2, "[G0 - F0][G1 - F1]"},
                                           PairingCase_s{2, 2, 3, "[G0 S0][G1 S1]"},
                                           PairingCase_s{2, 3, 3, ""}, PairingCase_s{3, 2, 0, ""},
                                           PairingCase_s{1, 3, 2, "[G0 S0][G0 S1][G0 S2]"}));

TEST_F(TimeSteps, AreRefusedInSilenceWithoutMemory) {
    fillLists(1, 2, 0);
    failNextAllocation();
    EXPECT_FALSE(pair());
    EXPECT_FALSE(cancelAllocationFault());
    EXPECT_TRUE(handlers.empty());
    EXPECT_EQ(messages(), Texts());
}

TEST_F(TimeSteps, DoNotCompareFunctionFilesBesideAGridAndASolution) {
    fillLists(1, 1, 1);
    functions[0]->gridDims[0].i = 7;
    pair();
    EXPECT_TRUE(dimensionsAgree());
}

TEST_F(TimeSteps, CompareFunctionFilesWithTheSolutionIfThereIsNoGrid) {
    fillLists(0, 2, 2);
    functions[1]->gridDims[0].j = 7;
    pair();
    options.uniformGridStructure = false;
    EXPECT_FALSE(dimensionsAgree());
    EXPECT_EQ(messages(), Texts{"Grid 0 in file F1 does not have the same dimensions as the "
                                "corresponding grid in the previous datafile."});
}

TEST_F(TimeSteps, AfterTheFirstAreNotComparedUnderAUniformStructure) {
    fillLists(1, 2, 0);
    solutions[1]->gridDims[0].j = 7;
    pair();
    options.uniformGridStructure = true;
    EXPECT_TRUE(dimensionsAgree());
    options.uniformGridStructure = false;
    EXPECT_FALSE(dimensionsAgree());
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(TimeSteps, OfFunctionFilesAloneAreNotCompared) {
    fillLists(0, 0, 2);
    functions[1]->gridDims[0].j = 7;
    pair();
    options.uniformGridStructure = false;
    EXPECT_TRUE(dimensionsAgree());
}

} // namespace
} // namespace quorvia::testsupport
