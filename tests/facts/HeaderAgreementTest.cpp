// What the headers of the files of one load must agree on, and what is told where they don't.
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

class HeaderAgreement : public LoadedAddOnTest {
protected:
    HeaderAgreement() {
        one_.grids = {{2, 3, 5}};
        unlike_.grids = {{2, 3, 7}, {3, 5, 2}};
    }
    static Texts refusalOf(const Load_s& load) {
        EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
        EXPECT_EQ(host().frame().dataSet(), nullptr);
        return messages();
    }
    static Texts sizesOf(const std::string& file) {
        return {"Grid 0 in file " + file +
                " does not have the same dimensions as the corresponding grid in the previous "
                "datafile."};
    }

    SmallFiles two_{directory().path().string()};
    SmallFiles one_{directory().path().string()};
    SmallFiles unlike_{directory().path().string()};
};

TEST_F(HeaderAgreement, SolutionHasAsManyGridsAsTheGridFile) {
    EXPECT_EQ(
        refusalOf({.gridFiles = {two_.grid("a.x")}, .solutionFiles = {one_.solution("a.q", 1)}}),
        Texts{"The number of grids in the solution files (1) does not match the number of "
              "grids in the grid files (2)"});
}

TEST_F(HeaderAgreement, FunctionHasAsManyGridsAsTheRest) {
    EXPECT_EQ(
        refusalOf({.gridFiles = {two_.grid("a.x")}, .functionFiles = {one_.function("a.f", 2)}}),
        Texts{"The number of grids in the function files (1) does not match the number of "
              "grids in the grid or solution files (2)"});
}

// The file is held against the first of its list before the lists are held against each other.
TEST_F(HeaderAgreement, LaterFileOfUniformGridsHasAsManyAsTheFirst) {
    const std::string first = two_.solution("1.q", 1);
    const std::string later = one_.solution("2.q", 2);
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x")}, .solutionFiles = {first, later}}),
              Texts{later + " does not have the same number of grids as file " + first +
                    ". When loading uniform grids the files must have the same numbers of grids."});
}

// A file that the first one's structure fits as it is was not held against the first of its list.
TEST_F(HeaderAgreement, LaterFileHasNoMoreGridsThanTheFirstTimeStep) {
    SmallFiles three{directory().path().string()};
    three.grids = {{2, 3, 5}, {3, 5, 2}, {2, 3, 5}};
    three.form.encoding = two_.form.encoding = Encoding_e::Fortran;
    const std::string later = three.grid("b.x");
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x"), later}}),
              Texts{later + " contains more zones than specified in the first time step  (3 and 2 "
                            "). Please reload the Plot3D data unselecting the \"Uniform Grid "
                            "Structure\" option."});
}

// Files that are all functions in truth are taken for such, unless there are others beside them.
TEST_F(HeaderAgreement, FilesOfTheListOfSolutionsAreSuch) {
    const std::string file = two_.function("a.q", 2);
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x")},
                         .solutionFiles = {file},
                         .functionFiles = {two_.function("a.f", 2)}}),
              Texts{"File " + file + " is not a solution file."});
}

TEST_F(HeaderAgreement, FilesOfTheListOfFunctionsAreSuch) {
    const std::string file = two_.solution("a.f", 1);
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x")},
                         .solutionFiles = {two_.solution("a.q", 1)},
                         .functionFiles = {file}}),
              Texts{"File " + file + " is not a function file."});
}

TEST_F(HeaderAgreement, ListOfSolutionsIsToldOfFirst) {
    const std::string file = two_.function("a.q", 2);
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x")},
                         .solutionFiles = {file},
                         .functionFiles = {two_.solution("a.f", 1)}}),
              Texts{"File " + file + " is not a solution file."});
}

// Grids are counted from zero here.
TEST_F(HeaderAgreement, SolutionHasTheSizesOfTheGrids) {
    const std::string solution = unlike_.solution("a.q", 1);
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x")}, .solutionFiles = {solution}}),
              sizesOf(solution));
}

TEST_F(HeaderAgreement, FunctionsHaveTheSizesOfTheGridsWhereThereIsNoSolution) {
    const std::string function = unlike_.function("a.f", 2);
    EXPECT_EQ(refusalOf({.gridFiles = {two_.grid("a.x")}, .functionFiles = {function}}),
              sizesOf(function));
}

} // namespace
} // namespace quorvia::testsupport
