// Loads from the dialog to values: a structure described by hand, parts of the files; and that the
// instructions which they leave repeat them.
#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

class DialogLoad : public DialogSession {
protected:
    DialogLoad() { series_.grids = {{5, 3, 7}, {2, 3, 5}, {5, 3, 7}}; }

    void writeFiles() {
        grid_ = series_.grid("wing.x");
        solutions_ = {series_.solution("wing.1.q", 1), series_.solution("wing.2.q", 2, 30)};
    }
    Texts files() const { return {grid_, solutions_[0], solutions_[1]}; }

    /// Loads from the dialog, then the same again from the instructions that it left.
    void loadAndReplay(Actions actions) {
        actions.push_back(press("OK"));
        Commands commands = atDialog(files(), actions);
        commands.insert(commands.end(),
                        {describe("from dialog"), command("resetFrame", true), replay()});
        play(commands);
        ASSERT_EQ(exitCode_, 0) << shown_;
        ASSERT_EQ(messages(described("from dialog")), Texts());
        EXPECT_TRUE(dataSet(last()) == dataSet(described("from dialog")));
        EXPECT_EQ(last()["instructions"], described("from dialog")["instructions"]);
    }
    /// Zone from 1, grid from 0.
    void expectZone(std::size_t zone, std::int32_t grid, double shift, const Range_s& i = {},
                    const Range_s& j = {}, const Range_s& k = {}) const {
        const Json& fields = last()["dataSet"]["zones"][zone - 1]["fields"];
        for (std::int32_t variable = 0; variable < 8; ++variable) {
            const bool isCoordinate = variable < 3;
            EXPECT_TRUE(holds(fields[static_cast<std::size_t>(variable)],
                              {.dims = series_.grids[static_cast<std::size_t>(grid)],
                               .grid = grid,
                               .variable = isCoordinate ? variable : variable - 3,
                               .shift = isCoordinate ? 0 : shift,
                               .i = i,
                               .j = j,
                               .k = k}))
                << "zone " << zone << " variable " << variable + 1;
        }
    }
    bool wasInstructed(const std::string& key, const std::string& value) const {
        const auto instructions = last()["instructions"].get<Texts>();
        for (std::size_t place = 0; place + 1 < instructions.size(); ++place)
            if (instructions[place] == key)
                return instructions[place + 1] == value;
        return false;
    }

    std::string grid_;
    Texts solutions_;
};

TEST_F(DialogLoad, WithTheDefaultsHasEveryValue) {
    writeFiles();
    loadAndReplay({});
    ASSERT_EQ(zoneNames(last()).size(), 6U);
    for (std::size_t zone = 1; zone <= 6; ++zone)
        expectZone(zone, static_cast<std::int32_t>((zone - 1) % 3), zone <= 3 ? 0 : 30);
}

TEST_F(DialogLoad, OfAStructureDescribedByHandHasEveryValue) {
    series_.form.encoding = plot3dwriter::Encoding_e::Fortran;
    writeFiles();
    loadAndReplay({toPage(structurePage), radio("Manually Describe"), menu("Plot3D Classic"),
                   toggle("Multi-Grid", true), radio("3-D Whole")});
    EXPECT_TRUE(wasInstructed("AUTODETECT", "No"));
    ASSERT_EQ(zoneNames(last()).size(), 6U);
    for (std::size_t zone = 1; zone <= 6; ++zone)
        expectZone(zone, static_cast<std::int32_t>((zone - 1) % 3), zone <= 3 ? 0 : 30);
}

TEST_F(DialogLoad, DescribedWronglyIsRefusedAndTheDialogComesBack) {
    series_.form.encoding = plot3dwriter::Encoding_e::Fortran;
    writeFiles();
    playAtDialog(files(), {toPage(structurePage), radio("Manually Describe"), radio("Unstructured"),
                           press("OK"), describe("back"), radio("3-D Whole"), press("OK")});
    EXPECT_EQ(messages(described("back")).size(), 1U);
    EXPECT_EQ(described("back")["dialog"]["page"], structurePage);
    EXPECT_EQ(last()["ok"], true);
    expectZone(1, 0, 0);
}

