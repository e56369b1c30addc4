// A load whose function file is at fault closes with the name of its solution or grid file, which
// is sound. Ahead of that the file at fault is named.
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Encoding_e;
using plot3dwriter::Precision_e;

class BlamedFile : public LoadedAddOnTest {
protected:
    void refuse(const Load_s& load, const Texts& expectedMessages) {
        EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
        EXPECT_EQ(messages(), expectedMessages);
        EXPECT_EQ(host().frame().dataSet(), nullptr);
    }
    std::string doubleFunction(const std::string& name) {
        files_.form.precision = Precision_e::Double;
        const std::string file = files_.function(name, 2);
        files_.form.precision = Precision_e::Single;
        return file;
    }
    /// A text with this count of variables in each grid.
    std::string functionOf(const std::string& name, const std::string& variableCount) const {
        return directory().write(name, "2\n2 3 5 " + variableCount + " 3 5 2 " + variableCount +
                                           "\n" + std::string(600, '1'));
    }
    static std::string named(const std::string& text, const std::string& file) {
        return text + "\nFile: " + file;
    }
    static std::string invalid(const std::string& kind, const std::string& file) {
        return named("Invalid Plot 3D " + kind + " file.", file);
    }

    SmallFiles files_{directory().path().string()};
    const std::string grid_ = files_.grid("a.x");
    const std::string solution_ = files_.solution("a_2.q", 0.25);
    const std::string mismatch_ = "Datatype mismatch while attempting to replace a solution var.";
    const std::string implausible_ = "The counts in the file's header do not fit the file.";
    const std::string wider_ = "The function file has values of 64 bits, its variables of 32.";
    const std::string narrower_ = "The function file has values of 32 bits, its variables of 64.";
};

TEST_F(BlamedFile, IsTheFunctionFileOf64BitsBesideAGridOf32) {
    const std::string function = doubleFunction("a.fun");
    refuse({.gridFiles = {grid_}, .functionFiles = {function}},
           {named(wider_, function), mismatch_, invalid("grid", grid_)});
}

TEST_F(BlamedFile, IsTheFunctionFileOf64BitsBesideASolutionOf32) {
    const std::string function = doubleFunction("a.fun");
    refuse({.gridFiles = {grid_}, .solutionFiles = {solution_}, .functionFiles = {function}},
           {named(wider_, function), mismatch_, invalid("solution", solution_)});
}

// Values that are read during the load have a check of their own.
TEST_F(BlamedFile, IsTheFunctionFileOf32BitsBesideAGridOf64InAnIndexRange) {
    const std::string function = files_.function("a.fun", 2);
    files_.form.precision = Precision_e::Double;
    const std::string grid = files_.grid("b.x");
    refuse(
        {.gridFiles = {grid}, .functionFiles = {function}, .settings = {{"IINDEXRANGE", "1,,2"}}},
        {named(narrower_, function), mismatch_, invalid("grid", grid)});
}

TEST_F(BlamedFile, IsTheSecondAppendedFunctionFileOfAnotherPrecision) {
    const std::string second = doubleFunction("b.fun");
    expectLoads({.gridFiles = {grid_}, .solutionFiles = {solution_, files_.solution("b.q", 0.5)}});
    EXPECT_FALSE(load({.functionFiles = {files_.function("a.fun", 2), second},
                       .settings = {{"APPEND", "Yes"}}})
                     .ok);
    EXPECT_EQ(messages(), (Texts{named(wider_, second), mismatch_}));
}

TEST_F(BlamedFile, IsTheFunctionFileWithANegativeCountOfVariables) {
    const std::string function = functionOf("a.fun", "-1");
    refuse({.gridFiles = {grid_}, .solutionFiles = {solution_}, .functionFiles = {function}},
           {named(implausible_, function), invalid("solution", solution_)});
    host().clearLog();
    refuse({.gridFiles = {grid_}, .functionFiles = {function}},
           {named(implausible_, function), invalid("grid", grid_)});
}

// Nothing is said twice where the closing message names the file itself.
TEST_F(BlamedFile, IsNamedOnceIfItIsTheSolutionFile) {
    std::string overflow = "2\n2 3 5\n3 5 2 -1 2\n"; // fewer than no variables, 2 species
    for (int scalar = 0; scalar < 13; ++scalar)
        overflow += "1 ";
    const std::string solution = directory().write("a.q", overflow + "\n" + std::string(600, '1'));
    refuse({.gridFiles = {grid_}, .solutionFiles = {solution}}, {invalid("solution", solution)});
}

// The numbers in the names of the solution files are times, and function files have none.
TEST_F(BlamedFile, IsTheFunctionFileWithoutATimeInASelectionOfThreeKinds) {
    const std::string function = files_.function("a_7.fun", 2);
    EXPECT_FALSE(select({grid_, solution_, function}).ok);
    EXPECT_EQ(messages(),
              (Texts{named("The function file has no solution time: the times were taken from the "
                           "names of the solution files.",
                           function),
                     invalid("solution", solution_)}));
}

} // namespace
} // namespace quorvia::testsupport
