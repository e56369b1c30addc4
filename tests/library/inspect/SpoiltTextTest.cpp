// Good text files, each spoilt in one way: what is told of them, and what to type next.
#include "InspectFixture.h"

namespace plot3d {
namespace {

using writer::Encoding_e;

class SpoiltText : public InspectTest {
protected:
    /// Several grids, or one, of the writer's.
    static std::string text(bool isMultiGrid, writer::FileKind_e kind = writer::FileKind_e::Grid) {
        LayoutCase_s layout;
        layout.kind = kind;
        layout.isMultiGrid = isMultiGrid;
        return bytesOf(layout, formOf(Encoding_e::Text));
    }
    static std::string oneGrid() { return text(false); }
    static std::string threeGrids() { return text(true); }

    FileInfo inspectSpoilt(const std::string& bytes, const std::string& name = "wing.x") const {
        const FileInfo info = inspectBytes(name, bytes);
        expectAccount(info);
        return info;
    }

    static std::string replaced(std::string text, const std::string& from, const std::string& to) {
        const auto position = text.find(from);
        EXPECT_NE(position, std::string::npos) << from;
        return text.replace(position, from.size(), to);
    }

    /// Grid number `grid` from 0 with its own size ahead of it.
    static std::string gridAlone(std::size_t grid) {
        LayoutCase_s layout;
        layout.isMultiGrid = true;
        auto contents = quorvia::testsupport::contentsOf(layout);
        contents.isMultiGrid = false;
        contents.grids = {contents.grids[grid]};
        return bytesOf(contents, formOf(Encoding_e::Text));
    }
};

// ---- Lines --------------------------------------------------------------------------------------

TEST_F(SpoiltText, WithALeadingBlankLineIsRefused) {
    const FileInfo info = inspectSpoilt("\n" + threeGrids());
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(problemOf(info),
              "The file begins with a blank line: a count of grids must stand on the first one.");
    EXPECT_EQ(nextOf(*info.problem, info), "sed -E -i.bak /[^[:space:]]/,$!d FILE");
}

TEST_F(SpoiltText, WithALeadingBlankLineAndOneGridIsGood) {
    EXPECT_TRUE(inspectSpoilt("\n" + oneGrid()).ok);
}

TEST_F(SpoiltText, WithARemarkIsRefused) {
    const FileInfo info = inspectSpoilt("wing of the year 2010\n" + oneGrid());
    EXPECT_EQ(problemOf(info), "The first line is a remark, which PLOT3D does not know.");
    EXPECT_EQ(info.problem->misfit.line, 1);
    EXPECT_EQ(nextOf(*info.problem, info), "sed -E -i.bak 1d FILE");
}

TEST_F(SpoiltText, WithCommentsIsRefused) {
    for (const char* comment : {"# wing\n", "! wing\n", "  % wing\n", "// wing\n"}) {
        const FileInfo info = inspectSpoilt(comment + oneGrid());
        EXPECT_EQ(problemOf(info), "The file begins with a comment, which PLOT3D does not know.");
    }
}

TEST_F(SpoiltText, WithCountAndSizesOnOneLineIsRefused) {
    const std::string good = threeGrids();
    const FileInfo info = inspectSpoilt(replaced(good, "3\n", "3 "));
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(problemOf(info), "The count of grids stands on one line with their sizes.");
    EXPECT_EQ(nextOf(*info.problem, info),
              "sed -E -i.bak 1s/^[[:space:],]*([0-9]+)[[:space:],]+/\\1\\n/ FILE");
}

// ---- Headers in other places --------------------------------------------------------------------

TEST_F(SpoiltText, WithSizesAheadOfEachBlockIsRefused) {
    const FileInfo info = inspectSpoilt("3\n" + gridAlone(0) + gridAlone(1) + gridAlone(2));
    EXPECT_EQ(problemOf(info) + warningOf(info),
              "The dimensions of each grid stand ahead of its own block, and not all ahead of the "
              "first.");
}

TEST_F(SpoiltText, OfGridsWithoutACountIsTakenAndWarnedOf) {
    const std::string first = gridAlone(0);
    const std::string rest = gridAlone(1) + gridAlone(2);
    const FileInfo info = inspectSpoilt(first + rest);
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.bytes.surplus, std::ssize(rest));
    ASSERT_EQ(info.warnings.size(), 1U);
    EXPECT_EQ(warningOf(info),
              "1,878 of 2,678 bytes stand behind the first grid: 3 grids without a "
              "count ahead of them, of which the first alone is taken.");
    EXPECT_EQ(info.warnings[0].next.back(), "skip=" + std::to_string(first.size()));
}

TEST_F(SpoiltText, OfAFunctionWithoutItsCountOfVariablesIsToldSo) {
    const std::string good = text(false, writer::FileKind_e::Function);
    const FileInfo info = inspectSpoilt(replaced(good, "2 3 5 2\n", "2 3 5\n"), "wing.f");
    ASSERT_EQ(info.warnings.size(), 1U); // the third size passes for 5 variables of a 2-D file
    EXPECT_EQ(warningOf(info), "A function file without its count of variables behind the "
                               "dimensions: 2 would fit.");
    EXPECT_EQ(nextOf(info.warnings[0], info), "sed -E -i.bak 1s/$/ 2/ FILE");
}

TEST_F(SpoiltText, OfTrianglesAndTetrahedraTogetherIsRefused) {
    std::string both = "4 2 3\n" + std::string("0.5 0.25 0.75\n0.5 0.25 0.75\n0.5 0.25 0.75\n"
                                               "0.5 0.25 0.75\n1 2 3\n2 3 4\n0 0\n");
    both += "1 2 3 4\n1 2 3 4\n1 2 3 4\n";
    const FileInfo info = inspectSpoilt(both);
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(problemOf(info), "An unstructured grid has triangles and tetrahedra together, which "
                               "is not read: they belong in two files.");
}

// ---- Undeclared I-blank -------------------------------------------------------------------------

TEST_F(SpoiltText, WithIBlankIsTakenForWhatItIsAndWarnedOf) {
    const FileInfo info = inspectSpoilt(gridBytes(Encoding_e::Text, true));
    EXPECT_TRUE(info.ok);
    EXPECT_TRUE(info.iBlank);
    ASSERT_EQ(info.warnings.size(), 1U);
    EXPECT_EQ(nextOf(info.warnings[0], info), "plot3d stats --grid FILE --set ASCIIHASIBLANK=Yes");
}

// ---- Tokens -------------------------------------------------------------------------------------

TEST_F(SpoiltText, ByATokenThatIsNoNumberIsToldWithLineAndColumn) {
    for (const char* token : {"****", "0.57-104", "nan", "1-2", "1.5x", "0x10"}) {
        std::string bytes = oneGrid();
        const auto secondLine = bytes.find('\n') + 1;
        const auto secondToken = bytes.find(' ', secondLine) + 1;
        bytes.replace(secondToken, bytes.find(' ', secondToken) - secondToken, token);
        const FileInfo info = inspectSpoilt(bytes);
        EXPECT_FALSE(info.ok);
        EXPECT_EQ(problemOf(info), "What stands where a number should is none.") << token;
        EXPECT_EQ(info.problem->misfit.found, token);
        EXPECT_EQ(info.problem->misfit.line, 2);
        EXPECT_EQ(info.problem->misfit.column,
                  static_cast<std::int64_t>(secondToken - secondLine) + 1);
        EXPECT_EQ(nextOf(*info.problem, info), "sed -n 2p FILE");
    }
}

TEST_F(SpoiltText, ByAnIntegerPast32BitsIsRefused) {
    std::string bytes = oneGrid();
    bytes.replace(bytes.rfind(' ') + 1, std::string::npos, "3000000000\n");
    const FileInfo info = inspectSpoilt(bytes);
    EXPECT_EQ(problemOf(info), "An integer of more than 32 bits comes in as another number.");
    EXPECT_EQ(info.problem->misfit.found, "3000000000");
}

TEST_F(SpoiltText, ByNumbersBehindTheLastGridIsWarnedOf) {
    const FileInfo info = inspectSpoilt(oneGrid() + "1.5 2.5\n");
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.bytes.surplus, 8);
    EXPECT_EQ(warningOf(info).substr(warningOf(info).find(" stand")),
              " stand behind the last grid, 2 numbers.");
}

// ---- Other kinds --------------------------------------------------------------------------------

TEST_F(SpoiltText, ThatIsASolutionGivenAsAGridIsWarnedOf) {
    const FileInfo info = inspectSpoilt(solutionBytes(Encoding_e::Text));
    EXPECT_EQ(warningOf(info) + problemOf(info), "As a solution file all its bytes are used.");
}

} // namespace
} // namespace plot3d
