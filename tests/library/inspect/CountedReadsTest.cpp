// What a look at a file asks of the disk, how it is stopped, and that no file whatsoever can hurt
// it.
#include <cstdlib>
#include <random>

#include "InspectFixture.h"
#include "plot3d/Error.h"
#include "support/FakeDisk.h"

namespace plot3d {
namespace {

using quorvia::testsupport::FakeDisk;
using writer::Encoding_e;

class CountedReads : public InspectTest {
protected:
    static constexpr std::int64_t mostBytesOfBinary = 64 * 1024;
    static constexpr std::int64_t giga = std::int64_t{1} << 30;

    static std::string integers(std::initializer_list<std::int32_t> values) {
        std::string bytes;
        for (const std::int32_t value : values)
            bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        return bytes;
    }

    FileInfo inspectSparse(const std::string& name, const std::string& head, std::int64_t size,
                           const InspectOptions& options = {}) {
        disk.putSparse(name, head, size);
        disk.resetCounts();
        return inspect(name, options);
    }

    FakeDisk disk;
};

// ---- Plain binary -------------------------------------------------------------------------------

TEST_F(CountedReads, OfAnEightGigabyteGridAreFew) {
    const std::int64_t size = 12 + std::int64_t{12} * 101 * 103 * 66000;
    for (const char* name : {"wing.x", "wing.dat"}) {
        const FileInfo info = inspectSparse(name, integers({101, 103, 66000}), size);
        EXPECT_TRUE(info.ok) << problemOf(info);
        EXPECT_EQ(info.bytes.used, size);
        EXPECT_EQ(std::ssize(disk.opened), 1);
        EXPECT_LE(disk.bytesRead, 8 * 1024);
    }
}

TEST_F(CountedReads, AreBoundedWhateverTheFileIs) {
    const std::string head = integers({101, 103, 66000});
    const std::string ends = integers({7, 11, 13, 17, 19, 23, 29});
    for (const std::string& begin : {head, integers({500000000, 1, 1, 1}), ends})
        for (const char* name : {"wing.x", "wing.q", "wing.f", "wing.dat"})
            for (const bool allReadings : {false, true}) {
                InspectOptions options;
                options.allReadings = allReadings;
                inspectSparse(name, begin, 8 * giga, options);
                EXPECT_LE(disk.bytesRead, mostBytesOfBinary) << name;
                EXPECT_EQ(std::ssize(disk.opened), 1);
            }
}

TEST_F(CountedReads, OfManyGridsTakeScalarsOfSome) {
    std::string head = integers({1000});
    for (int grid = 0; grid < 1000; ++grid)
        head += integers({11, 13, 17});
    const std::int64_t grids = std::int64_t{1000} * (16 + 5 * 4 * 11 * 13 * 17);
    const FileInfo info = inspectSparse("wing.q", head, std::ssize(head) + grids);
    EXPECT_TRUE(info.ok) << problemOf(info);
    EXPECT_EQ(info.grids.size(), 1000U);
    EXPECT_GT(info.scalars.size(), 500U);
    EXPECT_LE(disk.bytesRead, mostBytesOfBinary);
}

// ---- Fortran and text ---------------------------------------------------------------------------

TEST_F(CountedReads, OfFortranRecordsAreTheirMarkers) {
    const std::int32_t payload = 12 * 101 * 103 * 800;
    const std::int64_t size = 20 + 8 + std::int64_t{payload};
    const std::string marker = integers({payload});
    std::string bytes = integers({12, 101, 103, 800, 12, payload});
    bytes.resize(static_cast<std::size_t>(size - 4));
    const FileInfo info = inspectSparse("wing.x", bytes + marker, size);
    EXPECT_TRUE(info.ok) << problemOf(info);
    EXPECT_EQ(info.encoding, Encoding::Fortran);
    EXPECT_LE(disk.bytesRead, 16 * 1024);
}

TEST_F(CountedReads, OfATextFileAreOncePlusALittle) {
    std::string text = "101 103 17\n";
    for (int value = 0; value < 3 * 101 * 103 * 17; ++value)
        text += value % 7 == 6 ? "1.5\n" : "0.25 ";
    const FileInfo info = inspectSparse("wing.x", text, std::ssize(text));
    EXPECT_TRUE(info.ok) << problemOf(info);
    EXPECT_LE(disk.bytesRead, std::ssize(text) + 8 * 1024);
    EXPECT_EQ(std::ssize(disk.opened), 1);
}

// ---- Stops and progress -------------------------------------------------------------------------

TEST_F(CountedReads, EndWhenAStopIsAskedFor) {
    std::stop_source source;
    Watch watch;
    watch.stop = source.get_token();
    disk.put("wing.x", gridBytes(Encoding_e::Text));
    EXPECT_TRUE(inspect("wing.x", {}, watch).ok);
    source.request_stop();
    try {
        inspect("wing.x", {}, watch);
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.kind(), ErrorKind::Interrupted);
        EXPECT_EQ(error.facts().file, "wing.x");
    }
}

TEST_F(CountedReads, TellProgressAndStopFromWithinIt) {
    std::stop_source source;
    Watch watch;
    watch.stop = source.get_token();
    std::int64_t calls = 0;
    watch.progress = [&](const Progress& progress) {
        ++calls;
        EXPECT_GE(progress.fraction, 0.0);
        EXPECT_LE(progress.fraction, 1.0);
        EXPECT_EQ(progress.text, "Looking at wing.x");
        source.request_stop();
    };
    disk.put("wing.x", gridBytes(Encoding_e::Text));
    EXPECT_THROW(inspect("wing.x", {}, watch), Error);
    EXPECT_EQ(calls, 1);
}

// A repeat token promises billions in a few characters; a header of so many grids would be walked
// through for each reading, and fill the memory.
TEST_F(CountedReads, TextIsNoFileOfMoreGridsThanItHasBytes) {
    for (const char* name : {"wing.x", "wing.q", "wing.f"}) {
        disk.put(name, "300000\n300000*1 300000*1 300000*1\n1.0 2.0 3.0\n");
        EXPECT_LE(std::ssize(inspect(name, {}).grids), 1) << name;
    }
}

// ---- Random files -------------------------------------------------------------------------------

/// Files that nobody would write. The seed is printed, and taken from PLOT3D_TEST_SEED.
class InspectNoise : public CountedReads {
protected:
    InspectNoise() : seed(chooseSeed()), random(seed) {
        RecordProperty("seed", std::to_string(seed));
    }

