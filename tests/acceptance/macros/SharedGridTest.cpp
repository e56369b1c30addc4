// Zones that take the grid of zones that are there: the precision of the solution has no say in it,
// and a host that refuses to share gets copies or a reason why not.
#include "acceptance/macros/KindSession.h"
#include "acceptance/macros/TimeStepFields.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Encoding_e;
using plot3dwriter::Layout_e;
using plot3dwriter::Precision_e;

const Settings appending = {{"APPEND", "Yes"}};

Json sharing(bool isAllowed) {
    return command("host", command("sharingAllowed", isAllowed));
}

FieldForm_e formOf(Precision_e precision) {
    return precision == Precision_e::Double ? FieldForm_e::Double : FieldForm_e::Single;
}

/// A solution in a file of its own, of a precision of its own.
struct Step_s {
    int number;
    Precision_e precision;
    double shift() const { return 10.0 * number; }
};

class MixedPrecision : public MacroSession {
protected:
    static constexpr Precision_e s = Precision_e::Single;
    static constexpr Precision_e d = Precision_e::Double;

    Texts grid(Precision_e precision) {
        series_.form.precision = precision;
        return {series_.grid(precision == s ? "single.x" : "double.x", hasIBlank_)};
    }
    Texts solutions(const std::vector<Step_s>& steps) {
        Texts names;
        for (const Step_s& step : steps) {
            series_.form.precision = step.precision;
            names.push_back(
                series_.solution(std::to_string(step.number) + ".q", step.number, step.shift()));
        }
        return names;
    }
    Json fresh(Precision_e precision, const std::vector<Step_s>& steps) {
        return load({.grids = grid(precision), .solutions = solutions(steps)});
    }
    Json onto(const std::vector<Step_s>& steps, const Settings& settings = {}) {
        return load({.solutions = solutions(steps)}, settings);
    }
    /// All steps in the order of their zones, on one grid.
    void expectSteps(Precision_e gridPrecision, const std::vector<Step_s>& steps) {
        EXPECT_EQ(messages(last()), Texts());
        const std::size_t zonesOfStep = series_.grids.size();
        ASSERT_EQ(last()["dataSet"]["zones"].size(), steps.size() * zonesOfStep);
        for (std::size_t n = 0; n < steps.size(); ++n) {
            SCOPED_TRACE(steps[n].number);
            expectTimeStep(last(), series_,
                           {.firstZone = 1 + n * zonesOfStep,
                            .gridForm = formOf(gridPrecision),
                            .hasIBlank = hasIBlank_,
                            .solutionForm = formOf(steps[n].precision),
                            .solutionShift = steps[n].shift()});
        }
    }
    /// Of the grid's fields of a zone, from 1.
    Texts gridStates(std::size_t zone) const {
        Texts states;
        for (std::size_t field = 0; field < (hasIBlank_ ? 4U : 3U); ++field)
            states.push_back(
                last()["dataSet"]["zones"][zone - 1]["fields"][field]["state"].get<std::string>());
        return states;
    }

    SmallFiles series_{directory().path().string()};
    bool hasIBlank_ = false;
};

/// The precision of the grid; the other one is the solution's.
struct MixedCase_s {
    std::string name;
    Precision_e grid;
    bool hasIBlank = false;
    bool sharingAllowed = true;
    Encoding_e encoding = Encoding_e::Binary;
    Layout_e layout = Layout_e::ThreeDWhole;
};

class MixedPrecisionOf : public MixedPrecision, public ::testing::WithParamInterface<MixedCase_s> {
protected:
    MixedPrecisionOf() {
        hasIBlank_ = GetParam().hasIBlank;
        series_.form.encoding = GetParam().encoding;
        series_.layout = GetParam().layout;
        if (series_.layout == Layout_e::TwoD)
            series_.grids = {{2, 7, 1}, {5, 3, 1}};
    }
    void playAll(Commands commands) {
        commands.insert(commands.begin(), sharing(GetParam().sharingAllowed));
        play(commands);
    }
    const Precision_e grid_ = GetParam().grid;
    const Precision_e other_ = grid_ == s ? d : s;
};

TEST_P(MixedPrecisionOf, AppendedSolutionHasTheGridThatIsThere) {
    playAll({fresh(grid_, {{1, other_}}), onto({{2, other_}}, appending)});
    expectSteps(grid_, {{1, other_}, {2, other_}});
}

TEST_P(MixedPrecisionOf, AppendedStepsHaveTheGridThatIsThere) {
    playAll({fresh(grid_, {{1, other_}}), onto({{2, other_}, {3, other_}}, appending)});
    expectSteps(grid_, {{1, other_}, {2, other_}, {3, other_}});
}

