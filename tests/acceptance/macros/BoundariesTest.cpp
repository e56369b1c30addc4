// Boundary zones on the built library: their places, names, parents and times, and every value of
// theirs against the file's.
#include "acceptance/macros/KindSession.h"

#include <algorithm>

#include <fmt/core.h>

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

/// A boundary of the file: a range of points of a grid, from 1.
struct Boundary_s {
    std::string name;
    std::int32_t grid;
    Range_s i;
    Range_s j;
    Range_s k;
};

const std::vector<GridDims_s> dims = {{5, 3, 7}, {2, 3, 5}};

/// A face across each direction, a block, a line of points and a single point.
const std::vector<Boundary_s> faces = {
    {"wall", 1, {1, 5}, {1, 3}, {1, 1}},     {"inflow", 1, {5, 5}, {1, 3}, {1, 7}},
    {"symmetry", 2, {1, 2}, {3, 3}, {1, 5}}, {"wall", 1, {2, 5}, {1, 2}, {3, 6}},
    {"outflow", 2, {2, 2}, {1, 1}, {2, 5}},  {"wall", 2, {1, 1}, {2, 2}, {5, 5}}};

const Settings withBoundaries = {{"LOADBOUNDARY", "Yes"}};

Settings operator+(Settings settings, const Settings& more) {
    settings.insert(settings.end(), more.begin(), more.end());
    return settings;
}

class Boundaries : public KindSession {
protected:
    Boundaries() { series_.grids = dims; }

    /// Writes the grid with a boundary file beside it.
    std::string gridWithBoundaries(const std::string& name, bool hasIBlank = false,
                                   const std::string& lastLine = "") {
        std::string text = "FVBND 1 4\nwall\ninflow\nsymmetry\noutflow\nBOUNDARIES\n";
        for (const Boundary_s& face : faces)
            text += fmt::format("{} {} {} {} {} {} {} {} F 0\n", numberOf(face.name), face.grid,
                                face.i.start, face.i.end, face.j.start, face.j.end, face.k.start,
                                face.k.end);
        directory().write(name + ".fvbnd", text + lastLine);
        return series_.grid(name, hasIBlank);
    }

    /// The zones from `firstZone` on are those of `faces`: `spatial` fields of the grid file, then
    /// five of the solution, whose values are `shift` above the places.
    void expectFaces(const Json& outcome, std::size_t firstZone, bool hasIBlank, double shift = 0,
                     FieldForm_e form = FieldForm_e::Single, const Range_s& iOfLoad = {}) {
        ASSERT_GE(outcome["dataSet"]["zones"].size(), firstZone - 1 + faces.size());
        const std::size_t spatial = hasIBlank ? 4 : 3;
        for (std::size_t n = 0; n < faces.size(); ++n) {
            const Boundary_s& face = faces[n];
            const Json& fields = outcome["dataSet"]["zones"][firstZone - 1 + n]["fields"];
            ASSERT_EQ(fields.size(), spatial + 5);
            for (std::size_t field = 0; field < fields.size(); ++field) {
                FieldOfFile_s expected = {dims[static_cast<std::size_t>(face.grid - 1)],
                                          face.grid - 1,
                                          static_cast<std::int32_t>(field),
                                          0,
                                          face.i,
                                          face.j,
                                          face.k,
                                          form};
                expected.i.skip = iOfLoad.skip;
                if (hasIBlank && field == 3)
                    expected.form = FieldForm_e::IBlank;
                if (field >= spatial) {
                    expected.variable = static_cast<std::int32_t>(field - spatial);
                    expected.shift = shift;
                }
                EXPECT_TRUE(holds(fields[field], expected))
                    << face.name << ", zone " << firstZone + n << ", variable " << field + 1;
            }
        }
    }

    static std::int32_t numberOf(const std::string& name) {
        const Texts names = {"wall", "inflow", "symmetry", "outflow"};
        return static_cast<std::int32_t>(std::find(names.begin(), names.end(), name) -
                                         names.begin()) +
               1;
    }
};

