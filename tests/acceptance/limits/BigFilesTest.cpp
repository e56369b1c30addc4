// Files past 4 GiB and Fortran records past 2 GiB at their true sizes. They are sparse: only the
// blocks that a test looks at are written, the rest reads as zeros and takes no disk.
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <sys/stat.h>

#include "AddOnMemory.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

constexpr std::int64_t gibibyte = std::int64_t{1} << 30;
constexpr std::int64_t mostBytesOnDisk = 100'000'000;

/// Exact in 32 bits, and different at each point of a field of these tests.
double numberedValue(std::int32_t /*grid*/, std::int32_t variable, std::int32_t i, std::int32_t j,
                     std::int32_t k) {
    return i + 211 * (j + 199 * k) + 0.125 * (variable % 8);
}

struct FormCase_s {
    const char* name;
    FileForm_s form;
};

void PrintTo(const FormCase_s& formCase, std::ostream* out) {
    *out << formCase.name;
}

const FormCase_s binary = {"Binary", formOf(Encoding_e::Binary)};
const FormCase_s binaryBigEndianDouble = {
    "BinaryBigEndianDouble", formOf(Encoding_e::Binary, ByteOrder_e::Big, Precision_e::Double)};
const FormCase_s fortran4 = {"Fortran4",
                             formOf(Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Single)};
const FormCase_s fortran4BigEndianDouble = {
    "Fortran4BigEndianDouble", formOf(Encoding_e::Fortran, ByteOrder_e::Big, Precision_e::Double)};
const FormCase_s fortran8 = {
    "Fortran8", formOf(Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Single, 8)};

std::string nameOf(const ::testing::TestParamInfo<FormCase_s>& info) {
    return info.param.name;
}

class BigFiles : public LoadedAddOnTest {
protected:
    /// Bytes that the file takes on the disk, holes not counted.
    static std::int64_t bytesOnDisk(const std::string& file) {
        struct stat status = {};
        if (stat(file.c_str(), &status) != 0)
            throw std::runtime_error("cannot examine " + file);
        return status.st_blocks * 512;
    }
    std::string write(const std::string& name, const FileDescription_s& description,
                      const FileForm_s& form) {
        const std::string file = directory().file(name);
        written_ = writeFile(file, description, form);
        EXPECT_LT(bytesOnDisk(file), mostBytesOnDisk);
        return file;
    }
    /// Of the file written last.
    const WriteOutcome_s& written() const { return written_; }

    /// A file of zeros behind these bytes.
    std::string writeSparse(const std::string& name, std::string_view start,
                            std::int64_t byteCount) const {
        const std::string file = directory().write(name, start);
        std::filesystem::resize_file(file, static_cast<std::uintmax_t>(byteCount));
        return file;
    }
    static void putAt(const std::string& file, std::int64_t position, std::string_view bytes) {
        std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
        stream.seekp(position);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

private:
    WriteOutcome_s written_;
};

// ---- A small grid behind a big one: positions past 4 GiB

class GridBehind4GiB : public BigFiles, public ::testing::WithParamInterface<FormCase_s> {
protected:
    /// The first grid holds 4.8 GB in 32 bits and is one hole; the second is 2 x 3 x 5.
    static FileDescription_s describeBoth(FileKind_e kind) {
        FileDescription_s description = describe(kind, {{997, 1009, 401}, {2, 3, 5}});
        description.value = [](std::int32_t grid, std::int32_t variable, std::int32_t i,
                               std::int32_t j, std::int32_t k) {
            return grid == 0 ? 0.0 : i + 100 * j + 10000 * k + 0.25 * variable;
        };
        return description;
    }
};

TEST_P(GridBehind4GiB, HasItsOwnValues) {
    FileDescription_s description = describeBoth(FileKind_e::Grid);
    description.isHole = [](std::int32_t grid, std::int32_t, std::int32_t) { return grid == 0; };
    const std::string file = write("big.x", description, GetParam().form);
    ASSERT_GT(written().blocks.back().position, 4 * gibibyte);
    expectLoads({.gridFiles = {file}});
    for (std::int32_t variable = 0; variable < 3; ++variable) {
        const std::vector<double> found = values(2, variable + 1);
        ASSERT_EQ(found.size(), 30U);
        EXPECT_EQ(found[0], 0.25 * variable);
        EXPECT_EQ(found[29], 1 + 200 + 40000 + 0.25 * variable);
    }
}

INSTANTIATE_TEST_SUITE_P(EachForm, GridBehind4GiB,
                         ::testing::Values(binary, binaryBigEndianDouble, fortran4,
                                           fortran4BigEndianDouble, fortran8),
                         nameOf);

// ---- One record in segments: fields before, across and behind each boundary

class SegmentedRecord : public BigFiles, public ::testing::WithParamInterface<FormCase_s> {
protected:
    static constexpr GridDims_s dims = {211, 199, 23};
    static constexpr std::int64_t points = std::int64_t{211} * 199 * 23;

    static std::int64_t fieldBytes() {
        return points * (GetParam().form.precision == Precision_e::Double ? 8 : 4);
    }
    /// The field, from 0, inside which the payload is cut for the n-th time.
    static std::int32_t fieldAcross(std::int32_t cut) {
        return static_cast<std::int32_t>(cut * longestFortranSegment / fieldBytes());
    }
    static std::int32_t fieldCount() { return fieldAcross(2) + 5; }

