// Fields of more than 4 GiB in one Fortran record of several segments: sparse files, of which the
// planes are written that the segments' ends cut.
#include <algorithm>
#include <ostream>
#include <set>

#include "OpenFixture.h"

namespace plot3dtest {
namespace {

using namespace writer;

struct SegmentedCase_s {
    const char* name;
    GridDims_s dims;
    ByteOrder_e byteOrder;

    std::int64_t planeBytes() const { return std::int64_t{4} * dims.i * dims.j; }
};

void PrintTo(const SegmentedCase_s& segmented, std::ostream* out) {
    *out << segmented.name;
}

/// Exact in 32 bits, and different at each point of a plane and of its neighbours.
float placeValue(std::int64_t i, std::int64_t j, std::int64_t k, std::int64_t variable) {
    return static_cast<float>(i + 200 * j + 40'000 * (k % 10) + 400'000 * variable + 1);
}

/// Planes of the payload, all variables one after the other: those that the ends of segments cut,
/// their neighbours, and the first ones of each variable.
std::set<std::int64_t> planesToLookAt(const SegmentedCase_s& segmented) {
    std::set<std::int64_t> planes;
    for (std::int64_t variable = 0; variable < 3; ++variable)
        planes.insert({variable * segmented.dims.k, variable * segmented.dims.k + 1});
    const std::int64_t last = 3 * std::int64_t{segmented.dims.k} - 1;
    for (std::int64_t end = longestFortranSegment; end < last * segmented.planeBytes();
         end += longestFortranSegment)
        for (const std::int64_t plane :
             {end / segmented.planeBytes() - 1, end / segmented.planeBytes(),
              end / segmented.planeBytes() + 1})
            planes.insert(std::min(plane, last));
    return planes;
}

class SegmentedRecord : public OpenTest, public ::testing::WithParamInterface<SegmentedCase_s> {
protected:
    static const GridDims_s& dims() { return GetParam().dims; }

    std::string writeGrid() const {
        FileDescription_s contents = quorvia::testsupport::describeGrid({dims()});
        contents.value = [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                            std::int32_t k) { return placeValue(i, j, k, variable); };
        contents.isHole = [planes = planesToLookAt(GetParam())](std::int32_t, std::int32_t variable,
                                                                std::int32_t k) {
            return planes.count(std::int64_t{variable} * dims().k + k) == 0;
        };
        return OpenTest::write("big.x", contents,
                               quorvia::testsupport::fortran(GetParam().byteOrder));
    }

    static void expectPlane(const plot3d::DataSet& data, std::size_t variable, std::int64_t k) {
        std::vector<float> found(static_cast<std::size_t>(GetParam().planeBytes() / 4));
        data.read(0, variable, {{0, dims().i - 1, 1}, {0, dims().j - 1, 1}, {k, k, 1}},
                  found.data());
        for (std::size_t index = 0; index < found.size(); ++index)
            ASSERT_EQ(found[index], placeValue(static_cast<std::int64_t>(index) % dims().i,
                                               static_cast<std::int64_t>(index) / dims().i, k,
                                               static_cast<std::int64_t>(variable)))
                << "variable " << variable << ", plane " << k << ", value " << index;
    }
};

TEST_P(SegmentedRecord, IsReadRightAcrossEveryEnd) {
    const auto data = plot3d::DataSet::open({writeGrid()});
    EXPECT_EQ(data.source(0, 0).pieces.size(), 3u);
    for (const std::int64_t plane : planesToLookAt(GetParam()))
        expectPlane(data, static_cast<std::size_t>(plane / dims().k), plane % dims().k);
}

// In the last two the ends of segments stand in the last value of the first field.
INSTANTIATE_TEST_SUITE_P(
    Each, SegmentedRecord,
    ::testing::Values(SegmentedCase_s{"LittleEndian", {120, 100, 100'000}, ByteOrder_e::Little},
                      SegmentedCase_s{"BigEndian", {120, 100, 100'000}, ByteOrder_e::Big},
                      SegmentedCase_s{"CutLittleEndian", {127, 113, 74'820}, ByteOrder_e::Little},
                      SegmentedCase_s{"CutBigEndian", {127, 113, 74'820}, ByteOrder_e::Big}),
    [](const auto& tested) { return tested.param.name; });

} // namespace
} // namespace plot3dtest
