// Strand and solution time of every zone of a series, by the options of strands and by where the
// times come from, and the question about time steps of one time.
#include "acceptance/macros/KindSession.h"

namespace quorvia::testsupport {
namespace {

class TimesAndStrands : public KindSession {
protected:
    /// "strand@time" of each zone.
    static Texts seriesOf(const Json& outcome) {
        Texts result;
        if (outcome["dataSet"].is_null())
            return result;
        for (const Json& zone : outcome["dataSet"]["zones"]) {
            const double time = zone["solutionTime"];
            result.push_back(zone["strandId"].dump() + "@" + Json(time).dump());
        }
        return result;
    }
    Texts afterLoad(const Json& load) {
        play({load});
        EXPECT_EQ(messages(last()), Texts());
        return seriesOf(last());
    }
    Texts afterLoadOnto(LoadKind_e kind, const Settings& settings) {
        play({start(kind), loadOf(kind, settings)});
        EXPECT_EQ(messages(last()), Texts());
        return seriesOf(last());
    }
    Json oneGrid(const Settings& settings) const {
        return load({.grids = {grid_}, .solutions = {solutions_[0], solutions_[1]}}, settings);
    }
    Json gridEachStep(const Settings& settings) const {
        return load(
            {.grids = {grid_, series_.grid("b.x")}, .solutions = {solutions_[0], solutions_[1]}},
            settings);
    }

