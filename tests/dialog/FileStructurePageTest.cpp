// The second page: what it shows, which controls can be used when, and what they store.
#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

class StructurePage : public LoadDialogTest {
protected:
    static void refresh() {
        const HostLock lock(addOnID);
        refreshDialogPage(fileStructurePage, gLoadOptions);
    }
    /// Opens the dialog, brings the page to the front, and goes on.
    void openHere(Script script) {
        script.insert(script.begin(), show(fileStructurePage));
        open(std::move(script));
    }
    /// Once from each refresh of the page.
    static std::int64_t refreshes() { return host().callCount("QuorGUIOptionMenuSet"); }
    static std::vector<bool> areDescriptionsUsable() {
        std::vector<bool> usable;
        for (const std::int32_t id :
             {styleLabel, dataStructureLabel, styleMenu, multiGridToggle, dataStructureRadio})
            usable.push_back(isSensitive(id));
        return usable;
    }
    static bool areAssumptionsUsable() {
        return isSensitive(asciiDoubleToggle) && isSensitive(asciiIBlankToggle) &&
               isSensitive(sameStructureToggle);
    }
    const std::vector<bool> all_ = std::vector<bool>(5, true);
    const std::vector<bool> none_ = std::vector<bool>(5, false);
};

TEST_F(StructurePage, DescriptionIsGreyedWhileDetectionIsAutomaticAndStillShown) {
    gLoadOptions.style = Plot3DStyle_Swift;
    gLoadOptions.isMultiGrid = false;
    gLoadOptions.dataStructure = Plot3DDataStructure_Unstructured;
    refresh();
    EXPECT_EQ(areDescriptionsUsable(), none_);
    EXPECT_EQ(chosen(styleMenu), 4);
    EXPECT_FALSE(isOn(multiGridToggle));
    EXPECT_EQ(chosen(dataStructureRadio), 5);
}

TEST_F(StructurePage, DescriptionIsUsableInManualDescription) {
    gLoadOptions.autoDetect = false;
    refresh();
    EXPECT_EQ(chosen(fileOrganizationRadio), 2);
    EXPECT_EQ(areDescriptionsUsable(), all_);
}

TEST_F(StructurePage, AssumptionsAreAlwaysUsable) {
    for (const bool autoDetect : {true, false}) {
        gLoadOptions.autoDetect = autoDetect;
        refresh();
        EXPECT_TRUE(areAssumptionsUsable());
    }
}

TEST_F(StructurePage, ShowsEachToggleFromItsOwnFlag) {
    const std::vector<std::pair<std::int32_t, bool Plot3DLoadOptions_s::*>> toggles = {
        {multiGridToggle, &Plot3DLoadOptions_s::isMultiGrid},
        {asciiDoubleToggle, &Plot3DLoadOptions_s::asciiIsDouble},
        {asciiIBlankToggle, &Plot3DLoadOptions_s::asciiHasIBlank},
        {sameStructureToggle, &Plot3DLoadOptions_s::solutionsShareStructure}};
    for (const auto& shown : toggles) {
        for (const auto& [toggle, flag] : toggles)
            gLoadOptions.*flag = toggle == shown.first;
        refresh();
        for (const auto& [toggle, flag] : toggles)
            EXPECT_EQ(isOn(toggle), toggle == shown.first);
    }
}

TEST_F(StructurePage, OrganizationSwitchesDetectionAndRefreshes) {
    openHere({choose(fileOrganizationRadio, 2), meanwhile([this] {
                  EXPECT_FALSE(gLoadOptions.autoDetect);
                  EXPECT_EQ(areDescriptionsUsable(), all_);
                  EXPECT_EQ(refreshes(), 2);
              }),
              choose(fileOrganizationRadio, 1), meanwhile([this] {
                  EXPECT_TRUE(gLoadOptions.autoDetect);
                  EXPECT_EQ(areDescriptionsUsable(), none_);
                  EXPECT_EQ(refreshes(), 3);
              })});
}

TEST_F(StructurePage, ItemOfTheMenuIsTheStyle) {
    const std::vector<Plot3DStyle_e> styles = {Plot3DStyle_Classic, Plot3DStyle_Function,
                                               Plot3DStyle_Overflow, Plot3DStyle_Swift};
    Script script = {choose(fileOrganizationRadio, 2)};
    for (const std::int32_t item : {4, 3, 2, 1}) {
        script.push_back(choose(styleMenu, item));
        script.push_back(meanwhile([&styles, item] {
            EXPECT_EQ(gLoadOptions.style, styles[static_cast<std::size_t>(item) - 1]);
        }));
    }
    openHere(std::move(script));
    EXPECT_EQ(refreshes(), 2) << "a choice refreshes nothing";
}

TEST_F(StructurePage, ItemOfTheRadioBoxIsTheDataStructure) {
    const std::vector<Plot3DDataStructure_e> structures = {
        Plot3DDataStructure_1D, Plot3DDataStructure_2D, Plot3DDataStructure_3DPlanes,
        Plot3DDataStructure_3DWhole, Plot3DDataStructure_Unstructured};
    Script script = {choose(fileOrganizationRadio, 2)};
    for (const std::int32_t item : {5, 4, 3, 2, 1}) {
        script.push_back(choose(dataStructureRadio, item));
        script.push_back(meanwhile([&structures, item] {
            EXPECT_EQ(gLoadOptions.dataStructure, structures[static_cast<std::size_t>(item) - 1]);
        }));
    }
    openHere(std::move(script));
    EXPECT_EQ(refreshes(), 2) << "a choice refreshes nothing";
}

struct StructureToggleRow_s {
    const char* name;
    const std::int32_t& toggle;
    bool Plot3DLoadOptions_s::*flag;
};

class StructureToggle : public StructurePage,
                        public ::testing::WithParamInterface<StructureToggleRow_s> {};

TEST_P(StructureToggle, StoresItsValueAndRefreshesNothing) {
    bool& flag = gLoadOptions.*GetParam().flag;
    Script script = {choose(fileOrganizationRadio, 2)};
    for (const bool value : {true, false, true}) {
        script.push_back(set(GetParam().toggle, value));
        script.push_back(meanwhile([&flag, value] { EXPECT_EQ(flag, value); }));
    }
    openHere(std::move(script));
    EXPECT_EQ(refreshes(), 2) << "of the page in front, and of the choice above";
}

INSTANTIATE_TEST_SUITE_P(
    EachToggle, StructureToggle,
    ::testing::Values(
        StructureToggleRow_s{"MultiGrid", multiGridToggle, &Plot3DLoadOptions_s::isMultiGrid},
        StructureToggleRow_s{"AsciiDouble", asciiDoubleToggle, &Plot3DLoadOptions_s::asciiIsDouble},
        StructureToggleRow_s{"AsciiIBlank", asciiIBlankToggle,
                             &Plot3DLoadOptions_s::asciiHasIBlank},
        StructureToggleRow_s{"SameStructure", sameStructureToggle,
                             &Plot3DLoadOptions_s::solutionsShareStructure}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(StructurePage, OtherPagesAreNotRefreshedWithIt) {
    refresh();
    EXPECT_EQ(host().callCount("QuorGUIListDeleteAllItems"), 0);
    EXPECT_EQ(host().callCount("QuorGUITextFieldSetLgIndex"), 0);
}

TEST_F(StructurePage, UnknownPageIsNotRefreshed) {
    host().recordTranscript(true);
    refreshDialogPage(noControl, gLoadOptions);
    refreshDialogPage(loadTabs, gLoadOptions);
    EXPECT_EQ(host().log().transcript, Texts());
}

} // namespace
} // namespace quorvia::quorutildataio
