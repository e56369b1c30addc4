// One thing at a time goes wrong in a small load: every call of the host that can fail, every step
// at which the user can interrupt. Whatever happens, nothing leaks, the lock is balanced (the
// fixture asks for both), the frame is empty, untouched or whole, and a second load works.
#include <new>

#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

const GridList twoGrids = {{2, 3, 5}, {3, 5, 7}};

/// What makes a load take another road through the dataset stage.
struct FaultCase_s {
    const char* name;
    plot3dwriter::Encoding_e encoding;
    bool sharingAllowed;
    bool plainArrays;
};

class LoadFaults : public LoaderTest, public ::testing::WithParamInterface<FaultCase_s> {
protected:
    enum class Outcome_e { Loaded, Failed, OutOfMemory };

    LoadFaults() {
        form.encoding = GetParam().encoding;
        host().settings().sharingAllowed = GetParam().sharingAllowed;
        host().settings().plainArrays = GetParam().plainArrays;
        files = {gridFile("a.x", twoGrids), solutionFile("a.q", twoGrids, 0.25),
                 solutionFile("b.q", twoGrids, 0.75), functionFile("a.fun", twoGrids, 2),
                 functionFile("b.fun", twoGrids, 2)};
    }
    /// A frame with a data set of another program, nothing logged, and fresh options.
    void begin() {
        quorutildataio::releaseLoadOptions(options);
        setLoadOptionDefaults(options);
        useFiles({files[0]}, {files[1], files[2]}, {files[3], files[4]});
        selectGrids({1, 2});
        host().frame().reset();
        makeOldDataSet({"old"}, 3);
        host().clearLog();
        host().clearFaults();
    }
    Outcome_e attempt() {
        try {
            return load() ? Outcome_e::Loaded : Outcome_e::Failed;
        } catch (const std::bad_alloc&) {
            return Outcome_e::OutOfMemory;
        }
    }
    /// Which of a load's blocks of host memory, from 1, has this label.
    std::int64_t allocationNumber(const std::string& label) {
        host().recordTranscript(true);
        attempt();
        const Texts calls = host().log().transcript;
        host().recordTranscript(false);
        std::int64_t number = 0;
        for (const std::string& call : calls) {
            if (call.find("QuorUtilStringAlloc(") != 0)
                continue;
            ++number;
            if (call.find(label) != std::string::npos)
                return number;
        }
        return 0;
    }
    static bool isUntouched() { return variableNames() == Texts{"old"} && zoneCount() == 3; }
    static bool isEmpty() { return host().frame().dataSet() == nullptr; }
    static bool isWhole() { return variableNames().size() == 10 && zoneCount() == 4; }

    void expectCleanEnd(Outcome_e outcome, const std::string& story) {
        if (outcome == Outcome_e::Loaded)
            EXPECT_TRUE(isWhole()) << story;
        else
            EXPECT_TRUE(isUntouched() || isEmpty() || isWhole()) << story;
        EXPECT_EQ(host().lockDepth(), 0) << story;
        EXPECT_EQ(host().log().violations, Texts()) << story;
    }
    void expectSecondLoad(const std::string& story) {
        begin();
        EXPECT_EQ(attempt(), Outcome_e::Loaded) << story;
        EXPECT_TRUE(isWhole()) << story;
    }

    Texts files;
};

TEST_P(LoadFaults, OfEveryHostCallEndCleanly) {
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail()) {
        for (std::int64_t n = 1; true; ++n) {
            begin();
            host().failCall(operation, n);
            const Outcome_e outcome = attempt();
            const bool happened = host().callCount(operation) >= n;
            host().clearFaults();
            expectCleanEnd(outcome, operation + " " + std::to_string(n));
            if (!happened) {
                EXPECT_EQ(outcome, Outcome_e::Loaded) << operation;
                break;
            }
        }
        expectSecondLoad("after " + operation);
    }
}

