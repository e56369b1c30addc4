// Loads that can't become what they ask for: told, with the cause first, and before anything of the
// data set that is there has changed.
#include "acceptance/macros/KindSession.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

const Settings append = {{"APPEND", "Yes"}};

class RefusedLoad : public KindSession {
protected:
    /// What is told of a load onto the data set of a kind.
    Texts refusalOf(const Json& load, LoadKind_e onto = LoadKind_e::Fresh) {
        play({start(onto), describe("before"), load});
        EXPECT_EQ(last()["ok"], false);
        EXPECT_EQ(exitCode_, 1);
        EXPECT_EQ(dataSet(last()), dataSet(described("before")));
        EXPECT_EQ(last()["undo"], Json::array());
        EXPECT_EQ(last()["stateChanges"], Json::array());
        EXPECT_EQ(last()["instructions"], described("before")["instructions"]);
        return messages(last());
    }
};

// ---- A set of grids that selects none -----------------------------------------------------------

class SetOfNoGrid : public RefusedLoad {
protected:
    static Texts told(const std::string& file) {
        return {"The grid set selects no grid of the file.\nFile: " + file};
    }
    const Settings set_ = {{"FILEGRIDSET", "3,7"}};
};

TEST_F(SetOfNoGrid, IsRefusedInEveryKindOfLoad) {
    EXPECT_EQ(refusalOf(loadOf(LoadKind_e::Fresh, set_)), told(grid_));
    EXPECT_EQ(refusalOf(loadOf(LoadKind_e::AppendGrid, set_)), told(grid_));
    EXPECT_EQ(refusalOf(loadOf(LoadKind_e::ReplaceSolution, set_)), told(solutions_[2]));
    EXPECT_EQ(refusalOf(loadOf(LoadKind_e::AppendSolution, set_)), told(solutions_[2]));
    EXPECT_EQ(refusalOf(loadOf(LoadKind_e::AppendFunctions, set_)), told(functions_[0]));
    EXPECT_EQ(refusalOf(loadOf(LoadKind_e::AppendToLoneGrid, set_), LoadKind_e::AppendToLoneGrid),
              told(lineSolutions_[2]));
}

TEST_F(SetOfNoGrid, IsRefusedOfALineWithItsGrid) {
    EXPECT_EQ(refusalOf(load({.grids = {line_}}, set_)), told(line_));
}

TEST_F(SetOfNoGrid, MakesNoDataSetWhereThereIsNone) {
    play({loadOf(LoadKind_e::Fresh, set_)});
    EXPECT_TRUE(last()["dataSet"].isNull());
    EXPECT_EQ(messages(last()), told(grid_));
}

TEST_F(SetOfNoGrid, IsRefusedOfALaterFileOfFewerGrids) {
    series_.grids = {{2, 3, 5}, {3, 5, 2}, {5, 2, 3}};
    const std::string three = series_.grid("three.x");
    const Settings unlike = {{"UNIFORMGRIDSTRUCTURE", "No"}, {"FILEGRIDSET", "3"}};
    EXPECT_EQ(refusalOf(load({.grids = {three, grid_}}, unlike)), told(grid_));
    EXPECT_EQ(refusalOf(load({.grids = {grid_, three}}, unlike)), told(grid_));
}

TEST_F(SetOfNoGrid, IsNotOneThatNamesGridsBesideTheFilesOwn) {
    play({loadOf(LoadKind_e::Fresh, {{"FILEGRIDSET", "2,7"}})});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(zoneNames(last()), (Texts{"step.3.q:2", "step.4.q:2"}));
}

TEST_F(SetOfNoGrid, IsNotTheEmptySet) {
    play({loadOf(LoadKind_e::Fresh, {{"FILEGRIDSET", ""}})});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(zoneNames(last()).size(), 4U);
}

// ---- Function files under the name of solutions -------------------------------------------------

class FunctionsAsSolutions : public RefusedLoad {
protected:
    const Texts told_ = {"You can not load function files or solution files only. You must load "
                         "grid and solution files along with function files. "};
};

TEST_F(FunctionsAsSolutions, AreRefusedLikeFunctionsWhereTheyWouldReplace) {
    EXPECT_EQ(refusalOf(load({.functions = functions_})), told_);
    EXPECT_EQ(refusalOf(load({.solutions = functions_})), told_);
    EXPECT_EQ(refusalOf(load({.solutions = {functions_[0]}})), told_);
    EXPECT_EQ(refusalOf(load({.solutions = functions_}, {{"EXTRACTTIMEFROMSOLFILENAMES", "Yes"}})),
              told_);
}

TEST_F(FunctionsAsSolutions, AreRefusedWhereThereIsNoDataSet) {
    play({load({.solutions = functions_})});
    EXPECT_EQ(messages(last()), told_);
    EXPECT_TRUE(last()["dataSet"].isNull());
}

TEST_F(FunctionsAsSolutions, AreRefusedWithAListOfNoGrids) {
    auto instructions = load({.solutions = functions_})["instructions"].get<Texts>();
    instructions.insert(instructions.end(), {"FILELIST_GRIDFILES", "0"});
    EXPECT_EQ(refusalOf(command("instructions", instructions)), told_);
}

