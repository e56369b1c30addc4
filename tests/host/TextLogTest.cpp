#include "state/TextLog.h"

#include <gtest/gtest.h>

#include "HostFixture.h"

namespace quorvia::host {
namespace {

TextLog logOf(const Texts& texts) {
    TextLog log;
    for (const std::string& text : texts)
        log.add(text);
    return log;
}

TEST(TextLog, GivesTextsBackAsTheyCame) {
    const Texts texts = {"Zone=001, Var=001 of a.x",
                         "Zone=001, Var=002 of a.x",
                         "Zone=001, Var=002 of a.x",
                         "",
                         "another",
                         "Zone=999",
                         "Zone=1000"};
    EXPECT_EQ(logOf(texts).texts(), texts);
    EXPECT_EQ(logOf(texts).count(), 7U);
}

TEST(TextLog, BeginningAndEndThatOverlapAreTakenOnce) {
    const Texts texts = {"aaa", "aa", "aaaaa", "a", "", "aba", "ababa", "aba"};
    EXPECT_EQ(logOf(texts).texts(), texts);
}

TEST(TextLog, TakesLongTextsAndAnyBytes) {
    const Texts texts = {std::string(127, 'x'), std::string(128, 'x') + '\xff',
                         std::string(40000, '\x80'), std::string(40000, '\x80') + '\0'};
    EXPECT_EQ(logOf(texts).texts(), texts);
}

TEST(TextLog, CopyGoesItsOwnWay) {
    TextLog log = logOf({"Step 1", "Step 2"});
    TextLog copy = log;
    copy.dropFirst(1);
    log.add("Step 3");
    copy.add("Step x");
    EXPECT_EQ(log.texts(), (Texts{"Step 1", "Step 2", "Step 3"}));
    EXPECT_EQ(copy.texts(), (Texts{"Step 2", "Step x"}));
    EXPECT_EQ(copy.count(), 2U);
}

} // namespace
} // namespace quorvia::host
