#include "console/WholeFile.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace console {
namespace {

namespace fs = std::filesystem;

class WholeFileTest : public testing::Test {
protected:
    static std::string contents(const std::string& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    auto fileCount() const {
        return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
    }

    quorvia::testsupport::TemporaryDirectory folder;
    std::string reason;
};

TEST_F(WholeFileTest, ReplacesAnOlderOneWhenItIsWhole) {
    const std::string name = folder.write("a.json", "old");
    WholeFile file(name);
    file.stream() << "new";
    EXPECT_EQ(contents(name), "old");
    EXPECT_TRUE(file.replace(reason)) << reason;
    EXPECT_EQ(contents(name), "new");
    EXPECT_EQ(fileCount(), 1);
}

TEST_F(WholeFileTest, LeavesNothingIfItIsGivenUp) {
    { WholeFile(folder.file("a.json")).stream() << "half"; }
    EXPECT_EQ(fileCount(), 0);
}

TEST_F(WholeFileTest, KeepsAFileThatCameMeanwhile) {
    const std::string name = folder.file("a.json");
    {
        WholeFile file(name, Existing_e::Kept);
        file.stream() << "new";
        folder.write("a.json", "other");
        EXPECT_FALSE(file.replace(reason));
    }
    EXPECT_EQ(reason, "File exists");
    EXPECT_EQ(contents(name), "other");
    EXPECT_EQ(fileCount(), 1);
}

TEST_F(WholeFileTest, GrowsWhereLibrariesCanOpenIt) {
    const std::string name = folder.file("a.cgns");
    WholeFile file(name, Existing_e::Kept);
    std::ofstream(file.path()) << "by name";
    EXPECT_TRUE(file.replace(reason)) << reason;
    EXPECT_EQ(contents(name), "by name");
}

TEST_F(WholeFileTest, TellsWhyItCanNotBegin) {
    EXPECT_EQ(WholeFile(folder.file("none/a.json")).problem(), "No such file or directory");
    EXPECT_EQ(WholeFile(folder.file("a.json")).problem(), "");
}

TEST_F(WholeFileTest, IsDeletedWhereTheProgramMustEnd) {
    const WholeFile file(folder.file("a.json"));
    EXPECT_EQ(fileCount(), 1);
    Growing::deleteAll();
    EXPECT_EQ(fileCount(), 0);
}

} // namespace
} // namespace console
