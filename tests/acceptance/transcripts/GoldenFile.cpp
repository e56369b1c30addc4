#include "acceptance/transcripts/GoldenFile.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace quorvia::testsupport {

using Lines = std::vector<std::string>;

namespace {

Lines readLines(const std::string& path) {
    std::ifstream file(path);
    Lines lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

bool writeLines(const std::string& path, const Lines& lines) {
    std::ofstream file(path, std::ios::trunc);
    for (const std::string& line : lines)
        file << line << '\n';
    return static_cast<bool>(file.flush());
}

bool updatesGoldenFiles() {
    const char* const wish = std::getenv("PLOT3D_UPDATE_GOLDEN");
    return wish != nullptr && std::string(wish) == "1";
}

} // namespace

::testing::AssertionResult isGolden(const std::string& name, const Lines& lines) {
    const std::string path = std::string(PLOT3D_GOLDEN_FOLDER "/") + name;
    if (updatesGoldenFiles())
        return writeLines(path, lines) ? ::testing::AssertionSuccess()
                                       : ::testing::AssertionFailure() << "cannot write " << path;
    const Lines golden = readLines(path);
    if (golden == lines)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << name << " has " << golden.size() << " lines, found " << lines.size() << ":\n"
           << differenceOf(golden, lines)
           << "If that is as it should be, './dev golden' writes the golden files anew.";
}

std::string differenceOf(const Lines& expected, const Lines& found) {
    const auto [lastEqual, unused] =
        std::mismatch(expected.begin(), expected.end(), found.begin(), found.end());
    const auto start = lastEqual - expected.begin();
    auto expectedEnd = static_cast<std::ptrdiff_t>(expected.size());
    auto foundEnd = static_cast<std::ptrdiff_t>(found.size());
    const auto line = [](const Lines& lines, std::ptrdiff_t at) -> const std::string& {
        return lines[static_cast<std::size_t>(at)];
    };
    while (expectedEnd > start && foundEnd > start &&
           line(expected, expectedEnd - 1) == line(found, foundEnd - 1)) {
        --expectedEnd;
        --foundEnd;
    }
    std::string text;
    if (start > 0)
        text += "  " + std::to_string(start) + ": " + line(expected, start - 1) + '\n';
    for (std::ptrdiff_t at = start; at < expectedEnd; ++at)
        text += "- " + line(expected, at) + '\n';
    for (std::ptrdiff_t at = start; at < foundEnd; ++at)
        text += "+ " + line(found, at) + '\n';
    if (expectedEnd < static_cast<std::ptrdiff_t>(expected.size()))
        text += "  " + std::to_string(expectedEnd + 1) + ": " + line(expected, expectedEnd) + '\n';
    return text;
}

} // namespace quorvia::testsupport
