// What the command does beside the index: names, permissions, refusals, and the comparison with
// what the index noted.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "IndexFixture.h"
#include "program/app/Program.h"

namespace quorvia::testsupport {
namespace {

namespace fs = std::filesystem;

struct Ended_s {
    int code = -1;
    std::string out;
};

class IndexCommand : public IndexTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        where_ = folder("pair");
        files_ = writePair(where_);
        output_ = where_ + "/out" + GetParam();
    }
    void makeIndex() const { ASSERT_EQ(index(files_, output_), 0); }

    Ended_s check() const {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        const int code = plot3d::program::run({"index", "--check", output_}, in, out, err);
        return {code, out.str()};
    }
    std::string textOfIndex() const {
        std::ifstream in(output_, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    const std::string& solution() const { return files_[1]; }

    std::string where_;
    std::vector<std::string> files_;
    std::string output_;
};

TEST_P(IndexCommand, FindsOriginalsAsTheyWere) {
    makeIndex();
    EXPECT_EQ(check().code, 0);
    EXPECT_EQ(check().out, "");
}

TEST_P(IndexCommand, FindsAChangedValue) {
    makeIndex();
    const auto time = fs::last_write_time(solution());
    std::fstream(solution(), std::ios::in | std::ios::out | std::ios::binary).seekp(99) << "x";
    fs::last_write_time(solution(), time);
    EXPECT_EQ(check().code, 1);
    EXPECT_EQ(check().out.find(solution() + ": its first 64 KiB have the CRC-32 "), 0U);
}

TEST_P(IndexCommand, FindsATruncatedFile) {
    makeIndex();
    fs::resize_file(solution(), 500);
    EXPECT_EQ(check().code, 1);
    EXPECT_EQ(check().out.find(solution() + ": has 500 bytes, and had "), 0U);
}

TEST_P(IndexCommand, FindsAFileThatWasWrittenAnew) {
    makeIndex();
    fs::last_write_time(solution(), fs::last_write_time(solution()) + std::chrono::seconds(1));
    EXPECT_EQ(check().code, 1);
    EXPECT_EQ(check().out.find(solution() + ": was changed at "), 0U);
}

TEST_P(IndexCommand, FindsAMissingFile) {
    makeIndex();
    fs::remove(solution());
    EXPECT_EQ(check().code, 1);
    EXPECT_EQ(check().out, solution() + ": is not there\n");
}

TEST_P(IndexCommand, TellsWhatIsNoIndex) {
    std::ofstream(output_) << "something else";
    EXPECT_EQ(check().code, 3);
}

TEST_P(IndexCommand, MakesItReadOnly) {
    makeIndex();
    EXPECT_EQ(fs::status(output_).permissions(), fs::perms(0444));
}

TEST_P(IndexCommand, OverwritesOnlyWhenAsked) {
    makeIndex();
    EXPECT_EQ(index(files_, output_), 1);
    files_.insert(files_.begin(), "--overwrite");
    EXPECT_EQ(index(files_, output_), 0);
    EXPECT_EQ(fs::status(output_).permissions(), fs::perms(0444));
}

TEST_P(IndexCommand, NamesOriginalsFromItsFolderIfAsked) {
    files_.insert(files_.begin(), "--relative");
    ASSERT_EQ(index(files_, output_), 0);
    EXPECT_EQ(textOfIndex().find(where_), std::string::npos);
    fs::rename(where_, where_ + "-moved");
    output_ = where_ + "-moved/out" + GetParam();
    EXPECT_EQ(check().code, 0);
}

TEST_P(IndexCommand, RefusesAPartOfAZone) {
    std::string err;
    files_.insert(files_.begin(), {"--k", "1"});
    EXPECT_EQ(index(files_, output_, &err), 1);
    EXPECT_NE(err.find("\ntry: plot3d convert --k 1 " + where_ + "/a.x"), std::string::npos) << err;
}

INSTANTIATE_TEST_SUITE_P(Each, IndexCommand,
                         ::testing::Values(".cgns", ".xmf2", ".json", ".p3d", ".vp3d"),
                         [](const auto& tested) { return std::string(tested.param + 1); });

/// An index of files in a folder whose name has half of a pair of UTF-16 in it.
class IndexOfStrangeNames : public IndexTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(IndexOfStrangeNames, IsRefused) {
    const std::string where = folder("pair\xED\xA0\x80");
    const std::vector<std::string> files = writePair(where);
    std::string err;
    EXPECT_EQ(index(files, where + "/out" + GetParam(), &err), 1);
    EXPECT_NE(err.find("has bytes that are no UTF-8, which this format can't hold"),
              std::string::npos)
        << err;
}

INSTANTIATE_TEST_SUITE_P(Each, IndexOfStrangeNames, ::testing::Values(".xmf2", ".json", ".p3d"),
                         [](const auto& tested) { return std::string(tested.param + 1); });

TEST(IndexFormats, AreToldForAnEndingThatIsNone) {
    std::string err;
    EXPECT_EQ(runProgram({"index", "a.x", "-o", "out.txt"}, &err), 2);
    EXPECT_NE(err.find("known are .cgns, .xmf2, .json, .p3d, .vp3d\n"), std::string::npos) << err;
}

} // namespace
} // namespace quorvia::testsupport
