// Quantities of data sets that were opened from files.
#include <algorithm>
#include <optional>

#include <gtest/gtest.h>

#include <plot3d/Derived.h>
#include <plot3d/Error.h>

#include "TestFlow.h"
#include "support/SmallFiles.h"

namespace plot3dtest {
namespace {

namespace writer = quorvia::plot3dwriter;
using namespace quorvia::testsupport;
using plot3d::DataSet;

const plot3d::DerivedQuantity& named(std::string_view wordOrNumber) {
    return *plot3d::findDerivedQuantity(wordOrNumber);
}

std::string missingFor(const DataSet& data, std::string_view wordOrNumber, std::size_t zone = 0) {
    std::string reason;
    const bool can = plot3d::canDerive(data, zone, named(wordOrNumber), reason);
    EXPECT_EQ(can, reason.empty());
    return reason;
}

TEST(DerivedQuantities, AreThoseThatUsersKnowByNumber) {
    std::vector<int> numbers;
    for (const plot3d::DerivedQuantity& quantity : plot3d::derivedQuantities())
        numbers.push_back(quantity.number);
    EXPECT_EQ(numbers, (std::vector<int>{100, 110, 111, 112, 113, 120, 130, 140, 144, 153, 163, 170,
                                         184, 200, 201, 202, 210, 211, 212}));
}

TEST(DerivedQuantities, AreFoundByWordAndNumber) {
    EXPECT_EQ(named("pressure").number, 110);
    EXPECT_EQ(named("Mach").number, 112);
    EXPECT_EQ(named("201").name, "vorticity");
    EXPECT_EQ(named("velocity").components,
              (std::vector<std::string>{"VelocityX", "VelocityY", "VelocityZ"}));
    EXPECT_EQ(plot3d::findDerivedQuantity("pressur"), nullptr);
    EXPECT_EQ(plot3d::findDerivedQuantity("101"), nullptr);
}

class DerivedTest : public ::testing::Test {
protected:
    DerivedTest() {
        flow_.state = [](const Vector& at) {
            return State_s{1.0 + 0.01 * at[0],
                           {0.5 - 0.7 * at[1], 0.7 * at[0], 0},
                           2.0 + 0.1 * at[0] + 0.2 * at[1]};
        };
    }
    DataSet open() const { return flow_.open(directory_); }
    std::string file(const char* name) const { return directory_.file(name); }

