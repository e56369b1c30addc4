// What the host does about what it has no memory for: nothing gets lost without a word, and nobody
// is blamed for it.
#include <new>

#include "HostFixture.h"
#include "quorvia/QuorGUI.h"
#include "session/AddOnLibrary.h"
#include "support/AllocationFaults.h"

namespace quorvia::host {
namespace {

using testsupport::FaultSpan_e;

constexpr const char* longText = "a text for which every copy needs memory of its own";

class NoMemory : public HostTest {
protected:
    NoMemory() { testsupport::countCAllocations(); }

    /// Every allocation fails while `work` is done.
    template <typename Work>
    static void withoutMemory(Work work) {
        testsupport::failAllocation(1, FaultSpan_e::FromThenOn);
        work();
        testsupport::endAllocationFaults();
    }
    static const std::vector<Message_s>& messages() { return host().log().messages; }
};

TEST_F(NoMemory, MessageIsShownAllTheSame) {
    withoutMemory([] { QuorUtilDialogErrMsg(longText); });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(messages()[0].text, longText);
}

TEST_F(NoMemory, MessagesThatCantBeKeptWholeAreTold) {
    withoutMemory([] {
        QuorUtilDialogErrMsg(longText);
        QuorUtilDialogErrMsg(longText);
    });
    ASSERT_EQ(messages().size(), 3U);
    EXPECT_EQ(messages()[1].text, std::string(longText).substr(0, messages()[1].text.size()));
    EXPECT_EQ(messages()[2].text,
              "The host had no memory to keep or to show all that happened (1 times).");
}

TEST_F(NoMemory, MessagesWithoutAPlaceAreShownAndTold) {
    class Reader : public ScriptedUser {
    public:
        int readCount = 0;
        void read(const std::string&, bool) override { ++readCount; }
    } reader;
    host().setUser(&reader);
    withoutMemory([] {
        for (int message = 0; message < 20; ++message)
            QuorUtilDialogErrMsg("short");
    });
    EXPECT_EQ(reader.readCount, 20);
    EXPECT_EQ(messages().back().text,
              "The host had no memory to keep or to show all that happened (12 times).");
}

TEST_F(NoMemory, QuestionIsNotAskedAndNotAnsweredWithYes) {
    host().setAnswers({true, true}, false);
    withoutMemory([] { EXPECT_FALSE(QuorUtilDialogMessageBox(longText, QuorMessageBox_YesNo)); });
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(QuorUtilDialogMessageBox(longText, QuorMessageBox_YesNo));
}

// A guest takes a choice that does not come for a Cancel: a script that went on would play the rest
// without the files.
TEST_F(NoMemory, ChoiceOfFilesThatIsLostEndsTheScript) {
    host().script().addToScript({FileChoice{longText, longText}, ScriptLook([] {})});
    QuorStringListHandle chosen = nullptr;
    withoutMemory(
        [&] { EXPECT_FALSE(QuorUtilDialogGetFileNames(1, &chosen, "Solution", nullptr, "*.q")); });
    EXPECT_EQ(host().script().problem(), "no memory");
    EXPECT_EQ(host().script().entriesLeft(), 0U);
}

TEST_F(NoMemory, BreachOfTheContractIsToldLater) {
    withoutMemory([] { QuorUtilZoneGetType(7); });
    expectViolations({"violations that could not be kept for want of memory: 1"});
}

TEST_F(NoMemory, TranscriptSaysWhatItLacks) {
    host().recordTranscript(true);
    withoutMemory([] { QuorUtilSetIsEmpty(nullptr); });
    EXPECT_EQ(host().log().transcript, Texts{"(lines lost for want of memory: 1)"});
}

TEST_F(NoMemory, IsTheHostsLastError) {
    withoutMemory([] { EXPECT_EQ(QuorUtilSetAlloc(true), nullptr); });
    QuorUtilPostLastErrorMessage();
    EXPECT_EQ(messages()[0].text, "no memory");
}

TEST_F(NoMemory, UndoStateBeginsAndEnds) {
    withoutMemory([] {
        QuorUtilUndoStateBegin(9);
        QuorUtilUndoStateEnd(false, true);
    });
    EXPECT_EQ(host().log().undo.size(), 2U);
}

TEST_F(NoMemory, FieldThatWasNeverFetchedIsCleanedUp) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    FakeSource_s source;
    ASSERT_TRUE(source.registerAt(1, 1));
    withoutMemory([] { QuorUtilFrameReset(QuorUtilFrameGetUniqueID()); });
    EXPECT_EQ(source.cleanUpCount, 1);
}

bool loadWithoutMemory(QuorFieldHandle) {
    throw std::bad_alloc();
}

TEST_F(NoMemory, GuestsCallbackIsNotBlamedForIt) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    FakeSource_s source;
    QuorUtilDataValueCustomLOD(1, 1, loadWithoutMemory, nullptr, FakeSource_s::cleanUp, nullptr,
                               nullptr, &source);
    EXPECT_EQ(host().fetch(1, 1).error, "The values could not be read.");
    EXPECT_TRUE(host().log().violations.empty());
    host().frame().reset();
}

