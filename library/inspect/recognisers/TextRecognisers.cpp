// Text whose lines are not as PLOT3D has them.
#include <algorithm>
#include <array>
#include <cctype>

#include "inspect/evidence/HeaderGuess.h"
#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t lookedAtOfText = 4096;
constexpr std::size_t mostShown = 40;

std::string firstLine(Evidence_s& evidence) {
    const std::string_view head = evidence.file.head(lookedAtOfText);
    return std::string(head.substr(0, head.find_first_of("\r\n")));
}

bool isBlank(std::string_view line) {
    return line.find_first_not_of(" \t,") == std::string_view::npos;
}

/// The integers of a line; empty if anything else stands there.
std::vector<std::int64_t> integersOf(const std::string& line) {
    std::vector<std::int64_t> integers;
    TextTokens tokens;
    bool isPlain = true;
    const auto taker = [&](const Token_s& token) {
        isPlain = isPlain && token.kind == TokenKind_e::Integer && token.valueCount == 1;
        if (isPlain)
            integers.push_back(std::stoll(std::string(token.text)));
    };
    tokens.take(line, 0, taker);
    tokens.finish(std::ssize(line), taker);
    return isPlain ? integers : std::vector<std::int64_t>();
}

FoundProblem onFirstLine(FoundProblem problem) {
    problem->misfit.byte = 0;
    problem->misfit.line = 1;
    return problem;
}

FoundProblem recogniseLeadingBlankLine(Evidence_s& evidence) {
    if (!isBlank(firstLine(evidence)))
        return std::nullopt;
    return onFirstLine(problemOf(
        "The file begins with a blank line: a count of grids must stand on the first one.",
        "a count of grids, or a size", "a blank line",
        editCommand("/[^[:space:]]/,$!d", evidence.file.name())));
}

FoundProblem recogniseRemark(Evidence_s& evidence) {
    const std::string line = firstLine(evidence);
    const auto isLetter = [](unsigned char c) { return std::isalpha(c) != 0; };
    const auto letters = std::count_if(line.begin(), line.end(), isLetter);
    if (letters < 2 || integersOf(line).size() > 0)
        return std::nullopt;
    return onFirstLine(problemOf("The first line is a remark, which PLOT3D does not know.",
                                 "a count of grids, or a size", line.substr(0, mostShown),
                                 editCommand("1d", evidence.file.name())));
}

/// Whether the values behind a count and sizes are whole variables, with or without scalars.
bool hasDataOfGrids(const HeaderGuess_s& guess) {
    const std::int64_t points = pointsOf(guess);
    if (!guess.isMultiGrid || points < 1)
        return false;
    for (const std::int64_t scalars : {0, 4, 5}) {
        const std::int64_t values = guess.dataSize - scalars * std::ssize(guess.grids);
        if (values > points && values % points == 0)
            return true;
    }
    return false;
}

FoundProblem recogniseCountOnLineOfSizes(Evidence_s& evidence) {
    const std::vector<std::int64_t> integers = integersOf(firstLine(evidence));
    if (integers.size() < 3 || evidence.reading)
        return std::nullopt;
    const std::vector<HeaderGuess_s> guesses = guessHeaders(evidence);
    if (std::none_of(guesses.begin(), guesses.end(), hasDataOfGrids))
        return std::nullopt;
    return onFirstLine(problemOf(
        "The count of grids stands on one line with their sizes.", "a line of its own",
        counted(std::ssize(integers), "integer") + " on the first line",
        editCommand("1s/^[[:space:],]*([0-9]+)[[:space:],]+/\\1\\n/", evidence.file.name())));
}

FoundProblem recogniseFaultyToken(Evidence_s& evidence) {
    if (evidence.text->faults().empty())
        return std::nullopt;
    return faultyTokenProblem(evidence, evidence.text->faults().front());
}

constexpr std::array<Recogniser, 4> textTable = {recogniseLeadingBlankLine, recogniseRemark,
                                                 recogniseCountOnLineOfSizes, recogniseFaultyToken};

} // namespace

plot3d::FileProblem faultyTokenProblem(Evidence_s& evidence, const FaultyToken_s& fault) {
    const LineAndColumn_s place = evidence.text->lineOf(fault.position);
    FoundProblem problem =
        problemOf(fault.kind == TokenKind_e::TooBig
                      ? "An integer of more than 32 bits comes in as another number."
                      : "What stands where a number should is none.",
                  "a number", fault.text,
                  {"sed", "-n", std::to_string(place.line) + "p", evidence.file.name()});
    problem->misfit.byte = fault.position;
    problem->misfit.line = place.line;
    problem->misfit.column = place.column;
    return *problem;
}

std::span<const Recogniser> textRecognisers() {
    return textTable;
}

} // namespace plot3dlib
