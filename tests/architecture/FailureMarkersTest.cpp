// A result that tells of failure may not be ignored, and its comment says whether the user has been
// told: "False (told): ...", "Null (not told): ...". Who calls must know, since a failure is told
// once.
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

struct Function_s {
    std::string name;
    std::string comment; // in one line
    bool mayNotBeIgnored = false;
    std::string type; // of the result
};

/// The functions that a header declares. A comment holds up to the next empty line or comment.
class HeaderReader {
public:
    explicit HeaderReader(std::istream& header) {
        for (std::string line; std::getline(header, line);)
            take(line);
    }

    const std::vector<Function_s>& functions() const { return functions_; }
    const Texts& comments() const { return comments_; }

private:
    void take(const std::string& line) {
        static const TextPattern commentLine("^\\s*//+ ?(.*)$");
        if (const Match match = commentLine.matchOfWhole(line); !match.empty())
            addToComment(match[1]);
        else if (line.empty())
            comments_.emplace_back();
        else
            takeCode(line);
    }

    void addToComment(const std::string& text) {
        if (comments_.empty() || hasCodeBelow_)
            comments_.emplace_back();
        hasCodeBelow_ = false;
        comments_.back() += (comments_.back().empty() ? "" : " ") + text;
    }

    void takeCode(const std::string& line) {
        static const TextPattern declaration(
            "^\\s*(\\[\\[nodiscard\\]\\] )?(?:(?:static|virtual|constexpr|inline) )*"
            "(?!return |else |using |new )((?:const )?[\\w:]+(?:<[^()]*>)?[*&]?) "
            "(operator\\(\\)|\\w+)\\(");
        hasCodeBelow_ = true;
        if (const Match match = declaration.firstMatch(line); !match.empty())
            functions_.push_back({match[3], comments_.empty() ? std::string() : comments_.back(),
                                  !match[1].empty(), match[2]});
    }

    std::vector<Function_s> functions_;
    Texts comments_;
    bool hasCodeBelow_ = false;
};

bool hasMarker(const Function_s& function) {
    static const TextPattern marker("(False|Null|Empty) \\((not )?told\\):");
    return marker.fitsPart(function.comment);
}

/// Its name says that the answer is no failure.
bool isQuestion(const Function_s& function) {
    static const TextPattern question(
        "operator\\(\\)|matches|(is|are|has|had|was|may|can|joins|fits|begins|belongs)[A-Z]\\w*");
    return question.fitsWhole(function.name);
}

/// Its result is part of a given signature.
bool neverFails(const Function_s& function) {
    return function.comment.find("Always true.") != std::string::npos;
}

/// What is wrong with one header, function by function.
Texts faultsOf(std::istream& in) {
    static const TextPattern bareMarker("\\b(False|Null|Empty):");
    const HeaderReader header(in);
    Texts faults;
    for (const std::string& comment : header.comments())
        if (bareMarker.fitsPart(comment))
            faults.push_back("told or not? " + comment);
    for (const Function_s& function : header.functions()) {
        if (function.mayNotBeIgnored && !hasMarker(function))
            faults.push_back(function.name + " does not say whether the user is told");
        if (hasMarker(function) && !function.mayNotBeIgnored && function.type != "void")
            faults.push_back(function.name + " fails and may be ignored");
        if (function.type == "bool" && !function.mayNotBeIgnored && !isQuestion(function) &&
            !neverFails(function))
            faults.push_back(function.name + " is no question and may be ignored");
    }
    return faults;
}

Texts faultsOf(const std::string& header) {
    std::istringstream in(header);
    return faultsOf(in);
}

TEST(FailureMarkers, StandInEveryHeader) {
    Texts faults;
    int headerCount = 0;
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(PLOT3D_SOURCE_DIR) / "src")) {
        if (entry.path().extension() != ".h")
            continue;
        ++headerCount;
        std::ifstream in(entry.path());
        for (const std::string& fault : faultsOf(in))
            faults.push_back(entry.path().filename().string() + ": " + fault);
    }
    EXPECT_GT(headerCount, 80);
    EXPECT_EQ(faults, Texts());
}

TEST(FailureMarkers, AreFoundInOneLineOrTwo) {
    EXPECT_EQ(faultsOf("/// Reads. False (told): it can't.\n[[nodiscard]] bool read(int n);\n"),
              Texts());
    EXPECT_EQ(faultsOf("    /// Finds. Null (not\n    /// told): none.\n"
                       "    [[nodiscard]] static const Key_s* find(const char* word) {\n"),
              Texts());
    EXPECT_EQ(faultsOf("/// Either. False (told): no.\ntemplate <typename Work>\n"
                       "[[nodiscard]] bool run(Work work) {\n[[nodiscard]] bool go();\n"),
              Texts());
}

TEST(FailureMarkers, AreMissedWhereAResultMayNotBeIgnored) {
    const Texts silent = {"read does not say whether the user is told"};
    EXPECT_EQ(faultsOf("/// Reads.\n[[nodiscard]] bool read();\n"), silent);
    EXPECT_EQ(faultsOf("/// False (told): no.\n\n[[nodiscard]] const Key_s* read();\n"), silent);
    EXPECT_EQ(faultsOf("[[nodiscard]] HostStringList read();\n"), silent);
}

TEST(FailureMarkers, ForbidToIgnore) {
    EXPECT_EQ(faultsOf("/// Null (told): no memory.\nKey_s* make();\n"),
              Texts{"make fails and may be ignored"});
    EXPECT_EQ(faultsOf("bool read();\n"), Texts{"read is no question and may be ignored"});
    EXPECT_EQ(faultsOf("bool isOpen() const;\n"), Texts());
    EXPECT_EQ(faultsOf("    return work();\n    ErrMsg(text);\n"), Texts());
}

TEST(FailureMarkers, LeaveNoFailureOpen) {
    EXPECT_EQ(faultsOf("/// Reads. False: it can't.\nvoid read(bool& done);\n"),
              Texts{"told or not? Reads. False: it can't."});
}

} // namespace