TEST_F(Boundaries, HaveTheValuesOfTheirParentsInEveryFormOfFile) {
    for (const FileForm_s& form : everyForm())
        for (const bool hasIBlank : {false, true}) {
            const bool isDouble = form.precision == Precision_e::Double;
            SCOPED_TRACE(fmt::format("encoding {}, order {}, double {}, marker {}, I-blank {}",
                                     static_cast<int>(form.encoding),
                                     static_cast<int>(form.byteOrder), isDouble, form.markerBytes,
                                     hasIBlank));
            series_.form = form;
            const std::string grid = gridWithBoundaries("form.x", hasIBlank);
            const std::string solution = series_.solution("form.q", 1);
            const Settings text = {{"ASCIIISDOUBLE", isDouble ? "Yes" : "No"},
                                   {"ASCIIHASIBLANK", hasIBlank ? "Yes" : "No"}};
            play({load({.grids = {grid}, .solutions = {solution}}, withBoundaries + text)});
            EXPECT_EQ(messages(last()), Texts());
            expectFaces(last(), 3, hasIBlank, 0,
                        isDouble ? FieldForm_e::Double : FieldForm_e::Single);
        }
}

TEST_F(Boundaries, FollowTheSkipsOfTheLoad) {
    const std::string grid = gridWithBoundaries("a.x");
    const std::string solution = series_.solution("skip.q", 1);
    play({load({.grids = {grid}, .solutions = {solution}},
               withBoundaries + Settings{{"IINDEXRANGE", "1,,2"}})});
    expectFaces(last(), 3, false, 0, FieldForm_e::Single, {1, 0, 2});
}

TEST_F(Boundaries, WithAnErrorCostTheirMessageAndNothingElse) {
    const std::string grid = gridWithBoundaries("a.x", false, "9 1 1 1 1 1 1 1 F 0\n");
    const std::string solution = series_.solution("bad.q", 1);
    const Files_s files = {.grids = {grid}, .solutions = {solution}};
    play({load(files), describe("without"), load(files, withBoundaries)});
    EXPECT_EQ(messages(last()), Texts{"Error reading Boundary File: " + grid +
                                      ".fvbnd.\nLine: 9 1 1 1 1 1 1 1 F 0"
                                      "\nCheck that version is 1.4 and file is correctly formatted."
                                      "\nBoundary zones will not be loaded."});
    EXPECT_TRUE(dataSet(last()) == dataSet(described("without")));
    EXPECT_EQ(exitCode_, 1); // a file was left out
}

// Zones of the grids, and a boundary zone of the second step that may not share its Y.
TEST_F(Boundaries, ShareTheGridWholeOrNotAtAll) {
    play({command("fail", {{"operation", "QuorUtilDataValueIsSharingOk"}, {"call", 2}}),
          load({.grids = {gridWithBoundaries("a.x")},
                .solutions = {series_.solution("share.1.q", 1), series_.solution("share.2.q", 2)}},
               withBoundaries + Settings{{"ASSIGNSTRANDIDS", "Yes"}})});
    const Json& first = last()["dataSet"]["zones"][4 + faces.size()]["fields"];
    const Json& second = last()["dataSet"]["zones"][5 + faces.size()]["fields"];
    for (std::size_t variable = 0; variable < 3; ++variable) {
        EXPECT_EQ(first[variable]["state"], "deferred");
        EXPECT_EQ(second[variable]["state"], "shared");
    }
    expectFaces(last(), 5 + faces.size(), false);
}

/// Whether sharing is allowed.
class BoundariesOfSeries : public Boundaries, public ::testing::WithParamInterface<bool> {
protected:
    /// Three time steps, whose values are 0, 30 and 60 above the first.
    void loadSeries(const Settings& more, const Commands& before = {}, const Commands& after = {}) {
        Texts steps;
        for (int step = 0; step < 3; ++step)
            steps.push_back(
                series_.solution(fmt::format("series.{}.q", step), step + 1, 30.0 * step));
        Commands commands = before;
        commands.push_back(command("host", command("sharingAllowed", GetParam())));
        commands.push_back(load({.grids = {gridWithBoundaries("a.x", true)}, .solutions = steps},
                                withBoundaries + more));
        commands.insert(commands.end(), after.begin(), after.end());
        play(commands);
        EXPECT_EQ(messages(last()), Texts());
    }
    /// Numbers of zones, from 1.
    static Json deletion(std::size_t first, std::size_t count) {
        Json zones = Json::array();
        for (std::size_t n = 0; n < count; ++n)
            zones.add(first + n);
        return command("deleteZones", zones);
    }
};

