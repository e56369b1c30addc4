// Good plain binary and Fortran files, each spoilt in one way: what is told of them, and what to
// type next.
#include <cstring>

#include "InspectFixture.h"

namespace plot3d {
namespace {

using writer::Encoding_e;
using writer::FileKind_e;

class SpoiltBinary : public InspectTest {
protected:
    static LayoutCase_s layoutOf(FileKind_e kind, bool isMultiGrid = false) {
        LayoutCase_s layout;
        layout.kind = kind;
        layout.isMultiGrid = isMultiGrid;
        return layout;
    }

    FileInfo inspectSpoilt(const std::string& bytes, const std::string& name = "wing.x") const {
        const FileInfo info = inspectBytes(name, bytes);
        expectAccount(info);
        return info;
    }

    /// Integers of a width, little-endian.
    template <typename Integer>
    static std::string integers(std::initializer_list<Integer> values) {
        std::string bytes;
        for (const Integer value : values)
            bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        return bytes;
    }
    static std::string reals(std::int64_t count) {
        std::string bytes;
        for (std::int64_t index = 0; index < count; ++index) {
            const float value = 0.5F + static_cast<float>(index);
            bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        }
        return bytes;
    }
    static std::string record(const std::string& payload) {
        const auto marker = integers<std::int32_t>({static_cast<std::int32_t>(payload.size())});
        return marker + payload + marker;
    }

