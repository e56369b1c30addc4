// Every control of the dialog: its kind, caption, place and size, in order; and what it shows at
// the first launch.
#include <fstream>

#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

struct Row_s {
    const char* kind;
    const char* caption; // of a radio box or menu its items, with commas
    int x;
    int y;
    int width = 0;
    int height = 0;
};

const std::vector<Row_s> fileSelectionRows = {
    {"label", "Name File (Optional):", 151, 2785},
    {"label", "Function File(s):", 137, 2012},
    {"label", "Solution File(s):", 151, 1263},
    {"label", "Grid File(s):", 151, 501},
    {"toggle", "Append to Existing Data Set", 178, 74, 3515, 121},
    {"toggle", "Uniform Grid Structure", 178, 207, 2979, 121},
    {"toggle", "Assign New Strand IDs for Each Time Step", 4586, 74, 5012, 121},
    {"toggle", "Assign Strand IDs for Zones", 4586, 201, 3529, 121},
    {"toggle", "Add Zones to Existing Strands", 4586, 328, 3762, 121},
    {"list", "", 137, 611, 7140, 599},
    {"button", "Remove Selected", 7387, 634, 1991, 144},
    {"button", "Remove All           ", 7387, 824, 2018, 144},
    {"button", "Add Files...           ", 7387, 1015, 1977, 144},
    {"list", "", 137, 1372, 7140, 599},
    {"button", "Remove Selected", 7387, 1401, 1991, 144},
    {"button", "Remove All           ", 7387, 1591, 2018, 144},
    {"button", "Add Files...           ", 7387, 1776, 1977, 144},
    {"list", "", 137, 2128, 7140, 599},
    {"button", "Remove Selected", 7387, 2139, 1991, 144},
    {"button", "Remove All           ", 7387, 2335, 2018, 144},
    {"button", "Add Files...           ", 7387, 2531, 1977, 144},
    {"textField", "", 151, 2889, 7099, 144},
    {"button", "...", 7401, 2889, 370, 144},
};

const std::vector<Row_s> fileStructureRows = {
    {"frame", "", 219, 1251, 9118, 588},
    {"label", "Data Structure:", 5231, 207},
    {"label", "Solution file style:", 1167, 570},
    {"frame", "File Organization", 233, 74, 9118, 1159},
    {"radioBox", "Auto Detect,Manually Describe", 659, 190, 2361, 299},
    {"optionMenu", "Plot3D Classic,Plot3D Function,Overflow,Swift", 1194, 674, 2650, 144},
    {"toggle", "Multi-Grid", 1194, 893, 1702, 121},
    {"radioBox", "1-D,2-D,3-D Planes,3-D Whole,Unstructured", 5245, 363, 1812, 709},
    {"toggle", "Assume ASCII Files are Double Precision", 576, 1378, 4971, 121},
    {"toggle", "Assume ASCII Files are I-Blanked", 576, 1522, 4119, 121},
    {"toggle", "Assume all Solution/Function Files have the same structure", 576, 1678, 6811, 121},
};

const std::vector<Row_s> dataSubsetRows = {
    {"frame", "I-Index", 384, 196, 8857, 403},
    {"frame", "K-Index", 384, 1153, 8857, 403},
    {"frame", "J-Index", 384, 674, 8857, 403},
    {"frame", "Grids Loaded (From Each Solution)", 384, 1626, 8857, 403},
    {"label", "Start:", 631, 392},
    {"label", "End:", 3309, 392},
    {"label", "Skip:", 5836, 392},
    {"label", "Start:", 686, 899},
    {"label", "End:", 3378, 899},
    {"label", "Skip:", 5891, 899},
    {"label", "Start:", 631, 1355},
    {"label", "End:", 3309, 1355},
    {"label", "Skip:", 5836, 1355},
    {"label", "Grid Set:", 590, 1764},
    {"label", "Example:  1-5,7,12", 5355, 1776},
    {"textField", "", 1441, 380, 1235, 144},
    {"textField", "", 4050, 380, 1235, 144},
    {"textField", "", 6605, 380, 1235, 144},
    {"textField", "", 1510, 882, 1235, 144},
    {"textField", "", 4105, 882, 1235, 144},
    {"textField", "", 6673, 882, 1235, 144},
    {"textField", "", 1483, 1343, 1235, 144},
    {"textField", "", 4078, 1343, 1235, 144},
    {"textField", "", 6632, 1343, 1235, 144},
    {"textField", "", 2046, 1753, 2293, 144},
};

