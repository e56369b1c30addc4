// Loads of some of a file's grids, in every form.
#include "acceptance/matrix/MatrixFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

class GridSet : public MatrixTest, public ::testing::WithParamInterface<FileForm_s> {
protected:
    static constexpr bool isMultiGrid = true;

    /// Loads the first and the third of three grids.
    static void expectLoadsFirstAndThird(const CaseFiles_s& files) {
        // Text with a count of unstructured grids is found only if it is described by hand.
        Load_s load =
            files.grid.form.encoding == Encoding_e::Text ? describedLoadOf(files) : loadOf(files);
        load.settings.emplace_back("FILEGRIDSET", "1,3");
        expectLoads(load);
        ASSERT_EQ(dataSet().zoneCount(), 2);
    }

    /// Holds the fields of a file in the zones 1 and 2 against its grids 0 and 2.
    static void expectFieldsOf(const WrittenFile_s& file, std::int32_t firstVariable) {
        const FileReading reading = FileReading::asMeant(file);
        const std::int32_t count = reading.variableCount() + (reading.hasIBlank() ? 1 : 0);
        for (std::int32_t variable = 0; variable < count; ++variable) {
            EXPECT_TRUE(fieldIs(host(), 1, firstVariable + variable, reading.field(0, variable)));
            EXPECT_TRUE(fieldIs(host(), 2, firstVariable + variable, reading.field(2, variable)));
        }
    }
};

TEST_P(GridSet, PassesOverTheGridsBetween) {
    const CaseFiles_s files = writeCase(
        {{FileKind_e::SwiftSolution, Layout_e::ThreeDWhole, isMultiGrid, false}, GetParam()});
    expectLoadsFirstAndThird(files);
    EXPECT_EQ(zoneNames(), Texts({"case.q:1", "case.q:3"}));
    expectFieldsOf(files.grid, 1);
    expectFieldsOf(*files.other, 5);
}

TEST_P(GridSet, KeepsScalarsAndTimesWithTheirGrids) {
    const CaseFiles_s files = writeCase(
        {{FileKind_e::OverflowSolution, Layout_e::ThreeDWhole, isMultiGrid, false}, GetParam()});
    expectLoadsFirstAndThird(files);
    const FileReading solution = FileReading::asMeant(*files.other);
    EXPECT_EQ(zone(1).auxData, expectedZoneAuxData(solution, 0));
    EXPECT_EQ(zone(2).auxData, expectedZoneAuxData(solution, 2));
    EXPECT_EQ(zone(2).solutionTime, 2.25);
}

TEST_P(GridSet, PassesOverElements) {
    const CaseFiles_s files =
        writeCase({{FileKind_e::Function, Layout_e::Unstructured, isMultiGrid, false}, GetParam()});
    expectLoadsFirstAndThird(files);
    EXPECT_EQ(zone(2).j, 13);
    EXPECT_EQ(zone(2).nodeMap->nodes()[51], cornerAt(2, 12, 3));
    expectFieldsOf(files.grid, 1);
    expectFieldsOf(*files.other, 4);
}

INSTANTIATE_TEST_SUITE_P(Every, GridSet, ::testing::ValuesIn(everyForm()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace quorvia::testsupport
