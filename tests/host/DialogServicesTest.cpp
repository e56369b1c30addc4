// Making dialogs and controls, writing and reading their values, and what the host blames a guest
// for.
#include "DialogFixture.h"

namespace quorvia::host {
namespace {

using DialogServicesTest = DialogTest;

TEST_F(DialogServicesTest, ControlsKeepWhatTheyWereMadeWith) {
    const std::int32_t button =
        QuorGUIButtonAdd(dialog(), 7387, 824, 2018, 144, "Remove All   ", GuestDialog::pressed);
    const Control_s& made = control(button);
    EXPECT_EQ(made.kind, ControlKind_e::Button);
    EXPECT_EQ(made.caption, "Remove All   ");
    EXPECT_EQ(made.parent, dialog());
    EXPECT_EQ(made.geometry.x, 7387);
    EXPECT_EQ(made.geometry.y, 824);
    EXPECT_EQ(made.geometry.width, 2018);
    EXPECT_EQ(made.geometry.height, 144);
    EXPECT_TRUE(made.sensitive);
}

TEST_F(DialogServicesTest, IdentifiersAreOfOneKind) {
    const std::int32_t tabs = QuorGUITabAdd(dialog(), 1, 2, 3, 4, nullptr, nullptr);
    const std::int32_t page = QuorGUITabAddPage(tabs, "Page");
    const std::int32_t label = QuorGUILabelAdd(page, 1, 2, "Label");
    EXPECT_EQ(tabs, dialog() + 1);
    EXPECT_EQ(page, dialog() + 2);
    EXPECT_EQ(label, dialog() + 3);
}

TEST_F(DialogServicesTest, ItemsOfMenusStandBetweenCommasAndThoseOfBoxesEndAtTheFirstNull) {
    const std::int32_t menu =
        QuorGUIOptionMenuAdd(dialog(), 0, 0, 9, 9, "Red,Dark Green,Blue", nullptr);
    const std::int32_t box =
        QuorGUIRadioBoxAdd(dialog(), 0, 0, 9, 9, "One", "Two", nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(control(menu).items, (Texts{"Red", "Dark Green", "Blue"}));
    EXPECT_EQ(control(box).items, (Texts{"One", "Two"}));
    EXPECT_EQ(control(menu).value, 1);
    EXPECT_EQ(control(box).value, 1);
}

TEST_F(DialogServicesTest, SettingAValueDoesNotCallTheGuest) {
    const std::int32_t toggle =
        QuorGUIToggleAdd(dialog(), 0, 0, 9, 9, "Swirl", GuestDialog::toggled);
    const std::int32_t menu =
        QuorGUIOptionMenuAdd(dialog(), 0, 0, 9, 9, "Red,Green", GuestDialog::chosen);
    QuorGUIToggleSet(toggle, 7);
    QuorGUIOptionMenuSet(menu, 2);
    EXPECT_EQ(control(toggle).value, 1);
    EXPECT_EQ(control(menu).value, 2);
    EXPECT_EQ(GuestDialog::told, Texts());
}

TEST_F(DialogServicesTest, SelectedItemsComeAsAnArrayThatIsGivenBack) {
    const std::int32_t list = QuorGUIListAdd(dialog(), 0, 0, 9, 9, true, nullptr);
    for (const char* item : {"a", "b", "c"})
        QuorGUIListAppendItem(list, item);
    launchAndPlay({SelectItems_s{list, {1, 3}}});
    std::int32_t* positions = nullptr;
    std::int32_t count = 0;
    QuorGUIListGetSelectedItems(list, &positions, &count);
    ASSERT_EQ(count, 2);
    EXPECT_EQ(positions[0], 1);
    EXPECT_EQ(positions[1], 3);
    void* array = positions;
    QuorUtilArrayDealloc(&array);
    freeLock();
    host().checkForLeaks();
}

TEST_F(DialogServicesTest, EmptiedListHasNoSelection) {
    const std::int32_t list = QuorGUIListAdd(dialog(), 0, 0, 9, 9, true, nullptr);
    QuorGUIListAppendItem(list, "a");
    launchAndPlay({SelectItems_s{list, {1}}});
    QuorGUIListDeleteAllItems(list);
    std::int32_t* positions = nullptr;
    std::int32_t count = 7;
    QuorGUIListGetSelectedItems(list, &positions, &count);
    EXPECT_EQ(positions, nullptr);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(control(list).items, Texts());
}

TEST_F(DialogServicesTest, TextOfAFieldIsACopy) {
    const std::int32_t field = QuorGUITextFieldAdd(dialog(), 0, 0, 9, 9, nullptr);
    QuorGUITextFieldSetString(field, "wing.nam");
    const HostString text(QuorGUITextFieldGetString(field));
    EXPECT_EQ(text.view(), "wing.nam");
}

class IndexFieldTest : public DialogTest {
protected:
    std::int32_t field_ = QuorGUITextFieldAdd(dialog(), 0, 0, 9, 9, nullptr);

    bool validates(const char* text) {
        QuorGUITextFieldSetString(field_, text);
        return QuorGUITextFieldValidateLgIndex(field_, "I-Start", 1, 2147483647, false);
    }
    std::optional<std::int64_t> read() {
        std::int64_t value = 0;
        return QuorGUITextFieldGetLgIndex(field_, &value) ? std::optional(value) : std::nullopt;
    }
};

TEST_F(IndexFieldTest, ShowsAndReadsANumber) {
    QuorGUITextFieldSetLgIndex(field_, 2147483648, false);
    EXPECT_EQ(control(field_).text, "2147483648");
    EXPECT_EQ(read(), 2147483648);
}

TEST_F(IndexFieldTest, TakesWholeNumbersWithinTheBounds) {
    EXPECT_TRUE(validates(" 17 "));
    EXPECT_EQ(read(), 17);
    EXPECT_TRUE(validates("2147483647"));
}

TEST_F(IndexFieldTest, TellsWhatIsNoIndexAndNamesTheField) {
    for (const char* text : {"abc", "0", "-3", "2147483648", "1.5", "", "Last", "7 8"}) {
        host().clearLog();
        EXPECT_FALSE(validates(text));
        ASSERT_EQ(host().log().messages.size(), 1U);
        EXPECT_EQ(host().log().messages[0].text,
                  "I-Start: \"" + std::string(text) +
                      "\" is not a whole number from 1 to 2147483647.");
    }
}

TEST_F(IndexFieldTest, ShowsTheLastIndexAsAWord) {
    QuorGUITextFieldSetLgIndex(field_, 0, true);
    EXPECT_EQ(control(field_).text, "Last");
    EXPECT_EQ(read(), 0);
}

TEST_F(IndexFieldTest, FieldThatHasShownTheLastIndexTakesItBack) {
    QuorGUITextFieldSetLgIndex(field_, 0, true);
    for (const char* text : {"last", "LAST", "0", "", "  "}) {
        EXPECT_TRUE(validates(text)) << text;
        EXPECT_EQ(read(), 0) << text;
    }
    EXPECT_FALSE(validates("lasting"));
    QuorGUITextFieldSetLgIndex(field_, 0, false);
    EXPECT_EQ(control(field_).text, "Last");
}

class SetFieldTest : public DialogTest {
protected:
    std::int32_t field_ = QuorGUITextFieldAdd(dialog(), 0, 0, 9, 9, nullptr);

    /// The members in the form in which fields show them; nothing if the text is refused.
    std::optional<std::string> read(const char* text) {
        QuorGUITextFieldSetString(field_, text);
        HostSet set;
        QuorSetHandle handle = nullptr;
        if (!QuorGUITextFieldGetSet(field_, &handle))
            return std::nullopt;
        set = HostSet(handle);
        QuorGUITextFieldSetSet(field_, set.get(), false);
        return control(field_).text;
    }
};

TEST_F(SetFieldTest, ReadsAndShowsRanges) {
    EXPECT_EQ(read("1-5,7,12"), "1-5,7,12");
    EXPECT_EQ(read(" 12 , 7, 1 - 5 "), "1-5,7,12");
    EXPECT_EQ(read("3 4 5"), "3-5");
    EXPECT_EQ(read("1-9:4"), "1,5,9");
    EXPECT_EQ(read(""), "");
}

TEST_F(SetFieldTest, RefusesWhatIsNoSet) {
    for (const char* text : {"x", "0", "5-3", "1-", "1,-2", "1;2", "1-9:0", "99999999999"}) {
        host().clearLog();
        EXPECT_EQ(read(text), std::nullopt) << text;
        ASSERT_EQ(host().log().messages.size(), 1U) << text;
        EXPECT_EQ(host().log().messages[0].text,
                  '"' + std::string(text) +
                      "\" is not a set of whole numbers from 1, such as 1-5,7,12.");
    }
}

TEST_F(SetFieldTest, RefusesASetThatWouldFillTheMemory) {
    EXPECT_EQ(read("1-2000000000"), std::nullopt);
    EXPECT_EQ(host().log().messages[0].text, "\"1-2000000000\" names more than 1000000 numbers.");
}

TEST_F(SetFieldTest, SetThatIsThereGetsNewMembers) {
    HostSet set = setOf({1, 2});
    QuorSetHandle handle = set.get();
    QuorGUITextFieldSetString(field_, "8");
    EXPECT_TRUE(QuorGUITextFieldGetSet(field_, &handle));
    EXPECT_EQ(handle, set.get());
    EXPECT_TRUE(QuorUtilSetIsMember(set.get(), 8));
    EXPECT_EQ(QuorUtilSetGetMemberCount(set.get()), 1);
}

TEST_F(SetFieldTest, NullSetShowsNothing) {
    QuorGUITextFieldSetString(field_, "7");
    QuorGUITextFieldSetSet(field_, nullptr, false);
    EXPECT_EQ(control(field_).text, "");
}

using DialogContractTest = DialogTest;

TEST_F(DialogContractTest, ThingsThatAreNotThereAreViolations) {
    constexpr std::int32_t stranger = 1000000;
    EXPECT_EQ(QuorGUILabelAdd(stranger, 0, 0, "Label"), QuorGUIId_None);
    EXPECT_EQ(QuorGUITabAdd(stranger, 0, 0, 9, 9, nullptr, nullptr), QuorGUIId_None);
    EXPECT_EQ(QuorGUITabAddPage(dialog(), "Page"), QuorGUIId_None);
    QuorGUIDialogLaunch(stranger);
    QuorGUIToggleSet(stranger, 1);
    QuorGUISetInputFocus(QuorGUIId_None);
    expectViolations({"QuorGUILabelAdd: there is no dialog or page 1000000",
                      "QuorGUITabAdd: there is no dialog 1000000",
                      "QuorGUITabAddPage: there is no tab control " + std::to_string(dialog()),
                      "QuorGUIDialogLaunch: there is no dialog 1000000",
                      "QuorGUIToggleSet: there is no control 1000000",
                      "QuorGUISetInputFocus: there is no control -2"});
}

TEST_F(DialogContractTest, ControlsOfAnotherKindAreViolations) {
    const std::int32_t label = QuorGUILabelAdd(dialog(), 0, 0, "Label");
    const std::string number = std::to_string(label);
    QuorGUIToggleSet(label, 1);
    QuorGUIListAppendItem(label, "item");
    EXPECT_EQ(QuorGUITextFieldGetString(label), nullptr);
    QuorGUIRadioBoxSetToggle(label, 1);
    QuorGUIOptionMenuSet(label, 1);
    expectViolations({"QuorGUIToggleSet: control " + number + " is no toggle",
                      "QuorGUIListAppendItem: control " + number + " is no list",
                      "QuorGUITextFieldGetString: control " + number + " is no textField",
                      "QuorGUIRadioBoxSetToggle: control " + number + " is no radioBox",
                      "QuorGUIOptionMenuSet: control " + number + " is no optionMenu"});
}

TEST_F(DialogContractTest, ItemsThatAreNotThereAreViolations) {
    const std::int32_t menu = QuorGUIOptionMenuAdd(dialog(), 0, 0, 9, 9, "Red,Green", nullptr);
    QuorGUIOptionMenuSet(menu, 3);
    QuorGUIOptionMenuSet(menu, 0);
    EXPECT_EQ(control(menu).value, 1);
    expectViolations(
        {"QuorGUIOptionMenuSet: there is no item 3", "QuorGUIOptionMenuSet: there is no item 0"});
}

TEST_F(DialogContractTest, SecondTabControlAndMissingTextsAreViolations) {
    QuorGUITabAdd(dialog(), 0, 0, 9, 9, nullptr, nullptr);
    EXPECT_EQ(QuorGUITabAdd(dialog(), 0, 0, 9, 9, nullptr, nullptr), QuorGUIId_None);
    EXPECT_EQ(QuorGUIButtonAdd(dialog(), 0, 0, 9, 9, nullptr, nullptr), QuorGUIId_None);
    EXPECT_EQ(QuorGUIRadioBoxAdd(dialog(), 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr, nullptr,
                                 nullptr),
              QuorGUIId_None);
    expectViolations({"QuorGUITabAdd: the dialog has a tab control already",
                      "QuorGUIButtonAdd: caption is null",
                      "QuorGUIRadioBoxAdd: there are no items"});
}

TEST_F(DialogContractTest, CallsWithoutTheLockAreViolations) {
    const std::int32_t toggle = QuorGUIToggleAdd(dialog(), 0, 0, 9, 9, "Swirl", nullptr);
    freeLock();
    QuorGUIToggleSet(toggle, 1);
    expectViolations({"QuorGUIToggleSet: called without the host's lock"});
}

TEST_F(DialogContractTest, MakingFailsOnPurpose) {
    host().failCall("QuorGUIButtonAdd", 1);
    EXPECT_EQ(QuorGUIButtonAdd(dialog(), 0, 0, 9, 9, "Go", nullptr), QuorGUIId_None);
    EXPECT_EQ(model().controls.size(), 0U);
}

TEST_F(DialogContractTest, TranscriptTellsTheCalls) {
    host().recordTranscript(true);
    const std::int32_t field = QuorGUITextFieldAdd(dialog(), 1, 2, 3, 4, GuestDialog::typed);
    QuorGUITextFieldSetLgIndex(field, 7, false);
    std::int64_t value = 0;
    QuorGUITextFieldGetLgIndex(field, &value);
    const std::string id = std::to_string(field);
    EXPECT_EQ(host().log().transcript, (Texts{"QuorGUITextFieldAdd(" + std::to_string(dialog()) +
                                                  ", 1, 2, 3, 4, given) = " + id,
                                              "QuorGUITextFieldSetLgIndex(" + id + ", 7, false)",
                                              "QuorGUITextFieldGetLgIndex(" + id + ") = true, 7"}));
}

TEST_F(DialogContractTest, ValuesOutliveAResetAndDialogsAreClosedByIt) {
    const std::int32_t toggle = QuorGUIToggleAdd(dialog(), 0, 0, 9, 9, "Swirl", nullptr);
    QuorGUIToggleSet(toggle, 1);
    host().reset();
    QuorUtilLockStart(addOn());
    EXPECT_EQ(control(toggle).value, 1);
}

} // namespace
} // namespace quorvia::host
