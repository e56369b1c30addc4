// Which numbers of files go together, how they pair into time steps (docs/time-series.md), and what
// is told of those that don't.
#include "acceptance/macros/KindSession.h"

namespace quorvia::testsupport {
namespace {

class Decision : public MacroSession {
protected:
    Texts grids(std::size_t count) { return first(count, ".x"); }
    Texts solutions(std::size_t count) { return first(count, ".q"); }
    Texts functions(std::size_t count) { return first(count, ".f"); }

    /// The numbers of grid, solution and function files.
    Json loadOf(std::size_t g, std::size_t s, std::size_t f, const Settings& settings = {}) {
        return load({.grids = grids(g), .solutions = solutions(s), .functions = functions(f)},
                    settings);
    }
    Texts refusalOf(std::size_t g, std::size_t s, std::size_t f, const Settings& settings = {}) {
        play({before_, loadOf(g, s, f, settings)});
        EXPECT_EQ(last()["ok"], false);
        EXPECT_EQ(zoneNames(last()), Texts{"1.q:1"});
        return messages(last());
    }
    /// The zones and the count of variables that a fresh load gives.
    std::string outcomeOf(const Json& load) {
        play({load});
        EXPECT_EQ(messages(last()), Texts());
        return summary();
    }
    /// The same of a load onto a data set of one zone, line 1 with eight variables.
    std::string outcomeOnto(const Json& load) {
        play({before_, load});
        EXPECT_EQ(messages(last()), Texts());
        return summary();
    }

private:
    /// Each file is written once, with values of its own.
    Texts first(std::size_t count, const std::string& extension) {
        Texts names;
        for (std::size_t number = 1; number <= count; ++number) {
            const std::string name = std::to_string(number) + extension;
            const auto step = static_cast<double>(number);
            if (extension == ".x")
                names.push_back(one_.grid(name));
            else if (extension == ".q")
                names.push_back(one_.solution(name, step, step));
            else
                names.push_back(one_.function(name, 2, step));
        }
        return names;
    }
    std::string summary() const {
        if (last()["dataSet"].is_null())
            return "";
        std::string text;
        for (const std::string& name : zoneNames(last()))
            text += name + " ";
        return text + std::to_string(last()["dataSet"]["variables"].size());
    }
    static SmallFiles oneGrid(const std::string& folder) {
        SmallFiles files(folder);
        files.grids = {{2, 3, 5}};
        return files;
    }