    TestFlow_s flow_;
    quorvia::testsupport::TemporaryDirectory directory_;
};

TEST_F(DerivedTest, HaveTheValuesOfTheFlow) {
    const DataSet data = open();
    const Components pressure = derive(data, 0, named("pressure"));
    const Components temperature = derive(data, 0, named("temperature"));
    for (std::size_t n = 0; n < pressure[0].size(); ++n) {
        const State_s state = flow_.stateAt(n);
        EXPECT_NEAR(pressure[0][n], state.pressure, 1e-13);
        EXPECT_NEAR(temperature[0][n], state.pressure / state.density, 1e-13);
    }
}

std::vector<double> pointsOf(const std::vector<double>& values, const plot3d::Extent& size,
                             const plot3d::Box& box) {
    std::vector<double> some;
    for (std::int64_t k = box.k.first; k <= box.k.last; k += box.k.step)
        for (std::int64_t j = box.j.first; j <= box.j.last; j += box.j.step)
            for (std::int64_t i = box.i.first; i <= box.i.last; i += box.i.step)
                some.push_back(values[static_cast<std::size_t>((k * size.j + j) * size.i + i)]);
    return some;
}

TEST_F(DerivedTest, AreTheSameAtTheirPointsForABox) {
    const DataSet data = open();
    const plot3d::Extent size = data.zones()[0].size;
    const plot3d::Box planes{{0, 4, 4}, {0, 3, 1}, {0, 2, 1}};
    const plot3d::Box inside{{1, 3, 2}, {2, 2, 1}, {1, 1, 1}};
    for (const char* word : {"pressure", "velocity", "vorticity"})
        for (const plot3d::Box& box : {planes, inside}) {
            const Components whole = derive(data, 0, named(word));
            const Components part = derive(data, 0, named(word), box);
            for (std::size_t component = 0; component < whole.size(); ++component)
                EXPECT_EQ(part[component], pointsOf(whole[component], size, box)) << word;
        }
}

TEST_F(DerivedTest, RefuseABoxThatLeavesTheZone) {
    const DataSet data = open();
    EXPECT_THROW(derive(data, 0, named("pressure"), {{0, 5, 1}, {0, 3, 1}, {0, 2, 1}}),
                 plot3d::Error);
}

TEST_F(DerivedTest, HaveDerivativesAtAllPoints) {
    const Components vorticity = derive(open(), 0, named("vorticity"));
    ASSERT_EQ(vorticity.size(), 3U);
    for (std::size_t n = 0; n < vorticity[0].size(); ++n) {
        EXPECT_NEAR(vorticity[0][n], 0.0, 1e-11);
        EXPECT_NEAR(vorticity[2][n], 1.4, 1e-11);
    }
}

TEST_F(DerivedTest, AreThoseOfArraysForEveryQuantity) {
    const DataSet data = open();
    for (const plot3d::DerivedQuantity& quantity : plot3d::derivedQuantities()) {
        const Components values = derive(data, 0, quantity);
        const Components expected = flow_.compute(quantity.number, {.freeStreamMach = 2.0});
        ASSERT_EQ(values.size(), quantity.components.size());
        EXPECT_EQ(values, expected) << quantity.name;
    }
}

TEST_F(DerivedTest, In2DLieInThePlane) {
    flow_.size = {5, 4, 1};
    flow_.place = [](double i, double j, double) { return Vector{i + 0.1 * j * j, 2 * j, 0}; };
    const DataSet data = open();
    ASSERT_EQ(data.findVariable("Z"), std::nullopt);
    const Components vorticity = derive(data, 0, named("vorticity"));
    const Components velocity = derive(data, 0, named("velocity"));
    const Components pressure = derive(data, 0, named("pressure"));
    for (std::size_t n = 0; n < vorticity[2].size(); ++n) {
        EXPECT_NEAR(vorticity[2][n], 1.4, 1e-11);
        EXPECT_EQ(velocity[2][n], 0.0);
        EXPECT_NEAR(pressure[0][n], flow_.stateAt(n).pressure, 1e-13);
    }
}

TEST_F(DerivedTest, TakeGammaAndGasConstantFromTheCaller) {
    flow_.gamma = 1.3;
    const DataSet data = open();
    const plot3d::Gas gas{.gamma = 1.3, .gasConstant = 287.0};
    const Components temperature = derive(data, 0, named("temperature"), gas);
    for (std::size_t n = 0; n < temperature[0].size(); ++n)
        EXPECT_NEAR(temperature[0][n], flow_.stateAt(n).pressure / flow_.stateAt(n).density / 287.0,
                    1e-13);
}

TEST_F(DerivedTest, TakeTheMachNumberOfTheFile) {
    flow_.mach = 0.5;
    const Components coefficient = derive(open(), 0, named("pressure-coefficient"));
    EXPECT_NEAR(coefficient[0][0], (flow_.stateAt(0).pressure - 1 / 1.4) / 0.125, 1e-12);
}

TEST_F(DerivedTest, NeedAMachNumberForThePressureCoefficient) {
    flow_.mach = 0.0;
    const DataSet data = open();
    EXPECT_EQ(missingFor(data, "111"), "the Mach number of the free stream is not known");
    EXPECT_EQ(missingFor(data, "110"), "");
}

TEST_F(DerivedTest, NeedASolution) {
    open();
    const DataSet data = DataSet::open(std::vector<std::string>{file("flow.x")});
    EXPECT_EQ(missingFor(data, "pressure"), "no variable is known to be the density");
    EXPECT_EQ(missingFor(data, "momentum"), "no variable is known to be the momentum along x");
    EXPECT_EQ(missingFor(data, "163"), "no variable is known to be the stagnation energy");
}

TEST_F(DerivedTest, NeedASurfaceForDerivatives) {
    flow_.size = {5, 1, 2};
    EXPECT_EQ(missingFor(open(), "vorticity"), "");
    flow_.size = {1, 1, 5};
    EXPECT_EQ(missingFor(open(), "vorticity"),
              "derivatives need an ordered zone with points along two directions or three");
    EXPECT_EQ(missingFor(open(), "velocity"), "");
}

TEST_F(DerivedTest, AreRefusedWithWhatIsMissing) {
    open();
    const DataSet data = DataSet::open(std::vector<std::string>{file("flow.x")});
    try {
        derive(data, 0, named("mach"));
        FAIL();
    } catch (const plot3d::Error& error) {
        EXPECT_EQ(error.kind(), plot3d::ErrorKind::Unsupported);
        EXPECT_EQ(error.message(),
                  "mach can't be computed: no variable is known to be the density");
    }
}

TEST_F(DerivedTest, RefuseAZoneThatIsNotThere) {
    EXPECT_THROW(derive(open(), 1, named("mach")), plot3d::Error);
}

TEST_F(DerivedTest, EndWhenTheyAreStopped) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(derive(open(), 0, named("velocity"), {}, stop.get_token()), plot3d::Error);
}

/// A flow whose gradient differs from node to node, with a wall of J 0, I 1 to 3, K 0 to 1.
class DerivedAtBoundary : public DerivedTest {
protected:
    DerivedAtBoundary() {
        flow_.state = [](const Vector& at) {
            return State_s{2.0, {at[1] * at[2], at[0] * at[0], at[0] * at[1]}, 2.0 + at[1] * at[1]};
        };
        directory_.write("flow.x.fvbnd", "FVBND 1 4\nwall\nBOUNDARIES\n1 1 2 4 1 1 1 2 F 0\n");
    }
    static constexpr plot3d::Box wall{{1, 3, 1}, {0, 0, 1}, {0, 1, 1}};
    /// Of the grid's values, those at the wall.
    Components atWall(const Components& whole) const {
        Components some(whole.size());
        for (std::size_t n = 0; n < whole.size(); ++n)
            for (std::int64_t k = wall.k.first; k <= wall.k.last; ++k)
                for (std::int64_t i = wall.i.first; i <= wall.i.last; ++i)
                    some[n].push_back(
                        whole[n][static_cast<std::size_t>(k * flow_.size.j * flow_.size.i + i)]);
        return some;
    }
};

TEST_F(DerivedAtBoundary, AreThoseOfTheGridAtItsPoints) {
    const DataSet data = open();
    ASSERT_EQ(data.zones().size(), 2U);
    for (const plot3d::DerivedQuantity& quantity : plot3d::derivedQuantities())
        EXPECT_EQ(derive(data, 1, quantity), atWall(derive(data, 0, quantity))) << quantity.name;
}

TEST_F(DerivedAtBoundary, NeedTheGridAroundItForDerivatives) {
    flow_.write(directory_);
    plot3d::OpenOptions options;
    options.instructions = {{"IINDEXRANGE", "1,,2"}}; // read by themselves
    const DataSet data =
        DataSet::open(std::vector<std::string>{file("flow.x"), file("flow.q")}, options);
    ASSERT_EQ(data.zones().size(), 2U);
    EXPECT_EQ(missingFor(data, "vorticity", 1),
              "the points beside this boundary, which derivatives need, are not known");
    EXPECT_EQ(missingFor(data, "pressure", 1), "");
}

TEST_F(DerivedTest, NeedTheNamesThatTellWhatVariablesAre) {
    flow_.write(directory_);
    plot3d::OpenOptions options;
    options.nameFile = directory_.write("flow.nam", "density\n");
    const DataSet data =
        DataSet::open(std::vector<std::string>{file("flow.x"), file("flow.q")}, options);
    EXPECT_EQ(missingFor(data, "velocity"), "no variable is known to be the density");
    EXPECT_EQ(missingFor(data, "momentum"), "");
}

TEST_F(DerivedTest, OfAnOverflowFileTakeItsOwnGammas) {
    const GridList grids = {{5, 3, 2}, {3, 2, 2}};
    writer::FileDescription_s contents =
        describe(writer::FileKind_e::OverflowSolution, grids, writer::Layout_e::ThreeDWhole,
                 [](auto, std::int32_t variable, auto i, auto, auto) {
                     return std::array<double, 6>{
                         1, 0, 0, 0, 10, 1.2 + 0.125 * i}[static_cast<std::size_t>(variable)];
                 });
    contents.numVars = 6;
    setScalars(contents, {2.0, 0, 1e6, 0, 1.25, 0, 300, 1});
    contents.scalars[1][0] = 4.0;
    writeFile(file("o.q"), contents);
    writeFile(file("o.x"), describeGrid(grids));
    const DataSet data = DataSet::open(std::vector<std::string>{file("o.x"), file("o.q")});

    const Components pressure = derive(data, 0, named("pressure"));
    const Components coefficient = derive(data, 1, named("111"));
    EXPECT_NEAR(pressure[0][0], 2.0, 1e-6);
    EXPECT_NEAR(pressure[0][4], 7.0, 1e-6);
    EXPECT_NEAR(coefficient[0][0], (2.0 - 1 / 1.25) / 8.0, 1e-6);
}

} // namespace
} // namespace plot3dtest