    static FileDescription_s describeNumbered(FileKind_e kind) {
        FileDescription_s description = describe(kind, {dims});
        description.value = numberedValue;
        return description;
    }
    std::string writeGrid() {
        FileDescription_s grid = describeNumbered(FileKind_e::Grid);
        grid.isHole = [](std::int32_t, std::int32_t, std::int32_t) { return true; };
        return write("small.x", grid, GetParam().form);
    }
    /// Only the fields around the boundaries hold something.
    std::string writeFunctions() {
        FileDescription_s functions = describeNumbered(FileKind_e::Function);
        functions.numVars = fieldCount();
        functions.isHole = [](std::int32_t, std::int32_t variable, std::int32_t) {
            return std::abs(variable - fieldAcross(1)) > 1 &&
                   std::abs(variable - fieldAcross(2)) > 1;
        };
        return write("big.fun", functions, GetParam().form);
    }
    static void expectValues(std::int32_t functionIndex) {
        constexpr std::int32_t coordinates = 3;
        const std::vector<double> found = values(1, coordinates + functionIndex + 1);
        ASSERT_EQ(static_cast<std::int64_t>(found.size()), points);
        for (std::int64_t place = 0; place < points; ++place)
            ASSERT_EQ(found[static_cast<std::size_t>(place)],
                      static_cast<double>(place) + 0.125 * (functionIndex % 8))
                << "field " << functionIndex << ", value " << place;
    }
};

// The boundary lies inside a value, since 2147483639 is odd.
TEST_P(SegmentedRecord, GivesFieldsBeforeAcrossAndBehindItsBoundaries) {
    const std::string grid = writeGrid();
    const std::string functions = writeFunctions();
    ASSERT_GT(written().byteCount, 4 * gibibyte);
    expectLoads({.gridFiles = {grid}, .functionFiles = {functions}});
    for (const std::int32_t cut : {1, 2})
        for (const std::int32_t neighbour : {-1, 0, 1})
            expectValues(fieldAcross(cut) + neighbour);
}

INSTANTIATE_TEST_SUITE_P(EachForm, SegmentedRecord,
                         ::testing::Values(fortran4, fortran4BigEndianDouble), nameOf);

// ---- Big files of nothing

constexpr std::int64_t hugeFile = 4 * gibibyte + 65536; // more than 32 bits count
constexpr std::int64_t mostReads = hugeFile / 4096;

/// How often this process has asked the system for bytes, of whatever file.
std::int64_t readsSoFar() {
    std::ifstream counts("/proc/self/io");
    for (std::string name; counts >> name;)
        if (std::int64_t count = 0; name == "syscr:" && counts >> count)
            return count;
    throw std::runtime_error("the system does not count reads");
}

class HugeFiles : public BigFiles {
protected:
    /// Loads the file, and holds it to a number of reads that no walk in small steps would keep,
    /// and to a memory that has nothing to do with the file's size.
    host::LoadResult_s loadInLargeSteps(const std::string& file) {
        restartMemoryCount();
        const std::int64_t before = readsSoFar();
        const host::LoadResult_s result = load({.gridFiles = {file}});
        EXPECT_LT(readsSoFar() - before, mostReads);
        EXPECT_LT(peakMemoryBytes(), 64'000'000);
        return result;
    }
};

// A disk image that was never written. Zeros are empty Fortran records, so that they are all looked
// at before the file is refused.
TEST_F(HugeFiles, FileOfZerosIsRefusedInLargeSteps) {
    EXPECT_FALSE(loadInLargeSteps(writeSparse("zeros.x", "", hugeFile)).ok);
    EXPECT_EQ(messages().size(), 1U);
}

// Sixteen times as long; nobody has to wait for the end of it.
TEST_F(HugeFiles, WalkOverZerosIsInterrupted) {
    const std::string file = writeSparse("zeros.x", "", 16 * hugeFile);
    host().settings().progressObserver = [](const host::ProgressState_s& state) {
        if (state.text.rfind("Examining file header ...", 0) == 0)
            host().requestInterrupt();
    };
    const host::LoadResult_s result = load({.gridFiles = {file}});
    host().settings().progressObserver = nullptr;
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.interrupted);
    EXPECT_EQ(messages(), Texts()); // a walk to the end is followed by a message
}

// A grid file of one big grid that a job has laid out and not yet filled.
TEST_F(HugeFiles, HeaderWithHolesBehindItLoadsAtOnce) {
    FileDescription_s description = describeGrid({{887, 883, 907}});
    description.isHole = [](std::int32_t, std::int32_t, std::int32_t) { return true; };
    const std::string file = write("holes.x", description, {});
    ASSERT_GT(written().byteCount, hugeFile);
    EXPECT_TRUE(loadInLargeSteps(file).ok);
    EXPECT_EQ(zone(1).k, 907);
}

// A header that promises less than the 8 GB that follow it.
TEST_F(HugeFiles, HeaderThatPromisesLessIsRefusedInLargeSteps) {
    const std::string header{2, 0, 0, 0, 3, 0, 0, 0, 5, 0, 0, 0};
    EXPECT_FALSE(loadInLargeSteps(writeSparse("more.x", header, hugeFile)).ok);
}

// A chain of segments that is never closed, and zeros behind it: each would be an empty record of
// the chain with a boundary to remember, a billion of them.
TEST_F(HugeFiles, ChainWithoutEndIsRefusedInLargeStepsAndLittleMemory) {
    const std::string fullSegment{'\x09', '\x00', '\x00', '\x80'};
    const std::string file = writeSparse("chain.x", fullSegment, hugeFile);
    putAt(file, 4 + longestFortranSegment, fullSegment);
    EXPECT_FALSE(loadInLargeSteps(file).ok);
}

} // namespace
} // namespace quorvia::testsupport