    SmallFiles one_ = oneGrid(directory().path().string());

protected:
    const Settings append_ = {{"APPEND", "Yes"}};
    Json before_ = loadOf(1, 1, 0);
};

// ---- Which numbers go together ------------------------------------------------------------------

TEST_F(Decision, GridFilesAloneComeInAnyNumber) {
    EXPECT_EQ(outcomeOf(loadOf(1, 0, 0)), "1.x:1 3");
    EXPECT_EQ(outcomeOf(loadOf(3, 0, 0)), "1.x:1 2.x:1 3.x:1 3");
}

TEST_F(Decision, OneGridFileServesAnyNumberOfSolutions) {
    EXPECT_EQ(outcomeOf(loadOf(1, 1, 0)), "1.q:1 8");
    EXPECT_EQ(outcomeOf(loadOf(1, 3, 0)), "1.q:1 2.q:1 3.q:1 8");
}

TEST_F(Decision, SeveralGridFilesGoWithAsManySolutions) {
    EXPECT_EQ(outcomeOf(loadOf(3, 3, 0)), "1.q:1 2.q:1 3.q:1 8");
}

TEST_F(Decision, SeveralGridFilesRefuseAnotherNumberOfSolutions) {
    const Texts told = {
        "If you select more than one grid file, the number of grid files must match "
        "the number of solution files."};
    EXPECT_EQ(refusalOf(3, 2, 0), told);
    EXPECT_EQ(refusalOf(2, 3, 0), told);
}

TEST_F(Decision, FunctionsGoWithAsManyGridsAndSolutions) {
    EXPECT_EQ(outcomeOf(loadOf(2, 2, 2)), "1.q:1 2.q:1 10");
}

TEST_F(Decision, SeveralGridsAndSolutionsRefuseAnotherNumberOfFunctions) {
    const Texts told = {"If you load function files, the number of function files must match the "
                        "number of grid and solution files."};
    EXPECT_EQ(refusalOf(2, 2, 1), told);
    EXPECT_EQ(refusalOf(2, 1, 2), told);
}

TEST_F(Decision, FunctionsGoWithAsManyGridsAlone) {
    EXPECT_EQ(outcomeOf(loadOf(3, 0, 3)), "1.f:1 2.f:1 3.f:1 5");
}

TEST_F(Decision, SeveralGridsAloneRefuseAnotherNumberOfFunctions) {
    const Texts told = {"If you load function files, the number of function files must match the "
                        "number of grid files."};
    EXPECT_EQ(refusalOf(2, 0, 3), told);
    EXPECT_EQ(refusalOf(3, 0, 2), told);
}

TEST_F(Decision, FunctionsOnOneGridMatchItsSolutions) {
    EXPECT_EQ(refusalOf(1, 2, 3),
              Texts{"If you load function files and more than one solution file, the number of "
                    "function files must match the number of solution files."});
}

TEST_F(Decision, FunctionsAreNotAppendedBesideSolutions) {
    EXPECT_EQ(
        refusalOf(0, 1, 1, append_),
        Texts{"If you are appending function file variables, you cannot append solution files "
              "at the same time."});
}

TEST_F(Decision, FunctionsAloneAreOnlyAppended) {
    EXPECT_EQ(
        refusalOf(0, 0, 1),
        Texts{"You can not load function files or solution files only. You must load grid and "
              "solution files along with function files. "});
    EXPECT_EQ(outcomeOnto(loadOf(0, 0, 1, append_)), "1.q:1 10");
}

TEST_F(Decision, SolutionsWithoutGridsRefuseAnotherNumberOfFunctions) {
    EXPECT_EQ(
        refusalOf(0, 2, 1),
        Texts{"If you load function files, the number of function files must match the number "
              "of grid and solution files. "});
}

// ---- Which make a time step ---------------------------------------------------------------------

TEST_F(Decision, FunctionsWithTimesInTheirNamesMakeTimeStepsOnOneGrid) {
    EXPECT_EQ(outcomeOf(loadOf(1, 0, 3, {{"EXTRACTTIMEFROMSOLFILENAMES", "Yes"}})),
              "1.f:1 2.f:1 3.f:1 5");
}

TEST_F(Decision, FunctionsWithoutTimesAreAllOfOneTimeStep) {
    EXPECT_EQ(outcomeOf(loadOf(1, 0, 3)), "1.f:1 9");
}

TEST_F(Decision, FunctionsBesideOneSolutionAreAllOfItsTimeStep) {
    EXPECT_EQ(outcomeOf(loadOf(1, 1, 3)), "1.q:1 14");
    EXPECT_EQ(outcomeOf(loadOf(1, 1, 1)), "1.q:1 10");
}

TEST_F(Decision, EachSolutionOnOneGridHasItsFunctionFile) {
    EXPECT_EQ(outcomeOf(loadOf(1, 2, 2)), "1.q:1 2.q:1 10");
}

TEST_F(Decision, SolutionsAloneReplaceOneTimeStepEach) {
    EXPECT_EQ(outcomeOnto(loadOf(0, 1, 0)), "1.q:1 8");
    EXPECT_EQ(outcomeOnto(loadOf(0, 3, 0)), "1.q:1 2.q:1 3.q:1 8");
}

TEST_F(Decision, SolutionsAndAsManyFunctionsReplaceTogether) {
    before_ = loadOf(1, 1, 1);
    EXPECT_EQ(outcomeOnto(loadOf(0, 1, 1)), "1.q:1 10");
    EXPECT_EQ(outcomeOnto(loadOf(0, 2, 2)), "1.q:1 2.q:1 10");
}

TEST_F(Decision, FunctionsAloneAreOneTimeStepEach) {
    before_ = loadOf(1, 2, 0);
    EXPECT_EQ(outcomeOnto(loadOf(0, 0, 2, append_)), "1.q:1 2.q:1 10");
}

// ---- What the headers must say ------------------------------------------------------------------

class HeaderRules : public MacroSession {
protected:
    HeaderRules() {
        other_.grids = {{2, 3, 5}};
        sizes_.grids = {{2, 3, 7}, {3, 5, 2}};
    }
    Texts refusalOf(const Files_s& files, const Settings& settings = {}) {
        play({load(files, settings)});
        EXPECT_EQ(last()["ok"], false);
        EXPECT_TRUE(last()["dataSet"].is_null());
        return messages(last());
    }

