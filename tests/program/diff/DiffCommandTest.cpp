#include <filesystem>
#include <limits>

#include <gtest/gtest.h>

#include "program/values/ValueFiles.h"

namespace plot3d::program {
namespace {

using Words = std::vector<std::string>;

/// The values with one changed.
Value changed(std::int32_t grid, std::int32_t variable, double by) {
    return [=](std::int32_t g, std::int32_t v, std::int32_t i, std::int32_t j, std::int32_t k) {
        const bool isIt = g == grid && v == variable && i == 1 && j == 2 && k == 1;
        return placeValue(g, v, i, j, k) + (isIt ? by : 0);
    };
}

class DiffCommandTest : public ValueFilesTest {
protected:
    /// Grid and solution, under names of their own.
    Words flow(const std::string& name, const Value& value = placeValue,
               const Sizes& sizes = twoSizes, const writer::FileForm_s& form = {}) const {
        return {write(name + ".x", gridFile(sizes, placeValue), form),
                write(name + ".q", solutionFile(sizes, value), form)};
    }

    static Ended_s diff(Words first, const Words& second, const Words& more = {}) {
        first.insert(first.begin(), "diff");
        first.insert(first.end(), more.begin(), more.end());
        first.push_back("--");
        first.insert(first.end(), second.begin(), second.end());
        return ended(first);
    }

