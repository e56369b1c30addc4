// What a boundary file may look like, and what is told of one that does not.
#include "boundary/BoundaryFile.h"

#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "support/HostedTest.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;
using Texts = std::vector<std::string>;
using Ranges =
    std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t>;

Ranges rangesOf(const Plot3DBoundary_s& boundary) {
    return {boundary.iStart, boundary.iEnd,   boundary.jStart,
            boundary.jEnd,   boundary.kStart, boundary.kEnd};
}

/// A boundary file of a grid file with two grids, of 5 x 4 x 3 and 2 x 7 x 11 points.
class BoundaryFile : public testsupport::GuestTest {
protected:
    BoundaryFile() {
        setLoadOptionDefaults(options);
        gridFile.numGrids = 2;
        gridFile.gridDims = {{5, 4, 3}, {2, 7, 11}};
    }
    void TearDown() override {
        head.reset();
        names.reset();
    }

    bool read(const std::string& content) {
        options.boundaryFile = directory.write("a.x.fvbnd", content);
        return readBoundaryFile(options, gridFile, head, names, count);
    }
    /// Reads a file whose one boundary, named wall, has this line.
    bool readLine(const std::string& line) {
        head.reset();
        return read("FVBND 1 4\nwall\nBOUNDARIES\n" + line + "\n");
    }
    bool refusesLine(const std::string& line) {
        host().clearLog();
        return !readLine(line) && messages() == Texts{messageFor(line)};
    }
    std::string messageFor(const std::string& line) const {
        return "Error reading Boundary File: " + directory.file("a.x.fvbnd") + ".\nLine: " + line +
               "\nCheck that version is 1.4 and file is correctly formatted.\nBoundary zones will "
               "not be loaded.";
    }

    Texts readNames() const {
        Texts all;
        for (std::int64_t n = 1; names && n <= QuorUtilStringListGetCount(names.get()); ++n)
            all.push_back(HostString(QuorUtilStringListGetString(names.get(), n)).str());
        return all;
    }

    TemporaryDirectory directory;
    Plot3DLoadOptions_s options;
    Plot3DFile_s gridFile;
    Plot3DBoundaryList head;
    HostStringList names;
    std::int64_t count = 0;
};

TEST_F(BoundaryFile, GivesItsBoundariesInOrder) {
    EXPECT_TRUE(read("FVBND 1 4\nwall\ninflow\nBOUNDARIES\n"
                     "1 1 1 $ 1 $ 1 1 F 0\n2 2 2 2 3 5 7 11 T -13\n"));
    EXPECT_EQ(readNames(), (Texts{"wall", "inflow"}));
    EXPECT_EQ(count, 2);
    ASSERT_NE(head, nullptr);
    ASSERT_NE(head->next, nullptr);
    EXPECT_EQ(rangesOf(*head), Ranges(1, 5, 1, 4, 1, 1));
    EXPECT_EQ(rangesOf(*head->next), Ranges(2, 2, 3, 5, 7, 11));
    EXPECT_EQ(head->next->nameIndex, 2);
    EXPECT_EQ(head->next->gridNumber, 2);
    EXPECT_EQ(head->next->next, nullptr);
}

TEST_F(BoundaryFile, CarriesTheLogicalFieldAndTheTrailingValue) {
    EXPECT_TRUE(readLine("1 1 1 1 1 1 1 1 t -13"));
    EXPECT_TRUE(head->logicalField);
    EXPECT_EQ(head->trailingValue, -13);
    EXPECT_TRUE(readLine("1 1 1 1 1 1 1 1 f +17"));
    EXPECT_FALSE(head->logicalField);
    EXPECT_EQ(head->trailingValue, 17);
}

