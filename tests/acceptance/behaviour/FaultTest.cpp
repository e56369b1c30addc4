// One thing at a time goes wrong in a small load, in the library as it is shipped: every call of
// the host that can fail, every step at which the user can interrupt. Each load begins on a frame
// that another load has filled, and behind each a load without faults must give the right values.
#include <algorithm>
#include <set>

#include "acceptance/behaviour/Snapshot.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Encoding_e;

/// What makes a load take another road.
struct Road_s {
    const char* name;
    Load_s (*makeLoad)(SmallFiles& files);
    bool sharingAllowed = true;
    bool plainArrays = true;
};

Load_s gridAndSolution(SmallFiles& files) {
    return {.gridFiles = {files.grid("a.x", true)}, .solutionFiles = {files.solution("a.q", 0.25)}};
}

Load_s textFiles(SmallFiles& files) {
    files.form.encoding = Encoding_e::Text;
    return gridAndSolution(files);
}

Load_s surfaceInTwoSteps(SmallFiles& files) {
    return {
        .gridFiles = {files.surface("a.x")},
        .solutionFiles = {files.surfaceSolution("1.q", 0.25), files.surfaceSolution("2.q", 0.75)}};
}

Load_s twoTimeSteps(SmallFiles& files) {
    return {.gridFiles = {files.grid("a.x", true)},
            .solutionFiles = {files.solution("1.q", 0.5), files.solution("2.q", 0.5)},
            .settings = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}, {"ASSIGNSTRANDIDS", "Yes"}}};
}

Load_s someGridsOfFunctionFiles(SmallFiles& files) {
    return {.gridFiles = {files.grid("a.x")},
            .functionFiles = {files.function("1.f", 2), files.function("2.f", 2)},
            .settings = {{"FILEGRIDSET", "2"}}};
}

Load_s fortranGridFiles(SmallFiles& files) {
    files.form.encoding = Encoding_e::Fortran;
    return {.gridFiles = {files.grid("1.x", true), files.grid("2.x", true)},
            .solutionFiles = {files.solution("1.q", 0.25), files.solution("2.q", 0.75)},
            .settings = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}, {"ASSIGNSTRANDIDS", "Yes"}}};
}

Load_s subset(SmallFiles& files) {
    Load_s load = gridAndSolution(files);
    load.settings = {{"IINDEXRANGE", "1,,2"}, {"KINDEXRANGE", "2,,1"}};
    return load;
}

/// A load goes on without what these refused: a zone's auxiliary data, its time, a shared field.
const std::set<std::string> toleratedOperations = {
    "QuorUtilAuxDataZoneGetRef",
    "QuorUtilZoneSetSolutionTime",
    "QuorUtilDataValueShare",
};

/// Refusals of these end a load without a message.
const std::set<std::string> silentOperations = {
    "QuorUtilImportSetLoaderInstr", "QuorUtilStringAlloc",
    "QuorUtilStringListAlloc",      "QuorUtilSetAlloc",
    "QuorUtilArgListAlloc",         "QuorUtilStringListGetString",
    "TaskProgress::setMessage",     "TaskProgress::step",
};

class FaultyLoad : public LoadedAddOnTest, public ::testing::WithParamInterface<Road_s> {
protected:
    void SetUp() override {
        SmallFiles oldFiles(directory().path().string());
        oldFiles.grids = {{5, 2, 3}};
        old_ = {.gridFiles = {oldFiles.grid("old.x")}};
        load_ = GetParam().makeLoad(files_);
        beginAnew();
        expectLoads(load_);
        whole_ = snapshotOfFrame();
        wholeZones_ = zoneNames();
        ASSERT_NE(whole_, "null");
    }

    /// A frame with the old data set, and a host as the road wants it.
    void beginAnew() {
        host().reset();
        host().settings().sharingAllowed = GetParam().sharingAllowed;
        host().settings().plainArrays = GetParam().plainArrays;
        expectLoads(old_);
        oldSnapshot_ = snapshotOfFrame();
        host().clearLog();
        host().clearFaults();
    }

    static bool showed(const std::string& progress) {
        const Texts shown = host().log().progress.texts();
        return std::find(shown.begin(), shown.end(), progress) != shown.end();
    }