    static Json told(const Words& first, const Words& second, Words more = {}) {
        more.push_back("--json");
        return Json::parse(diff(first, second, more).out);
    }
};

TEST_F(DiffCommandTest, FindsNoneWhereValuesAreTheSameInAnyForm) {
    const auto text = formOf(writer::Encoding_e::Text);
    const auto fortran = formOf(writer::Encoding_e::Fortran, writer::ByteOrder_e::Big,
                                writer::Precision_e::Single, 8);
    const Words plain = flow("a", randomValues(5));
    for (const auto& form :
         {text, fortran, binary(writer::ByteOrder_e::Little, writer::Precision_e::Double)}) {
        const Ended_s run = diff(plain, flow("b", randomValues(5), twoSizes, form));
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.out, "The data sets are the same: 1,080 values compared\n");
    }
}

TEST_F(DiffCommandTest, ShowsTheLargestDifferenceAndItsPlace) {
    const Ended_s run = diff(flow("a"), flow("b", changed(1, 2, 512)), {"--variable", "RHO,RHO-V"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "The data sets differ: 1 of 270 values different\n\n"
                       "  variable  different  largest  at zone: i,j,k      relative  "
                       "at zone: i,j,k\n"
                       "  RHO               0        0  -                          0  -\n"
                       "  RHO-V             1      512  2: 2,3,2        4.262861e-05  "
                       "2: 2,3,2\n");
}

TEST_F(DiffCommandTest, TakesDifferencesWithinTheToleranceForNone) {
    const Words first = flow("a");
    const Words second = flow("b", changed(1, 2, 512));
    EXPECT_EQ(diff(first, second, {"--tolerance", "511"}).code, 1);
    EXPECT_EQ(diff(first, second, {"--tolerance", "512"}).code, 0);
    EXPECT_EQ(diff(first, second, {"--relative", "4e-5"}).code, 1);
    EXPECT_EQ(diff(first, second, {"--relative", "5e-5"}).code, 0);
    EXPECT_NE(diff(first, second, {"--tolerance", "512"}).out.find("the same within the tolerance"),
              std::string::npos);
}

TEST_F(DiffCommandTest, ComparesWhatIsSelectedAlone) {
    const Words first = flow("a");
    const Words second = flow("b", changed(1, 2, 512));
    EXPECT_EQ(diff(first, second, {"--zone", "1"}).code, 0);
    EXPECT_EQ(diff(first, second, {"--zone", "2"}).code, 1);
    EXPECT_EQ(diff(first, second, {"--variable", "E"}).code, 0);
    EXPECT_EQ(diff(first, second, {"--k", "1,,2"}).code, 0);
    EXPECT_EQ(diff(first, second, {"--k", "2"}).code, 1);
    EXPECT_EQ(diff(first, second, {"--point", "2,3,2"}).code, 1);
}

TEST_F(DiffCommandTest, ShowsSizesThatDifferAndComparesTheOtherZones) {
    const Words second = flow("b", changed(1, 2, 512), {{7, 4, 3}, {2, 3, 5}});
    const Json unlike = told(flow("a"), second)["unlike"];
    EXPECT_EQ(unlike, Json::parse(R"([{"what": "size", "zone": 1, "variable": null,
                                       "first": "7 x 5 x 3", "second": "7 x 4 x 3"}])"));
    EXPECT_NE(diff(flow("a"), second)
                  .out.find("1 of 240 values different\n"
                            "  size of zone 1: 7 x 5 x 3 in the first, 7 x 4 x 3 in the second\n"),
              std::string::npos);
}

TEST_F(DiffCommandTest, ShowsZonesAndVariablesThatOneHasAlone) {
    const Words more = flow("a", placeValue, {{7, 5, 3}, {2, 3, 5}, {2, 2, 2}});
    const Words less = {flow("b").front()};
    const std::string expected = "zones: 3 zones in the first, 2 zones in the second\n"
                                 "  variable RHO: there in the first, missing in the second\n";
    EXPECT_NE(diff(more, less).out.find(expected), std::string::npos) << diff(more, less).out;
    EXPECT_EQ(diff(more, less).code, 1);
    EXPECT_EQ(diff(less, more).code, 1);
    EXPECT_EQ(diff(less, more, {"--variable", "X,Y,Z"}).code, 0); // no more was asked for
    EXPECT_EQ(diff(more, less, {"--variable", "X"}).code, 1);
}

TEST_F(DiffCommandTest, ShowsTimesThatDiffer) {
    Words first = flow("a");
    Words second = first;
    second.back() = write("b.q", solutionFile(twoSizes, placeValue, 0.25));
    EXPECT_NE(diff(first, second).out.find("time of zone 1: 0 in the first, 0.25 in the second"),
              std::string::npos);
}

TEST_F(DiffCommandTest, TakesTimesThatAreNotFiniteForThoseOfTheirLike) {
    const Words grids = flow("a");
    const auto at = [&](double time) {
        const std::string name = "time" + std::to_string(time) + ".q";
        return Words{grids.front(), write(name, solutionFile(twoSizes, placeValue, time))};
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::vector<Words> sets = {at(0.5), at(infinity), at(-infinity),
                                     at(std::numeric_limits<double>::quiet_NaN())};
    for (const Words& first : sets)
        for (const Words& second : sets)
            EXPECT_EQ(diff(first, second).code, &first == &second ? 0 : 1)
                << first.back() << " and " << second.back();
}

TEST_F(DiffCommandTest, TakesTwoFilesAloneForOneOfEach) {
    const std::string first = flow("a").front();
    const std::string second = write("b.x", gridFile(twoSizes, changed(0, 1, 2)));
    EXPECT_EQ(ended({"diff", first, first}).code, 0);
    EXPECT_EQ(ended({"diff", first, second}).code, 1);
}

TEST_F(DiffCommandTest, TakesOptionsAnywhere) {
    const Words first = flow("a");
    const Words second = flow("b", changed(1, 2, 512));
    EXPECT_EQ(
        ended({"diff", first[0], first[1], "--", second[0], "--tolerance", "512", second[1]}).code,
        0);
    EXPECT_EQ(
        ended({"diff", first[0], first[1], "--", "--quiet", second[0], second[1], "--variable=RHO"})
            .code,
        0);
    EXPECT_EQ(ended({"diff", first[0], first[1], "--", second[0], second[1], "--strange"}).code, 2);
}

TEST_F(DiffCommandTest, ReadsAListOfFilesFromStandardInput) {
    const Words files = flow("a");
    EXPECT_EQ(ended({"diff", files[0], files[1], "--", "-"}, files[0] + "\n" + files[1]).code, 0);
}

TEST_F(DiffCommandTest, RefusesWhatIsNoPairOfDataSets) {
    const std::string file = flow("a").front();
    for (const Words& words :
         {Words{"diff"}, Words{"diff", file}, Words{"diff", file, "--"}, Words{"diff", "--", file},
          Words{"diff", file, "--", file, "--"}, Words{"diff", file, file, "--tolerance", "-1"},
          Words{"diff", file, file, "--variable", "NONE"}})
        EXPECT_EQ(ended(words).code, 2) << words.size();
}

TEST_F(DiffCommandTest, TellsTheCommandForSolutionsAlone) {
    const std::string first = flow("a").back();
    const std::string second = flow("b").back();
    const Ended_s run = ended({"diff", first, second});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "plot3d: error: " + first +
                           ": The file needs the grid file on which its values stand.\n"
                           "try: plot3d diff GRID " +
                           first + " -- GRID " + second + "\n");
}

TEST_F(DiffCommandTest, TellsWhatCannotBeReadAndGoesOnWithTheRest) {
    const Words first = flow("a");
    Words second = {"--share-structure", first[0], first[1],
                    write("b.q", solutionFile(twoSizes, placeValue))};
    std::filesystem::resize_file(second[3], std::filesystem::file_size(second[3]) - 40);
    const Words whole = {first[0], first[1], first[1]};
    const Ended_s run = diff(whole, second);
    EXPECT_EQ(run.code, 3);
    EXPECT_NE(run.err.find("E of zone 4 can't be read"), std::string::npos) << run.err;
    EXPECT_NE(run.out.find("Not all could be read"), std::string::npos) << run.out;
}

TEST_F(DiffCommandTest, FitsANarrowTerminal) {
    std::ostringstream out;
    std::istringstream in;
    const Surroundings_s narrow = {in, out, out, 60, 0, false, ProgressWish_e::Never, false, {}};
    const Words first = flow("a");
    const Words second = flow("b", changed(1, 2, 512));
    EXPECT_EQ(run({"diff", first[0], first[1], "--", second[0], second[1]}, narrow), 1);
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 60U) << line;
    EXPECT_NE(out.str().find("2: 2,3,2"), std::string::npos);
}

} // namespace
} // namespace plot3d::program
