// The nine index fields: what they refuse and in which words, what stays, and what is not loaded.
#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

const Texts rangeFields = {"I-Index Start", "I-Index End", "I-Index Skip",
                           "J-Index Start", "J-Index End", "J-Index Skip",
                           "K-Index Start", "K-Index End", "K-Index Skip"};
const Texts validationNames = {"I-Start", "I-End",   "I-Skip", "J-Start", "J-End",
                               "J-Skip",  "K-Start", "K-End",  "K-Skip"};

class RangeFields : public DialogSession {
protected:
    /// What the field shows behind the typing; `number` counts as in rangeFields, from 1.
    std::string shownIn(std::size_t number, const Actions& typing) {
        Actions actions = {toPage(subsetPage)};
        actions.insert(actions.end(), typing.begin(), typing.end());
        return nthControl(shownAfter({grid_}, actions), subsetPage, "textField", number)["value"]
            .get<std::string>();
    }
    /// One lock fewer is held after the field of the last K index, and is missing at the end.
    void expectTheLockOf(const std::string& field) {
        expectedViolations_ =
            field == "K-Index End" ? Texts{"QuorUtilLockFinish: the lock is not held"} : Texts();
    }

    const std::string grid_ = series_.grid("wing.x");
};

TEST_F(RangeFields, ShowTheFormerValueInPlaceOfOneThatIsRefused) {
    for (std::size_t field = 0; field < rangeFields.size(); ++field) {
        expectTheLockOf(rangeFields[field]);
        EXPECT_EQ(shownIn(field + 1, {type("wing", rangeFields[field])}),
                  rangeFields[field].find("End") == std::string::npos ? "1" : "Last");
        EXPECT_EQ(messages(described("shown")),
                  Texts{validationNames[field] +
                        ": \"wing\" is not a whole number from 1 to 2147483647."});
    }
}

TEST_F(RangeFields, RefuseWhatIsNoIndex) {
    for (const char* text : {"0", "-1", "2147483648", "1.5", ""})
        EXPECT_EQ(shownIn(1, {type("3", "I-Index Start"), type(text, "I-Index Start")}), "3")
            << text;
}

// With a skip of 7 it would make a zone of points that nobody has read.
TEST_F(RangeFields, RangeTurnedRoundIsNotLoaded) {
    for (const std::string direction : {"I", "J", "K"})
        for (const char* skip : {"1", "7"}) {
            expectTheLockOf(direction + "-Index End");
            const Texts told = {direction +
                                "-Range Error: end must be greater than or equal to start."};
            playAtDialog({grid_}, {toPage(subsetPage), type("10", direction + "-Index Start"),
                                   type(skip, direction + "-Index Skip"),
                                   type("5", direction + "-Index End"), describe("typed"),
                                   press("OK"), describe("back")});
            EXPECT_EQ(messages(described("typed")), told);
            EXPECT_EQ(messages(described("back")), told);
            EXPECT_EQ(described("back")["dialog"]["open"], true);
            EXPECT_EQ(last()["instructions"], Json::array()) << last()["instructions"];
            EXPECT_TRUE(last()["dataSet"].isNull());
        }
}

TEST_F(RangeFields, RangeTurnedRoundLeavesTheDataSetAndCanBeMended) {
    Commands commands = {select({grid_}), describe("before"),
                         command("answers", Json::array({true, true}))};
    for (const Json& each :
         atDialog({grid_}, {toPage(subsetPage), type("3", "J-Index Start"),
                            type("2", "J-Index End"), press("OK"), describe("refused"),
                            toPage(subsetPage), type("2", "J-Index Start"), press("OK")}))
        commands.push_back(each);
    play(commands);
    EXPECT_TRUE(dataSet(described("refused")) == dataSet(described("before")));
    EXPECT_EQ(last()["ok"], true);
    EXPECT_EQ(last()["dataSet"]["zones"][0]["j"], 1);
}

TEST_F(RangeFields, LastIndexCanBeHadBack) {
    for (const char* text : {"Last", "last", "0", ""})
        EXPECT_EQ(shownIn(2, {type("7", "I-Index End"), type(text, "I-Index End"),
                              toPage(structurePage), toPage(subsetPage)}),
                  "Last")
            << text;
}

} // namespace
} // namespace quorvia::testsupport
