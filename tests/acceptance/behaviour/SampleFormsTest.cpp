// Every data set that `plot3d-sample` writes comes in as what it is, in whatever form it stands on
// disk; but for those that it has noted to pass for something else.
#include <algorithm>
#include <cmath>
#include <sstream>

#include <gtest/gtest.h>

#include "acceptance/behaviour/QuorhostRun.h"
#include "support/Json.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using Texts = std::vector<std::string>;

Texts wordsOf(const std::string& line) {
    std::istringstream stream(line);
    Texts words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// Text holds fewer digits, and its precision is an option of the load.
bool isNear(const Json& a, const Json& b) {
    const double x = a.get<double>();
    const double y = b.get<double>();
    return std::abs(x - y) <= 1e-4 * std::max({1.0, std::abs(x), std::abs(y)});
}

bool isSameField(const Json& a, const Json& b) {
    return a["count"] == b["count"] && isNear(a["min"], b["min"]) && isNear(a["max"], b["max"]) &&
           isNear(a["mean"], b["mean"]);
}

bool isSameZone(const Json& a, const Json& b) {
    return a["type"] == b["type"] && a["i"] == b["i"] && a["j"] == b["j"] && a["k"] == b["k"] &&
           std::equal(a["fields"].begin(), a["fields"].end(), b["fields"].begin(),
                      b["fields"].end(), isSameField);
}

bool isSameDataSet(const Json& a, const Json& b) {
    return !a.isNull() && !b.isNull() && a["variables"] == b["variables"] &&
           std::equal(a["zones"].begin(), a["zones"].end(), b["zones"].begin(), b["zones"].end(),
                      isSameZone);
}

class SampleForms : public ::testing::TestWithParam<const char*> {
protected:
    struct Loaded_s {
        bool isWritten = false; // the options fit the case
        bool isNoted = false;
        Json dataSet;
    };

    /// Writes the case with more options and loads all of its files as picked.
    Loaded_s load(const std::string& options) const {
        const TemporaryDirectory directory;
        Texts command = wordsOf(GetParam());
        command.insert(command.begin() + 1, directory.path().string());
        command.insert(command.begin(), PLOT3D_SAMPLE_PROGRAM);
        for (const std::string& word : wordsOf(options))
            command.push_back(word);
        const ProgramResult_s written = runProgram(command);
        if (written.exitCode != 0)
            return {};
        Texts files;
        std::istringstream lines(written.out);
        for (std::string line; std::getline(lines, line);)
            files.push_back(directory.file(line.substr(0, line.find(' '))));
        std::sort(files.begin(), files.end());
        files.insert(files.begin(), {QUORHOST_PROGRAM, "load", "--json", "-"});
        const Json outcome = Json::parse(runProgram(files).out);
        EXPECT_EQ(outcome["violations"], Json::array());
        return {true, !written.err.empty(), outcome["dataSet"]};
    }
};

TEST_P(SampleForms, ComeInAlikeUnlessNoted) {
    int compared = 0;
    for (const std::string grids : {"", " --single"}) {
        for (const std::string iblank : {"", " --iblank"}) {
            const Loaded_s records = load("--encoding fortran4" + grids + iblank);
            if (!records.isWritten)
                continue;
            ASSERT_FALSE(records.isNoted);
            ASSERT_FALSE(records.dataSet.isNull());
            for (const std::string form :
                 {"text", "binary", "binary --big-endian", "fortran4 --double",
                  "fortran8 --big-endian", "binary --double", "text --double"}) {
                if (!iblank.empty() && form.starts_with("text"))
                    continue; // whether text has I-blank is an option of the load
                const std::string options = "--encoding " + form + grids + iblank;
                const Loaded_s loaded = load(options);
                EXPECT_EQ(isSameDataSet(loaded.dataSet, records.dataSet), !loaded.isNoted)
                    << GetParam() << ' ' << options;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Of, SampleForms,
    ::testing::Values("cylinder --size 13x11x3", "vortex --size 13x11 --steps 2",
                      "shocktube --size 21 --steps 2", "ball --size 3", "overflow --size 7x5x3",
                      "functions --size 7x5x3", "vortex --size 13x11 --steps 2 --style function",
                      "vortex --size 13x11x2 --steps 1 --layout 3dplanes",
                      "vortex --size 5x7x3 --steps 2 --layout 3dwhole",
                      "cylinder --size 13x11x3 --layout 3dplanes",
                      "cylinder --size 9x7x2 --layout 3dplanes --style function",
                      "shocktube --size 21x3 --steps 2 --layout 2d",
                      "shocktube --size 21 --steps 2 --style function", "ball --size 3 --surface",
                      "ball --size 3 --style function", "overflow --size 7x5x3 --layout 3dplanes"));

} // namespace
} // namespace quorvia::testsupport
