// Fields past 2, 4 and 8 GiB and records in three segments through an index: sparse files, of which
// only the planes are written that a test looks at.
#include <cstdio>
#include <filesystem>

#include "IndexFixture.h"
#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

/// A field of 64-bit reals is somewhat longer than `gibibytes`, and a plane has about two MiB.
GridDims_s dimsOf(int gibibytes) {
    return {509, 521, gibibytes * 507};
}

FileForm_s bigForm(Encoding_e encoding) {
    return formOf(encoding, ByteOrder_e::Big, Precision_e::Double);
}

double placeValue(std::int32_t variable, std::int32_t i, std::int32_t j, std::int32_t k) {
    return 1.0 + i + 509.0 * j + variable * 300000.0 + (k == 0 ? 0 : 1000000);
}

class BigIndex : public IndexTest, public ::testing::WithParamInterface<int> {
protected:
    /// Of each variable the first and the last plane are written.
    static std::string write(const std::string& where, const FileForm_s& form) {
        FileDescription_s contents =
            describe(FileKind_e::Grid, {dimsOf(GetParam())}, Layout_e::ThreeDWhole,
                     [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                        std::int32_t k) { return placeValue(variable, i, j, k); });
        contents.isHole = [last = dimsOf(GetParam()).k - 1](std::int32_t, std::int32_t,
                                                            std::int32_t k) {
            return k != 0 && k != last;
        };
        const std::string file = where + "/big.x";
        writeFile(file, contents, form);
        return file;
    }

    /// What h5py finds in the first and the last MiB of each field.
    static void expectEnds(const std::string& index) {
        const std::string command = "/usr/bin/python3 " READ_BIG_SCRIPT " " + index + " 2>&1";
        std::FILE* const pipe = popen(command.c_str(), "r");
        ASSERT_NE(pipe, nullptr);
        std::string text;
        for (int letter = std::fgetc(pipe); letter != EOF; letter = std::fgetc(pipe))
            text += static_cast<char>(letter);
        const int code = WEXITSTATUS(pclose(pipe));
        if (code == 77)
            GTEST_SKIP() << text;
        EXPECT_EQ(text, "3 fields have their ends\n");
        EXPECT_EQ(code, 0);
    }
};

TEST_P(BigIndex, HasTheEndsOfEachField) {
    const std::string where = folder("big");
    ASSERT_EQ(index({write(where, bigForm(Encoding_e::Binary))}, where + "/out.cgns"), 0);
    expectEnds(where + "/out.cgns");
}

TEST_P(BigIndex, HasTheEndsOfEachFieldInSegments) {
    const std::string where = folder("big");
    ASSERT_EQ(index({write(where, bigForm(Encoding_e::Fortran))}, where + "/out.cgns"), 0);
    expectEnds(where + "/out.cgns");
}

TEST_P(BigIndex, IsRefusedWhereMarkersCutAField) {
    const std::string where = folder("big");
    const std::string file = write(where, bigForm(Encoding_e::Fortran));
    std::string err;
    EXPECT_EQ(index({file}, where + "/out.json", &err), 1);
    EXPECT_NE(err.find("is cut by markers, which references can't tell"), std::string::npos) << err;
}

INSTANTIATE_TEST_SUITE_P(GiB, BigIndex, ::testing::Values(2, 4, 8),
                         [](const auto& tested) { return std::to_string(tested.param); });

} // namespace
} // namespace quorvia::testsupport
