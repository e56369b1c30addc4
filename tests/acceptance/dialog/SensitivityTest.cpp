// When each control can be used, both ways.
#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

constexpr const char* uniformCaption = "Uniform Grid Structure";
constexpr const char* newStrandCaption = "Assign New Strand IDs for Each Time Step";
constexpr const char* assignCaption = "Assign Strand IDs for Zones";
constexpr const char* addCaption = "Add Zones to Existing Strands";

class DialogSensitivity : public DialogSession {
protected:
    /// What a dialog on the files shows behind the actions when a data set is there.
    const Json& shownOnDataSet(const Texts& files, Actions actions) {
        actions.push_back(describe("shown"));
        Commands commands = {select({grid_, solution_})};
        for (const Json& each : atDialog(files, actions))
            commands.push_back(each);
        play(commands);
        return described("shown");
    }
    static bool canUse(const Json& shown, const char* toggleCaption) {
        return isSensitive(shown, selectionPage, "toggle", toggleCaption);
    }
    static bool canNameVariables(const Json& shown) {
        const bool field = isSensitive(shown, selectionPage, "textField");
        EXPECT_EQ(isSensitive(shown, selectionPage, "label", "Name File (Optional):"), field);
        EXPECT_EQ(isSensitive(shown, selectionPage, "button", "..."), field);
        return field;
    }

    const std::string grid_ = series_.grid("wing.x");
    const std::string otherGrid_ = series_.grid("tail.x");
    const std::string solution_ = series_.solution("wing.q", 1);
    const std::string function_ = series_.function("wing.f", 2);
    const std::string names_ = directory().write("wing.nam", "A\nB\n");
};

TEST_F(DialogSensitivity, AppendNeedsADataSet) {
    EXPECT_FALSE(canUse(shownAfter({grid_}, {}), appendCaption));
    EXPECT_TRUE(canUse(shownOnDataSet({grid_}, {}), appendCaption));
}

TEST_F(DialogSensitivity, StaleAppendIsClearedOnTheFirstRefresh) {
    Commands commands = {select({grid_, solution_})};
    for (const Json& each :
         atDialog({grid_}, {toggle(appendCaption, true), describe("set"), press("Cancel")}))
        commands.push_back(each);
    commands.push_back(command("resetFrame", true));
    for (const Json& each : atDialog({grid_}, {describe("stale")}))
        commands.push_back(each);
    play(commands);
    EXPECT_TRUE(isOn(described("set"), selectionPage, appendCaption));
    EXPECT_FALSE(isOn(described("stale"), selectionPage, appendCaption));
    EXPECT_FALSE(canUse(described("stale"), appendCaption));
}

TEST_F(DialogSensitivity, RemoveSelectedFollowsTheSelection) {
    for (const char* column : {"Grid", "Solution", "Function"}) {
        const Json& shown = shownAfter({grid_, solution_, function_},
                                       {describe("before"), selectItems({1}, column),
                                        describe("selected"), selectItems({}, column)});
        EXPECT_EQ(buttonOf(described("before"), "Remove Selected", column)["sensitive"], false);
        EXPECT_EQ(buttonOf(described("selected"), "Remove Selected", column)["sensitive"], true);
        EXPECT_EQ(buttonOf(shown, "Remove Selected", column)["sensitive"], false);
    }
}

TEST_F(DialogSensitivity, RefreshTurnsRemoveSelectedOff) {
    const Json& shown =
        shownAfter({grid_, solution_}, {selectItems({1}, "Grid"), toggle(assignCaption, false)});
    EXPECT_EQ(buttonOf(shown, "Remove Selected", "Grid")["sensitive"], false);
    EXPECT_EQ(listOf(shown, "Grid")["selected"], Json::array());
}

