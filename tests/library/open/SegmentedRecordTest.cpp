// A field of 4.8 GB in one Fortran record of three segments: a sparse file, of which the planes are
// written that the segments' ends cut.
#include <algorithm>
#include <set>

#include "OpenFixture.h"

namespace plot3dtest {
namespace {

using namespace writer;

constexpr GridDims_s dims = {1200, 1000, 1000};
constexpr std::int64_t planeBytes = std::int64_t{4} * dims.i * dims.j;

/// Exact in 32 bits, and different at each point of a plane.
float placeValue(std::int64_t i, std::int64_t j, std::int64_t variable) {
    return static_cast<float>(i + dims.i * j + 1 + variable * 2'000'000);
}

/// Planes of the payload, all variables one after the other, in which a segment ends or begins.
std::set<std::int64_t> planesAtEnds() {
    std::set<std::int64_t> planes;
    for (std::int64_t end = longestFortranSegment; end < 3 * dims.k * planeBytes;
         end += longestFortranSegment)
        planes.insert({end / planeBytes, end / planeBytes + 1});
    return planes;
}

class SegmentedRecord : public OpenTest, public ::testing::WithParamInterface<ByteOrder_e> {
protected:
    std::string writeGrid() const {
        FileDescription_s contents;
        contents.grids = {dims};
        contents.value = [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                            std::int32_t) { return placeValue(i, j, variable); };
        contents.isHole = [planes = planesAtEnds()](std::int32_t, std::int32_t variable,
                                                    std::int32_t k) {
            return planes.count(std::int64_t{variable} * dims.k + k) == 0;
        };
        FileForm_s form;
        form.encoding = Encoding_e::Fortran;
        form.byteOrder = GetParam();
        return OpenTest::write("big.x", contents, form);
    }
};

TEST_P(SegmentedRecord, IsReadRightAcrossEveryEnd) {
    const auto data = plot3d::DataSet::open({writeGrid()});
    EXPECT_EQ(data.source(0, 0).pieces.size(), 3u);
    std::vector<float> found(static_cast<std::size_t>(planeBytes / 4));
    for (const std::int64_t plane : planesAtEnds()) {
        const auto variable = static_cast<std::size_t>(plane / dims.k);
        const std::int64_t k = plane % dims.k;
        data.read(0, variable, {{0, dims.i - 1, 1}, {0, dims.j - 1, 1}, {k, k, 1}}, found.data());
        for (std::size_t index = 0; index < found.size(); ++index)
            ASSERT_EQ(found[index], placeValue(static_cast<std::int64_t>(index) % dims.i,
                                               static_cast<std::int64_t>(index) / dims.i,
                                               static_cast<std::int64_t>(variable)))
                << "plane " << plane << ", value " << index;
    }
}

INSTANTIATE_TEST_SUITE_P(Both, SegmentedRecord,
                         ::testing::Values(ByteOrder_e::Little, ByteOrder_e::Big),
                         [](const auto& tested) {
                             return tested.param == ByteOrder_e::Big ? "BigEndian" : "LittleEndian";
                         });

} // namespace
} // namespace plot3dtest
