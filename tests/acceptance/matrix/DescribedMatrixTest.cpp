// Every file of the matrix, its structure described by hand.
#include "acceptance/matrix/MatrixFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

class DescribedMatrix : public MatrixTest, public ::testing::WithParamInterface<MatrixCase_s> {
protected:
    /// In text and in Fortran records the description settles the rest; plain binary files are
    /// taken for the shortest numbers that the description allows.
    static FileReading described(const WrittenFile_s& file) {
        const bool isLonger = isDouble(file.form) || file.layout.hasIBlank;
        return file.form.encoding == Encoding_e::Binary && isLonger
                   ? FileReading::asShortestReals(file)
                   : FileReading::asMeant(file);
    }

    static CaseReadings_s described(const CaseFiles_s& files) {
        CaseReadings_s readings = {described(files.grid), std::nullopt};
        if (files.other)
            readings.other = described(*files.other);
        return readings;
    }

    /// Read as 32-bit reals, the coordinates of 64 bits stand where node numbers would.
    static bool hasRealsForNodes(const WrittenFile_s& file) {
        return file.layout.layout == Layout_e::Unstructured && isDouble(file.form) &&
               file.form.encoding == Encoding_e::Binary;
    }
};

TEST_P(DescribedMatrix, ComesInWithEveryValue) {
    const CaseFiles_s files = writeCase(GetParam());
    if (hasRealsForNodes(files.grid)) {
        EXPECT_FALSE(load(describedLoadOf(files)).ok);
        EXPECT_EQ(messages().front(), "Corrupt Connectivity List, Grid=1.");
        return;
    }
    expectLoads(describedLoadOf(files));
    ASSERT_FALSE(HasFailure());
    // A 1-D file that is described by hand has no grids: only the trials count them.
    if (GetParam().layout.layout == Layout_e::OneD)
        EXPECT_EQ(dataSet().zoneCount(), 0);
    else
        expectFrame(described(files));
}

INSTANTIATE_TEST_SUITE_P(Every, DescribedMatrix, ::testing::ValuesIn(everyCase()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace quorvia::testsupport