TEST_F(BoundaryFile, ThatDoesNotOpenHasNoBoundariesAndNoMessage) {
    options.boundaryFile = directory.file("absent.fvbnd");
    EXPECT_TRUE(readBoundaryFile(options, gridFile, head, names, count));
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(BoundaryFile, NeedsNoMinorVersion) {
    EXPECT_TRUE(read("FVBND 1\nBOUNDARIES\n"));
    EXPECT_TRUE(read("FVBND 1 4 of a mesh generator\nBOUNDARIES\n"));
}

TEST_F(BoundaryFile, OfAnotherVersionIsRefused) {
    for (const std::string line :
         {"FVBND 1 5", "FVBND 2 4", "FVBND 1.4", "FVBND", "BND 1 4", "FVBND 1 45", "FVBNDS 1 4"}) {
        host().clearLog();
        EXPECT_FALSE(read(line + "\nwall\nBOUNDARIES\n")) << line;
        EXPECT_EQ(messages(), Texts{messageFor(line)});
        EXPECT_FALSE(names);
    }
}

TEST_F(BoundaryFile, WithNothingInItIsRefused) {
    EXPECT_FALSE(read(""));
    EXPECT_EQ(messages(), Texts{messageFor("")});
}

TEST_F(BoundaryFile, TakesItsKeywordsInAnyCase) {
    EXPECT_TRUE(read("fvbnd 1 4\nwall\nboundaries\n1 1 1 1 1 1 1 1 F 0\n"));
    EXPECT_EQ(count, 1);
}

TEST_F(BoundaryFile, TakesAKeywordOfTheBoundariesThatGoesOn) {
    EXPECT_TRUE(read("FVBND 1 4\nwall\n  BoundariesOfTheWing and more\n1 1 1 1 1 1 1 1 F 0\n"));
    EXPECT_EQ(count, 1);
}

TEST_F(BoundaryFile, MayHaveNeitherNamesNorBoundaries) {
    EXPECT_TRUE(read("FVBND 1 4\nBOUNDARIES"));
    EXPECT_TRUE(names);
    EXPECT_EQ(readNames(), Texts());
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(count, 0);
}

TEST_F(BoundaryFile, WithoutNamesCanHaveNoBoundary) {
    EXPECT_FALSE(read("FVBND 1 4\nBOUNDARIES\n1 1 1 1 1 1 1 1 F 0\n"));
    EXPECT_EQ(messages(), Texts{messageFor("1 1 1 1 1 1 1 1 F 0")});
}

TEST_F(BoundaryFile, KeepsTheFirstWordOfAName) {
    EXPECT_TRUE(read("FVBND 1 4\n\tupper wall\r\nBOUNDARIES\n"));
    EXPECT_EQ(readNames(), Texts{"upper"});
}

TEST_F(BoundaryFile, TellsTheLastNameIfTheNamesNeverEnd) {
    EXPECT_FALSE(read("FVBND 1 4\nwall\ninflow\n"));
    EXPECT_EQ(messages(), Texts{messageFor("inflow")});
}

TEST_F(BoundaryFile, ThatIsOneLineIsRefused) {
    EXPECT_FALSE(read("FVBND 1 4\n"));
    EXPECT_EQ(messages(), Texts{messageFor("FVBND 1 4")});
}

TEST_F(BoundaryFile, MayHaveBlankLinesOnlyBehindTheKeyword) {
    EXPECT_TRUE(read("FVBND 1 4\nwall\nBOUNDARIES\n\n \t\r\n1 1 1 1 1 1 1 1 F 0\n\n\f\n\v\n"));
    EXPECT_EQ(count, 1);
    EXPECT_FALSE(read("FVBND 1 4\nwall\n\nBOUNDARIES\n"));
    EXPECT_EQ(messages(), Texts{messageFor("")});
}

TEST_F(BoundaryFile, CutsTheLineOfItsMessageAtASemicolon) {
    EXPECT_FALSE(readLine("1 1 1 9 1 1 1 1 F 0 ; a remark"));
    EXPECT_EQ(messages(), Texts{messageFor("1 1 1 9 1 1 1 1 F 0 ")});
}

TEST_F(BoundaryFile, KeepsWhatWasReadBeforeAnError) {
    EXPECT_FALSE(read("FVBND 1 4\nwall\nBOUNDARIES\n1 1 1 2 1 2 1 2 F 0\n1 1 bad\n"));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(rangesOf(*head), Ranges(1, 2, 1, 2, 1, 2));
    ASSERT_NE(head->next, nullptr);
    EXPECT_EQ(head->next->next, nullptr);
}

TEST_F(BoundaryFile, ReadsALongLineInPieces) {
    const std::string firstPiece = "1 1 1 1 1 1 1 1 F 0" + std::string(236, ' ');
    ASSERT_EQ(firstPiece.size(), 255U);
    EXPECT_TRUE(readLine(firstPiece + "1 2 2 2 2 2 2 2 F 0"));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(head->next->gridNumber, 2);
}

TEST_F(BoundaryFile, ResolvesIndicesFromTheEnd) {
    EXPECT_TRUE(readLine("1 1 -5 -1 -2 $ -3 -2 F 0"));
    EXPECT_EQ(rangesOf(*head), Ranges(1, 5, 3, 4, 1, 2));
}

TEST_F(BoundaryFile, TakesTheDimensionsOfTheBoundarysGrid) {
    EXPECT_TRUE(readLine("1 2 $ $ 1 $ -1 $ F 0"));
    EXPECT_EQ(rangesOf(*head), Ranges(2, 2, 1, 7, 11, 11));
}

TEST_F(BoundaryFile, RefusesIndicesOutsideTheGrid) {
    EXPECT_TRUE(refusesLine("1 1 0 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 0 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 6 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 0 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 1 5 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 0 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 1 4 F 0"));
    EXPECT_TRUE(refusesLine("1 1 -6 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 -2147483648 1 1 1 1 1 F 0"));
}

TEST_F(BoundaryFile, RefusesRangesThatEndBeforeTheyStart) {
    EXPECT_TRUE(refusesLine("1 1 3 2 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 3 2 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 3 2 F 0"));
}

TEST_F(BoundaryFile, RefusesNamesThatAreNotInTheList) {
    EXPECT_TRUE(refusesLine("0 1 1 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("2 1 1 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("-1 1 1 1 1 1 1 1 F 0"));
}

TEST_F(BoundaryFile, RefusesGridsThatAreNotThere) {
    for (const char* number : {"0", "-1", "3", "2147483647", "-2147483648"})
        EXPECT_TRUE(refusesLine(std::string("1 ") + number + " 1 1 1 1 1 1 F 0")) << number;
    gridFile.gridDims.push_back({0, 0, 0}); // the list may be longer than the grids
    EXPECT_TRUE(refusesLine("1 3 $ $ $ $ $ $ F 0"));
}

TEST_F(BoundaryFile, OfAFileWithoutGridsIsRefused) {
    gridFile.numGrids = 0;
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 1 1 F 0"));
}

TEST_F(BoundaryFile, RefusesTokensThatAreNoNumbers) {
    EXPECT_TRUE(refusesLine("wall 1 1 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 x 1 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 $1 1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 +-1 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 4294967297 1 1 1 1 F 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 1 1 TRUE 0"));
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 1 1 F none"));
}

TEST_F(BoundaryFile, TakesTheNumberThatATokenStartsWith) {
    EXPECT_TRUE(readLine("1st 1 +2 3.9 1 1 1 1 F 0x"));
    EXPECT_EQ(rangesOf(*head), Ranges(2, 3, 1, 1, 1, 1));
}

TEST_F(BoundaryFile, RefusesALineOfNineTokens) {
    EXPECT_TRUE(refusesLine("1 1 1 1 1 1 1 1 F"));
    EXPECT_TRUE(refusesLine("1"));
}

TEST_F(BoundaryFile, IgnoresWhatFollowsTheTenthToken) {
    EXPECT_TRUE(readLine("1 1 1 1 1 1 1 1 F 0 the lower side"));
}

TEST_F(BoundaryFile, ReportsItsLastLineIfTheHostHasNoMemory) {
    for (const char* operation :
         {"QuorUtilStringListAlloc", "QuorUtilStringAlloc", "QuorUtilStringListAppendString"}) {
        host().clearLog();
        host().failCall(operation, 1);
        EXPECT_FALSE(read("FVBND 1 4\nwall\nBOUNDARIES\n")) << operation;
        EXPECT_EQ(messages(), Texts{messageFor("wall")});
    }
}

TEST_F(BoundaryFile, MayHaveMoreBoundariesThanTheStackIsDeep) {
    std::string content = "FVBND 1 4\nwall\nBOUNDARIES\n";
    for (int n = 0; n < 300000; ++n)
        content += "1 1 1 1 1 1 1 1 F 0\n";
    EXPECT_TRUE(read(content));
    EXPECT_EQ(count, 300000);
}

TEST_F(BoundaryFile, GivesCopiesOfABoundaryAlone) {
    ASSERT_TRUE(read("FVBND 1 4\nwall\nBOUNDARIES\n1 2 1 2 3 5 7 11 T 13\n1 1 1 1 1 1 1 1 F 0\n"));
    const Plot3DBoundaryList copy = copyBoundary(*head);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(rangesOf(*copy), Ranges(1, 2, 3, 5, 7, 11));
    EXPECT_EQ(copy->gridNumber, 2);
    EXPECT_TRUE(copy->logicalField);
    EXPECT_EQ(copy->trailingValue, 13);
    EXPECT_EQ(copy->next, nullptr);
}

} // namespace
} // namespace quorvia::testsupport