TEST_F(DialogSensitivity, RemoveAllNeedsFilesInItsList) {
    const std::string caption = "Remove All           ";
    const Json& grids = shownAfter({grid_}, {});
    EXPECT_EQ(buttonOf(grids, caption, "Grid")["sensitive"], true);
    EXPECT_EQ(buttonOf(grids, caption, "Solution")["sensitive"], false);
    EXPECT_EQ(buttonOf(grids, caption, "Function")["sensitive"], false);
    const Json& others = shownAfter({solution_, function_}, {});
    EXPECT_EQ(buttonOf(others, caption, "Grid")["sensitive"], false);
    EXPECT_EQ(buttonOf(others, caption, "Solution")["sensitive"], true);
    EXPECT_EQ(buttonOf(others, caption, "Function")["sensitive"], true);
}

TEST_F(DialogSensitivity, NameFileNeedsAGridAndAFileWithVariables) {
    EXPECT_FALSE(canNameVariables(shownAfter({grid_}, {})));
    EXPECT_FALSE(canNameVariables(shownAfter({solution_, function_}, {})));
    EXPECT_TRUE(canNameVariables(shownAfter({grid_, solution_}, {})));
    EXPECT_TRUE(canNameVariables(shownAfter({grid_, function_}, {})));
}

TEST_F(DialogSensitivity, NameFileIsShownEvenWhereItCannotBeUsed) {
    const Json& shown = shownAfter({solution_, names_}, {});
    EXPECT_FALSE(canNameVariables(shown));
    EXPECT_EQ(control(shown, selectionPage, "textField")["value"], names_);
}

/// With all that adding to strands needs.
TEST_F(DialogSensitivity, AddToStrandsNeedsAppendSolutionsAndStrandsOfAllSteps) {
    const Actions ready = {toggle(newStrandCaption, false), toggle(appendCaption, true)};
    const Actions uniformOff = {toggle(uniformCaption, false)};
    const auto actions = [&](const Actions& more) {
        // Two grids, so that the toggle of uniform grids can be used, and with it the others.
        Actions all = uniformOff;
        all.insert(all.end(), ready.begin(), ready.end());
        all.insert(all.end(), more.begin(), more.end());
        return all;
    };
    const Texts files = {grid_, otherGrid_, solution_};
    EXPECT_TRUE(canUse(shownOnDataSet(files, actions({})), addCaption));
    EXPECT_FALSE(
        canUse(shownOnDataSet(files, actions({toggle(appendCaption, false)})), addCaption));
    EXPECT_FALSE(
        canUse(shownOnDataSet(files, actions({press("Remove All", "Solution")})), addCaption));
    EXPECT_FALSE(
        canUse(shownOnDataSet(files, actions({toggle(assignCaption, false)})), addCaption));
    EXPECT_FALSE(
        canUse(shownOnDataSet(files, actions({toggle(newStrandCaption, true)})), addCaption));
}

TEST_F(DialogSensitivity, FunctionStyleGreysAddToStrandsOnlyWhenThePageComesBack) {
    const Texts files = {grid_, otherGrid_, solution_};
    const Json& shown = shownOnDataSet(
        files, {toggle(uniformCaption, false), toggle(newStrandCaption, false),
                toggle(appendCaption, true), toPage(structurePage), radio("Manually Describe"),
                menu("Plot3D Function"), describe("chosen"), toPage(selectionPage)});
    EXPECT_TRUE(canUse(described("chosen"), addCaption));
    EXPECT_FALSE(canUse(shown, addCaption));
}

TEST_F(DialogSensitivity, NewStrandsPerStepNeedGridsThatDifferAndStrands) {
    const Texts files = {grid_, otherGrid_, solution_};
    EXPECT_FALSE(canUse(shownAfter(files, {}), newStrandCaption));
    EXPECT_TRUE(canUse(shownAfter(files, {toggle(uniformCaption, false)}), newStrandCaption));
    EXPECT_FALSE(
        canUse(shownAfter(files, {toggle(uniformCaption, false), toggle(assignCaption, false)}),
               newStrandCaption));
    EXPECT_FALSE(canUse(
        shownOnDataSet(files, {toggle(uniformCaption, false), toggle(newStrandCaption, false),
                               toggle(appendCaption, true), toggle(addCaption, true)}),
        newStrandCaption));
}