TEST_P(BoundariesOfSeries, WithStrandsComeForEachTimeStep) {
    loadSeries({{"ASSIGNSTRANDIDS", "Yes"}});
    const Json& zones = last()["dataSet"]["zones"];
    ASSERT_EQ(zones.size(), 3 * (2 + faces.size()));
    for (std::size_t step = 0; step < 3; ++step) {
        SCOPED_TRACE(step);
        const std::size_t first = 6 + step * faces.size();
        expectFaces(last(), first + 1, true, 30.0 * static_cast<double>(step));
        for (std::size_t n = 0; n < faces.size(); ++n) {
            const Json& zone = zones[first + n];
            EXPECT_EQ(zone["strandId"], 3 + n);
            EXPECT_EQ(zone["solutionTime"], static_cast<double>(step + 1));
            EXPECT_EQ(zone["parentZone"], 2 * step + static_cast<std::size_t>(faces[n].grid));
            const bool isShared = GetParam() && step > 0;
            EXPECT_EQ(zone["fields"][0]["state"], isShared ? "shared" : "deferred");
        }
    }
}

TEST_P(BoundariesOfSeries, OutliveThoseOfEarlierTimeSteps) {
    loadSeries({{"ASSIGNSTRANDIDS", "Yes"}}, {}, {deletion(7, faces.size())});
    expectFaces(last(), 7, true, 30);
    expectFaces(last(), 7 + faces.size(), true, 60);
    loadSeries({{"ASSIGNSTRANDIDS", "Yes"}}, {}, {deletion(7, 2 * faces.size())});
    expectFaces(last(), 7, true, 60);
}

TEST_P(BoundariesOfSeries, OutliveTheZonesThatTheyBelongTo) {
    loadSeries({{"ASSIGNSTRANDIDS", "Yes"}}, {}, {deletion(1, 6 + faces.size())});
    expectFaces(last(), 1, true, 30);
    expectFaces(last(), 1 + faces.size(), true, 60);
}

TEST_P(BoundariesOfSeries, ComeAgainWhenTheyWereDroppedAndTheFirstTimeStepsDeleted) {
    loadSeries({{"ASSIGNSTRANDIDS", "Yes"}}, {},
               {describe("fetched"), command("unload", "all"), deletion(7, faces.size())});
    expectFaces(last(), 7, true, 30);
}

// The share that is refused is one of a boundary's, behind those of the two later time steps.
TEST_P(BoundariesOfSeries, HaveAGridOfTheirOwnWhereTheHostRefusesToShare) {
    for (const int fieldOfBoundaries : {1, 4, 6}) {
        const int call = 2 * 2 * 4 + fieldOfBoundaries;
        loadSeries(
            {{"ASSIGNSTRANDIDS", "Yes"}},
            {command("fail", Json{{"operation", "QuorUtilDataValueShare"}, {"call", call}})});
        for (std::size_t step = 0; step < 3; ++step)
            expectFaces(last(), 7 + step * faces.size(), true, 30.0 * static_cast<double>(step));
    }
}

TEST_P(BoundariesOfSeries, WithoutStrandsComeForTheFirstTimeStepAlone) {
    loadSeries({{"ASSIGNSTRANDIDS", "No"}});
    ASSERT_EQ(last()["dataSet"]["zones"].size(), 6 + faces.size());
    expectFaces(last(), 7, true);
}

INSTANTIATE_TEST_SUITE_P(Sharing, BoundariesOfSeries, ::testing::Bool());

} // namespace
} // namespace quorvia::testsupport