    const Texts kept_ = {"1@1.0", "2@1.0", "1@2.0", "2@2.0"};
    const Texts numberedOn_ = {"1@1.0", "2@1.0", "3@2.0", "4@2.0"};
};

using Flag = std::pair<std::string, std::string>;
const Flag strands = {"ASSIGNSTRANDIDS", "Yes"};
const Flag join = {"ADDTOEXISTINGSTRANDS", "Yes"};
const Flag newEachStep = {"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", "Yes"};
const Flag sameByDims = {"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", "No"};
const Flag differ = {"UNIFORMGRIDSTRUCTURE", "No"};
const Flag timesFromNames = {"EXTRACTTIMEFROMSOLFILENAMES", "Yes"};

TEST_F(TimesAndStrands, WithoutTheOptionThereAreNoStrands) {
    EXPECT_EQ(afterLoad(oneGrid({})), (Texts{"0@1.0", "0@1.0", "0@2.0", "0@2.0"}));
}

TEST_F(TimesAndStrands, OneGridFileKeepsAGridsStrandWhateverElseIsAsked) {
    for (const Settings& settings :
         {Settings{strands}, Settings{strands, newEachStep}, Settings{strands, sameByDims},
          Settings{strands, join}, Settings{strands, newEachStep, differ}})
        EXPECT_EQ(afterLoad(oneGrid(settings)), kept_);
}

TEST_F(TimesAndStrands, UniformGridsKeepTheirStrandWhateverElseIsAsked) {
    for (const Settings& settings : {Settings{strands}, Settings{strands, newEachStep},
                                     Settings{strands, sameByDims}, Settings{strands, join}})
        EXPECT_EQ(afterLoad(gridEachStep(settings)), kept_);
}

TEST_F(TimesAndStrands, GridsThatDifferTakeNewStrandsOrThoseOfTheirSize) {
    EXPECT_EQ(afterLoad(gridEachStep({strands, differ, newEachStep})), numberedOn_);
    EXPECT_EQ(afterLoad(gridEachStep({strands, differ, sameByDims})), kept_);
    EXPECT_EQ(afterLoad(gridEachStep({strands, differ, newEachStep, join})), numberedOn_);
}

// One of size 2 x 3 x 5 more, and the second step's only 3 x 5 x 2.
TEST_F(TimesAndStrands, GridsOfOneSizeTakeTheStrandsOfTheStepBeforeInOrder) {
    SmallFiles more = series_;
    more.grids = {{3, 5, 2}, {2, 3, 5}, {2, 3, 5}};
    const Json changing = load({.grids = {grid_, more.grid("more.x")},
                                .solutions = {solutions_[0], more.solution("more.q", 2)}},
                               {strands, differ, sameByDims});
    EXPECT_EQ(afterLoad(changing), (Texts{"1@1.0", "2@1.0", "2@2.0", "1@2.0", "3@2.0"}));
}

TEST_F(TimesAndStrands, AppendedZonesNumberOnOrJoin) {
    for (const LoadKind_e kind : {LoadKind_e::AppendGrid, LoadKind_e::AppendSolution}) {
        Texts all = kept_;
        all.insert(all.end(), {"3@3.0", "4@3.0", "3@4.0", "4@4.0"});
        EXPECT_EQ(afterLoadOnto(kind, {}), all) << nameOf(kind);
        all = kept_;
        all.insert(all.end(), {"1@3.0", "2@3.0", "1@4.0", "2@4.0"});
        EXPECT_EQ(afterLoadOnto(kind, {join}), all) << nameOf(kind);
    }
}

TEST_F(TimesAndStrands, AppendedZonesOfGridsThatDifferAreNewForEachStepUnlessTheyShallJoin) {
    const auto appended = [this](const Settings& settings) {
        play({start(LoadKind_e::AppendGrid), gridEachStep(settings)});
        const Texts all = seriesOf(last());
        return Texts(all.begin() + 4, all.end());
    };
    const Flag append = {"APPEND", "Yes"};
    EXPECT_EQ(appended({append, strands, differ, newEachStep}),
              (Texts{"3@1.0", "4@1.0", "5@2.0", "6@2.0"}));
    EXPECT_EQ(appended({append, strands, differ, newEachStep, join}), kept_);
    EXPECT_EQ(appended({append, strands, differ, sameByDims}),
              (Texts{"3@1.0", "4@1.0", "3@2.0", "4@2.0"}));
}

TEST_F(TimesAndStrands, AppendedZonesWithoutTheOptionHaveNoneEvenIfTheyShallJoin) {
    Texts all = kept_;
    all.insert(all.end(), {"0@3.0", "0@3.0", "0@4.0", "0@4.0"});
    EXPECT_EQ(afterLoadOnto(LoadKind_e::AppendGrid, {join, {"ASSIGNSTRANDIDS", "No"}}), all);
}

TEST_F(TimesAndStrands, AppendedFunctionsTouchNeither) {
    EXPECT_EQ(afterLoadOnto(LoadKind_e::AppendFunctions, {}), kept_);
}

TEST_F(TimesAndStrands, ReplacingTakesTheTimesOfTheNewSolutions) {
    EXPECT_EQ(afterLoadOnto(LoadKind_e::ReplaceSolution, {}),
              (Texts{"1@3.0", "2@3.0", "1@4.0", "2@4.0"}));
}

TEST_F(TimesAndStrands, FunctionsHaveStrandsOnlyWithTimesFromTheirNames) {
    const Files_s files = {.grids = {grid_}, .functions = functions_};
    play({command("host", command("timesFromFileNames", Json::array({5.0, 7.0}))),
          load(files, {strands, timesFromNames})});
    EXPECT_EQ(seriesOf(last()), (Texts{"1@5.0", "2@5.0", "1@7.0", "2@7.0"}));
    EXPECT_EQ(afterLoad(load(files, {strands})), (Texts{"0@0.0", "0@0.0"}));
}

TEST_F(TimesAndStrands, TimesFromNamesRuleOverThoseOfTheFilesIfAskedFor) {
    play({command("host", command("timesFromFileNames", Json::array({5.0, 7.0}))),
          oneGrid({strands, timesFromNames})});
    EXPECT_EQ(seriesOf(last()), (Texts{"1@5.0", "2@5.0", "1@7.0", "2@7.0"}));
}

// ---- Time steps of one time ---------------------------------------------------------------------

const std::string question = "Solution time is identical for all time steps. To load all zones "
                             "into a single time step press "
                             "\"Ok\" otherwise press \"Cancel\" and rename the solution files so "
                             "that each filename contains "
                             "a unique solution time.";

class TimeStepsOfOneTime : public TimesAndStrands {
protected:
    Json sameTimes(const Settings& more = {}) const {
        Settings settings = {strands};
        settings.insert(settings.end(), more.begin(), more.end());
        return load({.grids = {grid_},
                     .solutions = {series_.solution("p.q", 9), series_.solution("r.q", 9)}},
                    settings);
    }
    static Json namesTell(const Json& times) {
        return command("host", command("timesFromFileNames", times));
    }
    static Json answer(bool accepts) { return command("answers", Json::array({accepts})); }

