// Sound files that were cut short, padded, or took rubbish for contents.
#include <cstdlib>
#include <iostream>
#include <random>

#include "BadInputFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

class DamagedFiles : public BadInputTest, public ::testing::WithParamInterface<FileForm_s> {
protected:
    static bool isText() { return GetParam().encoding == Encoding_e::Text; }
    /// The first length at which a cut leaves as many numbers as before: inside the last number of
    /// a text.
    static std::size_t endOfCuts(const std::string& whole) {
        if (!isText())
            return whole.size();
        return whole.find_last_of(" \n", whole.find_last_not_of(" \n")) + 2;
    }
    static bool isSmallGrid(const host::Zone_s& zone) {
        return zone.i == 2 && zone.j == 3 && zone.k == 5;
    }
};

// A transfer broke off: the header promises more than the file holds. Plain binary must account for
// every byte and Fortran records must tile the file, so that a cut is noticed, but for a few
// lengths at which the first numbers make a whole file of another layout.
TEST_P(DamagedFiles, GridFileCutAtAnyByteIsNotTakenForWhole) {
    const std::string whole = bytesOf(smallGrid(), GetParam());
    std::size_t otherwiseRead = 0;
    for (std::size_t length = 0; length < endOfCuts(whole); ++length) {
        if (expectNotBelieved(gridLoad(whole.substr(0, length))) == Fate_e::Refused)
            continue;
        ++otherwiseRead;
        ASSERT_FALSE(isSmallGrid(zone(1))) << "cut to " << length;
    }
    EXPECT_LE(otherwiseRead, whole.size() / 50);
}

TEST_P(DamagedFiles, SolutionFileCutAtAnyByteIsNotTakenForWhole) {
    const std::string whole = bytesOf(smallSolution(), GetParam());
    std::size_t otherwiseRead = 0;
    for (std::size_t length = 0; length < endOfCuts(whole); ++length)
        if (attempt(solutionLoad(whole.substr(0, length))) == Fate_e::Loaded)
            ++otherwiseRead;
    EXPECT_LE(otherwiseRead, 1U);
}

TEST_P(DamagedFiles, HalfOfAGridFileIsRefusedByName) {
    const std::string whole = bytesOf(smallGrid(), GetParam());
    const Load_s load = gridLoad(whole.substr(0, whole.size() / 2 - 1));
    const std::string& file = load.gridFiles.front();
    expectRefusal(load, isText() ? Texts{"Error loading Variable.", invalidGrid(file)}
                                 : Texts{undetectedGrid(file)});
}

// Described by hand, a longer file is accepted, a shorter one is still not.
TEST_P(DamagedFiles, DescribedGridFileCutAtAnyByteIsRefused) {
    const std::string whole = bytesOf(smallGrid(), GetParam());
    for (std::size_t length = 0; length < endOfCuts(whole); length += 3) {
        Load_s load = gridLoad(whole.substr(0, length));
        load.settings = {{"AUTODETECT", "No"},
                         {"STYLE", "PLOT3DCLASSIC"},
                         {"DATASTRUCTURE", "3DW"},
                         {"ISMULTIGRID", "No"}};
        ASSERT_EQ(attempt(load), Fate_e::Refused) << "cut to " << length;
    }
}

// Somebody's archive tool rounded the file up to a block: text ends early and does not care, a
// binary file no longer adds up.
TEST_P(DamagedFiles, PaddedGridFileIsTakenForWholeOnlyAsText) {
    for (const std::size_t padding : {1U, 4U, 511U}) {
        const std::string padded =
            bytesOf(smallGrid(), GetParam()) + std::string(padding, isText() ? ' ' : '\0');
        const Fate_e fate = attempt(gridLoad(padded));
        EXPECT_EQ(fate == Fate_e::Loaded && isSmallGrid(zone(1)), isText()) << padding;
    }
}

