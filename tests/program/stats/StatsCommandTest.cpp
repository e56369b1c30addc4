#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>

#include <gtest/gtest.h>

#include "program/values/ValueFiles.h"

namespace plot3d::program {
namespace {

std::int32_t oneHole(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
    return grid == 1 && i == 0 && j == 0 && k == 0 ? 0 : i == 1 ? 2 : 1;
}

class StatsCommandTest : public ValueFilesTest {
protected:
    std::string grid(const IBlank& iBlank = {}) const {
        return write("a.x", gridFile(twoSizes, placeValue, iBlank));
    }

    static Ended_s stats(std::vector<std::string> words) {
        words.insert(words.begin(), "stats");
        return ended(words);
    }

    /// The variables by name.
    static std::map<std::string, Json> told(std::vector<std::string> words) {
        words.push_back("--json");
        const Ended_s run = stats(words);
        EXPECT_EQ(run.code, 0) << run.err;
        std::map<std::string, Json> variables;
        const Json whole = Json::parse(run.out);
        for (const Json& variable : whole["variables"])
            variables[variable["name"].get<std::string>()] = variable;
        return variables;
    }

    /// The variable of a function file.
    Json toldOfFunction(const Sizes& sizes, const Value& value,
                        const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words = {write("a.x", gridFile(sizes, placeValue)),
                                          write("a.f", functionFile(sizes, 1, value))};
        words.insert(words.end(), more.begin(), more.end());
        return told(words)["F1V1"];
    }
};

TEST_F(StatsCommandTest, ShowsExtremesWithTheirPlaces) {
    const Ended_s run = stats({grid(), "--variable", "Y"});
    EXPECT_EQ(run.out, "2 zones, 135 points, 1 variable\n\n"
                       "  variable  count  minimum      maximum     mean  deviation  "
                       "minimum at zone: i,j,k  maximum at zone: i,j,k\n"
                       "  Y           135  1000000  1.10402e+07  3234625    4161523  "
                       "1: 1,1,1                2: 2,3,5\n");
}

TEST_F(StatsCommandTest, BreaksTheTableWhereTheTerminalIsNarrow) {
    std::ostringstream out;
    std::istringstream in;
    const Surroundings_s narrow = {in, out, out, 80, 0, false, ProgressWish_e::Never, false, {}};
    EXPECT_EQ(run({"stats", grid()}, narrow), 0);
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 80U) << line;
    EXPECT_NE(out.str().find("minimum at zone: i,j,k"), std::string::npos);
}

/// The lines of the headings at a terminal of that width.
int headingsAt(const std::string& file, int columns, bool colour) {
    std::ostringstream out;
    std::istringstream in;
    const Surroundings_s terminal = {in,    out, out, columns, 0, colour, ProgressWish_e::Never,
                                     false, {}};
    EXPECT_EQ(run({"stats", file, "--blank", "keep"}, terminal), 0);
    int count = 0;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);)
        count += line.find("  variable") == std::string::npos ? 0 : 1;
    return count;
}

TEST_F(StatsCommandTest, HasAsManyColumnsInATableAsFit) {
    const std::string file = grid();
    EXPECT_EQ(headingsAt(file, 200, false), 1);
    EXPECT_EQ(headingsAt(file, 112, true), 1) << "colours have no width";
    EXPECT_EQ(headingsAt(file, 80, true), 2);
    EXPECT_EQ(headingsAt(file, 40, false), 4);
}

TEST_F(StatsCommandTest, LeavesOutBlankedPointsAndSaysSo) {
    const Ended_s run = stats({grid(oneHole), "--variable", "X"});
    EXPECT_NE(run.out.find("\n1 point with I-blank 0 left out; --blank keep takes them in\n"),
              std::string::npos)
        << run.out;
    EXPECT_EQ(told({grid(oneHole)})["X"]["count"], 134);
    EXPECT_EQ(told({grid(oneHole)})["X"]["zones"][1]["blanked"], 1);
    EXPECT_EQ(told({grid(oneHole), "--blank", "keep"})["X"]["count"], 135);
}

