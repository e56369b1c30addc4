// Index ranges and connectivity on Fortran records above 2147483639 bytes, at their true sizes.
// Such values are read one by one, and the first boundary between two segments stands inside one of
// them, since that number is odd. The files are sparse.
#include <algorithm>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <unistd.h>

#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {
namespace {

constexpr std::int64_t fullSegment = 2147483639;

/// What a file is made of: the byte order of all its numbers, and whether its reals have 64 bits.
struct Form_s {
    const char* name;
    bool isBigEndian;
    bool isDouble;

    std::int64_t realBytes() const { return isDouble ? 8 : 4; }
    template <typename Number>
    std::string bytesOf(Number number) const {
        std::string bytes(sizeof(number), '\0');
        std::memcpy(bytes.data(), &number, sizeof(number));
        if (isBigEndian)
            std::reverse(bytes.begin(), bytes.end());
        return bytes;
    }
    std::string realOf(double value) const {
        return isDouble ? bytesOf(value) : bytesOf(static_cast<float>(value));
    }
    std::string integerOf(std::int64_t value) const {
        return bytesOf(static_cast<std::int32_t>(value));
    }
};

void PrintTo(const Form_s& form, std::ostream* out) {
    *out << form.name;
}

/// A file of a header record and one record of two segments; what nobody puts there reads as zeros.
class TwoSegments {
public:
    TwoSegments(const std::string& name, const Form_s& form,
                const std::vector<std::int32_t>& header, std::int64_t payloadBytes)
        : file_(open(name.c_str(), O_CREAT | O_RDWR, 0600)) {
        std::string start = form.integerOf(4 * std::ssize(header));
        for (const std::int32_t number : header)
            start += form.integerOf(number);
        putAt(0, start + form.integerOf(4 * std::ssize(header)));
        payload_ = std::ssize(start) + 8;
        const std::int64_t rest = payloadBytes - fullSegment;
        putAt(payload_ - 4, form.integerOf(-fullSegment));
        putAt(payload_ + fullSegment, form.integerOf(fullSegment) + form.integerOf(rest));
        putAt(payload_ + payloadBytes + 8, form.integerOf(-rest));
    }
    ~TwoSegments() { close(file_); }
    TwoSegments(const TwoSegments&) = delete;
    TwoSegments& operator=(const TwoSegments&) = delete;

    /// At a place of the record's payload, which the markers may cut.
    void put(std::int64_t place, const std::string& bytes) const {
        const auto ahead = static_cast<std::size_t>(
            std::clamp<std::int64_t>(fullSegment - place, 0, std::ssize(bytes)));
        putAt(payload_ + place, bytes.substr(0, ahead));
        putAt(payload_ + std::max(place, fullSegment) + 8, bytes.substr(ahead));
    }

private:
    void putAt(std::int64_t position, const std::string& bytes) const {
        if (pwrite(file_, bytes.data(), bytes.size(), position) != std::ssize(bytes))
            throw std::runtime_error("cannot write");
    }

    int file_;
    std::int64_t payload_ = 0; // its position in the file
};

class SegmentedRange : public LoadedAddOnTest, public ::testing::WithParamInterface<Form_s> {
protected:
    /// The last block of a 2-D grid's record is the one that the boundary cuts.
    struct Grid_s {
        std::int32_t i;
        std::int32_t j;
        std::int64_t blockStart; // of the last block, in the record's payload
        std::int64_t width;      // of its values, in bytes

        std::int64_t cutPoint() const { return (fullSegment - blockStart) / width; }
        std::int64_t cutRow() const { return cutPoint() / i + 1; }
        std::int64_t cutColumn() const { return cutPoint() % i + 1; }
        std::int64_t payloadBytes() const { return blockStart + width * i * j; }
    };

