#include "app/Console.h"

#include <sstream>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

class Console : public testing::Test {
protected:
    std::ostringstream out;
    std::ostringstream err;
    Console_s terminal{out, err, 50};
    Console_s file{out, err, 0};
};

TEST_F(Console, ProgressIsDrawnInPlaceAndCleared) {
    ProgressLine progress(terminal);
    progress.show(0.25, "Examining");
    progress.clear();
    EXPECT_EQ("\r\x1b[K[######..................]  25% Examining\r\x1b[K", err.str());
}

TEST_F(Console, ProgressIsNotDrawnWithoutATerminal) {
    ProgressLine progress(file);
    progress.show(0.5, "Examining");
    progress.clear();
    EXPECT_EQ("", err.str());
}

TEST_F(Console, ProgressIsCutToTheWidthOfTheTerminal) {
    ProgressLine progress(terminal);
    progress.show(1, "a text of more columns than there are left here");
    EXPECT_EQ("\r\x1b[K[########################] 100% a text of more co", err.str());
}

TEST_F(Console, ProgressLineEndsWithItsOwner) {
    { ProgressLine(terminal).show(0, "x"); }
    EXPECT_EQ("\r\x1b[K[........................]   0% x\r\x1b[K", err.str());
}

TEST_F(Console, ManyStepsAreDrawnFewTimes) {
    ProgressLine progress(terminal);
    for (int step = 0; step < 1000; ++step)
        progress.show(step / 1000.0, "x");
    EXPECT_LT(err.str().size(), 40U * 50U);
}

TEST_F(Console, ErrorOfSeveralLinesIsIndented) {
    tellError(err, "Not readable.\nFile: a.q");
    EXPECT_EQ("quorhost: error: Not readable.\n    File: a.q\n", err.str());
}

TEST_F(Console, EmptyLinesAndTabsOfAnErrorAreLeftOut) {
    tellError(err, "Unknown:\n\t\n\t*.bin\n");
    EXPECT_EQ("quorhost: error: Unknown:\n     *.bin\n", err.str());
}

TEST_F(Console, AnswersAreTold) {
    tellMessage(err, {MessageKind_e::Question, "Replace?", true});
    tellMessage(err, {MessageKind_e::Question, "Replace?", false});
    EXPECT_EQ("quorhost: question: Replace?\n    answered OK or Yes\n"
              "quorhost: question: Replace?\n    answered Cancel or No; --yes answers OK or Yes\n",
              err.str());
}

TEST_F(Console, InformationIsNoError) {
    tellMessage(err, {MessageKind_e::Information, "By the way.", std::nullopt});
    EXPECT_EQ("quorhost: By the way.\n", err.str());
}

} // namespace
} // namespace quorvia::host