TEST_F(StatsCommandTest, TellsIBlankAsATableOfItsValues) {
    const Ended_s run = stats({grid(oneHole), "--variable", "IBlank"});
    EXPECT_NE(run.out.find("Values of IBlank\n"
                           "  value  points\n"
                           "      0       1\n"
                           "      1     104\n"
                           "      2      30\n"),
              std::string::npos)
        << run.out;
    EXPECT_EQ(told({grid(oneHole)})["IBlank"]["values"],
              Json::parse(R"([{"value":0,"count":1},{"value":1,"count":104},
                              {"value":2,"count":30}])"));
}

TEST_F(StatsCommandTest, CountsWhatIsNoNumberAndLeavesItOut) {
    const Json variable = toldOfFunction({{3, 2, 2}}, [](auto, auto, auto i, auto j, auto) {
        return i == 0 ? NAN : j == 0 ? -INFINITY : 1.0 * i;
    });
    EXPECT_EQ(variable["nan"], 4);
    EXPECT_EQ(variable["infinite"], 4);
    EXPECT_EQ(variable["mean"], 1.5);
    EXPECT_EQ(variable["minAt"], Json::parse(R"({"zone":1,"i":2,"j":2,"k":1})"));
}

TEST_F(StatsCommandTest, HasNothingToTellWhereNoValueCounts) {
    const Json variable = toldOfFunction({{3, 2, 2}}, [](auto...) { return double(NAN); },
                                         {"--percentiles", "50", "--histogram"});
    for (const char* key : {"min", "max", "minAt", "maxAt", "mean", "deviation", "histogram"})
        EXPECT_TRUE(variable[key].isNull()) << key;
    EXPECT_TRUE(variable["percentiles"][0]["value"].isNull());
    EXPECT_EQ(stats({file("a.x"), file("a.f")}).code, 0);
}

TEST_F(StatsCommandTest, ShowsOnePointThroughTime) {
    std::vector<std::string> words;
    for (const int step : {0, 5, 10})
        words.push_back(write(
            "a" + std::to_string(step) + ".q",
            solutionFile(
                {{3, 5, 2}},
                [=](auto, auto v, auto i, auto, auto) { return step + 100.0 * i + 1000.0 * v; },
                step / 10.0)));
    words.insert(words.begin(), write("a.x", gridFile({{3, 5, 2}}, placeValue)));
    words.insert(words.end(), {"--point", "2,-1,1", "--variable", "RHO,E"});
    EXPECT_EQ(stats(words).out, "3 zones, 3 points, 2 variables\n\n"
                                "  zone  time  i,j,k  RHO     E\n"
                                "     1     0  2,5,1  100  4100\n"
                                "     2   0.5  2,5,1  105  4105\n"
                                "     3     1  2,5,1  110  4110\n");
    words.insert(words.end(), {"--time", "0.5:"});
    EXPECT_EQ(told(words)["RHO"]["min"], 105);
    EXPECT_EQ(told(words)["RHO"]["zones"].size(), 2U);
}

TEST_F(StatsCommandTest, TellsPercentilesOfZonesAndOfAllTogether) {
    const Json variable = toldOfFunction(
        {{11, 1, 1}, {3, 3, 1}},
        [](auto grid, auto, auto i, auto j, auto) { return 10.0 - i + 100 * grid - 3 * j; },
        {"--percentiles", "0,25,50,100"});
    EXPECT_EQ(variable["zones"][0]["percentiles"],
              Json::parse(R"([{"percent":0.0,"value":0.0},{"percent":25.0,"value":2.5},
                              {"percent":50.0,"value":5.0},{"percent":100.0,"value":10.0}])"));
    EXPECT_EQ(variable["percentiles"][1]["value"], 4.75); // place 4.75 of 0 to 19
    EXPECT_EQ(variable["percentiles"][3]["value"], 110);
}

TEST_F(StatsCommandTest, CountsZonesInTheBinsOfTheWholeVariable) {
    const Json variable =
        toldOfFunction({{4, 1, 1}, {2, 1, 1}},
                       [](auto grid, auto, auto i, auto, auto) { return 1.0 * i + 8 * grid; },
                       {"--histogram", "3"});
    EXPECT_EQ(variable["histogram"], Json::parse(R"({"min":0.0,"max":9.0,"counts":[3,1,2]})"));
    EXPECT_EQ(variable["zones"][0]["histogram"]["counts"], Json::parse("[3,1,0]"));
    EXPECT_EQ(variable["zones"][1]["histogram"]["counts"], Json::parse("[0,0,2]"));
}

