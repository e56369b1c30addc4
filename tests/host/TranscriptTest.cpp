// The calls of a guest in words.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

using TranscriptTest = HostTest;

TEST_F(TranscriptTest, IsEmptyUntilItIsSwitchedOn) {
    const HostSet set = setOf({2});
    EXPECT_TRUE(host().log().transcript.empty());
}

TEST_F(TranscriptTest, TellsArgumentsAndResults) {
    host().recordTranscript(true);
    HostSet set(QuorUtilSetAlloc(true));
    QuorUtilSetAddMember(set.get(), 7, true);
    QuorUtilSetGetNextMember(set.get(), 0);
    QuorUtilSetIsEmpty(nullptr);
    set.reset();
    host().recordTranscript(false);
    EXPECT_EQ(
        host().log().transcript,
        (Texts{"QuorUtilSetAlloc(true) = set#1", "QuorUtilSetAddMember(set#1, 7, true) = true",
               "QuorUtilSetGetNextMember(set#1, 0) = 7", "QuorUtilSetIsEmpty(null) = true",
               "QuorUtilSetDealloc(set#1)"}));
}

TEST_F(TranscriptTest, TellsTextsAndWhatComesThroughOutArguments) {
    createDataSet({"V2 "});
    host().recordTranscript(true);
    HostString name;
    QuorUtilVarGetName(1, name.outArgument());
    QuorUtilDialogErrMsg("say \"no\"\nFile: a\\b");
    QuorUtilZoneGetNumByUniqueID(99);
    QuorUtilDataSetGetInfo(nullptr, nullptr, nullptr);
    host().recordTranscript(false);
    EXPECT_EQ(
        host().log().transcript,
        (Texts{"QuorUtilVarGetName(1) = true, \"V2 \"",
               "QuorUtilDialogErrMsg(\"say \\\"no\\\"\\nFile: a\\\\b\")",
               "QuorUtilZoneGetNumByUniqueID(99) = 0", "QuorUtilDataSetGetInfo() = true, 0, 1"}));
}

TEST_F(TranscriptTest, TellsTheTypesOfANewZone) {
    createDataSet({"X", "Y"});
    const std::int32_t types[] = {1, 3};
    const HostArgList arguments = zoneArguments(2, 3, 5);
    QuorUtilArgListAppendArray(arguments.get(), "VarDataType", types);
    host().recordTranscript(true);
    QuorUtilDataSetAddZoneX(arguments.get());
    host().recordTranscript(false);
    EXPECT_EQ(host().log().transcript,
              Texts{"QuorUtilDataSetAddZoneX(args#1) = VarDataType [1, 3], true"});
}

TEST_F(TranscriptTest, PutsCallbacksBelowTheCallThatCausedThem) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    FakeSource_s first;
    FakeSource_s second;
    first.registerAt(1, 1);
    host().recordTranscript(true);
    second.registerAt(1, 1);
    host().recordTranscript(false);
    EXPECT_EQ(host().log().transcript, (Texts{"QuorUtilDataValueCustomLOD(1, 1) = true",
                                              "QuorUtilDataValueGetClientData(field#1) = given"}));
    host().frame().reset();
}

TEST_F(TranscriptTest, NumbersBlocksAnewWhenAddressesComeAgain) {
    host().recordTranscript(true);
    { const HostString first = HostString::copyOf("a"); }
    { const HostString second = HostString::copyOf("b"); }
    host().recordTranscript(false);
    EXPECT_EQ(host().log().transcript, (Texts{"QuorUtilStringAlloc(2, \"new string\") = block#1",
                                              "QuorUtilStringDealloc(block#1)",
                                              "QuorUtilStringAlloc(2, \"new string\") = block#2",
                                              "QuorUtilStringDealloc(block#2)"}));
}

TEST_F(TranscriptTest, TellsProgress) {
    host().recordTranscript(true);
    {
        const std::unique_ptr<TaskProgress> bar = createTaskProgressBar(2);
        std::unique_ptr<TaskProgress> subTask;
        bar->createSubTask(subTask, 5);
        subTask->setStepCount(3);
        subTask->stepWithMessage("on");
    }
    host().recordTranscript(false);
    EXPECT_EQ(
        host().log().transcript,
        (Texts{"createTaskProgressBar(2) = task#1",
               "TaskProgress::createSubTask(task#1, 5) = task#2",
               "TaskProgress::setStepCount(task#2, 3)",
               "TaskProgress::stepWithMessage(task#2, \"on\") = true",
               "TaskProgress::~TaskProgress(task#2)", "TaskProgress::~TaskProgress(task#1)"}));
}

TEST_F(TranscriptTest, TwoRunsGiveTheSameLines) {
    const auto run = [] {
        host().recordTranscript(true);
        const HostSet set = setOf({2, 3});
        const HostStringList list(QuorUtilStringListAlloc());
        host().recordTranscript(false);
        return host().log().transcript;
    };
    EXPECT_EQ(run(), run());
}

} // namespace
} // namespace quorvia::host
