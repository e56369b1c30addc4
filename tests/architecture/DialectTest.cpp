// One dialect in all rooms: a struct is a record and ends in _s, an enumeration ends in _e, and no
// constant begins with k. What isn't a record is declared as a class.
#include <filesystem>
#include <fstream>
#include <istream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TextPattern.h"

namespace {

namespace fs = std::filesystem;

using quorvia::testsupport::Match;
using quorvia::testsupport::TextPattern;

using Texts = std::vector<std::string>;

/// The folders that are held to it, as far as they are there. The contract in sdk/ has names of its
/// own.
const char* const heldFolders[] = {"src",        "host",    "tools",  "tests",
                                   "benchmarks", "library", "scene",  "desktop",
                                   "analysis",   "program", "console"};

/// The users of the library expect plain names of types.
const char* const folderOfPlainTypes = "library/include";

enum class Types_e { Suffixed, Plain };

/// Whether a line could break a rule at all. Few do, and an expression takes its time.
bool isWorthALook(const std::string& line) {
    for (const char* word : {"struct ", "class ", "enum "})
        if (line.find(word) != std::string::npos)
            return true;
    for (std::size_t at = line.find('k'); at != line.npos && at + 1 < line.size();
         at = line.find('k', at + 1))
        if (line[at + 1] >= 'A' && line[at + 1] <= 'Z')
            return true;
    return false;
}

/// One line without its literals and its comment.
std::string codeOf(const std::string& line) {
    static const TextPattern literal("\"(?:\\\\.|[^\"\\\\])*\"|'(?:\\\\.|[^'\\\\])'");
    static const TextPattern comment("//.*");
    return comment.replaced(literal.replaced(line, "\"\""), "");
}

/// Empty if the line defines or announces no type, or one whose name is right.
std::string typeFault(const std::string& code) {
    static const TextPattern type(
        "^\\s*(?:template <.*> )?(struct|class|enum)(?: class| struct)? "
        "(?:alignas\\(.*\\) )?(\\w+)(?: final)?(?: : [^;]*)?(;| \\{.*)?$");
    const Match match = type.matchOfWhole(code);
    if (match.empty())
        return "";
    const std::string name = match[2];
    const std::string wanted = match[1] == "struct" ? "_s" : match[1] == "enum" ? "_e" : "";
    const bool isSuffixed = name.ends_with("_s") || name.ends_with("_e");
    const bool isRight = wanted.empty() ? !isSuffixed : name.ends_with(wanted);
    return isRight ? "" : match[1] + " " + name;
}

/// The names that begin with k, but for those of the direction K and of the library of benchmarks.
Texts namesWithK(const std::string& code) {
    static const TextPattern name("(benchmark::)?\\b(k[A-Z]\\w*)");
    static const TextPattern direction("k(Range|Start|End|Skip|Max)(Field|Seen)?");
    Texts names;
    for (const Match& match : name.allMatches(code))
        if (match[1].empty() && !direction.fitsWhole(match[2]))
            names.push_back(match[2]);
    return names;
}

Texts nameFaultsOf(std::istream& source, Types_e types) {
    Texts faults;
    for (std::string line; std::getline(source, line);) {
        if (!isWorthALook(line))
            continue;
        const std::string code = codeOf(line);
        if (const std::string fault = typeFault(code); types == Types_e::Suffixed && !fault.empty())
            faults.push_back(fault);
        for (const std::string& name : namesWithK(code))
            faults.push_back(name);
    }
    return faults;
}

Texts nameFaultsOf(const std::string& source, Types_e types = Types_e::Suffixed) {
    std::istringstream in(source);
    return nameFaultsOf(in, types);
}

std::vector<fs::path> sourcesIn(const fs::path& folder) {
    std::vector<fs::path> sources;
    if (!fs::exists(folder))
        return sources;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp")
            sources.push_back(entry.path());
    return sources;
}

TEST(Dialect, IsSpokenInEverySource) {
    const fs::path root = PLOT3D_SOURCE_DIR;
    Texts faults;
    std::size_t sourceCount = 0;
    for (const char* folder : heldFolders)
        for (const fs::path& source : sourcesIn(root / folder)) {
            ++sourceCount;
            const std::string name = source.lexically_relative(root).generic_string();
            const bool isPlain = name.starts_with(folderOfPlainTypes);
            std::ifstream in(source);
            for (const std::string& fault :
                 nameFaultsOf(in, isPlain ? Types_e::Plain : Types_e::Suffixed))
                faults.push_back(name + ": " + fault);
        }
    EXPECT_GT(sourceCount, 400);
    EXPECT_EQ(faults, Texts());
}

TEST(Dialect, EndsRecordsInS) {
    EXPECT_EQ(nameFaultsOf("struct Grid_s {\n    struct Point_s;\n"), Texts());
    EXPECT_EQ(nameFaultsOf("struct Grid {\n"), Texts{"struct Grid"});
    EXPECT_EQ(nameFaultsOf("struct Grid;\n"), Texts{"struct Grid"});
    EXPECT_EQ(nameFaultsOf("    struct alignas(16) Grid final : public Base {\n"),
              Texts{"struct Grid"});
    EXPECT_EQ(nameFaultsOf("template <typename T> struct Grid { T t; };\n"), Texts{"struct Grid"});
}

TEST(Dialect, EndsEnumerationsInE) {
    EXPECT_EQ(nameFaultsOf("enum class Kind_e { Small };\nenum Kind_e : int {\n"), Texts());
    EXPECT_EQ(nameFaultsOf("enum class Kind { Small };\n"), Texts{"enum Kind"});
    EXPECT_EQ(nameFaultsOf("enum Kind : std::int32_t {\n"), Texts{"enum Kind"});
}

TEST(Dialect, HasPlainNamesOfClasses) {
    EXPECT_EQ(nameFaultsOf("class Reader : public Base {\nstruct stat* status = nullptr;\n"),
              Texts());
    EXPECT_EQ(nameFaultsOf("class Reader_s {\n"), Texts{"class Reader_s"});
}

TEST(Dialect, HasConstantsWithoutK) {
    EXPECT_EQ(nameFaultsOf("constexpr int most = 3, kMax = 5; // not kMost\nsay(\"kMost\");\n"),
              Texts());
    EXPECT_EQ(nameFaultsOf("constexpr int kMost = 3;\n"), Texts{"kMost"});
    EXPECT_EQ(nameFaultsOf("enum Id_e { kRangeIsWrong };\n"), Texts{"kRangeIsWrong"});
    EXPECT_EQ(nameFaultsOf("->Unit(benchmark::kMillisecond)\n"), Texts());
}

TEST(Dialect, LeavesTypesPlainWhereTheyAreToBe) {
    EXPECT_EQ(nameFaultsOf("struct Grid {\n", Types_e::Plain), Texts());
    EXPECT_EQ(nameFaultsOf("const int kMost = 3;\n", Types_e::Plain), Texts{"kMost"});
}

} // namespace