    static std::string gridAlone(std::size_t grid, Encoding_e encoding) {
        auto contents = quorvia::testsupport::contentsOf(layoutOf(FileKind_e::Grid, true));
        contents.isMultiGrid = false;
        contents.grids = {contents.grids[grid]};
        return bytesOf(contents, formOf(encoding));
    }
};

// ---- Ends ---------------------------------------------------------------------------------------

TEST_F(SpoiltBinary, WithBytesBehindItIsRefusedAndDescribedByHand) {
    const std::string good = solutionBytes(Encoding_e::Binary);
    const FileInfo info = inspectSpoilt(good + std::string(10, '\x01'), "wing.q");
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(info.bytes.surplus, 10);
    EXPECT_EQ(problemOf(info), "10 of 638 bytes stand behind the last grid.");
    EXPECT_EQ(info.problem->misfit.byte, std::ssize(good));
    EXPECT_EQ(nextOf(*info.problem, info), "plot3d stats --grid GRID --solution FILE --set "
                                           "AUTODETECT=No --set DATASTRUCTURE=3DW --set "
                                           "STYLE=PLOT3DCLASSIC --set ISMULTIGRID=No");
}

TEST_F(SpoiltBinary, OfLongRealsWithBytesBehindThemMustBeCut) {
    for (const FileKind_e kind : {FileKind_e::Grid, FileKind_e::ClassicSolution}) {
        const std::string good =
            bytesOf(layoutOf(kind), formOf(Encoding_e::Binary, writer::ByteOrder_e::Little,
                                           writer::Precision_e::Double));
        const FileInfo info =
            inspectSpoilt(good + "0123456789", kind == FileKind_e::Grid ? "wing.x" : "wing.q");
        EXPECT_EQ(info.precision, 64);
        EXPECT_NE(problemOf(info).find("would be read as 32-bit reals"), std::string::npos)
            << problemOf(info);
        EXPECT_EQ(info.problem->next.back(), "count=" + std::to_string(good.size()));
    }
}

TEST_F(SpoiltBinary, WithRecordsBehindTheLastGridIsWarnedOf) {
    const std::string good = gridBytes(Encoding_e::Fortran);
    const FileInfo info = inspectSpoilt(good + record("12345678") + record("1234"));
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.bytes.surplus, 16 + 12);
    EXPECT_EQ(warningOf(info), "28 of 416 bytes stand behind the last grid, in 2 records.");
}

TEST_F(SpoiltBinary, WithALongerRecordOfALaterGridIsWarnedOf) {
    const std::string head = record(integers<std::int32_t>({2})) +
                             record(integers<std::int32_t>({2, 3, 5, 1, 2, 3})) + record(reals(90));
    const FileInfo info = inspectSpoilt(head + record(reals(20)));
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(info.bytes.surplus, 8);
    EXPECT_EQ(warningOf(info),
              "8 of 500 bytes are not taken: record 4 is longer than the header says.");
}

TEST_F(SpoiltBinary, WithAShorterRecordOfALaterGridIsRefused) {
    const std::string head = record(integers<std::int32_t>({2})) +
                             record(integers<std::int32_t>({2, 3, 5, 1, 2, 3})) + record(reals(90));
    const FileInfo info = inspectSpoilt(head + record(reals(13)));
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(info.bytes.missing, 20);
    EXPECT_EQ(problemOf(info), "Record 4 is shorter than the header says: it ends in Z of grid 2.");
}

// ---- Integers of 8 bytes ------------------------------------------------------------------------

TEST_F(SpoiltBinary, OfLongIntegersIsToldSo) {
    const std::string header = integers<std::int64_t>({2, 3, 5});
    const FileInfo fortran = inspectSpoilt(record(header) + record(reals(90)));
    EXPECT_EQ(warningOf(fortran),
              "The file was written with integers of 8 bytes, which are not read.");
    EXPECT_EQ(fortran.warnings[0].misfit.found, "2, 3, 5 in 8 bytes each");
    const FileInfo binary = inspectSpoilt(header + reals(90));
    EXPECT_EQ(problemOf(binary),
              "The file seems to be written with integers of 8 bytes, which are not read.");
}

// ---- Headers in other places --------------------------------------------------------------------

TEST_F(SpoiltBinary, OfGridsWithoutACountIsToldSo) {
    const std::string first = gridAlone(0, Encoding_e::Fortran);
    const FileInfo fortran = inspectSpoilt(first + gridAlone(1, Encoding_e::Fortran) +
                                           gridAlone(2, Encoding_e::Fortran));
    EXPECT_TRUE(fortran.ok);
    EXPECT_NE(warningOf(fortran).find(
                  "3 grids without a count ahead of them, of which the first alone is taken."),
              std::string::npos)
        << warningOf(fortran);
    EXPECT_EQ(fortran.warnings[0].next.back(), "skip=" + std::to_string(first.size()));
    const FileInfo binary =
        inspectSpoilt(gridAlone(0, Encoding_e::Binary) + gridAlone(1, Encoding_e::Binary));
    EXPECT_FALSE(binary.ok);
    EXPECT_NE(problemOf(binary).find("2 grids without a count ahead of them."), std::string::npos)
        << problemOf(binary);
}

TEST_F(SpoiltBinary, WithSizesAheadOfEachBlockIsToldSo) {
    const std::string count = integers<std::int32_t>({2});
    for (const Encoding_e encoding : {Encoding_e::Binary, Encoding_e::Fortran}) {
        const FileInfo info =
            inspectSpoilt((encoding == Encoding_e::Binary ? count : record(count)) +
                          gridAlone(0, encoding) + gridAlone(1, encoding));
        EXPECT_EQ(problemOf(info) + warningOf(info),
                  "The dimensions of each grid stand ahead of its own block, and not all ahead of "
                  "the first.");
    }
}

TEST_F(SpoiltBinary, OfAFunctionWithoutItsCountOfVariablesIsToldSo) {
    const std::string header = integers<std::int32_t>({2, 3, 5});
    for (const std::string& bytes : {header + reals(330), record(header) + record(reals(330))}) {
        const FileInfo info = inspectSpoilt(bytes, "wing.f");
        EXPECT_EQ(
            problemOf(info),
            "A function file without its count of variables behind the dimensions: 11 would fit.");
    }
}

TEST_F(SpoiltBinary, OfTrianglesAndTetrahedraTogetherIsRefused) {
    const std::string header = integers<std::int32_t>({4, 2, 3});
    const std::string data = reals(12) + std::string(4 * 4 * 5, '\0');
    for (const std::string& bytes : {header + data, record(header) + record(data)}) {
        const FileInfo info = inspectSpoilt(bytes);
        EXPECT_FALSE(info.ok);
        EXPECT_EQ(problemOf(info), "An unstructured grid has triangles and tetrahedra together, "
                                   "which is not read: they belong in two files.");
    }
}

// ---- Other kinds --------------------------------------------------------------------------------

TEST_F(SpoiltBinary, SolutionGivenAsAGridIsToldSo) {
    for (const Encoding_e encoding : {Encoding_e::Binary, Encoding_e::Fortran}) {
        const FileInfo info = inspectSpoilt(solutionBytes(encoding));
        EXPECT_EQ(problemOf(info) + warningOf(info), "As a solution file all its bytes are used.");
        const FileProblem& problem = info.problem ? *info.problem : info.warnings.front();
        EXPECT_EQ(nextOf(problem, info), "plot3d stats --grid GRID --solution FILE");
    }
}

TEST_F(SpoiltBinary, RestartFileIsHardlyAGrid) {
    // A step's number and time, then a long record of who knows what.
    const FileInfo info =
        inspectSpoilt(record(integers<std::int32_t>({1, 1000})) + record(reals(100)));
    EXPECT_TRUE(info.ok);
    EXPECT_EQ(warningOf(info), "Nothing but a 1-D grid of 1 point fits, which takes 28 of 424 "
                               "bytes: the file is hardly a grid file.");
}

TEST_F(SpoiltBinary, OfNoiseFitsNothing) {
    std::string noise;
    for (int index = 0; index < 999; ++index)
        noise.push_back(static_cast<char>((index * 7919 + index * index * 31) % 256 | 0x80));
    const FileInfo info = inspectSpoilt(noise);
    EXPECT_EQ(problemOf(info), "No reading fits the file as a grid file.");
    EXPECT_EQ(nextOf(*info.problem, info), "plot3d info --why FILE");
}

} // namespace
} // namespace plot3d
