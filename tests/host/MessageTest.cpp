// Messages, questions and file dialogs.
#include "HostFixture.h"

namespace quorvia::host {
namespace {

using MessageTest = HostTest;

TEST_F(MessageTest, ErrorsAreShown) {
    QuorUtilDialogErrMsg("broken");
    ASSERT_EQ(host().log().messages.size(), 1U);
    EXPECT_EQ(host().log().messages[0].kind, MessageKind_e::Error);
    EXPECT_EQ(host().log().messages[0].text, "broken");
    EXPECT_EQ(host().log().messages[0].answer, std::nullopt);
}

TEST_F(MessageTest, InformationIsAlwaysAcknowledged) {
    EXPECT_TRUE(QuorUtilDialogMessageBox("for you", QuorMessageBox_Information));
    EXPECT_EQ(host().log().messages[0].kind, MessageKind_e::Information);
    EXPECT_EQ(host().log().messages[0].answer, std::nullopt);
}

TEST_F(MessageTest, QuestionsTakeTheAnswersInOrderThenTheLater) {
    host().setAnswers({true, false}, true);
    EXPECT_TRUE(QuorUtilDialogMessageBox("first", QuorMessageBox_OkCancel));
    EXPECT_FALSE(QuorUtilDialogMessageBox("second", QuorMessageBox_YesNo));
    EXPECT_TRUE(QuorUtilDialogMessageBox("third", QuorMessageBox_YesNo));
    EXPECT_EQ(host().log().messages[1].kind, MessageKind_e::Question);
    EXPECT_EQ(host().log().messages[1].answer, std::optional(false));
}

TEST_F(MessageTest, QuestionsAreRefusedUnlessToldOtherwise) {
    EXPECT_FALSE(QuorUtilDialogMessageBox("sure?", QuorMessageBox_OkCancel));
}

TEST_F(MessageTest, OtherBoxesDoNotExist) {
    EXPECT_FALSE(QuorUtilDialogMessageBox("what", 5));
    expectViolations({"QuorUtilDialogMessageBox: text is null, or there is no box of kind 5"});
}

TEST_F(MessageTest, LastErrorTellsWhatFailed) {
    createDataSet({"X"});
    EXPECT_FALSE(QuorUtilDataSetAddZoneX(zoneArguments(2, 0, 5).get()));
    QuorUtilPostLastErrorMessage();
    EXPECT_EQ(host().log().messages[0].text,
              "QuorUtilDataSetAddZoneX: JMax is 0; a zone needs at least 1");
}

TEST_F(MessageTest, ObserverSeesEachMessageAnswered) {
    Texts seen;
    host().settings().messageObserver = [&](const Message_s& message) {
        seen.push_back(message.text + (message.answer.value_or(false) ? " yes" : " no"));
    };
    host().setAnswers({true}, false);
    QuorUtilDialogMessageBox("sure?", QuorMessageBox_YesNo);
    EXPECT_EQ(seen, Texts{"sure? yes"});
}

TEST_F(MessageTest, FileDialogGivesWhatTheUserPicks) {
    host().setFileChoices({{"/data/wing.x"}, {"/data/a.q", "/data/b.q"}});
    HostString name;
    EXPECT_TRUE(QuorUtilDialogGetFileName(0, name.outArgument(), "Grid", nullptr, "*.x"));
    EXPECT_EQ(name.view(), "/data/wing.x");
    HostStringList names;
    EXPECT_TRUE(QuorUtilDialogGetFileNames(1, names.outArgument(), "Solution", nullptr, "*.q"));
    EXPECT_EQ(QuorUtilStringListGetCount(names.get()), 2);
}

TEST_F(MessageTest, FileDialogIsCancelledWithoutAChoice) {
    HostString name;
    EXPECT_FALSE(QuorUtilDialogGetFileName(0, name.outArgument(), "Grid", nullptr, "*.x"));
    EXPECT_FALSE(static_cast<bool>(name));
}

TEST_F(MessageTest, HelpIsOpenedAtItsTarget) {
    QuorUtilHelp("data-loading.html", false, 0);
    EXPECT_EQ(host().log().helpTargets, Texts{"data-loading.html"});
}

} // namespace
} // namespace quorvia::host
