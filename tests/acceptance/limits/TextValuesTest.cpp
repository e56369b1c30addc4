// Texts in which a few characters stand for many values. At most 64 for each byte of the file are
// believed, and the rest is refused while the host's data set is still what it was.
#include "BadInputFixture.h"

namespace quorvia::testsupport {
namespace {

class TextValues : public BadInputTest {
protected:
    /// So many bytes of text: a header, one token for all values, blanks.
    std::string writeText(const std::string& name, const std::string& header,
                          std::int64_t byteCount) const {
        std::string text = header + "\n2147483647*0.5\n";
        text.resize(static_cast<std::size_t>(byteCount), ' ');
        return directory().write(name, text);
    }
    void expectUntouched(const Load_s& load, const std::string& fileAtFault) {
        EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
        EXPECT_EQ(messages(),
                  Texts{"The file promises more than 64 values for each of its bytes.\nFile: " +
                        fileAtFault});
        EXPECT_EQ(zoneNames(), Texts{"sound.x:1"});
    }

    const std::string grid_ = writeText("sound.x", "500 1 1", 1000);
};

TEST_F(TextValues, MayBe64ForEachByte) {
    const std::string function = writeText("a.fun", "500 1 1 128", 1000);
    expectLoads({.gridFiles = {grid_}, .functionFiles = {function}});
    EXPECT_EQ(values(1, 3 + 128), std::vector<double>(500, 0.5));
}

TEST_F(TextValues, MayNotBeOneMore) {
    expectLoads({.gridFiles = {grid_}});
    const std::string function = writeText("a.fun", "500 1 1 128", 999);
    expectUntouched({.gridFiles = {grid_}, .functionFiles = {function}}, function);
    host().clearLog();
    expectUntouched({.functionFiles = {function}, .settings = {{"APPEND", "Yes"}}}, function);
}

// 20 kB that would take half a gigabyte: the more fields a text has, the more points it may have.
TEST_F(TextValues, OfManyFieldsAreRefused) {
    const std::string grid = writeText("sound.x", "10000 1 1", 20000);
    const std::string function = writeText("a.fun", "10000 1 1 14000", 20000);
    expectLoads({.gridFiles = {grid}});
    expectUntouched({.gridFiles = {grid}, .functionFiles = {function}}, function);
}

// A list of gammas, each of which becomes an item of text.
TEST_F(TextValues, CountTheScalars) {
    expectLoads({.gridFiles = {grid_}});
    const std::string solution = writeText("a.q", "500 1 1 5 70000\n70011*0.5", 1000);
    expectUntouched({.gridFiles = {grid_}, .solutionFiles = {solution}}, solution);
}

// By its record a later grid file is as long as the first.
TEST_F(TextValues, OfALaterGridFileAreHeldAgainstItsOwnSize) {
    const std::string grid = writeText("a.x", "4000 1 1", 5000);
    const std::string later = writeText("b.x", "4000 1 1", 100);
    expectLoads({.gridFiles = {grid_}});
    expectUntouched({.gridFiles = {grid, later}, .settings = {{"UNIFORMGRIDSTRUCTURE", "Yes"}}},
                    later);
}

} // namespace
} // namespace quorvia::testsupport