TEST_F(StatsCommandTest, TakesHistogramsWithAndWithoutACountOfBins) {
    const std::string file = grid();
    EXPECT_EQ(told({"--histogram", file})["X"]["histogram"]["counts"].size(), 20U);
    EXPECT_EQ(told({"--histogram=7", file})["X"]["histogram"]["counts"].size(), 7U);
    EXPECT_EQ(told({file, "--histogram"})["X"]["histogram"]["counts"].size(), 20U);
}

/// What quorhost tells of the fields of a load.
Json fieldsByHost(const std::string& files) {
    const std::string command = std::string(QUORHOST_PROGRAM) + " load " + files + " --json -";
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::string text;
    for (int letter = std::fgetc(pipe); letter != EOF; letter = std::fgetc(pipe))
        text += static_cast<char>(letter);
    EXPECT_EQ(pclose(pipe), 0);
    return Json::parse(text)["dataSet"]["zones"];
}

TEST_F(StatsCommandTest, HashesToTheChecksumsOfTheHost) {
    const auto form = binary(writer::ByteOrder_e::Big, writer::Precision_e::Double);
    const auto x = write("b.x", gridFile(twoSizes, randomValues(3), oneHole), form);
    const auto q = write("b.q", solutionFile(twoSizes, randomValues(4)), form);
    const Json zones = fieldsByHost(x + " " + q);
    std::size_t number = 0;
    const Json told = Json::parse(stats({x, q, "--hash", "--json"}).out)["variables"];
    EXPECT_EQ(told.size(), 9U);
    for (const Json& variable : told) {
        for (std::size_t zone = 0; zone < 2; ++zone)
            EXPECT_EQ(variable["zones"][zone]["crc32"], zones[zone]["fields"][number]["crc32"])
                << variable["name"];
        ++number;
    }
}

TEST_F(StatsCommandTest, TellsWhatCannotBeReadAndGoesOnWithTheRest) {
    std::vector<std::string> words = {"--share-structure",
                                      write("a.x", gridFile({{3, 5, 2}}, placeValue))};
    for (const char* name : {"a1.q", "a2.q"})
        words.push_back(write(name, solutionFile({{3, 5, 2}}, placeValue)));
    std::filesystem::resize_file(words.back(), std::filesystem::file_size(words.back()) - 40);
    const Ended_s run = stats(words);
    EXPECT_EQ(run.code, 3);
    EXPECT_NE(run.err.find("E of zone 2 can't be read"), std::string::npos) << run.err;
    EXPECT_NE(run.out.find("\n  E            30 "), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\n  RHO          60 "), std::string::npos) << run.out;
}

TEST_F(StatsCommandTest, TakesFilesOfAnyNameByKind) {
    const std::string x = write("mesh.bin", gridFile(twoSizes, placeValue));
    const std::string q = write("flow.bin", solutionFile(twoSizes, placeValue));
    for (const std::vector<std::string>& words : {std::vector<std::string>{x, q},
                                                  {"--grid", x, "--solution", q},
                                                  {x, "--solution", q},
                                                  {q, "--grid", x}})
        EXPECT_EQ(told(words).size(), 8U) << words.front();
    EXPECT_EQ(stats({"--grid", q, "--solution", x}).code, 1);
    EXPECT_EQ(stats({file("none.bin"), "--solution", q}).code, 1);
}

TEST_F(StatsCommandTest, RefusesWhatItCannotDo) {
    EXPECT_EQ(stats({grid(), "--variable", "NONE"}).code, 2);
    EXPECT_EQ(stats({grid(), "--zone", "3"}).code, 2);
    EXPECT_EQ(stats({grid(), "--k", "9"}).code, 2);
    EXPECT_EQ(stats({grid(), "--percentiles", "101"}).code, 2);
    EXPECT_EQ(stats({grid(), "--blank", "hide"}).code, 2);
    EXPECT_EQ(stats({}).code, 2);
    EXPECT_EQ(stats({file("none.x")}).code, 1);
}

TEST_F(StatsCommandTest, EndsWhereItIsStopped) {
    std::stop_source stop;
    stop.request_stop();
    std::ostringstream out;
    std::istringstream in;
    const Surroundings_s stopped = {
        in, out, out, 0, 0, false, ProgressWish_e::Never, false, stop.get_token()};
    EXPECT_EQ(run({"stats", grid()}, stopped), 130);
}

} // namespace
} // namespace plot3d::program
