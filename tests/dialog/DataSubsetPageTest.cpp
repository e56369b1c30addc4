// The third page: the nine fields of the index ranges, and the set of grids.
#include <algorithm>

#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

class SubsetPage : public LoadDialogTest {
protected:
    /// Opens the dialog, brings the page to the front, and goes on.
    void openHere(Script script) {
        script.insert(script.begin(), show(dataSubsetPage));
        open(std::move(script));
    }
    static void refresh() {
        const HostLock lock(addOnID);
        refreshDialogPage(dataSubsetPage, gLoadOptions);
    }
    static Texts textsOf(const std::vector<std::int32_t>& fields) {
        Texts texts;
        for (const std::int32_t field : fields)
            texts.push_back(text(field));
        return texts;
    }
    static Texts rangeTexts() {
        return textsOf({iStartField, iEndField, iSkipField, jStartField, jEndField, jSkipField,
                        kStartField, kEndField, kSkipField});
    }
};

TEST_F(SubsetPage, ShowsEachNumberInItsField) {
    gLoadOptions.iRange = {2, 13, 3};
    gLoadOptions.jRange = {5, 17, 7};
    gLoadOptions.kRange = {11, 19, 23};
    refresh();
    EXPECT_EQ(rangeTexts(), (Texts{"2", "13", "3", "5", "17", "7", "11", "19", "23"}));
}

TEST_F(SubsetPage, ZeroIsTheLastIndexInTheEndFieldsAlone) {
    host().recordTranscript(true);
    refresh();
    std::vector<std::int32_t> withLast;
    for (const std::int32_t field : {iStartField, iEndField, iSkipField, jStartField, jEndField,
                                     jSkipField, kStartField, kEndField, kSkipField})
        for (const std::string& call : host().log().transcript)
            if (call.find("QuorGUITextFieldSetLgIndex(" + std::to_string(field) + ", ") == 0 &&
                call.find(", true)") != std::string::npos)
                withLast.push_back(field);
    EXPECT_EQ(withLast, (std::vector<std::int32_t>{iEndField, jEndField, kEndField}));
    EXPECT_EQ(host().callCount("QuorGUITextFieldSetLgIndex"), 9);
}

TEST_F(SubsetPage, AllFieldsStayUsableForPlaneData) {
    gLoadOptions.autoDetect = false;
    gLoadOptions.dataStructure = Plot3DDataStructure_2D;
    refresh();
    for (const Control_s& control : dialog().controls)
        EXPECT_TRUE(control.parent != dataSubsetPage || control.sensitive) << control.geometry.y;
    openHere({type(kStartField, "3")});
    EXPECT_EQ(gLoadOptions.kRange.start, 3);
}

TEST_F(SubsetPage, SetOfGridsIsShown) {
    const HostLock lock(addOnID);
    gLoadOptions.gridSet = QuorUtilSetAlloc(true);
    for (const std::int64_t grid : {2, 3, 5, 6, 7, 11})
        QuorUtilSetAddMember(gLoadOptions.gridSet, grid, true);
    refresh();
    EXPECT_EQ(text(gridSetField), "2-3,5-7,11");
}

TEST_F(SubsetPage, TypedSetOfGridsIsBuiltAndKept) {
    openHere({type(gridSetField, "1-5,7,12")});
    ASSERT_NE(gLoadOptions.gridSet, nullptr);
    const HostLock lock(addOnID);
    EXPECT_EQ(QuorUtilSetGetMemberCount(gLoadOptions.gridSet), 7);
    EXPECT_TRUE(QuorUtilSetIsMember(gLoadOptions.gridSet, 12));
}

TEST_F(SubsetPage, SecondSetOfGridsTakesThePlaceOfTheFirst) {
    openHere({type(gridSetField, "1-5"), type(gridSetField, "7")});
    const HostLock lock(addOnID);
    EXPECT_EQ(QuorUtilSetGetMemberCount(gLoadOptions.gridSet), 1);
    EXPECT_TRUE(QuorUtilSetIsMember(gLoadOptions.gridSet, 7));
}

TEST_F(SubsetPage, SetOfGridsCanBeEmptied) {
    openHere({type(gridSetField, "2"), type(gridSetField, ""), show(fileSelectionPage),
              show(dataSubsetPage), meanwhile([] { EXPECT_EQ(text(gridSetField), ""); })});
}

TEST_F(SubsetPage, RefusedSetOfGridsLeavesTheFormerOne) {
    const auto typed = std::get<QuorGUITextCallback>(control(gridSetField).callback);
    bool stands = true;
    openHere({type(gridSetField, "7"), meanwhile([&] {
                  QuorGUITextFieldSetString(gridSetField, "wing");
                  stands = typed("wing");
              })});
    EXPECT_FALSE(stands);
    EXPECT_EQ(messages(),
              Texts{"\"wing\" is not a set of whole numbers from 1, such as 1-5,7,12."});
    const HostLock lock(addOnID);
    EXPECT_TRUE(QuorUtilSetIsMember(gLoadOptions.gridSet, 7));
}

