// Hosts that offer less: no sharing between zones, no plain arrays; in every form.
#include "acceptance/matrix/MatrixFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

class HostVariation : public MatrixTest, public ::testing::WithParamInterface<FileForm_s> {
protected:
    static constexpr bool isMultiGrid = true;

    /// Two grids with I-blank and two solutions on them.
    void loadTwoSteps() {
        files_ = writeCase(
            {{FileKind_e::SwiftSolution, Layout_e::ThreeDWhole, isMultiGrid, false}, GetParam()});
        later_ = writeFile(directory().file("later.q"), files_.other->layout, GetParam());
        Load_s load = loadOf(files_);
        load.solutionFiles.push_back(later_.path);
        expectLoads(load);
        ASSERT_EQ(dataSet().zoneCount(), 6);
    }

    /// X, Y, Z and I-blank of a zone of the second step, in `state`.
    void expectGridOfLaterStep(host::FieldState_e state) const {
        const FileReading grid = FileReading::asMeant(files_.grid);
        for (std::int32_t variable = 0; variable < 4; ++variable) {
            FieldExpectation_s expected = grid.field(1, variable);
            expected.state = state;
            EXPECT_TRUE(fieldIs(host(), 5, variable + 1, expected));
        }
    }

    void expectSolutionOfLaterStep() const {
        const FileReading solution = FileReading::asMeant(later_);
        for (std::int32_t variable = 0; variable < 5; ++variable)
            EXPECT_TRUE(fieldIs(host(), 5, variable + 5, solution.field(1, variable)));
    }

    static std::vector<std::int32_t> holders(std::int32_t variable) {
        return dataSet().fieldHolders(variable);
    }

    CaseFiles_s files_;
    WrittenFile_s later_;
};

using Holders = std::vector<std::int32_t>;

TEST_P(HostVariation, SharesTheGridWithLaterSteps) {
    loadTwoSteps();
    EXPECT_EQ(holders(1), Holders({1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(holders(4), Holders({1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(holders(5), Holders({1, 2, 3, 4, 5, 6}));
    expectGridOfLaterStep(FileReading::asMeant(files_.grid).state());
    expectSolutionOfLaterStep();
}

TEST_P(HostVariation, CopiesTheGridWhereSharingIsForbidden) {
    host().settings().sharingAllowed = false;
    loadTwoSteps();
    EXPECT_EQ(holders(1), Holders({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(holders(4), Holders({1, 2, 3, 4, 5, 6}));
    expectGridOfLaterStep(host::FieldState_e::Stored);
    expectSolutionOfLaterStep();
}

TEST_P(HostVariation, WritesValueByValueWithoutPlainArrays) {
    host().settings().plainArrays = false;
    const CaseFiles_s files =
        writeCase({{FileKind_e::SwiftSolution, Layout_e::TwoD, isMultiGrid, false}, GetParam()});
    expectLoads(loadOf(files));
    expectFrame({FileReading::asMeant(files.grid), FileReading::asMeant(*files.other)});
}

TEST_P(HostVariation, WritesPlanesValueByValueWithoutPlainArrays) {
    if (GetParam().encoding == Encoding_e::Binary)
        return; // without records planes come in as whole fields, which stay in the file
    host().settings().plainArrays = false;
    const CaseFiles_s files =
        writeCase({{FileKind_e::Grid, Layout_e::ThreeDPlanes, isMultiGrid, true}, GetParam()});
    expectLoads(describedLoadOf(files));
    expectFrame({FileReading::asMeant(files.grid), std::nullopt});
}

TEST_P(HostVariation, WritesSubsetsValueByValueWithoutPlainArrays) {
    host().settings().plainArrays = false;
    const CaseFiles_s files =
        writeCase({{FileKind_e::Grid, Layout_e::TwoD, false, true}, GetParam()});
    Load_s load = loadOf(files);
    load.settings.emplace_back("IINDEXRANGE", "1,,3"); // 1, 4 and 5 of 5
    expectLoads(load);
    const FileReading grid = FileReading::asMeant(files.grid);
    for (std::int32_t variable = 0; variable < 3; ++variable) {
        FieldExpectation_s expected = grid.field(0, variable);
        expected.state = host::FieldState_e::Stored;
        expected.value = [whole = expected.value](std::int64_t i, std::int64_t j, std::int64_t k) {
            return whole(i == 0 ? 0 : i + 2, j, k);
        };
        EXPECT_TRUE(fieldIs(host(), 1, variable + 1, expected));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, HostVariation, ::testing::ValuesIn(everyForm()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace quorvia::testsupport