TEST_P(LoadFaults, OfHandedOverInstructionsAloneLeaveZonesBehind) {
    begin();
    host().failCall("QuorUtilImportSetLoaderInstr", 1);
    EXPECT_EQ(attempt(), Outcome_e::Failed);
    EXPECT_TRUE(isWhole());
}

TEST_P(LoadFaults, OfMemoryForNamesPassOutOfTheLoad) {
    begin();
    host().failCall("QuorUtilStringListSetString", 1);
    EXPECT_EQ(attempt(), Outcome_e::OutOfMemory);
    EXPECT_EQ(messages(), Texts());
    EXPECT_TRUE(isEmpty());
}

TEST_P(LoadFaults, OfMemoryForParentZonesAreSilent) {
    begin();
    const std::int64_t parentZones = allocationNumber("Parent Zone Array");
    begin();
    host().failCall("QuorUtilStringAlloc", parentZones);
    EXPECT_EQ(attempt(), Outcome_e::Failed);
    EXPECT_EQ(messages(), Texts());
    EXPECT_TRUE(isUntouched());
}

TEST_P(LoadFaults, OfMemoryForTheTypesOfVariablesAreTold) {
    begin();
    const std::int64_t types = allocationNumber("vardatatypes");
    begin();
    host().failCall("QuorUtilStringAlloc", types);
    EXPECT_EQ(attempt(), Outcome_e::Failed);
    EXPECT_EQ(messages(), Texts{"memory allocation error."});
    EXPECT_TRUE(isEmpty());
}

TEST_P(LoadFaults, OfTheUserAtEveryStepEndCleanly) {
    begin();
    host().interruptAtStep(1000000);
    ASSERT_EQ(attempt(), Outcome_e::Loaded);
    const std::int64_t steps = host().stepCount();
    ASSERT_GT(steps, 10);
    for (std::int64_t n = 1; n <= steps; ++n) {
        begin();
        host().interruptAtStep(n);
        const Outcome_e outcome = attempt();
        const bool inHeaders = !showedProgress("Creating the dataset");
        const std::string story = "step " + std::to_string(n);
        if (outcome == Outcome_e::Failed) {
            EXPECT_EQ(messages(), inHeaders ? Texts() : Texts{"Plot3D Data load interrupted"})
                << story;
            EXPECT_TRUE(inHeaders ? isUntouched() : isEmpty()) << story;
        }
        host().clearFaults();
        expectCleanEnd(outcome, story);
    }
    expectSecondLoad("after interruptions");
}

TEST_P(LoadFaults, OfTheUserInTheThirdOfFiveStepsLeaveAnEmptyFrame) {
    begin();
    Texts solutions;
    for (const char* name : {"1.q", "2.q", "3.q", "4.q", "5.q"})
        solutions.push_back(solutionFile(name, twoGrids, std::stod(name)));
    useFiles({files[0]}, solutions);
    host().settings().progressObserver = [&](const host::ProgressState_s&) {
        if (zoneCount() == 6)
            host().requestInterrupt();
    };
    EXPECT_EQ(attempt(), Outcome_e::Failed);
    host().settings().progressObserver = nullptr;
    EXPECT_EQ(messages(), Texts{"Plot3D Data load interrupted"});
    EXPECT_TRUE(isEmpty());
}

using plot3dwriter::Encoding_e;

INSTANTIATE_TEST_SUITE_P(
    Roads, LoadFaults,
    ::testing::Values(FaultCase_s{"Binary", Encoding_e::Binary, true, true},
                      FaultCase_s{"BinaryWithoutSharing", Encoding_e::Binary, false, true},
                      FaultCase_s{"Fortran", Encoding_e::Fortran, true, true},
                      FaultCase_s{"Text", Encoding_e::Text, true, true},
                      FaultCase_s{"TextWithoutPlainArrays", Encoding_e::Text, true, false}),
    [](const ::testing::TestParamInfo<FaultCase_s>& row) { return std::string(row.param.name); });

} // namespace
} // namespace quorvia::testsupport