// One byte of the file took another value on its way. Anything may come of it but harm.
TEST_P(DamagedFiles, AnyByteMayBeWrong) {
    const std::string grid = bytesOf(smallGrid(), GetParam());
    const std::string solution = bytesOf(smallSolution(), GetParam());
    for (std::size_t place = 0; place < 120; ++place)
        for (const char wrong : {'\0', '\x7f', '\x80', '\xff', '*'}) {
            std::string damaged = grid;
            damaged[place] = wrong;
            attempt(gridLoad(damaged));
            damaged = solution;
            damaged[place] = wrong;
            attempt(solutionLoad(damaged));
            ASSERT_FALSE(HasFailure()) << "byte " << place;
        }
}

std::string nameOfForm(const ::testing::TestParamInfo<FileForm_s>& info) {
    const FileForm_s& form = info.param;
    if (form.encoding == Encoding_e::Text)
        return "Text";
    return (form.encoding == Encoding_e::Binary ? std::string("Binary")
                                                : "Fortran" + std::to_string(form.markerBytes)) +
           (form.byteOrder == ByteOrder_e::Little ? "Little" : "Big");
}

INSTANTIATE_TEST_SUITE_P(EachEncoding, DamagedFiles, ::testing::ValuesIn(everyEncoding()),
                         nameOfForm);

// A job that died before it wrote anything. An empty file counts as text without numbers.
TEST_F(BadInputTest, EmptyFileIsRefused) {
    const Load_s grid = gridLoad("");
    expectRefusal(grid, {undetectedGrid(grid.gridFiles.front())});
    const Load_s solution = solutionLoad("");
    expectRefusal(solution, {undetectedSolution(solution.solutionFiles.front())});
}

// A picture, an archive, a core dump: bytes without any sense.
TEST_F(BadInputTest, RandomBytesDoNoHarm) {
    const char* const given = std::getenv("PLOT3D_TEST_SEED");
    const unsigned long seed =
        given != nullptr ? std::strtoul(given, nullptr, 10) : std::random_device()();
    std::cout << "PLOT3D_TEST_SEED=" << seed << '\n';
    std::mt19937_64 random(seed);
    for (int round = 0; round < 200; ++round) {
        std::string bytes(random() % 4096, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        attempt(gridLoad(bytes));
        attempt(solutionLoad(bytes));
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

// A letter, or a program's source: text without the numbers of a header.
TEST_F(BadInputTest, ProseIsRefused) {
    const Load_s load = gridLoad("The quick brown fox\njumps over 2 3 5 lazy dogs\n");
    expectRefusal(load, {undetectedGrid(load.gridFiles.front())});
}

// A header and records from machines of different byte order, glued together: records end the file
// at the right place and the numbers in them are turned round.
TEST_F(BadInputTest, RecordsOfOneByteOrderWithNumbersOfTheOtherAreRefused) {
    std::string bytes = headerIntegers({12});
    bytes += headerIntegers({2, 3, 5}, ByteOrder_e::Big);
    bytes += headerIntegers({12, 360});
    bytes += std::string(360, '\1') + headerIntegers({360});
    const Load_s load = gridLoad(bytes);
    expectRefusal(load, {undetectedGrid(load.gridFiles.front())});
}

// The repeat count of a text stands for more values than the file has points; what is left over
// when the last field is full is nobody's.
TEST_F(BadInputTest, RepeatCountPastTheEndOfTheFieldsLoads) {
    EXPECT_EQ(attempt(gridLoad("2 3 5\n2147483647*1.5" + std::string(60, '\n'))), Fate_e::Loaded);
    EXPECT_EQ(values(1, 3), std::vector<double>(30, 1.5));
}

// A repeat count without its value, at the end of the file.
TEST_F(BadInputTest, RepeatCountWithoutValueIsRefused) {
    const Load_s load = gridLoad("2 3 5\n90*" + std::string(60, ' '));
    expectRefusal(load, {"Error loading Variable.", invalidGrid(load.gridFiles.front())});
}

} // namespace
} // namespace quorvia::testsupport