    SmallFiles two_{directory().path().string()};
    SmallFiles other_{directory().path().string()};
    SmallFiles sizes_{directory().path().string()};
};

TEST_F(HeaderRules, SolutionHasAsManyGridsAsTheGridFile) {
    EXPECT_EQ(refusalOf({.grids = {two_.grid("a.x")}, .solutions = {other_.solution("a.q", 1)}}),
              Texts{"The number of grids in the solution files (1) does not match the number of "
                    "grids in the grid files (2)"});
}

TEST_F(HeaderRules, FunctionHasAsManyGridsAsTheRest) {
    EXPECT_EQ(refusalOf({.grids = {two_.grid("a.x")}, .functions = {other_.function("a.f", 2)}}),
              Texts{"The number of grids in the function files (1) does not match the number of "
                    "grids in the grid or solution files (2)"});
}

// The file is held against the first of its list before the lists are held against each other.
TEST_F(HeaderRules, LaterFileOfUniformGridsHasAsManyAsTheFirst) {
    const std::string first = two_.solution("1.q", 1);
    const std::string later = other_.solution("2.q", 2);
    EXPECT_EQ(refusalOf({.grids = {two_.grid("a.x")}, .solutions = {first, later}}),
              Texts{later + " does not have the same number of grids as file " + first +
                    ". When loading uniform grids the files must have the same numbers of grids."});
}

// A file that the first one's structure fits as it is was not held against the first of its list.
TEST_F(HeaderRules, LaterFileHasNoMoreGridsThanTheFirstTimeStep) {
    SmallFiles three{directory().path().string()};
    three.grids = {{2, 3, 5}, {3, 5, 2}, {2, 3, 5}};
    three.form.encoding = two_.form.encoding = plot3dwriter::Encoding_e::Fortran;
    const std::string later = three.grid("b.x");
    EXPECT_EQ(refusalOf({.grids = {two_.grid("a.x"), later}}),
              Texts{later + " contains more zones than specified in the first time step  (3 and 2 "
                            "). Please reload the Plot3D data unselecting the \"Uniform Grid "
                            "Structure\" option."});
}

// Files that are all functions in truth are taken for such, unless there are others beside them.
TEST_F(HeaderRules, FirstFileOfTheListOfSolutionsIsOne) {
    const std::string file = two_.function("a.q", 2);
    EXPECT_EQ(refusalOf({.grids = {two_.grid("a.x")},
                         .solutions = {file},
                         .functions = {two_.function("a.f", 2)}}),
              Texts{"File " + file + " is not a solution file."});
}

TEST_F(HeaderRules, FirstFileOfTheListOfFunctionsIsOne) {
    const std::string file = two_.solution("a.f", 1);
    EXPECT_EQ(refusalOf({.grids = {two_.grid("a.x")},
                         .solutions = {two_.solution("a.q", 1)},
                         .functions = {file}}),
              Texts{"File " + file + " is not a function file."});
}

TEST_F(HeaderRules, SizesAgreeFromTheFirstGridOn) {
    const std::string grid = two_.grid("a.x");
    const std::string solution = sizes_.solution("a.q", 1);
    EXPECT_EQ(refusalOf({.grids = {grid}, .solutions = {solution}}),
              Texts{"Grid 0 in file " + solution +
                    " does not have the same dimensions as the corresponding grid in the previous "
                    "datafile."});
}

} // namespace
} // namespace quorvia::testsupport
