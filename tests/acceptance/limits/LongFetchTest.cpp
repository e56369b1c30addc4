// Fetches of big fields: they move a bar with the bytes, can be stopped, and leave the field to be
// fetched again. The files are sparse.
#include <algorithm>
#include <fstream>

#include "describe/GatherOutcome.h"
#include "describe/ValueFetch.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

constexpr std::int64_t stepBytes = 8 * 1024 * 1024;
constexpr GridDims_s bigGrid = {281, 283, 293};
constexpr std::int64_t points = std::int64_t{281} * 283 * 293;

struct FetchForm_s {
    const char* name;
    Encoding_e encoding;
    ByteOrder_e byteOrder;
    Precision_e precision;
};

void PrintTo(const FetchForm_s& formCase, std::ostream* out) {
    *out << formCase.name;
}

class LongFetch : public LoadedAddOnTest {
protected:
    /// A grid file of zeros, but that Y of its last point is 1.
    void loadGrid(const GridDims_s& dims, const FetchForm_s& formCase,
                  const std::vector<std::pair<std::string, std::string>>& settings = {}) {
        FileDescription_s grid = describeGrid({dims});
        grid.isHole = [](std::int32_t, std::int32_t, std::int32_t) { return true; };
        const std::string file = directory().file("big.x");
        const WriteOutcome_s written = writeFile(
            file, grid, formOf(formCase.encoding, formCase.byteOrder, formCase.precision));
        putOneAhead(file, written.blocks.at(2).position, formCase);
        expectLoads({.gridFiles = {file}, .settings = settings});
    }
    static constexpr FetchForm_s plain = {"Plain", Encoding_e::Binary, ByteOrder_e::Little,
                                          Precision_e::Single};
    static std::vector<double> lastTwo(std::int32_t variable) {
        const std::vector<double> found = values(1, variable);
        return {found.end() - 2, found.end()};
    }
    static host::DataSetOutcome_s described() {
        host::LoadResult_s result;
        result.ok = true;
        return host::describeOutcome(host(), result).dataSet.value();
    }

private:
    static void putOneAhead(const std::string& file, std::int64_t position,
                            const FetchForm_s& formCase) {
        std::string one = formCase.precision == Precision_e::Double
                              ? std::string("\0\0\0\0\0\0\xF0\x3F", 8)
                              : std::string("\0\0\x80\x3F", 4);
        if (formCase.byteOrder == ByteOrder_e::Big)
            one = {one.rbegin(), one.rend()};
        std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
        stream.seekp(position - std::ssize(one));
        stream.write(one.data(), std::ssize(one));
    }
};

class StoppedFetch : public LongFetch, public ::testing::WithParamInterface<FetchForm_s> {};

TEST_P(StoppedFetch, LeavesTheFieldToBeFetchedAgain) {
    loadGrid(bigGrid, GetParam());
    host().interruptAtStep(9); // behind 72 MiB
    const host::FetchResult_s stopped = host().fetch(1, 2);
    EXPECT_FALSE(stopped.ok);
    EXPECT_EQ(stopped.values, nullptr);
    EXPECT_EQ(stopped.error, "The fetch was interrupted.");
    EXPECT_EQ(host().stepCount(), 9);
    EXPECT_EQ(host().fetchedBytes(), 0);
    EXPECT_EQ(messages(), Texts());
    host().clearFaults();
    EXPECT_EQ(lastTwo(2), std::vector<double>({0, 1}));
}

INSTANTIATE_TEST_SUITE_P(EachForm, StoppedFetch,
                         ::testing::Values(FetchForm_s{"Binary", Encoding_e::Binary,
                                                       ByteOrder_e::Little, Precision_e::Single},
                                           FetchForm_s{"FortranBigEndianDouble",
                                                       Encoding_e::Fortran, ByteOrder_e::Big,
                                                       Precision_e::Double}),
                         [](const auto& formCase) { return formCase.param.name; });

TEST_F(LongFetch, MovesABarOfItsOwnWithTheBytes) {
    loadGrid(bigGrid, plain);
    std::vector<double> fractions;
    int closings = 0;
    host().settings().progressObserver = [&](const host::ProgressState_s& state) {
        closings += state.open ? 0 : 1;
        if (state.open)
            fractions.push_back(state.fraction);
    };
    EXPECT_TRUE(host().fetch(1, 1).ok);
    constexpr std::int64_t steps = 4 * points / stepBytes;
    ASSERT_EQ(std::ssize(fractions), steps);
    for (std::int64_t step = 1; step <= steps; ++step)
        EXPECT_DOUBLE_EQ(fractions[static_cast<std::size_t>(step - 1)],
                         static_cast<double>(step) / static_cast<double>(steps + 1));
    EXPECT_EQ(closings, 1);
}

// A boundary zone has few points, but the whole field of its grid is read for them.
TEST_F(LongFetch, OfABoundaryZoneIsStoppedAndCanBeRepeated) {
    directory().write("big.x.fvbnd", "FVBND 1 4\nwall\nBOUNDARIES\n1 1 1 $ 1 $ 293 293 F 0\n");
    loadGrid(bigGrid, plain, {{"LOADBOUNDARY", "Yes"}});
    host().interruptAtStep(9);
    EXPECT_FALSE(host().fetch(2, 2).ok);
    EXPECT_EQ(host().stepCount(), 9);
    EXPECT_EQ(messages(), Texts());
    host().clearFaults();
    const std::vector<double> found = values(2, 2);
    EXPECT_EQ(std::ssize(found), 281 * 283);
    EXPECT_EQ(found.back(), 1.0);
}

TEST_F(LongFetch, AsksNothingOfAFieldOfUpTo64MiB) {
    loadGrid({256, 256, 256}, plain);
    host().clearFaults();
    EXPECT_EQ(lastTwo(2), std::vector<double>({0, 1}));
    EXPECT_EQ(host().callCount("createTaskProgressBar"), 0);
    EXPECT_EQ(host().callCount("QuorUtilInterruptIsSet"), 0);
}

TEST_F(LongFetch, OfAllFieldsIsObservedByBytesAndStoppedInsideAField) {
    loadGrid(bigGrid, plain);
    host::DataSetOutcome_s outcome = described();
    std::vector<std::int64_t> done;
    EXPECT_FALSE(host::fetchValues(host(), outcome, [&](std::int64_t bytes, std::int64_t all) {
        EXPECT_EQ(all, 3 * 4 * points);
        done.push_back(bytes);
        return bytes <= 4 * points + 4 * points / 2;
    }));
    EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
    EXPECT_LT(done.back(), 2 * 4 * points);
    EXPECT_TRUE(outcome.zones[0].fields[0].statistics.has_value());
    EXPECT_FALSE(outcome.zones[0].fields[1].statistics || outcome.zones[0].fields[1].error);
    EXPECT_EQ(messages(), Texts());
}

} // namespace
} // namespace quorvia::testsupport
