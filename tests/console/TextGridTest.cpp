#include "console/TextGrid.h"

#include <sstream>

#include <gtest/gtest.h>

namespace console {
namespace {

class TextGridTest : public testing::Test {
protected:
    using Grid = TextGrid;

    std::string printed(int columns = 0, Paint_s paint = {}) const {
        std::ostringstream out;
        grid.print(out, columns, paint);
        return out.str();
    }

    Grid grid{{{"#", Grid::Align_e::Right},
               {"file", Grid::Align_e::Left, Grid::Fit_e::Shorten},
               {"what", Grid::Align_e::Left, Grid::Fit_e::Wrap}}};
};

TEST_F(TextGridTest, ColumnsAreAsWideAsTheirWidestCell) {
    grid.addRow({"9", "a.q", "solution"});
    grid.addRow({"10", "wing.q", "x"});
    EXPECT_EQ(printed(), "   #  file    what\n"
                         "   9  a.q     solution\n"
                         "  10  wing.q  x\n");
}

TEST_F(TextGridTest, GivesWayToTheWidthOfTheTerminal) {
    grid.addRow({"1", "a/very/long/name.q", "the second grid ends early"});
    EXPECT_EQ(printed(32), "  #  file          what\n"
                           "  1  a/ver…name.q  the second\n"
                           "                   grid ends\n"
                           "                   early\n");
}

TEST_F(TextGridTest, IsCalmInANarrowTerminal) {
    grid.addRow({"1", "a/very/long/name.q", "ends early"});
    EXPECT_EQ(printed(5), "  #  file      what\n"
                          "  1  a/v…me.q  ends\n"
                          "               early\n");
}

TEST_F(TextGridTest, HeadingsAreBoldWhereColoursAreWanted) {
    grid.addRow({"1", "a", "b"});
    EXPECT_EQ(printed(0, {true}), "\x1b[1m  #  file  what\x1b[0m\n  1  a     b\n");
}

} // namespace
} // namespace console