TEST_F(NoMemory, ImportIsEndedByTheHost) {
    freeLock();
    static const auto library = [] {
        std::string error;
        return AddOnLibrary::open(GUEST_LIBRARY, error);
    }();
    const Texts instructions = {longText};
    LoadResult_s result;
    withoutMemory([&] { result = host().importInstructions(instructions); });
    EXPECT_EQ(result.hostError, "Out of memory.");
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(host().importInstructions(instructions).ok);
}

bool typedInto(const char*) {
    return true;
}

class NoMemoryAtADialog : public NoMemory {
protected:
    NoMemoryAtADialog() {
        dialog_ = QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 5003, 2003, "Guest", nullptr,
                                           nullptr, nullptr, nullptr, nullptr);
        field_ = QuorGUITextFieldAdd(dialog_, 0, 0, 10, 10, typedInto);
        QuorGUITextFieldSetString(field_, longText);
    }
    static const Dialog_s& model() { return host().toolkit().dialogs().back(); }
    static const std::string& shownText() { return model().controls.front().text; }

    std::int32_t dialog_ = QuorGUIId_None, field_ = QuorGUIId_None;
};

TEST_F(NoMemoryAtADialog, UserLeavesAndIsToldWhy) {
    const auto type = [field = field_](const Dialog_s&) {
        return DialogMove_s{TypeText_s{field, std::string(40, 'x')}, "", false};
    };
    host().script().addToScript({DialogStep(type)});
    withoutMemory([this] { QuorGUIDialogLaunch(dialog_); });
    EXPECT_FALSE(model().open);
    EXPECT_EQ(shownText(), longText);
    EXPECT_EQ(messages()[0].text, "Out of memory.");
    EXPECT_EQ(host().script().problem(), "no memory");
}

TEST_F(NoMemoryAtADialog, RefusedIndexIsNotRefusedInSilence) {
    withoutMemory(
        [this] { EXPECT_FALSE(QuorGUITextFieldValidateLgIndex(field_, "I-Start", 1, 9, false)); });
    EXPECT_EQ(messages()[0].text, "Out of memory.");
}

TEST_F(NoMemoryAtADialog, RefusedSetIsNotRefusedInSilence) {
    QuorSetHandle set = nullptr;
    withoutMemory([&] { EXPECT_FALSE(QuorGUITextFieldGetSet(field_, &set)); });
    EXPECT_EQ(messages()[0].text, "Out of memory.");
    EXPECT_EQ(set, nullptr);
}

TEST_F(NoMemoryAtADialog, TextThatCantBeShownLeavesTheOldOne) {
    const std::string other = std::string(longText) + longText;
    withoutMemory([&] { QuorGUITextFieldSetString(field_, other.c_str()); });
    EXPECT_EQ(shownText(), longText);
}

} // namespace
} // namespace quorvia::host