    /// A load that came to the data set stage and failed there leaves nothing in the frame; one
    /// that failed earlier leaves what there was, and one whose instructions were not taken has
    /// made everything.
    std::string expectedSnapshot() const {
        if (showed("Cleaning up..."))
            return "null";
        return host().log().redraws > 0 ? whole_ : oldSnapshot_;
    }

    static void expectContractKept(const std::string& story) {
        EXPECT_EQ(host().log().violations, Texts()) << story;
        EXPECT_EQ(host().lockDepth(), 0) << story;
    }

    void expectCleanEnd(const host::LoadResult_s& result, const std::string& story) const {
        expectContractKept(story);
        EXPECT_EQ(snapshotOfFrame(), result.ok ? whole_ : expectedSnapshot()) << story;
    }

    void expectCleanEndOf(const std::string& operation, const host::LoadResult_s& result,
                          const std::string& story) const {
        if (!result.ok || toleratedOperations.count(operation) == 0)
            return expectCleanEnd(result, story);
        expectContractKept(story);
        EXPECT_EQ(zoneNames(), wholeZones_) << story;
    }

    void expectGoodLoad(const std::string& story) {
        beginAnew();
        EXPECT_TRUE(load(load_).ok) << story;
        EXPECT_EQ(messages(), Texts()) << story;
        EXPECT_EQ(snapshotOfFrame(), whole_) << story;
    }

    SmallFiles files_{directory().path().string()};
    Load_s load_;
    Load_s old_;
    std::string whole_; // the frame after a good load
    Texts wholeZones_;
    std::string oldSnapshot_; // the frame before each load
};

TEST_P(FaultyLoad, OfEveryHostCallEndsCleanly) {
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail()) {
        for (std::int64_t n = 1; true; ++n) {
            const std::string story = operation + " " + std::to_string(n);
            beginAnew();
            host().failCall(operation, n);
            const host::LoadResult_s result = load(load_);
            const bool happened = host().callCount(operation) >= n;
            host().clearFaults();
            expectCleanEndOf(operation, result, story);
            if (!happened) {
                EXPECT_TRUE(result.ok) << operation;
                break;
            }
            const bool told = !messages().empty() || !result.hostError.empty();
            EXPECT_TRUE(result.ok || told || silentOperations.count(operation) != 0) << story;
            expectGoodLoad("after " + story);
        }
    }
}

TEST_P(FaultyLoad, OfTheUserAtEveryStepEndsCleanly) {
    beginAnew();
    host().interruptAtStep(1000000);
    load(load_);
    const std::int64_t steps = host().stepCount();
    ASSERT_GT(steps, 10);
    for (std::int64_t n = 1; n <= steps; ++n) {
        const std::string story = "step " + std::to_string(n);
        beginAnew();
        host().interruptAtStep(n);
        const host::LoadResult_s result = load(load_);
        const bool inStage = showed("Cleaning up...");
        host().clearFaults();
        expectCleanEnd(result, story);
        if (!result.ok) {
            EXPECT_EQ(messages(), inStage ? Texts{"Plot3D Data load interrupted"} : Texts())
                << story;
        }
        expectGoodLoad("after " + story);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Roads, FaultyLoad,
    ::testing::Values(Road_s{"GridAndSolution", gridAndSolution}, Road_s{"TextFiles", textFiles},
                      Road_s{"TextWithoutPlainArrays", textFiles, true, false},
                      Road_s{"SurfaceInTwoSteps", surfaceInTwoSteps},
                      Road_s{"TwoTimeSteps", twoTimeSteps},
                      Road_s{"TwoTimeStepsWithoutSharing", twoTimeSteps, false, true},
                      Road_s{"SomeGridsOfFunctionFiles", someGridsOfFunctionFiles},
                      Road_s{"FortranGridFiles", fortranGridFiles}, Road_s{"Subset", subset},
                      Road_s{"SubsetWithoutPlainArrays", subset, true, false}),
    [](const ::testing::TestParamInfo<Road_s>& row) { return std::string(row.param.name); });

} // namespace
} // namespace quorvia::testsupport
