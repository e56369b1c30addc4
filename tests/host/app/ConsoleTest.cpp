#include "app/Console.h"

#include <sstream>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

class Console : public testing::Test {
protected:
    std::ostringstream err;
};

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