TEST_P(MixedPrecisionOf, AppendedSolutionMayHaveAPrecisionOfItsOwn) {
    playAll({fresh(grid_, {{1, grid_}}), onto({{2, other_}}, appending),
             onto({{3, grid_}}, appending)});
    expectSteps(grid_, {{1, grid_}, {2, other_}, {3, grid_}});
}

TEST_P(MixedPrecisionOf, ReplacedSolutionKeepsTheGridInEveryStep) {
    playAll({fresh(grid_, {{1, other_}}), onto({{2, other_}, {3, other_}})});
    expectSteps(grid_, {{2, other_}, {3, other_}});
}

TEST_P(MixedPrecisionOf, SolutionMayBeAppendedToOneThatReplacedAnother) {
    playAll({fresh(grid_, {{1, other_}}), onto({{2, other_}}), onto({{3, other_}}, appending)});
    expectSteps(grid_, {{2, other_}, {3, other_}});
}

TEST_P(MixedPrecisionOf, LaterStepsOfANewDataSetHaveItsGrid) {
    playAll({fresh(grid_, {{1, other_}, {2, other_}})});
    expectSteps(grid_, {{1, other_}, {2, other_}});
}

TEST_P(MixedPrecisionOf, FunctionsOfReplacedStepsStandBehindTheGridThatIsThere) {
    const auto withFunctions = [this](const std::vector<Step_s>& steps, const Texts& grids) {
        Files_s files = {.grids = grids, .solutions = solutions(steps)};
        for (const Step_s& step : steps)
            files.functions.push_back(
                series_.function(std::to_string(step.number) + ".f", 2, step.shift() + 500));
        return load(files);
    };
    playAll(
        {withFunctions({{1, other_}}, grid(grid_)), withFunctions({{2, other_}, {3, other_}}, {})});
    EXPECT_EQ(messages(last()), Texts());
    for (const std::size_t step : {0U, 1U})
        expectTimeStep(last(), series_,
                       {.firstZone = 1 + step * 2,
                        .gridForm = formOf(grid_),
                        .hasIBlank = hasIBlank_,
                        .solutionForm = formOf(other_),
                        .solutionShift = step == 0 ? 20.0 : 30.0,
                        .functionCount = 2,
                        .functionShift = step == 0 ? 520.0 : 530.0});
}

INSTANTIATE_TEST_SUITE_P(
    Grids, MixedPrecisionOf,
    ::testing::Values(MixedCase_s{"Single", Precision_e::Single},
                      MixedCase_s{"Double", Precision_e::Double},
                      MixedCase_s{"SingleWithIBlank", Precision_e::Single, true},
                      MixedCase_s{"DoubleWithIBlank", Precision_e::Double, true},
                      MixedCase_s{"SingleCopied", Precision_e::Single, true, false},
                      MixedCase_s{"DoubleCopied", Precision_e::Double, true, false},
                      MixedCase_s{"Fortran", Precision_e::Single, true, true, Encoding_e::Fortran},
                      MixedCase_s{"Plane", Precision_e::Double, true, true, Encoding_e::Binary,
                                  Layout_e::TwoD}),
    [](const auto& testCase) { return testCase.param.name; });

TEST_F(MixedPrecision, AppendedSurfaceHasTheGridThatIsThere) {
    files_.form.encoding = Encoding_e::Fortran; // whose precision shows, described by hand
    files_.form.precision = s;
    const std::string surface = files_.surface("s.x");
    files_.form.precision = d;
    Settings unstructured = appending;
    unstructured.insert(unstructured.end(), {{"AUTODETECT", "No"},
                                             {"STYLE", "PLOT3DCLASSIC"},
                                             {"DATASTRUCTURE", "UNSTRUCTURED"},
                                             {"ISMULTIGRID", "Yes"}});
    play({load({.grids = {surface}, .solutions = {files_.surfaceSolution("1.q", 1)}}),
          load({.solutions = {files_.surfaceSolution("2.q", 2)}}, unstructured)});
    EXPECT_EQ(messages(last()), Texts());
    const Json& fields = last()["dataSet"]["zones"][1]["fields"];
    for (std::int32_t variable = 0; variable < 3; ++variable)
        EXPECT_TRUE(holds(fields[static_cast<std::size_t>(variable)],
                          {.dims = {7, 1, 1}, .variable = variable}));
    EXPECT_TRUE(holds(fields[3], {.dims = {7, 1, 1}, .form = FieldForm_e::Double}));
}

// The first of them goes onto the zone that is there.
TEST_F(MixedPrecision, StepsThatJoinALoneLineHaveItsGrid) {
    series_.layout = Layout_e::OneD;
    series_.grids = {{7, 1, 1}};
    play({fresh(s, {{1, d}}), onto({{2, d}, {3, d}}, appending)});
    expectSteps(s, {{2, d}, {3, d}});
}