    const Json namesTellNothing_ = namesTell(Json::array());
};

TEST_F(TimeStepsOfOneTime, TakeTheTimesOfTheirNamesWithoutAQuestion) {
    play({namesTell(Json::array({5.0, 7.0})), sameTimes()});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(seriesOf(last()), (Texts{"1@5.0", "2@5.0", "1@7.0", "2@7.0"}));
}

TEST_F(TimeStepsOfOneTime, KeepItIfTheUserAgreesAndAreNotAskedAboutAgain) {
    play({namesTellNothing_, answer(true), sameTimes(), describe("asked"),
          command("resetFrame", true), replay()});
    EXPECT_EQ(messages(described("asked")), Texts{question});
    EXPECT_EQ(seriesOf(described("asked")), (Texts{"1@9.0", "2@9.0", "1@9.0", "2@9.0"}));
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(dataSet(last()), dataSet(described("asked")));
    EXPECT_EQ(last()["instructions"], described("asked")["instructions"]);
}

TEST_F(TimeStepsOfOneTime, AreNotLoadedIfTheUserCancels) {
    play({namesTellNothing_, answer(false), sameTimes()});
    EXPECT_EQ(messages(last()), Texts{question});
    EXPECT_EQ(last()["ok"], false);
    EXPECT_TRUE(last()["dataSet"].is_null());
}

TEST_F(TimeStepsOfOneTime, AreAskedAboutOnAnAppendToo) {
    const Json append = sameTimes({{"APPEND", "Yes"}});
    play({start(LoadKind_e::AppendGrid), describe("before"), namesTellNothing_, answer(false),
          append, describe("cancelled"), answer(true), append, describe("accepted"), replay()});
    EXPECT_EQ(messages(described("cancelled")), Texts{question});
    EXPECT_EQ(dataSet(described("cancelled")), dataSet(described("before")));
    EXPECT_EQ(undo(described("cancelled")), (Texts{"begin", "end failed"}));
    EXPECT_EQ(messages(described("accepted")), Texts{question});
    EXPECT_EQ(undo(described("accepted")), (Texts{"begin", "end ok"}));
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(zoneNames(last()).size(), 12U);
}

TEST_F(TimeStepsOfOneTime, LeaveTheTimesOfTheZonesThatAreThere) {
    play({start(LoadKind_e::AppendGrid), namesTell(Json::array({5.0, 7.0})),
          sameTimes({{"APPEND", "Yes"}})});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(seriesOf(last()),
              (Texts{"1@1.0", "2@1.0", "1@2.0", "2@2.0", "3@5.0", "4@5.0", "3@7.0", "4@7.0"}));
}

// Two of three are enough.
TEST_F(TimeStepsOfOneTime, NeedNotBeAll) {
    play({namesTell(Json::array({5.0, 7.0, 11.0})),
          load({.grids = {grid_},
                .solutions = {solutions_[0], solutions_[1], series_.solution("r.q", 2)}},
               {strands})});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(seriesOf(last()), (Texts{"1@5.0", "2@5.0", "1@7.0", "2@7.0", "1@11.0", "2@11.0"}));
}

TEST_F(TimeStepsOfOneTime, AreNoneInASingleFile) {
    play({namesTellNothing_, load({.grids = {grid_}, .solutions = {solutions_[0]}}, {strands})});
    EXPECT_EQ(messages(last()), Texts());
}

// The grids that are left out use up the number of a zone.
TEST_F(TimeStepsOfOneTime, GiveNamesTimesToZonesByTheNumbersOfAllGrids) {
    play({namesTell(Json::array({5.0, 7.0})), sameTimes({{"FILEGRIDSET", "1"}})});
    EXPECT_EQ(seriesOf(last()), (Texts{"1@5.0", "1@9.0"}));
}

} // namespace
} // namespace quorvia::testsupport