std::string joined(const Json& items) {
    std::string text;
    for (const Json& item : items)
        text += (text.empty() ? "" : ",") + item.get<std::string>();
    return text;
}

/// A line that tells all of a row, so that two tables can be compared.
std::string lineOf(const std::string& page, const Row_s& row) {
    std::string line = page + " | " + row.kind + " | " + row.caption + " |";
    for (const int number : {row.x, row.y, row.width, row.height})
        line += ' ' + std::to_string(number);
    return line;
}

std::string lineOf(const Json& control) {
    const auto kind = control["kind"].get<std::string>();
    const bool isNamedByItems = kind == "radioBox" || kind == "optionMenu";
    const std::string caption =
        isNamedByItems ? joined(control["items"]) : control["caption"].get<std::string>();
    const auto number = [&control](const char* name) { return control[name].get<int>(); };
    return lineOf(control["page"].get<std::string>(), {kind.c_str(), caption.c_str(), number("x"),
                                                       number("y"), number("w"), number("h")});
}

class DialogLayout : public DialogSession {
protected:
    const Json& firstLaunch() {
        return shownAfter({series_.grid("wing.x"), series_.solution("wing.q", 1)},
                          {toPage(structurePage), toPage(subsetPage)});
    }
};

TEST_F(DialogLayout, HoldsEveryControlInOrder) {
    Texts expected;
    for (const auto& [page, rows] :
         {std::pair(selectionPage, fileSelectionRows), std::pair(structurePage, fileStructureRows),
          std::pair(subsetPage, dataSubsetRows)})
        for (const Row_s& row : rows)
            expected.push_back(lineOf(page, row));
    Texts made;
    for (const Json& each : firstLaunch()["dialog"]["controls"])
        made.push_back(lineOf(each));
    EXPECT_EQ(made, expected);
}

// The host's help names them as the dialog does, a new one as well.
TEST_F(DialogLayout, HelpTellsOfEveryToggle) {
    std::ifstream file(HELP_PAGE);
    std::string help;
    for (std::string word; file >> word;)
        help += word + ' ';
    for (const auto* rows : {&fileSelectionRows, &fileStructureRows, &dataSubsetRows})
        for (const Row_s& row : *rows)
            EXPECT_TRUE(row.kind != std::string("toggle") ||
                        help.find("<b>" + std::string(row.caption) + "</b>") != std::string::npos)
                << row.caption;
}

TEST_F(DialogLayout, FirstLaunchShowsTheDefaults) {
    const Json& shown = firstLaunch();
    EXPECT_FALSE(isOn(shown, selectionPage, "Append to Existing Data Set"));
    EXPECT_TRUE(isOn(shown, selectionPage, "Assign Strand IDs for Zones"));
    EXPECT_TRUE(isOn(shown, selectionPage, "Uniform Grid Structure"));
    EXPECT_TRUE(isOn(shown, selectionPage, "Assign New Strand IDs for Each Time Step"));
    EXPECT_FALSE(isOn(shown, selectionPage, "Add Zones to Existing Strands"));
    EXPECT_EQ(nthControl(shown, structurePage, "radioBox", 1)["value"], 1);
    EXPECT_EQ(control(shown, structurePage, "optionMenu")["value"], 1);
    EXPECT_TRUE(isOn(shown, structurePage, "Multi-Grid"));
    EXPECT_EQ(nthControl(shown, structurePage, "radioBox", 2)["value"], 4);
    EXPECT_FALSE(isOn(shown, structurePage, "Assume ASCII Files are Double Precision"));
    EXPECT_FALSE(isOn(shown, structurePage, "Assume ASCII Files are I-Blanked"));
    EXPECT_TRUE(
        isOn(shown, structurePage, "Assume all Solution/Function Files have the same structure"));
}

TEST_F(DialogLayout, FirstLaunchShowsWholeRangesAndAllGrids) {
    const Json& shown = firstLaunch();
    const Texts expected = {"1", "Last", "1", "1", "Last", "1", "1", "Last", "1", ""};
    for (std::size_t field = 1; field <= expected.size(); ++field)
        EXPECT_EQ(nthControl(shown, subsetPage, "textField", field)["value"], expected[field - 1])
            << field;
}

} // namespace
} // namespace quorvia::testsupport