    static std::uint32_t chooseSeed() {
        const char* const told = std::getenv("PLOT3D_TEST_SEED");
        return told != nullptr ? static_cast<std::uint32_t>(std::strtoul(told, nullptr, 10))
                               : std::random_device()();
    }
    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    }

    std::string noise(std::size_t length) {
        std::string bytes;
        for (std::size_t index = 0; index < length; ++index)
            bytes.push_back(static_cast<char>(below(256)));
        return bytes;
    }

    std::string tokens(std::size_t count) {
        const char* const words[] = {
            "1",    "2",   "3",   "\n", "\n",  "0", "-1",    "2147483647", "3*",          "99*0.5",
            "4*\n", "0*5", "1.5", "*",  "1e3", "x", "FVBND", "9*9*9*9",    "2147483647*1"};
        std::string text;
        for (std::size_t index = 0; index < count; ++index)
            text += std::string(words[below(std::size(words))]) + " ";
        return text;
    }

    std::string smallIntegers(std::size_t count) {
        std::string bytes;
        for (std::size_t index = 0; index < count; ++index)
            bytes += integers({static_cast<std::int32_t>(below(8)) - 1});
        return bytes;
    }

    std::string mutated() {
        const auto cases = quorvia::testsupport::everyCase();
        const MatrixCase_s& chosen = cases[below(cases.size())];
        std::string bytes = bytesOf(chosen.layout, chosen.form);
        for (std::size_t count = below(4); count > 0; --count)
            bytes[below(std::min<std::size_t>(bytes.size(), 60))] = static_cast<char>(below(256));
        if (below(2) == 0)
            bytes.resize(below(bytes.size()));
        else
            bytes += noise(below(60));
        return bytes;
    }

    void expectBounded(const std::string& bytes) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        for (const char* name : {"wing.x", "wing.q", "wing.f", "wing.dat", "wing.nam", "x.fvbnd"}) {
            InspectOptions options;
            options.allReadings = below(2) == 0;
            const FileInfo info = inspectSparse(name, bytes, std::ssize(bytes), options);
            expectAccount(info);
            EXPECT_LE(disk.bytesRead, 4 * std::ssize(bytes) + 300'000);
        }
    }

    std::uint32_t seed;
    std::mt19937 random;
};

TEST_F(InspectNoise, IsToldSomethingOfAndHurtsNobody) {
    for (int round = 0; round < 60; ++round) {
        expectBounded(noise(below(300)));
        expectBounded(tokens(below(80)));
        expectBounded(smallIntegers(below(30)) + noise(below(200)));
        expectBounded(mutated());
    }
}

} // namespace
} // namespace plot3d