TEST_F(SubsetPage, SetOfGridsThatTheHostCannotMakeIsNoSet) {
    host().failCall("QuorGUITextFieldGetSet", 1);
    openHere({type(gridSetField, "7")});
    EXPECT_EQ(gLoadOptions.gridSet, nullptr);
}

TEST_F(SubsetPage, SetOfGridsComesBackAtTheNextLaunch) {
    openHere({type(gridSetField, "2,3,5"), pressCancel()});
    openHere({show(fileSelectionPage), show(dataSubsetPage),
              meanwhile([] { EXPECT_EQ(text(gridSetField), "2-3,5"); })});
}

TEST_F(SubsetPage, LeftInFrontShowsAtTheNextLaunchWhatTheHostHasMadeOfIt) {
    openHere({type(gridSetField, "2,3,5"), pressCancel()});
    host().sendStateChange(15);
    EXPECT_EQ(gLoadOptions.gridSet, nullptr);
    open({meanwhile([] { EXPECT_EQ(text(gridSetField), ""); })});
}

// ---- The nine fields, which run the same steps --------------------------------------------------

constexpr auto iRange = &Plot3DLoadOptions_s::iRange;
constexpr auto jRange = &Plot3DLoadOptions_s::jRange;
constexpr auto kRange = &Plot3DLoadOptions_s::kRange;
constexpr auto start = &Plot3DIndexRange_s::start;
constexpr auto end = &Plot3DIndexRange_s::end;
constexpr auto skip = &Plot3DIndexRange_s::skip;

struct FieldRow_s {
    const char* name;      // as the toolkit is told
    const char* rangeName; // as the user is told; null if no comparison is made
    const std::int32_t& field;
    Plot3DIndexRange_s Plot3DLoadOptions_s::*range;
    std::int32_t Plot3DIndexRange_s::*member;
};

const std::vector<FieldRow_s> fieldRows = {{"I-Start", "I-Range", iStartField, iRange, start},
                                           {"I-End", "I-Range", iEndField, iRange, end},
                                           {"I-Skip", nullptr, iSkipField, iRange, skip},
                                           {"J-Start", "J-Range", jStartField, jRange, start},
                                           {"J-End", "J-Range", jEndField, jRange, end},
                                           {"J-Skip", nullptr, jSkipField, jRange, skip},
                                           {"K-Start", "K-Range", kStartField, kRange, start},
                                           {"K-End", "K-Range", kEndField, kRange, end},
                                           {"K-Skip", nullptr, kSkipField, kRange, skip}};

std::string nameOfRow(const ::testing::TestParamInfo<FieldRow_s>& row) {
    return std::string(row.param.name, 1) + std::string(row.param.name).substr(2);
}

/// Calls the fields as the host does, with a lock to spare for the one that finishes one too many.
class RangeField : public SubsetPage, public ::testing::WithParamInterface<FieldRow_s> {
protected:
    void SetUp() override {
        SubsetPage::SetUp();
        QuorUtilLockStart(addOnID);
        QuorUtilLockStart(addOnID);
        refreshDialogPage(dataSubsetPage, gLoadOptions);
        host().clearFaults();
    }
    void TearDown() override {
        while (host().lockDepth() > 0)
            QuorUtilLockFinish(addOnID);
        SubsetPage::TearDown();
    }

    static std::int32_t field() { return GetParam().field; }
    static Plot3DIndexRange_s& range() { return gLoadOptions.*GetParam().range; }
    static std::int32_t& stored() { return range().*GetParam().member; }

    /// Whether the field says that the input stands.
    static bool typed(const std::string& input) {
        QuorGUITextFieldSetString(field(), input.c_str());
        return std::get<QuorGUITextCallback>(control(field()).callback)(input.c_str());
    }
};

TEST_P(RangeField, StoresWhatIsTypedInItsPlaceAlone) {
    EXPECT_TRUE(typed("17"));
    Plot3DLoadOptions_s expected;
    setLoadOptionDefaults(expected);
    expected.*GetParam().range.*GetParam().member = 17;
    for (const auto direction : {iRange, jRange, kRange})
        for (const auto member : {start, end, skip})
            EXPECT_EQ(gLoadOptions.*direction.*member, expected.*direction.*member);
    EXPECT_EQ(messages(), Texts());
}

TEST_P(RangeField, AsksTheToolkitByItsNameFromOneToTheLargestIndex) {
    host().recordTranscript(true);
    typed("17");
    const std::string asked = "QuorGUITextFieldValidateLgIndex(" + std::to_string(field()) +
                              ", \"" + GetParam().name + "\", 1, 2147483647, false) = true";
    const Texts& calls = host().log().transcript;
    EXPECT_NE(std::find(calls.begin(), calls.end(), asked), calls.end());
}

TEST_P(RangeField, RefusedInputIsReplacedByTheFormerValue) {
    stored() = 13;
    for (const char* input : {"wing", "-2", "2147483648"}) {
        host().clearLog();
        EXPECT_FALSE(typed(input));
        EXPECT_EQ(stored(), 13);
        EXPECT_EQ(text(field()), "13");
        EXPECT_EQ(messages(), Texts{std::string(GetParam().name) + ": \"" + input +
                                    "\" is not a whole number from 1 to 2147483647."});
        QuorUtilLockStart(addOnID); // in place of the one that an end field may have taken
    }
}

