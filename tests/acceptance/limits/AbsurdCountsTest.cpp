// Headers whose counts no file could hold, as rubbish and wrong byte orders make them: nothing is
// allocated for them, no loop runs for them, and what they multiply to never wraps round.
#include "BadInputFixture.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::ByteOrder_e;

constexpr std::int64_t most = 0x7fffffff;
constexpr std::int64_t least = -0x80000000LL;

/// Header integers of a file, and what they claim.
struct Claim_s {
    const char* story;
    std::vector<std::int64_t> header;
};

void PrintTo(const Claim_s& claim, std::ostream* out) {
    *out << claim.story;
}

const Claim_s claims[] = {
    {"2^31 - 1 grids of one point", {most, 1, 1, 1}},
    {"2^31 - 1 grids, each as big", {most, most, most, most}},
    {"no grids", {0, 2, 3, 5}},
    {"fewer than no grids", {-1, 2, 3, 5}},
    {"the fewest grids of all", {least, 2, 3, 5}},
    {"a grid of 2^31 - 1 points in each direction", {most, most, most}},
    {"the same in a list of one grid", {1, most, most, most}},
    {"points whose count is 0 modulo 2^64", {1 << 22, 1 << 21, 1 << 21}},
    {"points whose bytes are 0 modulo 2^64", {1 << 21, 1 << 21, 1 << 20}},
    {"a negative I", {-2, 3, 5}},
    {"two negative dimensions, whose product is positive", {-2, -3, 5}},
    {"negative everything", {least, least, least}},
    {"a second grid that is absurd", {2, 2, 3, 5, most, most, most}},
    {"no points", {0, 0, 0}},
    {"more nodes than the file has bytes", {most, 0, 4}},
    {"more triangles than the file has bytes", {4, most, 0}},
    {"more tetrahedra than the file has bytes", {4, 0, most}},
    {"a negative count of tetrahedra", {4, 0, least}},
    {"no variables", {2, 3, 5, 0}},
    {"a function file with a negative count of variables", {2, 3, 5, -1}},
    {"a function file with 2^31 - 1 variables", {2, 3, 5, most}},
    {"the same of one point", {1, 1, 1, most}},
    {"Overflow with a negative count of variables", {2, 3, 5, -1, 2}},
    {"Overflow with the fewest variables of all", {2, 3, 5, least, 2}},
    {"Overflow with 2^31 - 1 variables", {2, 3, 5, most, 2}},
    {"Overflow with 2^31 - 1 species", {2, 3, 5, 5, most}},
    {"Overflow with a negative count of species", {2, 3, 5, 5, least}},
    {"Overflow with 2^31 - 1 of both", {1, 1, 1, most, most}},
    {"a multi-grid Overflow file with both counts negative", {1, 2, 3, 5, -5, -2}},
};

std::string asRecord(const std::string& payload) {
    const auto length = static_cast<std::int64_t>(payload.size());
    return headerIntegers({length}) + payload + headerIntegers({length});
}

class AbsurdCounts : public BadInputTest, public ::testing::WithParamInterface<Claim_s> {
protected:
    static std::string header(ByteOrder_e order = ByteOrder_e::Little) {
        std::string bytes;
        for (const std::int64_t value : GetParam().header)
            bytes += headerIntegers({value}, order);
        return bytes;
    }
    static std::string textHeader() {
        std::string text;
        for (const std::int64_t value : GetParam().header)
            text += std::to_string(value) + ' ';
        return text + '\n';
    }
    /// As a file of every kind: found by trial, and described by hand in every structure.
    void expectNotBelievedAsAnything(const std::string& bytes) {
        for (const Load_s& load : {gridLoad(bytes), solutionLoad(bytes)}) {
            expectNotBelieved(load);
            describeByHand(load);
        }
    }

private:
    static void describeByHand(Load_s load) {
        for (const char* structure : {"1D", "2D", "3DP", "3DW", "UNSTRUCTURED"})
            for (const char* style : {"PLOT3DCLASSIC", "PLOT3DFUNCTION", "OVERFLOW", "SWIFT"})
                for (const char* isMultiGrid : {"Yes", "No"}) {
                    load.settings = {{"AUTODETECT", "No"},
                                     {"STYLE", style},
                                     {"DATASTRUCTURE", structure},
                                     {"ISMULTIGRID", isMultiGrid}};
                    expectNotBelieved(load);
                }
    }
};

// No size fits: 1021 is a prime.
TEST_P(AbsurdCounts, InPlainBinaryAreRefused) {
    for (const ByteOrder_e order : {ByteOrder_e::Little, ByteOrder_e::Big}) {
        const std::string bytes = header(order) + std::string(1021, '\0');
        EXPECT_EQ(attempt(gridLoad(bytes)), Fate_e::Refused);
        EXPECT_EQ(attempt(solutionLoad(bytes)), Fate_e::Refused);
        expectNotBelievedAsAnything(bytes);
    }
}

// Records that are longer than they need be are accepted, so that a small first number may do.
TEST_P(AbsurdCounts, InFortranRecordsAreNotBelieved) {
    const std::string data = asRecord(std::string(16, '\0')) + asRecord(std::string(1021, '\0'));
    expectNotBelievedAsAnything(asRecord(header()) + data);
    expectNotBelievedAsAnything(asRecord(header().substr(0, 4)) + asRecord(header().substr(4)) +
                                data);
}

TEST_P(AbsurdCounts, InTextAreNotBelieved) {
    std::string values;
    for (int line = 0; line < 60; ++line)
        values += "0.5 0.25\n";
    expectNotBelievedAsAnything(textHeader() + values);
}

INSTANTIATE_TEST_SUITE_P(EachClaim, AbsurdCounts, ::testing::ValuesIn(claims));

// A text may hold any number of values in a repeat token, but names are made of none of them.
TEST_F(BadInputTest, VariablesInABigTextCostNoMemory) {
    const std::string blanks(4'000'000, ' ');
    EXPECT_EQ(attempt(solutionLoad("2 3 5 2147483647\n2147483647*0.5\n" + blanks)),
              Fate_e::Refused);
}

// Markers that lie: a record of 2 GB in a file of a few bytes, records of negative length, a chain
// of segments that never ends.
TEST_F(BadInputTest, MarkersThatPointBehindTheFileAreRefused) {
    for (const std::int64_t marker : {most, least, std::int64_t{-1}, std::int64_t{-2147483639},
                                      std::int64_t{2147483639}, std::int64_t{0x7ffffff0}}) {
        const std::string bytes = headerIntegers({marker, 2, 3, 5, marker, marker, 0, marker});
        const Load_s load = gridLoad(bytes);
        EXPECT_EQ(attempt(load), Fate_e::Refused) << marker;
    }
}

} // namespace
} // namespace quorvia::testsupport
