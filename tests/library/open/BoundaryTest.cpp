// Boundary zones: parts of the fields of their grids.
#include "SeriesFixture.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using plot3d::FieldKind;
using writer::FileKind_e;

class BoundariesOfFiles : public SeriesTest {
protected:
    std::string writeBoundaries(const std::string& name) const {
        return write(name, "FVBND 1 4\nwall\ninlet\nBOUNDARIES\n"
                           "1 2 1 $ 1 1 2 3 F 0\n"
                           "2 1 2 2 1 $ 1 $ F 0\n");
    }
    /// Of the second grid, J 0, K 1 and 2.
    static plot3d::Box wallBox() { return {{0, 4, 1}, {0, 0, 1}, {1, 2, 1}}; }

    std::string writeGrid(const writer::FileForm_s& form = doubleForm()) const {
        return writeStep("wing.x", FileKind_e::Grid, 0, 0.0, form);
    }
    std::string writeSolution(int step, const writer::FileForm_s& form = doubleForm()) const {
        return writeStep("wing_" + std::to_string(step) + ".q", FileKind_e::ClassicSolution, step,
                         0.25 * step, form);
    }
    /// Every variable of the wall has the values of the second grid's zone at its points.
    static void expectPart(const DataSet& data, std::size_t zone, std::size_t parent) {
        ASSERT_LT(zone, data.zones().size());
        EXPECT_EQ(data.zones()[zone].parent, parent);
        EXPECT_EQ(data.zones()[zone].size, (plot3d::Extent{5, 1, 2}));
        for (std::size_t variable = 0; variable < data.variables().size(); ++variable)
            EXPECT_EQ(data.values(zone, variable), data.values(parent, variable, wallBox()))
                << "variable " << variable;
    }
};

TEST_F(BoundariesOfFiles, ArePartsOfTheirGrids) {
    const auto grid = writeGrid();
    writeBoundaries("wing.x.fvbnd");
    const auto data = DataSet::open({grid, writeSolution(1)});
    ASSERT_EQ(data.zones().size(), 4u);
    EXPECT_EQ(data.zones()[2].name, "wall: I[1-5],J[1-1],K[2-3]");
    EXPECT_EQ(data.zones()[2].auxiliaryData.at("Common.BoundaryCondition"), "Wall");
    EXPECT_EQ(data.kind(2, 3), FieldKind::PartOf);
    EXPECT_EQ(data.partOf(2, 3).zone, 1u);
    EXPECT_EQ(data.partOf(2, 3).variable, 3u);
    EXPECT_EQ(data.partOf(2, 3).box, wallBox());
    expectPart(data, 2, 1);
}

TEST_F(BoundariesOfFiles, AreThereAtEachStep) {
    writeBoundaries("wing.x.fvbnd");
    const auto data = DataSet::open({writeGrid(), writeSolution(1), writeSolution(2)});
    ASSERT_EQ(data.zones().size(), 8u);
    expectPart(data, 4, 1);
    expectPart(data, 6, 3);
    EXPECT_EQ(data.zones()[6].time, 0.5);
    EXPECT_EQ(data.holder(6, 0), 4u);
}

TEST_F(BoundariesOfFiles, OfFortranFilesAreParts) {
    writer::FileForm_s form = doubleForm();
    form.encoding = writer::Encoding_e::Fortran;
    form.markerBytes = 8;
    writeBoundaries("wing.x.fvbnd");
    const auto data = DataSet::open({writeGrid(form), writeSolution(1, form)});
    EXPECT_EQ(data.kind(2, 7), FieldKind::PartOf);
    expectPart(data, 2, 1);
}

TEST_F(BoundariesOfFiles, OfTextFilesArePartsOfWhatWasRead) {
    writeBoundaries("wing.x.fvbnd");
    const auto data = DataSet::open({writeGrid(textForm()), writeSolution(1, textForm())});
    EXPECT_EQ(data.kind(2, 7), FieldKind::PartOf);
    expectPart(data, 2, 1);
}

TEST_F(BoundariesOfFiles, AreReadWhereTheyHaveStridesThatTheirGridsHave) {
    writeBoundaries("wing.x.fvbnd");
    plot3d::OpenOptions options;
    options.instructions = {{"IINDEXRANGE", "1,,2"}};
    const auto data = DataSet::open({writeGrid()}, options);
    ASSERT_EQ(data.zones().size(), 4u);
    EXPECT_EQ(data.kind(2, 0), FieldKind::InMemory);
    EXPECT_EQ(data.zones()[2].size, (plot3d::Extent{3, 1, 2}));
    EXPECT_EQ(data.values(2, 0), data.values(1, 0, {{0, 2, 1}, {0, 0, 1}, {1, 2, 1}}));
}

TEST_F(BoundariesOfFiles, MayBeLeftOut) {
    writeBoundaries("wing.x.fvbnd");
    plot3d::OpenOptions options;
    options.boundaries = false;
    EXPECT_EQ(DataSet::open({writeGrid()}, options).zones().size(), 2u);
}

TEST_F(BoundariesOfFiles, AreTakenFromTheFileThatLiesBesideTheGrid) {
    const auto beside = writeBoundaries("wing.x.fvbnd");
    const auto data = DataSet::open({beside, writeGrid()});
    EXPECT_EQ(data.zones().size(), 4u);
    EXPECT_TRUE(data.notes().empty());
}

TEST_F(BoundariesOfFiles, OfAnotherNameAreNotLoadedAndThatIsSaid) {
    const auto other = writeBoundaries("other.fvbnd");
    const auto data = DataSet::open({other, writeGrid()});
    EXPECT_EQ(data.zones().size(), 2u);
    EXPECT_EQ(data.notes(),
              std::vector<std::string>{other + ": not loaded: the boundary file of " +
                                       file("wing.x") + " is " + file("wing.x") + ".fvbnd"});
}

TEST_F(BoundariesOfFiles, ThatAreWrongAreNotLoadedAndThatIsSaid) {
    write("wing.x.fvbnd", "FVBND 1 3\nwall\nBOUNDARIES\n");
    const auto data = DataSet::open({writeGrid()});
    EXPECT_EQ(data.zones().size(), 2u);
    EXPECT_EQ(data.notes().size(), 1u);
}

TEST_F(BoundariesOfFiles, BesideSeveralFunctionFilesShowTheLastOneAsTheLoaderDoes) {
    writeBoundaries("wing.x.fvbnd");
    const auto data = DataSet::open({writeGrid(), writeStep("pressure.f", FileKind_e::Function, 1),
                                     writeStep("temperature.f", FileKind_e::Function, 2)});
    ASSERT_EQ(data.zones().size(), 4u);
    EXPECT_EQ(data.kind(2, 3), FieldKind::InMemory);
    EXPECT_EQ(data.values(2, 3), data.values(1, 5, wallBox()));
    EXPECT_EQ(data.kind(2, 5), FieldKind::Empty);
}

} // namespace
} // namespace plot3dtest