TEST_P(RangeField, ValueThatCannotBeReadIsReplacedByTheFormerOne) {
    stored() = 13;
    for (const char* operation :
         {"QuorGUITextFieldValidateLgIndex", "QuorGUITextFieldGetLgIndex"}) {
        host().failCall(operation, 1);
        EXPECT_FALSE(typed("17")) << operation;
        EXPECT_EQ(stored(), 13) << operation;
        EXPECT_EQ(text(field()), "13") << operation;
        QuorUtilLockStart(addOnID); // in place of the one that an end field may have taken
        host().clearFaults();
    }
}

TEST_P(RangeField, FormerValueIsShownAsAPlainNumber) {
    host().recordTranscript(true);
    typed("wing");
    const std::string shown = "QuorGUITextFieldSetLgIndex(" + std::to_string(field()) + ", " +
                              std::to_string(stored()) + ", false)";
    const Texts& calls = host().log().transcript;
    EXPECT_NE(std::find(calls.begin(), calls.end(), shown), calls.end());
}

TEST_P(RangeField, LargestIndexStands) {
    range().*end = 0;
    EXPECT_TRUE(typed("2147483647"));
    EXPECT_EQ(stored(), 2147483647);
}

TEST_P(RangeField, TakesOneLockAndGivesItBackButForTheLastEnd) {
    const std::int64_t before = host().lockDepth();
    const std::int64_t after = field() == kEndField ? before - 1 : before;
    typed("17");
    EXPECT_EQ(host().lockDepth(), after);
    QuorUtilLockStart(addOnID);
    const std::int64_t beforeRefused = host().lockDepth();
    typed("wing");
    EXPECT_EQ(host().lockDepth(), field() == kEndField ? beforeRefused - 1 : beforeRefused);
}

INSTANTIATE_TEST_SUITE_P(EachField, RangeField, ::testing::ValuesIn(fieldRows), nameOfRow);

class SkipField : public RangeField {};

TEST_P(SkipField, TakesAnyIndexWhateverTheRange) {
    range().*start = 10;
    range().*end = 5;
    EXPECT_TRUE(typed("7"));
    EXPECT_EQ(messages(), Texts());
}

INSTANTIATE_TEST_SUITE_P(EachSkip, SkipField,
                         ::testing::Values(fieldRows[2], fieldRows[5], fieldRows[8]), nameOfRow);

class StartOrEndField : public RangeField {
protected:
    static Texts complaint() {
        return {std::string(GetParam().rangeName) +
                " Error: end must be greater than or equal to start."};
    }
};

TEST_P(StartOrEndField, ThatTurnsTheRangeRoundIsToldAndKeepsTheRefusedValue) {
    const bool isStart = GetParam().member == start;
    range() = {10, 20, 1};
    const std::int32_t refused = isStart ? 21 : 9;
    EXPECT_FALSE(typed(std::to_string(refused)));
    EXPECT_EQ(messages(), complaint());
    EXPECT_EQ(stored(), refused);
    EXPECT_EQ(text(field()), std::to_string(refused));
}

TEST_P(StartOrEndField, MayMakeARangeOfOneIndex) {
    range() = {10, 20, 1};
    EXPECT_TRUE(typed(GetParam().member == start ? "20" : "10"));
    EXPECT_EQ(messages(), Texts());
}

INSTANTIATE_TEST_SUITE_P(EachStartAndEnd, StartOrEndField,
                         ::testing::Values(fieldRows[0], fieldRows[1], fieldRows[3], fieldRows[4],
                                           fieldRows[6], fieldRows[7]),
                         nameOfRow);

TEST_F(SubsetPage, StartMayPassAnEndThatIsTheLastIndex) {
    openHere({type(iStartField, "1000000")});
    EXPECT_EQ(gLoadOptions.iRange.start, 1000000);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(SubsetPage, BothEndsOfARangeCanBeMovedPastEachOther) {
    gLoadOptions.jRange = {2, 5, 1};
    openHere({type(jStartField, "7"), type(jEndField, "11")});
    EXPECT_EQ(messages().size(), 1u) << "of the start, while the end was still behind it";
    EXPECT_EQ(gLoadOptions.jRange.start, 7);
    EXPECT_EQ(gLoadOptions.jRange.end, 11);
}

TEST_F(SubsetPage, LastEndBehavesLikeTheOthersButItsLockGoesOneDown) {
    openHere({type(kStartField, "10"), meanwhile([] { EXPECT_EQ(host().lockDepth(), 2); }),
              type(kEndField, "5"), meanwhile([] { EXPECT_EQ(host().lockDepth(), 1); })});
    EXPECT_EQ(messages(), Texts{"K-Range Error: end must be greater than or equal to start."});
    EXPECT_EQ(gLoadOptions.kRange.end, 5);
    EXPECT_EQ(text(kEndField), "5");
    EXPECT_EQ(host().log().violations, Texts{"QuorUtilLockFinish: the lock is not held"});
    host().clearLog();
}

} // namespace
} // namespace quorvia::quorutildataio
