// How files that are named together become lists by kind.
#include <fstream>

#include "SeriesFixture.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using plot3d::ErrorKind;
using writer::FileKind_e;

class Sorting : public SeriesTest {
protected:
    std::string writeGrid(const std::string& name = "wing.x") const {
        return writeStep(name, FileKind_e::Grid, 0);
    }
    std::string writeFunction(const std::string& name) const {
        return writeStep(name, FileKind_e::Function, 1);
    }
};

TEST_F(Sorting, TakesTheNamesOfVariablesFromANameFile) {
    const auto names = write("wing.nam", "pressure\nheat flux\n");
    const auto data = DataSet::open({names, writeGrid(), writeFunction("wing.f")});
    EXPECT_EQ(data.files().name, names);
    EXPECT_EQ(data.variables()[3].name, "pressure");
}

TEST_F(Sorting, TakesTheNameFileOfTheOptions) {
    plot3d::OpenOptions options;
    options.nameFile = write("names.txt", "pressure\nheat flux\n");
    const auto data = DataSet::open({writeGrid(), writeFunction("wing.f")}, options);
    EXPECT_EQ(data.variables()[4].name, "heat flux");
}

TEST_F(Sorting, RefusesASecondNameFile) {
    const auto error = failureOf({write("a.nam", "a\n"), write("b.nam", "b\n"), writeGrid()});
    EXPECT_EQ(error.kind(), ErrorKind::Refused);
    EXPECT_EQ(error.facts().file, file("b.nam"));
}

TEST_F(Sorting, RefusesAFileThatIsOfNoKind) {
    const auto error = failureOf({write("notes.txt", "nothing of the sort\n"), writeGrid()});
    EXPECT_EQ(error.kind(), ErrorKind::NotPlot3D);
    EXPECT_EQ(error.facts().file, file("notes.txt"));
    EXPECT_FALSE(error.facts().next.empty());
}

TEST_F(Sorting, NamesTheGridInTheCommandForASolutionThatIsOfNoKind) {
    const auto solution = writeStep("wing.bin", FileKind_e::ClassicSolution, 1, 0.25, plainForm());
    std::ofstream(solution, std::ios::binary | std::ios::app) << "and more of it";
    const auto grid = writeGrid("mesh.bin");
    const std::string next = failureOf({solution, grid}).facts().next;
    EXPECT_TRUE(next.starts_with("plot3d stats --grid " + grid + " --solution " + solution))
        << next;
}

TEST_F(Sorting, NamesTheFileOfASeriesThatIsBad) {
    const auto error =
        failureOf({writeGrid(), writeStep("wing_1.q", FileKind_e::ClassicSolution, 1, 0.25),
                   write("wing_2.q", std::string(500, '\0'))});
    EXPECT_EQ(error.kind(), ErrorKind::NotPlot3D);
    EXPECT_EQ(error.facts().file, file("wing_2.q"));
}

TEST_F(Sorting, RefusesADirectory) {
    const auto error = failureOf({std::filesystem::path(file("none")).parent_path().string()});
    EXPECT_EQ(error.kind(), ErrorKind::NotFound);
}

TEST_F(Sorting, RefusesNothing) {
    EXPECT_EQ(failureOf({}).kind(), ErrorKind::Refused);
}

TEST_F(Sorting, IsLeftAloneWhereKindsAreGiven) {
    plot3d::FileLists lists;
    lists.grid = {writeGrid("strange.q")};
    lists.function = {writeFunction("strange.x")};
    const auto data = DataSet::open(lists);
    EXPECT_EQ(data.zones().size(), 2u);
    EXPECT_TRUE(isOfStep(data, 1, 3, 4, 1, 1));
}

TEST_F(Sorting, LetsInstructionsHaveTheLastWord) {
    plot3d::OpenOptions options;
    options.instructions = {{"FILEGRIDSET", "2"}, {"ASSIGNSTRANDIDS", "No"}};
    const auto data = DataSet::open({writeGrid()}, options);
    ASSERT_EQ(data.zones().size(), 1u);
    EXPECT_EQ(data.zones()[0].strand, 0);
    EXPECT_TRUE(isOfStep(data, 0, 0, 2, 0, 1));
}

TEST_F(Sorting, RefusesASetOfGridsBesideARangeWithAnEnd) {
    plot3d::OpenOptions options;
    options.instructions = {{"filegridset", "2"}, {"IINDEXRANGE", "1,2,1"}};
    EXPECT_EQ(failureOf({writeGrid()}, options).kind(), ErrorKind::Unsupported);
    options.instructions = {{"FILEGRIDSET", "2"}, {"IINDEXRANGE", "1,,2"}};
    EXPECT_EQ(DataSet::open({writeGrid()}, options).zones().size(), 1u);
}

TEST_F(Sorting, RefusesWordsThatNoLoadTakes) {
    plot3d::OpenOptions options;
    options.instructions = {{"STYLE", "NONE"}};
    EXPECT_THROW(DataSet::open({writeGrid()}, options), plot3d::Error);
}

/// What stood behind them was left out, without a word.
TEST_F(Sorting, RefusesInstructionsThatThereAreNot) {
    plot3d::OpenOptions options;
    options.instructions = {{"ASCIIISDUBLE", "Yes"}};
    const auto error = failureOf({writeGrid()}, options);
    EXPECT_EQ(error.kind(), ErrorKind::Usage);
    EXPECT_EQ(error.message(), "There is no load instruction \"ASCIIISDUBLE\"");
    EXPECT_NE(error.facts().expected.find(", ASCIIISDOUBLE, "), std::string::npos);
    options.instructions = {{"-iset", "1,2,1"}}; // of older lists
    EXPECT_NO_THROW(DataSet::open({writeGrid()}, options));
}

TEST_F(Sorting, RefusesInstructionsThatAreNeitherYesNorNo) {
    plot3d::OpenOptions options;
    options.instructions = {{"AsciiIsDouble", "Yse"}};
    EXPECT_EQ(failureOf({writeGrid()}, options).kind(), ErrorKind::Usage);
    options.instructions = {{"FILELIST_GRIDFILES", "1"}};
    EXPECT_EQ(failureOf({writeGrid()}, options).kind(), ErrorKind::Usage);
    for (const char* const word : {"yes", "No", "t", "FALSE"}) {
        options.instructions = {{"AsciiIsDouble", word}};
        EXPECT_NO_THROW(DataSet::open({writeGrid()}, options)) << word;
    }
}

} // namespace
} // namespace plot3dtest
