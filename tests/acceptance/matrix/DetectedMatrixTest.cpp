// Every file of the matrix, its structure found by trial.
#include "acceptance/matrix/MatrixFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

class DetectedMatrix : public MatrixTest, public ::testing::WithParamInterface<MatrixCase_s> {
protected:
    /// Without records nothing tells planes from whole fields, and whole fields are tried first.
    static FileReading detected(const WrittenFile_s& file) {
        const bool hasNoRecords = file.form.encoding != Encoding_e::Fortran;
        return file.layout.layout == Layout_e::ThreeDPlanes && hasNoRecords
                   ? FileReading::planesAsWhole(file)
                   : FileReading::asMeant(file);
    }

    static CaseReadings_s detected(const CaseFiles_s& files) {
        CaseReadings_s readings = {detected(files.grid), std::nullopt};
        if (files.other)
            readings.other = detected(*files.other);
        return readings;
    }

    /// Where whole I-blank fields would stand in the text of planes, there are coordinates.
    static bool hasRealsForIBlank(const WrittenFile_s& file) {
        return file.layout.layout == Layout_e::ThreeDPlanes && file.layout.hasIBlank &&
               file.form.encoding == Encoding_e::Text;
    }

    /// A text that begins with a count alone on its line is a 1-D grid if it fits no other layout,
    /// and unstructured grids are tried last. The sizes of the grids become the coordinates.
    static bool isTakenForALine(const WrittenFile_s& file) {
        return file.layout.layout == Layout_e::Unstructured && file.layout.isMultiGrid &&
               file.form.encoding == Encoding_e::Text;
    }

    /// What is said where a load can't come in; nothing for all others.
    static Texts refusalOf(const CaseFiles_s& files) {
        if (hasRealsForIBlank(files.grid))
            return {"Error loading IBlank Variable.",
                    "Invalid Plot 3D grid file.\nFile: " + files.grid.path};
        if (!isTakenForALine(files.grid) || !files.other)
            return {};
        if (isSolution(files.other->layout.kind))
            return {"The number of grids in the solution files (3) does not match the number of "
                    "grids in the grid files (1)"};
        return {"The number of grids in the function files (3) does not match the number of grids "
                "in the grid or solution files (1)"};
    }
};

TEST_P(DetectedMatrix, ComesInWithEveryValue) {
    const CaseFiles_s files = writeCase(GetParam());
    if (const Texts refusal = refusalOf(files); !refusal.empty()) {
        EXPECT_FALSE(load(loadOf(files)).ok);
        EXPECT_EQ(messages(), refusal);
        return;
    }
    expectLoads(loadOf(files));
    ASSERT_FALSE(HasFailure());
    if (isTakenForALine(files.grid))
        EXPECT_EQ(values(1, 1), std::vector<double>({7, 0, 3}));
    else
        expectFrame(detected(files));
}

INSTANTIATE_TEST_SUITE_P(Every, DetectedMatrix, ::testing::ValuesIn(everyCase()),
                         [](const auto& tested) { return nameOf(tested.param); });

/// How many of the layouts hold.
template <class Predicate>
std::int64_t countLayouts(Predicate holds) {
    std::int64_t count = 0;
    for (const LayoutCase_s& layout : everyLayout())
        count += holds(layout) ? 1 : 0;
    return count;
}

std::int64_t countKind(FileKind_e kind) {
    return countLayouts([kind](const LayoutCase_s& layout) { return layout.kind == kind; });
}

TEST(Matrix, HoldsEveryLayoutOfEachKind) {
    EXPECT_EQ(countKind(FileKind_e::Grid), 15);
    EXPECT_EQ(countKind(FileKind_e::ClassicSolution), 9);
    EXPECT_EQ(countKind(FileKind_e::SwiftSolution), 7);
    EXPECT_EQ(countKind(FileKind_e::OverflowSolution), 4);
    EXPECT_EQ(countKind(FileKind_e::Function), 9);
}

TEST(Matrix, HoldsSevenFormsInTwoPrecisions) {
    EXPECT_EQ(everyForm().size(), 14U);
    EXPECT_EQ(everyCase().size(), 616U);
}

TEST(Matrix, RunsEveryCaseDetectedAndDescribed) {
    std::int64_t suites = 0;
    const ::testing::UnitTest& all = *::testing::UnitTest::GetInstance();
    for (int index = 0; index < all.total_test_suite_count(); ++index) {
        const ::testing::TestSuite& suite = *all.GetTestSuite(index);
        const std::string name = suite.name();
        if (name != "Every/DetectedMatrix" && name != "Every/DescribedMatrix")
            continue;
        ++suites;
        EXPECT_EQ(suite.total_test_count(), 616) << name;
    }
    EXPECT_EQ(suites, 2);
}

} // namespace
} // namespace quorvia::testsupport