TEST_F(DialogLoad, OfAnIndexSubsetHasTheValuesOfItsPoints) {
    writeFiles();
    loadAndReplay({toPage(subsetPage), type("2", "I-Index Start"), type("2", "I-Index Skip"),
                   type("2", "J-Index Start"), type("3", "K-Index Skip")});
    EXPECT_TRUE(wasInstructed("IINDEXRANGE", "2,,2"));
    for (std::size_t zone = 1; zone <= 6; ++zone)
        expectZone(zone, static_cast<std::int32_t>((zone - 1) % 3), zone <= 3 ? 0 : 30, {2, 0, 2},
                   {2, 0, 1}, {1, 0, 3});
}

TEST_F(DialogLoad, OfAGridSetHasItsGridsAlone) {
    writeFiles();
    loadAndReplay({toPage(subsetPage), type("2-3", "Grid Set")});
    ASSERT_EQ(zoneNames(last()).size(), 4U);
    expectZone(1, 1, 0);
    expectZone(2, 2, 0);
    expectZone(3, 1, 30);
    expectZone(4, 2, 30);
}

TEST_F(DialogLoad, KeepsTheGridSetForTheNextLoad) {
    writeFiles();
    Commands commands = atDialog(files(), {toPage(subsetPage), type("2", "Grid Set"), press("OK")});
    commands.push_back(command("answers", Json::array({true})));
    for (const Json& each : atDialog(files(), {press("OK")}))
        commands.push_back(each);
    play(commands);
    ASSERT_EQ(zoneNames(last()).size(), 2U);
    expectZone(1, 1, 0);
}

TEST_F(DialogLoad, StrandsFollowTheToggle) {
    writeFiles();
    for (const bool isOn : {true, false}) {
        loadAndReplay({toggle("Assign Strand IDs for Zones", isOn)});
        EXPECT_TRUE(wasInstructed("ASSIGNSTRANDIDS", isOn ? "Yes" : "No"));
        EXPECT_EQ(last()["dataSet"]["zones"][0]["strandId"], isOn ? 1 : 0);
    }
}

TEST_F(DialogLoad, TogglesAndMenusReachTheInstructions) {
    writeFiles();
    loadAndReplay({toPage(structurePage), toggle("Assume ASCII Files are Double Precision", true),
                   toggle("Assume ASCII Files are I-Blanked", false),
                   toggle("Assume all Solution/Function Files have the same structure", false)});
    EXPECT_TRUE(wasInstructed("ASCIIISDOUBLE", "Yes"));
    EXPECT_TRUE(wasInstructed("SOLUTIONSSHARESTRUCTURE", "No"));
}

TEST_F(DialogLoad, TakesTheNamesOfItsVariablesFromTheNameFile) {
    writeFiles();
    const std::string names = directory().write("wing.nam", "A\nB\nC\nD\nE\n");
    playAtDialog(files(), {type(names, "Name File"), press("OK")});
    EXPECT_EQ(last()["dataSet"]["variables"], Json({"X", "Y", "Z", "A", "B", "C", "D", "E"}));
}

TEST_F(DialogLoad, AppendsToADataSetThatIsThere) {
    writeFiles();
    Commands commands = {select({grid_, solutions_[0]})};
    for (const Json& each : atDialog({grid_, solutions_[1]},
                                     {toggle("Append to Existing Data Set", true), press("OK")}))
        commands.push_back(each);
    play(commands);
    EXPECT_EQ(messages(last()), Texts());
    ASSERT_EQ(zoneNames(last()).size(), 6U);
    expectZone(4, 0, 30);
    expectZone(6, 2, 30);
}

} // namespace
} // namespace quorvia::testsupport
