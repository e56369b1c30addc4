// Holds every #include of the code against the table of arrows in docs/architecture.md.
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TextPattern.h"

namespace {

namespace fs = std::filesystem;

using quorvia::testsupport::TextPattern;

using Arrows = std::map<std::string, std::set<std::string>>;

// From a room to the rooms that it may use; a room may always use itself. A room within a room is a
// room of its own.
const Arrows sourceArrows = {
    {"filenames", {"sdk"}},
    {"instructions", {"sdk", "filenames"}},
    {"state", {"sdk", "instructions"}},
    {"plot3dfile/bytes", {}},
    {"plot3dfile/file", {"sdk", "instructions", "plot3dfile/bytes"}},
    {"plot3dfile/numbers", {"sdk", "instructions", "plot3dfile/bytes", "plot3dfile/file"}},
    {"plot3dfile/layout",
     {"sdk", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers"}},
    {"plot3dfile/detection",
     {"sdk", "instructions", "plot3dfile/file", "plot3dfile/numbers", "plot3dfile/layout"}},
    {"plot3dfile/timestep",
     {"sdk", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers"}},
    {"dataset/variables",
     {"sdk", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/layout",
      "plot3dfile/timestep"}},
    {"dataset/ondemand", {"sdk", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers"}},
    {"dataset/items",
     {"sdk", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers",
      "plot3dfile/layout", "plot3dfile/timestep", "dataset/ondemand"}},
    {"dataset/zones",
     {"sdk", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers",
      "plot3dfile/layout", "plot3dfile/timestep", "dataset/variables", "dataset/ondemand",
      "dataset/items"}},
    {"boundary",
     {"sdk", "state", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers",
      "plot3dfile/timestep", "dataset/variables", "dataset/ondemand", "dataset/items",
      "dataset/zones"}},
    {"loader",
     {"sdk", "state", "instructions", "plot3dfile/bytes", "plot3dfile/file", "plot3dfile/layout",
      "plot3dfile/detection", "plot3dfile/timestep", "dataset/variables", "dataset/ondemand",
      "dataset/items", "dataset/zones", "boundary"}},
    {"dialog", {"sdk", "state", "instructions", "boundary", "loader"}},
    {"addon", {"sdk", "state", "instructions", "filenames", "boundary", "loader", "dialog"}},
};

const Arrows hostArrows = {
    {"model", {"sdk"}},
    {"toolkit", {"sdk"}},
    {"checks", {"sdk", "model"}},
    {"state", {"sdk", "model", "toolkit", "checks"}},
    {"services", {"sdk", "model", "toolkit", "checks", "state"}},
    {"session", {"sdk", "model", "toolkit", "checks", "state"}},
    {"console", {}}, // at the top, used by what people see
    {"describe", {"console", "sdk", "model", "toolkit", "state", "session"}},
    {"app", {"console", "sdk", "model", "toolkit", "state", "session", "describe"}},
};

/// The rooms of the library, and all that stand below it.
Arrows libraryArrows() {
    Arrows arrows = {
        {"facts", {}},
        {"read", {"facts", "plot3dfile/bytes"}},
        {"flow", {"facts"}},
        {"example", {}}, // public headers alone
        {"console/counts", {}},
        {"derive", {"facts", "flow"}},
        {"inspect/reading",
         {"plot3dfile/bytes", "plot3dfile/file", "plot3dfile/numbers", "plot3dfile/layout",
          "plot3dfile/detection"}},
        {"inspect/words", {"inspect/reading", "console/counts"}},
        {"inspect/evidence",
         {"inspect/reading", "inspect/words", "instructions", "plot3dfile/bytes",
          "plot3dfile/numbers", "plot3dfile/layout"}},
        {"inspect/recognisers",
         {"inspect/evidence", "inspect/words", "plot3dfile/bytes", "plot3dfile/numbers"}},
        {"inspect",
         {"filenames", "inspect/reading", "inspect/words", "inspect/evidence",
          "inspect/recognisers"}},
        {"open",
         {"facts", "read", "inspect", "inspect/evidence", "sdk", "instructions", "plot3dfile/bytes",
          "plot3dfile/file", "dataset/ondemand", "boundary", "addon", "model", "state", "session"}},
    };
    for (const Arrows* below : {&sourceArrows, &hostArrows})
        arrows.insert(below->begin(), below->end());
    return arrows;
}

const Arrows toolArrows = {
    {"console", {}},
    {"console/options", {}},
    {"plot3dwriter", {}},
    {"plot3dsample", {"plot3dwriter", "console", "console/options"}},
};

const Arrows consoleArrows = {
    {"console/counts", {}},
    {"console", {"console/counts"}},
    {"console/options", {"console"}},
};

const Arrows analysisArrows = {
    {"console", {}},
    {"analysis/findings", {"console"}},
    {"analysis/fields", {}},
    {"analysis/statistics", {"analysis/fields"}},
};

const Arrows programArrows = {
    {"console", {}}, // at the top, used by the rooms of the program
    {"console/options", {}},
    {"analysis/findings", {}},
    {"analysis/fields", {}},
    {"analysis/statistics", {}},
    {"manners", {"console"}},
    {"selection", {"console", "console/options", "manners", "analysis/fields"}},
    {"info", {"console", "console/options", "manners", "analysis/findings"}},
    {"names", {}},
    {"stats",
     {"console", "console/options", "manners", "selection", "analysis/fields",
      "analysis/statistics"}},
    {"diff", {"console", "console/options", "manners", "selection", "analysis/fields"}},
    {"convert/contents", {"selection", "analysis/fields"}},
    {"convert/output", {"convert/contents"}},
    {"convert/csv", {"manners", "convert/contents", "convert/output"}},
    {"convert/npz", {"manners", "names", "convert/contents", "convert/output"}},
    {"convert/vtk", {"console", "manners", "names", "convert/contents", "convert/output"}},
    {"convert/plot3d", {"manners", "convert/contents", "convert/output"}},
    {"convert/cgns", {"manners", "names", "convert/contents", "convert/output"}},
    {"convert",
     {"console/options", "manners", "selection", "convert/contents", "convert/output",
      "convert/csv", "convert/npz", "convert/vtk", "convert/plot3d", "convert/cgns"}},
    {"index/contents", {"console", "selection", "analysis/fields"}},
    {"index/cgns", {"manners", "names", "index/contents"}},
    {"index/references", {"console", "manners", "names", "index/contents"}},
    {"index/xdmf", {"manners", "index/contents"}},
    {"index/wholefiles", {"selection", "index/contents"}},
    {"index/p3d", {"console", "manners", "index/contents", "index/wholefiles"}},
    {"index/vp3d", {"manners", "index/contents", "index/wholefiles"}},
    {"index",
     {"console/options", "manners", "selection", "index/contents", "index/cgns", "index/references",
      "index/xdmf", "index/p3d", "index/vp3d"}},
    {"render",
     {"console", "console/options", "manners", "selection", "view", "colours", "surfaces",
      "content", "picture"}},
    {"app",
     {"console", "console/options", "manners", "info", "stats", "diff", "convert", "index",
      "render"}},
    // The scene, of which no more than the painter's interface reaches VTK's side.
    {"view", {}},
    {"colours", {}},
    {"surfaces", {}},
    {"content", {}},
    {"picture", {}},
};

const Arrows sceneArrows = {
    {"console", {}},
    {"analysis/fields", {}}, // cores, and boxes in pieces
    {"view", {"console"}},
    {"colours", {}},
    {"surfaces", {"view"}},
    {"content", {"view", "colours", "surfaces", "analysis/fields"}},
    {"annotation", {"view", "colours", "surfaces", "content"}},
    {"stage", {"view", "colours", "surfaces", "content", "annotation"}},
    {"picture", {"view", "content", "stage"}},
};

/// The windows stand on all of the host, and on what shows data.
Arrows desktopArrows() {
    Arrows arrows = {
        {"view", {}},
        {"content", {}},
        {"stage", {}},
        {"analysis/findings", {}},
        {"analysis/fields", {}},
        {"analysis/statistics", {}},
        {"desktop/parts", {"console"}},
        {"desktop/dialog", {"toolkit", "desktop/parts"}},
        {"desktop/files", {"toolkit", "state", "analysis/findings", "desktop/parts"}},
        {"desktop/guest",
         {"toolkit", "session", "describe", "desktop/parts", "desktop/dialog", "desktop/files"}},
        {"desktop/tree", {"describe", "desktop/parts"}},
        {"desktop/values", {"console", "analysis/fields", "analysis/statistics", "desktop/parts"}},
        {"desktop/view", {"view", "content", "stage", "desktop/parts"}},
        {"desktop",
         {"console", "session", "describe", "view", "desktop/parts", "desktop/files",
          "desktop/guest", "desktop/tree", "desktop/values", "desktop/view"}},
    };
    arrows.insert(hostArrows.begin(), hostArrows.end());
    return arrows;
}

/// The longest room of the table that `path`, relative to the tree's root, lies in; empty if none.
std::string roomOf(const std::string& path, const Arrows& arrows) {
    if (path.rfind("quorvia/", 0) == 0)
        return "sdk";
    std::string room;
    for (const auto& [name, uses] : arrows)
        if (path.rfind(name + "/", 0) == 0 && name.size() > room.size())
            room = name;
    return room;
}

std::vector<std::string> includesLike(const fs::path& file, const TextPattern& pattern) {
    std::vector<std::string> includes;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);)
        if (const auto match = pattern.firstMatch(line); !match.empty())
            includes.push_back(match[1]);
    return includes;
}

std::vector<std::string> quotedIncludes(const fs::path& file) {
    static const TextPattern pattern("^\\s*#\\s*include\\s*\"([^\"]+)\"");
    return includesLike(file, pattern);
}

bool isSource(const fs::path& path) {
    return path.extension() == ".h" || path.extension() == ".cpp";
}

/// Every include below `tree` that goes where no arrow goes, and the number of files read. Rooms
/// are named as they are included: from `root`.
std::vector<std::string> forbiddenIncludes(const fs::path& tree, const fs::path& root,
                                           const Arrows& arrows, int& fileCount) {
    std::vector<std::string> forbidden;
    for (const auto& entry : fs::recursive_directory_iterator(tree)) {
        if (!isSource(entry.path()))
            continue;
        ++fileCount;
        const std::string file = fs::relative(entry.path(), root).generic_string();
        if (file.starts_with("include/") || file.starts_with("example/"))
            continue; // what the library's users see and write
        const std::string room = roomOf(file, arrows);
        if (room.empty()) {
            forbidden.push_back(file + " lies in no room");
            continue;
        }
        for (const std::string& include : quotedIncludes(entry.path())) {
            const std::string used = roomOf(include, arrows);
            if (used != room && arrows.at(room).count(used) == 0)
                forbidden.push_back(file + " includes " + include);
        }
    }
    return forbidden;
}

/// Rooms are named from the tree, or from the top of the project.
void expectNoForbiddenInclude(const char* tree, const Arrows& arrows, bool namesFromTop = false) {
    int fileCount = 0;
    const fs::path top = PLOT3D_SOURCE_DIR;
    const std::vector<std::string> forbidden =
        forbiddenIncludes(top / tree, namesFromTop ? top : top / tree, arrows, fileCount);
    EXPECT_GT(fileCount, 5);
    EXPECT_EQ(forbidden, std::vector<std::string>());
}

TEST(Arrows, OfTheAddOnGoOneWay) {
    expectNoForbiddenInclude("src", sourceArrows);
}

TEST(Arrows, OfTheHostGoOneWayAndReachOnlyTheSdkOfTheAddOn) {
    expectNoForbiddenInclude("host", hostArrows);
}

/// The rooms of `tree` with a source that includes what begins like that.
std::set<std::string> roomsIncluding(const std::string& beginning, const char* tree,
                                     const Arrows& arrows) {
    const TextPattern pattern("^\\s*#\\s*include\\s*<(" + beginning + "[^>]+)>");
    std::set<std::string> rooms;
    const fs::path root = fs::path(PLOT3D_SOURCE_DIR) / tree;
    for (const auto& entry : fs::recursive_directory_iterator(root))
        if (isSource(entry.path()) && !includesLike(entry.path(), pattern).empty())
            rooms.insert(roomOf(fs::relative(entry.path(), root).generic_string(), arrows));
    return rooms;
}

// The library stands on the host; a program alone may stand on both.
TEST(Arrows, OfTheHostNeverReachTheLibrary) {
    EXPECT_EQ(roomsIncluding("plot3d/", "host", hostArrows), std::set<std::string>());
}

TEST(Arrows, OfTheWindowsGoOneWay) {
    expectNoForbiddenInclude("desktop", desktopArrows(), true);
}

// The header of the parser costs the compiler seconds wherever it is included.
TEST(Arrows, OfProgramAndToolsReachTheParserOfTheCommandLineThroughTheConsole) {
    EXPECT_EQ(roomsIncluding("CLI/", "program", programArrows), std::set<std::string>());
    EXPECT_EQ(roomsIncluding("CLI/", "tools", toolArrows), std::set<std::string>());
}

TEST(Arrows, OfTheLibraryGoOneWay) {
    expectNoForbiddenInclude("library", libraryArrows());
}

TEST(Arrows, OfTheToolsNeverReachTheReader) {
    expectNoForbiddenInclude("tools", toolArrows);
}

TEST(Arrows, OfTheConsoleGoOneWay) {
    expectNoForbiddenInclude("console", consoleArrows, true);
}

TEST(Arrows, OfTheAnalysisGoOneWay) {
    expectNoForbiddenInclude("analysis", analysisArrows, true);
}

TEST(Arrows, OfTheProgramGoOneWay) {
    expectNoForbiddenInclude("program", programArrows);
}

TEST(Arrows, OfTheSceneGoOneWay) {
    expectNoForbiddenInclude("scene", sceneArrows);
}

// Whoever includes a header of VTK needs VTK to be built.
TEST(Arrows, OfTheSceneReachVtkFromStageAndPictureAlone) {
    for (const char* room : {"view", "colours", "surfaces", "content", "annotation"})
        for (const auto& entry :
             fs::directory_iterator(fs::path(PLOT3D_SOURCE_DIR) / "scene" / room)) {
            std::ifstream in(entry.path());
            for (std::string line; std::getline(in, line);)
                EXPECT_NE(line.rfind("#include <vtk", 0), 0U) << entry.path() << ": " << line;
        }
}

bool beginsWithOneOf(const std::string& text, const std::vector<std::string>& beginnings) {
    for (const std::string& beginning : beginnings)
        if (text.rfind(beginning, 0) == 0)
            return true;
    return false;
}

/// Includes of the folder that begin with none of `allowed`.
std::vector<std::string> includesBeyond(const char* folder,
                                        const std::vector<std::string>& allowed) {
    std::vector<std::string> beyond;
    for (const auto& entry : fs::directory_iterator(fs::path(PLOT3D_SOURCE_DIR) / folder))
        if (isSource(entry.path()))
            for (const std::string& include : quotedIncludes(entry.path()))
                if (!beginsWithOneOf(include, allowed))
                    beyond.push_back(entry.path().filename().string() + " includes " + include);
    return beyond;
}

TEST(Arrows, OfTheConsoleGoNowhere) {
    EXPECT_EQ(includesBeyond("console", {"console/"}), std::vector<std::string>());
}

// What a load should make of its files is worked out without the add-on, the rules without the host
// as well.
TEST(Arrows, OfTheModelOfSessionsNeverReachTheAddOn) {
    EXPECT_EQ(includesBeyond("tests/sessions",
                             {"sessions/", "plot3dwriter/", "session/", "app/macro/", "support/"}),
              std::vector<std::string>());
    EXPECT_EQ(includesBeyond("tests/sessions/rules",
                             {"sessions/rules/", "sessions/Command.h", "sessions/ExpectedDataSet.h",
                              "sessions/FileModel.h"}),
              std::vector<std::string>());
}

} // namespace