// The grids of the last time step are not all of one precision.
TEST_F(MixedPrecision, EachZoneHasTheTypesOfTheOneThatItSharesWith) {
    series_.grids = {{2, 3, 5}};
    series_.grids = {{2, 3, 5}, {2, 3, 5}};
    series_.form.precision = d;
    const std::string both = series_.solution("both.q", 3, 30);
    series_.grids = {{2, 3, 5}};
    play({fresh(s, {{1, s}}), load({.grids = grid(d), .solutions = solutions({{2, s}})}, appending),
          load({.solutions = {both}}, appending)});
    EXPECT_EQ(messages(last()), Texts());
    const Json& zones = last()["dataSet"]["zones"];
    ASSERT_EQ(zones.size(), 4U);
    for (const std::size_t step : {0U, 1U})
        EXPECT_TRUE(holds(zones[2 + step]["fields"][2],
                          {.dims = {2, 3, 5}, .variable = 2, .form = formOf(step == 0 ? s : d)}));
}

// ---- A host that refuses ------------------------------------------------------------------------

class RefusedShare : public MixedPrecision {
protected:
    Json failing(const std::string& operation, int call) {
        return command("fail", Json{{"operation", operation}, {"call", call}});
    }
    /// What is told of the last command, a load that must leave everything as it was.
    Texts refusalOf(Commands commands) {
        commands.insert(commands.begin() + 1, describe("before"));
        play(commands);
        EXPECT_EQ(last()["ok"], false);
        EXPECT_EQ(dataSet(last()), dataSet(described("before")));
        return messages(last());
    }
    Texts told(const std::string& fields, const std::string& file) const {
        return {fields + ", but can be neither shared nor copied.",
                "Invalid Plot 3D solution file.\nFile: " + directory().file(file)};
    }
};

TEST_F(RefusedShare, OfASingleFieldBecomesACopy) {
    for (const int call : {1, 3, 6}) {
        play({fresh(s, {{1, d}}), failing("QuorUtilDataValueShare", call),
              onto({{2, d}}, appending)});
        expectSteps(s, {{1, d}, {2, d}});
    }
    EXPECT_EQ(gridStates(4), (Texts{"shared", "shared", "stored"}));
}

TEST_F(RefusedShare, OfTheOneGridOfANewDataSetBecomesACopy) {
    play({failing("QuorUtilDataValueShare", 2), fresh(s, {{1, d}, {2, d}})});
    expectSteps(s, {{1, d}, {2, d}});
    EXPECT_EQ(gridStates(3), (Texts{"shared", "stored", "shared"}));
}

TEST_F(RefusedShare, ThatIsNoCopyEitherIsTold) {
    for (const char* operation : {"QuorUtilDataValueCopy", "QuorUtilDataValueAlloc"})
        EXPECT_EQ(refusalOf({fresh(s, {{1, d}}), failing("QuorUtilDataValueShare", 5),
                             failing(operation, 1), onto({{2, d}}, appending)}),
                  told("Variable 2 of zone 4 is that of zone 2", "2.q"))
            << operation;
}

TEST_F(RefusedShare, WithoutSharingACopyThatFailsIsTold) {
    EXPECT_EQ(refusalOf({fresh(s, {{1, d}}), sharing(false), failing("QuorUtilDataValueCopy", 4),
                         onto({{2, d}}, appending)}),
              told("Variable 1 of zone 4 is that of zone 2", "2.q"));
}

TEST_F(RefusedShare, OfAPassiveIBlankLeavesItWithoutValues) {
    const std::vector<std::string> types = {"float32", "float32", "float32", "int32",  "float32",
                                            "float32", "float32", "float32", "float32"};
    Json zone = {{"name", "Box"}, {"i", 2}, {"j", 3}, {"k", 5}, {"types", types}};
    Json passive = zone;
    passive.set("passive", Json::array({4}));
    series_.grids = {{2, 3, 5}};
    for (const bool isAllowed : {true, false}) {
        play({command("dataSet",
                      Json{{"title", "Hand"},
                           {"variables", {"X", "Y", "Z", "IBlank", "R", "U", "V", "W", "E"}},
                           {"zones", Json::array({zone, passive})}}),
              command("host", Json{{"plotType", "3D"}, {"sharingAllowed", isAllowed}}),
              onto({{1, d}}, appending)});
        EXPECT_EQ(messages(last()), Texts());
        const Json& fields = last()["dataSet"]["zones"][2]["fields"];
        EXPECT_EQ(fields[3]["state"], "empty");
        EXPECT_EQ(fields[3]["type"], "int32");
    }
}

} // namespace
} // namespace quorvia::testsupport
