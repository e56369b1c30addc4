#include <algorithm>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>
#include <plot3d/Error.h>

#include "manners/ResultFile.h"
#include "manners/ResultFolder.h"
#include "support/TemporaryDirectory.h"

namespace plot3d::program {
namespace {

namespace fs = std::filesystem;

constexpr bool mayOverwrite = true;
constexpr bool mayNotOverwrite = false;

class Result : public testing::Test {
protected:
    std::string contents(const std::string& name) const {
        std::ifstream in(folder.file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            names.push_back(fs::relative(entry.path(), folder.path()).string());
        std::sort(names.begin(), names.end());
        return names;
    }

    /// A whole result of an index and one piece that hold `text`.
    void writeResult(const std::string& text, bool overwrites) const {
        ResultFolder result(folder.file("flow.vtm"), overwrites);
        std::ofstream(result.growingPath() / "0.vts") << text;
        result.index() << text;
        result.finish();
    }

    using Names = std::vector<std::string>;
    quorvia::testsupport::TemporaryDirectory folder;
};

TEST_F(Result, FileIsThereWhenItIsWhole) {
    ResultFile file(folder.file("a.csv"), mayNotOverwrite);
    file.stream() << "1,2";
    EXPECT_EQ(contents("a.csv"), "");
    file.finish();
    EXPECT_EQ(contents("a.csv"), "1,2");
    EXPECT_EQ(names(), Names{"a.csv"});
}

TEST_F(Result, FileIsNotOverwrittenUnlessToldTo) {
    folder.write("a.csv", "old");
    EXPECT_THROW(ResultFile(folder.file("a.csv"), mayNotOverwrite), Error);
    ResultFile file(folder.file("a.csv"), mayOverwrite);
    file.stream() << "new";
    file.finish();
    EXPECT_EQ(contents("a.csv"), "new");
}

TEST_F(Result, FileThatFailsLeavesNothing) {
    EXPECT_THROW(ResultFile(folder.file("none/a.csv"), mayOverwrite), Error);
    EXPECT_THROW(ResultFile(folder.path().string(), mayNotOverwrite), Error);
    EXPECT_EQ(names(), Names{});
}

TEST_F(Result, FolderComesWithItsIndex) {
    writeResult("first", mayNotOverwrite);
    EXPECT_EQ(names(), (Names{"flow", "flow.vtm", "flow/0.vts"}));
    EXPECT_THROW(writeResult("second", mayNotOverwrite), Error);
    writeResult("third", mayOverwrite);
    EXPECT_EQ(contents("flow/0.vts") + contents("flow.vtm"), "thirdthird");
    EXPECT_EQ(names(), (Names{"flow", "flow.vtm", "flow/0.vts"}));
}

TEST_F(Result, FolderThatIsGivenUpLeavesNothing) {
    { ResultFolder(folder.file("flow.vtm"), mayNotOverwrite).index() << "half"; }
    EXPECT_EQ(names(), Names{});
}

TEST_F(Result, FolderOfSomebodyElseIsNeverOverwritten) {
    fs::create_directory(folder.file("flow"));
    folder.write("flow/notes.txt", "mine");
    EXPECT_THROW(writeResult("new", mayOverwrite), Error);
    EXPECT_EQ(contents("flow/notes.txt"), "mine");
    EXPECT_EQ(names(), (Names{"flow", "flow/notes.txt"}));
}

} // namespace
} // namespace plot3d::program
