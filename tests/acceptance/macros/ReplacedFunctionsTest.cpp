// Function files beside the solutions that replace others: every value has its place, whether the
// data set has I-blank or not.
#include "acceptance/macros/KindSession.h"
#include "acceptance/macros/TimeStepFields.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Encoding_e;
using plot3dwriter::Layout_e;

struct Case_s {
    std::string name;
    bool hasIBlank;
    Layout_e layout = Layout_e::ThreeDWhole;
    Encoding_e encoding = Encoding_e::Binary;
    bool sharingAllowed = true;
};

constexpr std::int32_t functionCount = 2;

double solutionShift(int step) {
    return 10.0 * step;
}

double functionShift(int step) {
    return 10.0 * step + 500;
}

class ReplacedFunctions : public MacroSession, public ::testing::WithParamInterface<Case_s> {
protected:
    ReplacedFunctions() {
        series_.layout = GetParam().layout;
        series_.form.encoding = GetParam().encoding;
        if (series_.layout == Layout_e::TwoD)
            series_.grids = {{2, 7, 1}, {5, 3, 1}};
    }
    /// Solutions and functions of the steps, which begin with `grids` or replace others.
    Json loadOf(const std::vector<int>& steps, const Texts& grids = {},
                Settings settings = {}) const {
        Files_s files = {.grids = grids};
        if (GetParam().hasIBlank && GetParam().encoding == Encoding_e::Text)
            settings.emplace_back("ASCIIHASIBLANK", "Yes");
        for (const int step : steps) {
            const std::string number = std::to_string(step);
            files.solutions.push_back(series_.solution(number + ".q", step, solutionShift(step)));
            files.functions.push_back(
                series_.function(number + ".f", functionCount, functionShift(step)));
        }
        return load(files, settings);
    }
    void playAll(Commands commands) {
        commands.insert(commands.begin(),
                        command("host", command("sharingAllowed", GetParam().sharingAllowed)));
        play(commands);
        EXPECT_EQ(messages(last()), Texts());
    }
    void expectSteps(const std::vector<int>& steps) const {
        const std::size_t zonesOfStep = series_.grids.size();
        ASSERT_EQ(last()["dataSet"]["zones"].size(), steps.size() * zonesOfStep);
        for (std::size_t n = 0; n < steps.size(); ++n) {
            SCOPED_TRACE(steps[n]);
            expectTimeStep(last(), series_,
                           {.firstZone = 1 + n * zonesOfStep,
                            .hasIBlank = GetParam().hasIBlank,
                            .solutionShift = solutionShift(steps[n]),
                            .functionCount = functionCount,
                            .functionShift = functionShift(steps[n])});
        }
    }
    Texts grid() const { return {series_.grid("a.x", GetParam().hasIBlank)}; }

    SmallFiles series_{directory().path().string()};
};

TEST_P(ReplacedFunctions, OfOneStepComeIntoTheirPlaces) {
    playAll({loadOf({1}, grid()), loadOf({2})});
    expectSteps({2});
}

TEST_P(ReplacedFunctions, OfSeveralStepsComeIntoTheirPlaces) {
    playAll({loadOf({1}, grid()), loadOf({2, 3, 4})});
    expectSteps({2, 3, 4});
}

TEST_P(ReplacedFunctions, TakeThePlaceOfSeveralSteps) {
    playAll({loadOf({1, 2}, grid()), loadOf({3})});
    expectSteps({3});
}

TEST_P(ReplacedFunctions, MayBeReplacedAgain) {
    playAll({loadOf({1}, grid()), loadOf({2, 3}), loadOf({4, 5})});
    expectSteps({4, 5});
}

TEST_P(ReplacedFunctions, WithAGridFileComeIntoTheirPlaces) {
    playAll({loadOf({1, 2}, grid()), loadOf({3, 4}, grid(), {{"APPEND", "Yes"}})});
    expectSteps({1, 2, 3, 4});
}

TEST_P(ReplacedFunctions, ComeAgainWhenTheirInstructionsAreReplayed) {
    playAll({loadOf({1}, grid()), loadOf({2, 3}), describe("replaced"), replay()});
    EXPECT_EQ(dataSet(last()), dataSet(described("replaced")));
}

INSTANTIATE_TEST_SUITE_P(
    DataSets, ReplacedFunctions,
    ::testing::Values(Case_s{"Plain", false}, Case_s{"IBlank", true},
                      Case_s{"IBlankInFortran", true, Layout_e::ThreeDWhole, Encoding_e::Fortran},
                      Case_s{"IBlankInText", true, Layout_e::ThreeDWhole, Encoding_e::Text},
                      Case_s{"IBlankCopied", true, Layout_e::ThreeDWhole, Encoding_e::Binary,
                             false},
                      Case_s{"Plane", false, Layout_e::TwoD},
                      Case_s{"PlaneWithIBlank", true, Layout_e::TwoD}),
    [](const auto& testCase) { return testCase.param.name; });

/// Grid files that differ in I-blank: the first one stands for the load.
class UnlikeGrids : public MacroSession {
protected:
    UnlikeGrids() { series_.grids = {{2, 3, 5}}; }

    void loadPairs(bool firstHasIBlank) {
        play({load(
            {.grids = {series_.grid("1.x", firstHasIBlank), series_.grid("2.x", !firstHasIBlank)},
             .functions = {series_.function("1.f", functionCount, 500),
                           series_.function("2.f", functionCount, 600)}},
            {{"UNIFORMGRIDSTRUCTURE", "No"}})});
        EXPECT_EQ(messages(last()), Texts());
        ASSERT_EQ(last()["dataSet"]["zones"].size(), 2U);
    }
    void expectFunctionsOfBoth(std::size_t firstVariable) {
        for (const std::size_t zone : {1U, 2U})
            for (std::int32_t variable = 0; variable < functionCount; ++variable)
                EXPECT_TRUE(holds(last()["dataSet"]["zones"][zone - 1]["fields"]
                                        [firstVariable - 1 + static_cast<std::size_t>(variable)],
                                  {.dims = series_.grids[0],
                                   .variable = variable,
                                   .shift = zone == 1 ? 500.0 : 600.0}))
                    << zone << " " << variable;
    }

    SmallFiles series_{directory().path().string()};
};

TEST_F(UnlikeGrids, WithoutIBlankBehindOneWithItKeepTheirFunctionsInPlace) {
    loadPairs(true);
    expectFunctionsOfBoth(5);
}

TEST_F(UnlikeGrids, WithIBlankBehindOneWithoutItKeepTheirFunctionsInPlace) {
    loadPairs(false);
    expectFunctionsOfBoth(4);
}

} // namespace
} // namespace quorvia::testsupport
