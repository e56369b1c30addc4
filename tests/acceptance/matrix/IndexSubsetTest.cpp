// Loads of a part of the points, in every form.
#include "acceptance/matrix/MatrixFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;
using Indices = std::vector<std::int64_t>;

/// The points that a load of a subset keeps, from 0.
struct Points_s {
    Indices i;
    Indices j;
    Indices k;
};

class IndexSubset : public MatrixTest, public ::testing::WithParamInterface<FileForm_s> {
protected:
    static constexpr GridDims_s dims = {7, 5, 3};

    /// One grid of `dims` with I-blank where the layout has it, and a Classic solution.
    CaseFiles_s writeLargerCase(Layout_e layout) const {
        const bool hasIBlank = layout == Layout_e::ThreeDWhole;
        CaseFiles_s files = {
            writeLarger("case.x", {FileKind_e::Grid, layout, false, hasIBlank}),
            writeLarger("case.q", {FileKind_e::ClassicSolution, layout, false, false})};
        return files;
    }

    static void expectSubset(const CaseFiles_s& files, const Points_s& points) {
        EXPECT_EQ(zone(1).i, static_cast<std::int64_t>(points.i.size()));
        EXPECT_EQ(zone(1).j, static_cast<std::int64_t>(points.j.size()));
        EXPECT_EQ(zone(1).k, static_cast<std::int64_t>(points.k.size()));
        std::int32_t variable = 0;
        for (const WrittenFile_s* file : {&files.grid, &*files.other}) {
            const FileReading reading = FileReading::asMeant(*file);
            const std::int32_t count = reading.variableCount() + (reading.hasIBlank() ? 1 : 0);
            for (std::int32_t index = 0; index < count; ++index)
                EXPECT_TRUE(fieldIs(host(), 1, ++variable, subset(reading, index, points)));
        }
        EXPECT_EQ(variable, dataSet().variableCount());
    }

private:
    WrittenFile_s writeLarger(const char* name, const LayoutCase_s& layout) const {
        WrittenFile_s file = {directory().file(name), layout, GetParam(),
                              contentsOf(layout),     {},     {}};
        file.contents.grids = {dims};
        if (layout.layout == Layout_e::TwoD)
            file.contents.grids[0].k = 1;
        EXPECT_EQ(writePlot3DFile(file.path, file.contents, file.form).problem, "");
        return file;
    }

    static FieldExpectation_s subset(const FileReading& reading, std::int32_t variable,
                                     const Points_s& points) {
        FieldExpectation_s expected = reading.field(0, variable);
        expected.state = host::FieldState_e::Stored; // parts of fields are read during the load
        expected.value = [whole = expected.value, points](std::int64_t i, std::int64_t j,
                                                          std::int64_t k) {
            return whole(points.i[static_cast<std::size_t>(i)],
                         points.j[static_cast<std::size_t>(j)],
                         points.k[static_cast<std::size_t>(k)]);
        };
        return expected;
    }
};

TEST_P(IndexSubset, KeepsTheEndOfARangeEvenOffTheStride) {
    const CaseFiles_s files = writeLargerCase(Layout_e::ThreeDWhole);
    Load_s load = loadOf(files);
    load.settings.insert(
        load.settings.end(),
        {{"IINDEXRANGE", "2,6,3"}, {"JINDEXRANGE", "2,,1"}, {"KINDEXRANGE", "1,,2"}});
    expectLoads(load);
    expectSubset(files, {{1, 4, 5}, {1, 2, 3, 4}, {0, 2}});
}

TEST_P(IndexSubset, StopsAtTheLastIndexWhateverTheEndSays) {
    const CaseFiles_s files = writeLargerCase(Layout_e::TwoD);
    Load_s load = loadOf(files);
    load.settings.insert(load.settings.end(),
                         {{"IINDEXRANGE", "3,99,2"}, {"JINDEXRANGE", "4,4,1"}});
    expectLoads(load);
    expectSubset(files, {{2, 4, 6}, {3}, {0}});
}

TEST_P(IndexSubset, IsTakenFromEachPlane) {
    const CaseFiles_s files = writeLargerCase(Layout_e::ThreeDPlanes);
    Load_s load = describedLoadOf(files);
    load.settings.insert(load.settings.end(), {{"IINDEXRANGE", "1,6,4"}, {"JINDEXRANGE", "1,,3"}});
    // A plain binary file of 64-bit reals that is described by hand is taken for 32-bit reals.
    if (GetParam().encoding == Encoding_e::Binary && isDouble(GetParam()))
        return;
    expectLoads(load);
    expectSubset(files, {{0, 4, 5}, {0, 3, 4}, {0, 1, 2}});
}

TEST_P(IndexSubset, OfEveryPointLeavesTheFieldsInTheFile) {
    const CaseFiles_s files = writeCase({{FileKind_e::ClassicSolution}, GetParam()});
    Load_s load = loadOf(files);
    load.settings.insert(
        load.settings.end(),
        {{"IINDEXRANGE", "1,2,1"}, {"JINDEXRANGE", "1,,1"}, {"KINDEXRANGE", "1,99,1"}});
    expectLoads(load);
    expectFrame({FileReading::asMeant(files.grid), FileReading::asMeant(*files.other)});
}

INSTANTIATE_TEST_SUITE_P(Every, IndexSubset, ::testing::ValuesIn(everyForm()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace quorvia::testsupport