TEST_F(DialogSensitivity, UniformGridsAreGreyedForExactlyOneGridFile) {
    EXPECT_FALSE(canUse(shownAfter({grid_}, {}), uniformCaption));
    EXPECT_TRUE(canUse(shownAfter({grid_, otherGrid_}, {}), uniformCaption));
    EXPECT_TRUE(canUse(shownAfter({solution_}, {}), uniformCaption));
}

TEST_F(DialogSensitivity, AssignStrandsAndAddFilesCanAlwaysBeUsed) {
    const Json& shown =
        shownAfter({grid_}, {press("Remove All", "Grid"), toggle(assignCaption, false)});
    EXPECT_TRUE(canUse(shown, assignCaption));
    for (const char* column : {"Grid", "Solution", "Function"})
        EXPECT_EQ(buttonOf(shown, "Add Files...           ", column)["sensitive"], true);
}

TEST_F(DialogSensitivity, StructureCanBeDescribedOnlyByHand) {
    const auto canDescribe = [](const Json& shown) {
        const bool menuIs = isSensitive(shown, structurePage, "optionMenu");
        EXPECT_EQ(isSensitive(shown, structurePage, "label", "Solution file style:"), menuIs);
        EXPECT_EQ(isSensitive(shown, structurePage, "label", "Data Structure:"), menuIs);
        EXPECT_EQ(isSensitive(shown, structurePage, "toggle", "Multi-Grid"), menuIs);
        EXPECT_EQ(nthControl(shown, structurePage, "radioBox", 2)["sensitive"], menuIs);
        return menuIs;
    };
    EXPECT_FALSE(canDescribe(shownAfter({grid_}, {toPage(structurePage)})));
    const Actions byHand = {toPage(structurePage), radio("Manually Describe"), menu("Swift"),
                            radio("Unstructured"), toggle("Multi-Grid", false)};
    EXPECT_TRUE(canDescribe(shownAfter({grid_}, byHand)));
    Actions backAgain = byHand;
    backAgain.push_back(radio("Auto Detect"));
    const Json& shown = shownAfter({grid_}, backAgain);
    EXPECT_FALSE(canDescribe(shown));
    EXPECT_EQ(control(shown, structurePage, "optionMenu")["value"], 4); // still what was described
    EXPECT_EQ(nthControl(shown, structurePage, "radioBox", 2)["value"], 5);
    EXPECT_FALSE(isOn(shown, structurePage, "Multi-Grid"));
}

TEST_F(DialogSensitivity, AssumptionsCanAlwaysBeMade) {
    for (const char* organization : {"Auto Detect", "Manually Describe"}) {
        const Json& shown = shownAfter({grid_}, {toPage(structurePage), radio(organization)});
        for (const char* caption :
             {"Assume ASCII Files are Double Precision", "Assume ASCII Files are I-Blanked",
              "Assume all Solution/Function Files have the same structure"})
            EXPECT_TRUE(isSensitive(shown, structurePage, "toggle", caption)) << caption;
    }
}

TEST_F(DialogSensitivity, SubsetsCanBeTypedForAnyStructure) {
    const Json& shown = shownAfter({grid_}, {toPage(structurePage), radio("Manually Describe"),
                                             radio("2-D"), toPage(subsetPage)});
    for (std::size_t field = 1; field <= 10; ++field)
        EXPECT_EQ(nthControl(shown, subsetPage, "textField", field)["sensitive"], true) << field;
}

TEST_F(DialogSensitivity, SwitchingAppendOffClearsAddToStrandsAlsoWhileItIsGreyed) {
    const Texts files = {grid_, otherGrid_, solution_};
    const Actions on = {toggle(uniformCaption, false), toggle(newStrandCaption, false),
                        toggle(appendCaption, true), toggle(addCaption, true)};
    Actions actions = on;
    actions.push_back(press("Remove All", "Solution"));
    actions.push_back(describe("greyed"));
    actions.push_back(toggle(appendCaption, false));
    const Json& shown = shownOnDataSet(files, actions);
    EXPECT_FALSE(canUse(described("greyed"), addCaption));
    EXPECT_TRUE(isOn(described("greyed"), selectionPage, addCaption));
    EXPECT_FALSE(isOn(shown, selectionPage, addCaption));
}

} // namespace
} // namespace quorvia::testsupport