TEST_F(FunctionsAsSolutions, AreRefusedFromASelection) {
    const std::string misnamed = series_.function("misnamed.q", 2, 50);
    EXPECT_EQ(refusalOf(select({misnamed})), told_);
}

TEST_F(FunctionsAsSolutions, MayBeAppendedAndBringTheSame) {
    play({start(LoadKind_e::AppendFunctions), load({.functions = functions_}, append),
          describe("right name"), start(LoadKind_e::AppendFunctions),
          load({.solutions = functions_}, append)});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(dataSet(last()), dataSet(described("right name")));
}

TEST_F(FunctionsAsSolutions, MayComeWithTheirGrid) {
    play({load({.grids = {grid_}, .functions = functions_}), describe("right name"),
          command("resetFrame", true), load({.grids = {grid_}, .solutions = functions_})});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(dataSet(last()), dataSet(described("right name")));
}

// ---- Ranges -------------------------------------------------------------------------------------

// The parser has words of its own, and whoever calls the load with options does not pass it.
TEST_F(RefusedLoad, OfARangeTurnedRoundInInstructionsIsTheParsers) {
    for (const char* key : {"IINDEXRANGE", "JINDEXRANGE", "-ISET", "-JSET", "-KSET"})
        EXPECT_EQ(refusalOf(loadOf(LoadKind_e::Fresh, {{key, "3,2,1"}})),
                  Texts{"Index range end must be greater than or equal to index range start."})
            << key;
}

// ---- Variables ----------------------------------------------------------------------------------

/// A later file may have more of them than the first, which the variables are named after.
class TooManyVariables : public RefusedLoad {
protected:
    // In plain binary the size of a later file gives it away.
    TooManyVariables() { series_.form.encoding = Encoding_e::Fortran; }

    std::string overflow(const std::string& name, std::int32_t variables) {
        FileDescription_s description =
            testsupport::describe(FileKind_e::OverflowSolution, series_.grids);
        description.numVars = variables;
        description.scalars.assign(series_.grids.size(), std::vector<double>(13, 1.0));
        return directory().write(name, bytesOf(description, series_.form));
    }
    static std::string cause(int needed, int there, const std::string& file) {
        return "The values of the file need a data set of " + std::to_string(needed) +
               " variables, but it has " + std::to_string(there) + ".\nFile: " + file;
    }
    const Settings shared_ = {{"SOLUTIONSSHARESTRUCTURE", "Yes"}};
};

TEST_F(TooManyVariables, OfALaterSolutionAreToldWithItsFile) {
    const Texts solutions = {overflow("six.q", 6), overflow("eight.q", 8)};
    EXPECT_EQ(refusalOf(load({.grids = {grid_}, .solutions = solutions}, shared_)),
              (Texts{cause(11, 9, solutions[1]),
                     "Invalid Plot 3D solution file.\nFile: " + solutions[1]}));
}

TEST_F(TooManyVariables, OfALaterFunctionFileAreToldWithItsFile) {
    const Texts functions = {series_.function("t.1.f", 2), series_.function("t.2.f", 3)};
    EXPECT_EQ(
        refusalOf(load(
            {.grids = {grid_}, .solutions = {solutions_[0], solutions_[1]}, .functions = functions},
            shared_)),
        (Texts{cause(11, 10, functions[1]),
               "Invalid Plot 3D solution file.\nFile: " + solutions_[1]}));
}

TEST_F(TooManyVariables, OfALaterGridFileWithIBlankAreToldWithItsFile) {
    const std::string later = series_.grid("later.x", true);
    EXPECT_EQ(refusalOf(load({.grids = {grid_, later}}, {{"UNIFORMGRIDSTRUCTURE", "No"}})),
              (Texts{cause(4, 3, later), "Invalid Plot 3D grid file.\nFile: " + later}));
}

TEST_F(TooManyVariables, AreToldOfALoadThatReplaces) {
    play({load({.grids = {grid_}, .solutions = {overflow("six.q", 6)}}), describe("before"),
          load({.solutions = {overflow("six.q", 6), overflow("eight.q", 8)}}, shared_)});
    const std::string later = directory().file("eight.q");
    EXPECT_EQ(messages(last()),
              (Texts{cause(11, 9, later), "Invalid Plot 3D solution file.\nFile: " + later}));
    EXPECT_EQ(dataSet(last()), dataSet(described("before")));
}

// A host without memory for the set of new variables adds none, and the load goes on.
TEST_F(RefusedLoad, ForWantOfNewVariablesIsToldWithItsFile) {
    const std::string grid = series_.grid("iblank.x", true);
    play({load({.grids = {grid_}}), describe("before"),
          command("fail", Json{{"operation", "QuorUtilSetAlloc"}, {"call", 2}}),
          load({.grids = {grid}}, append)});
    EXPECT_EQ(
        messages(last()),
        (Texts{"The values of the file need a data set of 4 variables, but it has 3.\nFile: " +
                   grid,
               "Invalid Plot 3D grid file.\nFile: " + grid}));
    EXPECT_EQ(dataSet(last()), dataSet(described("before")));
}

} // namespace
} // namespace quorvia::testsupport
