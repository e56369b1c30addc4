#include <plot3d/Error.h>

#include <utility>

namespace plot3d {

namespace {

std::string lineOf(const std::string& message, const ErrorFacts& facts) {
    std::string line = facts.file.empty() ? message : facts.file + ": " + message;
    if (facts.expected.empty() && facts.found.empty())
        return line;
    line += " (";
    if (!facts.expected.empty())
        line += "expected " + facts.expected + (facts.found.empty() ? "" : ", ");
    if (!facts.found.empty())
        line += "found " + facts.found;
    return line + ")";
}

} // namespace

Error::Error(ErrorKind kind, std::string message, ErrorFacts facts)
    : kind_(kind), message_(std::move(message)), facts_(std::move(facts)),
      line_(lineOf(message_, facts_)) {}

} // namespace plot3d
