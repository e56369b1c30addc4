// A test of the instruction parser: lists in, options and messages out.
#pragma once

#include <string>
#include <vector>

#include "instructions/InstructionParser.h"
#include "support/HostedTest.h"

namespace quorvia::testsupport {

class ParserTest : public GuestTest {
protected:
    inline static const std::string noFiles =
        "Must have at least one grid, solution or function file.";
    inline static const std::string rangeNotAllowed =
        "Error: Not allowed to use -KSet when data is not 3d whole";
    /// What is shown of a word without its option.
    static std::string missingOption(const std::string& word) {
        return "Error in PLOT3D loader instructions.\nExpecting option for: " + word;
    }

    void TearDown() override {
        quorutildataio::releaseLoadOptions(options_);
        GuestTest::TearDown();
    }

    bool parse(const Texts& instructions) {
        quorutildataio::releaseLoadOptions(options_);
        host().clearLog();
        return quorutildataio::parseLoadInstructions(listOf(instructions).get(), options_);
    }

    /// The standard syntax, a grid file, and `more`.
    bool parseStandard(const Texts& more) {
        Texts all = {"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "a.x"};
        all.insert(all.end(), more.begin(), more.end());
        return parse(all);
    }

    /// All that is shown while a list is refused, line by line as "|" where there are several.
    std::string faultOf(const Texts& more) {
        EXPECT_FALSE(parseStandard(more));
        std::string all;
        for (const std::string& text : messages())
            all += (all.empty() ? "" : "|") + text;
        return all;
    }

    quorutildataio::Plot3DLoadOptions_s options_ = defaults();

    static quorutildataio::Plot3DLoadOptions_s defaults() {
        quorutildataio::Plot3DLoadOptions_s options;
        quorutildataio::setLoadOptionDefaults(options);
        return options;
    }
};

} // namespace quorvia::testsupport
