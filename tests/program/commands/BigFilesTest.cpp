// Files past 4 and 8 GiB and records in three segments: sparse files, of which only the planes are
// written that a test looks at, or that the ends of segments cut.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "program/values/ValueFiles.h"

namespace plot3d::program {
namespace {

constexpr std::int32_t iCount = 509;
constexpr std::int32_t jCount = 521;
constexpr std::int64_t planeBytes = std::int64_t{8} * iCount * jCount;

struct BigCase_s {
    const char* name;
    writer::Encoding_e encoding;
    std::int32_t planes; // of each variable

    std::int64_t valueBytes() const { return 3 * planes * planeBytes; }
};

void PrintTo(const BigCase_s& big, std::ostream* out) {
    *out << big.name;
}

const BigCase_s plain = {"Plain", writer::Encoding_e::Binary, 1521};
const BigCase_s segmented = {"ThreeSegments", writer::Encoding_e::Fortran, 790};

/// Never 0, of which holes consist.
double bigValue(std::int32_t variable, std::int32_t i, std::int32_t j, std::int32_t k) {
    return 1.0 + i + iCount * j + 300000.0 * variable + 1000000.0 * k;
}

/// The ends of the segments of three stand in planes 222 and 444, from 0, of the second and the
/// third variable.
bool isWritten(std::int32_t k, std::int32_t planes) {
    const auto isNear = [k](std::int32_t cut) { return k >= cut - 1 && k <= cut + 1; };
    return k == 0 || k == planes - 1 || isNear(222) || isNear(444);
}

class BigFiles : public ValueFilesTest {
protected:
    std::string writeBig(const BigCase_s& big) const {
        writer::FileDescription_s contents = planesFrom(0, big.planes);
        contents.isHole = [big](std::int32_t, std::int32_t, std::int32_t k) {
            return !isWritten(k, big.planes);
        };
        const std::string name = write("big.x", contents, bigForm(big.encoding));
        EXPECT_LT(bytesOnDisk(name), std::int64_t{64} << 20) << "the disk knows no sparse files";
        return name;
    }

    /// A grid of one zone, whose first plane is plane `first` of the big one, from 0.
    static writer::FileDescription_s planesFrom(std::int32_t first, std::int32_t count) {
        return quorvia::testsupport::describe(
            writer::FileKind_e::Grid, {{iCount, jCount, count}}, writer::Layout_e::ThreeDWhole,
            [first](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                    std::int32_t k) { return bigValue(variable, i, j, first + k); });
    }

    static writer::FileForm_s bigForm(writer::Encoding_e encoding) {
        return formOf(encoding, writer::ByteOrder_e::Big, writer::Precision_e::Double);
    }

    static std::int64_t bytesOnDisk(const std::string& name) {
        struct stat facts = {};
        EXPECT_EQ(stat(name.c_str(), &facts), 0);
        return std::int64_t{512} * facts.st_blocks;
    }

    static Json toldBy(std::vector<std::string> words) {
        words.push_back("--json");
        const Ended_s run = ended(words);
        EXPECT_EQ(run.code, 0) << run.err;
        return Json::parse(run.out);
    }

    /// What `info --json` tells of one file.
    static Json infoOf(const std::string& name) {
        return Json::parse(ended({"info", "--json", name}).out)["files"][0];
    }
};

class BigFilesOfEachForm : public BigFiles, public testing::WithParamInterface<BigCase_s> {};

TEST_P(BigFilesOfEachForm, HaveTheirEndsInStats) {
    const std::int32_t last = GetParam().planes - 1;
    const Json told =
        toldBy({"stats", writeBig(GetParam()), "--k", "1,-1," + std::to_string(last)});
    for (std::int32_t variable = 0; variable < 3; ++variable) {
        const Json& of = told["variables"][variable];
        EXPECT_EQ(of["count"], 2 * iCount * jCount);
        EXPECT_EQ(of["min"], bigValue(variable, 0, 0, 0));
        EXPECT_EQ(of["max"], bigValue(variable, iCount - 1, jCount - 1, last));
        EXPECT_EQ(of["maxAt"], (Json{{"zone", 1}, {"i", iCount}, {"j", jCount}, {"k", last + 1}}));
        EXPECT_EQ(of["mean"],
                  bigValue(variable, (iCount - 1) / 2, (jCount - 1) / 2, 0) + 500000.0 * last);
    }
}

TEST_P(BigFilesOfEachForm, HaveAllTheirPlanesInStats) {
    const Json told = toldBy({"stats", writeBig(GetParam()), "--j", "1", "--variable", "Z"});
    const Json& of = told["variables"][0];
    EXPECT_EQ(of["count"], std::int64_t{iCount} * GetParam().planes);
    EXPECT_EQ(of["minAt"], (Json{{"zone", 1}, {"i", 1}, {"j", 1}, {"k", 2}})) << "the hole";
    EXPECT_EQ(of["max"], bigValue(2, iCount - 1, 0, GetParam().planes - 1));
}

TEST_P(BigFilesOfEachForm, AreAccountedForByInfo) {
    const std::string name = writeBig(GetParam());
    const Json told = infoOf(name);
    EXPECT_EQ(told["ok"], true);
    EXPECT_EQ(told["grids"][0], (Json{{"i", iCount}, {"j", jCount}, {"k", GetParam().planes}}));
    EXPECT_EQ(told["bytes"]["used"], std::filesystem::file_size(name));
    EXPECT_EQ(told["bytes"]["surplus"], 0);
}

INSTANTIATE_TEST_SUITE_P(Each, BigFilesOfEachForm, testing::Values(plain, segmented),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(BigFiles, AreConvertedWhereTheEndsOfSegmentsCutThem) {
    const std::string big = writeBig(segmented);
    for (const std::int32_t first : {221, 443}) {
        const std::string range = std::to_string(first + 1) + "," + std::to_string(first + 3);
        const std::string part = "part" + std::to_string(first) + ".x";
        const Ended_s run =
            ended({"convert", big, "-o", file(part), "--k", range, "--encoding", "binary"});
        ASSERT_EQ(run.code, 0) << run.err;
        write("wanted.x", planesFrom(first, 3), bigForm(writer::Encoding_e::Binary));
        EXPECT_TRUE(bytesOfFile(file(part)) == bytesOfFile(file("wanted.x"))) << "planes " << range;
    }
}

TEST_F(BigFiles, AreCutShortForInfoByEachByte) {
    const std::string name = writeBig(segmented);
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(name));
    // In the last marker, in the value ahead of it, in the last segment, in the marker ahead of it.
    for (const std::int64_t missing : {1LL, 5LL, 700000000LL, 733016168LL}) {
        std::filesystem::resize_file(name, static_cast<std::uintmax_t>(size - missing));
        const Json told = infoOf(name);
        EXPECT_EQ(told["ok"], false);
        EXPECT_EQ(told["grids"][0]["k"], segmented.planes);
        EXPECT_EQ(told["bytes"]["missing"], missing);
    }
}

// The result goes through a pipe, and takes no disk. All is read, so it is not longer than it must.
TEST_F(BigFiles, AreConvertedToTheSameSegments) {
    const std::string big = writeBig({"TwoSegments", writer::Encoding_e::Fortran, 350});
    const std::string command =
        PLOT3D_PROGRAM " convert " + big + " --to plot3d -o /dev/stdout | cmp - " + big;
    EXPECT_EQ(std::system(command.c_str()), 0);
}

} // namespace
} // namespace plot3d::program