    /// Numbers the points of the rows around the cut, and has every third of them loaded.
    template <typename ToBytes>
    void loadRowsAround(const Grid_s& grid, ToBytes toBytes) {
        const std::string name = directory().file("big.x");
        ASSERT_NE((fullSegment - grid.blockStart) % grid.width, 0) << "no value is cut";
        {
            const TwoSegments file(name, GetParam(), {grid.i, grid.j}, grid.payloadBytes());
            std::string rows;
            for (std::int64_t point = 0; point < 3 * grid.i; ++point)
                rows += toBytes(point + 1);
            file.put(grid.blockStart + grid.width * (grid.cutRow() - 2) * grid.i, rows);
        }
        const std::string rowRange =
            std::to_string(grid.cutRow() - 1) + ',' + std::to_string(grid.cutRow() + 1) + ",1";
        const std::string columnRange = std::to_string(firstColumn(grid)) + ",,3";
        expectLoads({.gridFiles = {name},
                     .settings = {{"IINDEXRANGE", columnRange}, {"JINDEXRANGE", rowRange}}});
    }
    static void expectRowsAround(const Grid_s& grid, const std::vector<double>& found) {
        std::vector<double> expected;
        for (std::int64_t row = 0; row < 3; ++row)
            for (std::int64_t column = firstColumn(grid); column <= grid.i; ++column)
                if (column == grid.i || (column - firstColumn(grid)) % 3 == 0)
                    expected.push_back(static_cast<double>(row * grid.i + column));
        EXPECT_EQ(found, expected);
    }

private:
    /// So that the cut value is among the selected.
    static std::int64_t firstColumn(const Grid_s& grid) { return 2 + (grid.cutColumn() + 1) % 3; }
};

TEST_P(SegmentedRange, HasTheValuesAroundTheBoundary) {
    const Form_s form = GetParam();
    const Grid_s grid =
        form.isDouble ? Grid_s{11587, 11593, std::int64_t{8} * 11587 * 11593, form.realBytes()}
                      : Grid_s{16411, 16381, std::int64_t{4} * 16411 * 16381, form.realBytes()};
    loadRowsAround(grid,
                   [&](std::int64_t point) { return form.realOf(static_cast<double>(point)); });
    expectRowsAround(grid, values(1, 2));
}

class SegmentedIBlankRange : public SegmentedRange {};

TEST_P(SegmentedIBlankRange, HasTheValuesAroundTheBoundary) {
    const Form_s form = GetParam();
    const Grid_s grid = {10369, 10391, 2 * form.realBytes() * 10369 * 10391, 4};
    loadRowsAround(grid, [&](std::int64_t point) { return form.integerOf(point); });
    const std::vector<std::int32_t> found = integers(1, 3);
    expectRowsAround(grid, {found.begin(), found.end()});
}

class SegmentedConnectivity : public SegmentedRange {};

// The boundary stands in the third node of the first triangle, or in the sixth; nodes of the last
// triangle are behind it.
TEST_P(SegmentedConnectivity, HasTheNodesAroundTheBoundary) {
    constexpr std::int32_t triangles = 7;
    const Form_s form = GetParam();
    const auto nodes = static_cast<std::int32_t>((fullSegment - 8) / (3 * form.realBytes()));
    const std::int64_t start = 3 * form.realBytes() * nodes;
    const std::string name = directory().file("big.x");
    std::vector<std::int32_t> expected;
    {
        const TwoSegments file(name, form, {nodes, triangles, 0}, start + 16 * triangles);
        std::string corners;
        for (std::int32_t corner = 0; corner < 3 * triangles; ++corner) {
            expected.push_back(nodes - 257 * corner);
            corners += form.integerOf(expected.back());
        }
        file.put(start, corners);
    }
    expectLoads({.gridFiles = {name}});
    const host::NodeMap& map = *zone(1).nodeMap;
    ASSERT_NE(map.nodes(), nullptr);
    EXPECT_EQ(std::vector<std::int32_t>(map.nodes(), map.nodes() + 3 * triangles), expected);
}

constexpr Form_s littleSingle = {"LittleSingle", false, false};
constexpr Form_s littleDouble = {"LittleDouble", false, true};
constexpr Form_s bigSingle = {"BigSingle", true, false};
constexpr Form_s bigDouble = {"BigDouble", true, true};

std::string nameOfForm(const ::testing::TestParamInfo<Form_s>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(EachForm, SegmentedRange, ::testing::Values(littleSingle, bigDouble),
                         nameOfForm);
INSTANTIATE_TEST_SUITE_P(EachForm, SegmentedIBlankRange, ::testing::Values(bigDouble), nameOfForm);
INSTANTIATE_TEST_SUITE_P(EachForm, SegmentedConnectivity,
                         ::testing::Values(littleSingle, littleDouble, bigSingle, bigDouble),
                         nameOfForm);

} // namespace
} // namespace quorvia::testsupport
