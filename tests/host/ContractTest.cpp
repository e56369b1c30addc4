// Locks, undo states, and arguments that no guest should pass.
#include <fstream>

#include "HostFixture.h"
#include "checks/Operations.h"
#include "support/TextPattern.h"

namespace quorvia::host {
namespace {

using ContractTest = HostTest;

/// The operations that the SDK's header declares under a heading.
Texts operationsOfSection(const std::string& heading) {
    const testsupport::TextPattern declaration("^[A-Za-z].*\\b(QuorUtil\\w+)\\(.*");
    Texts names;
    bool isInside = false;
    std::ifstream header(SDK_HEADER);
    for (std::string line; std::getline(header, line);) {
        if (line.rfind("// ----", 0) == 0)
            isInside = line.rfind("// ---- " + heading + " --", 0) == 0;
        else if (const auto match = declaration.matchOfWhole(line); isInside && !match.empty())
            names.push_back(match[1]);
    }
    return names;
}

TEST_F(ContractTest, LocksNest) {
    QuorUtilLockStart(addOn());
    EXPECT_EQ(host().lockDepth(), 2);
    QuorUtilLockFinish(addOn());
    EXPECT_EQ(host().lockDepth(), 1);
}

TEST_F(ContractTest, LockThatIsNotHeldCantBeGivenBack) {
    freeLock();
    QuorUtilLockFinish(addOn());
    QuorUtilLockOff();
    EXPECT_EQ(host().lockDepth(), 0);
    expectViolations(
        {"QuorUtilLockFinish: the lock is not held", "QuorUtilLockOff: the lock is not held"});
}

TEST_F(ContractTest, FrameIsNotTouchedWithoutTheLock) {
    freeLock();
    QuorUtilRedraw(true);
    EXPECT_EQ(host().log().redraws, 1);
    expectViolations({"QuorUtilRedraw: called without the host's lock"});
}

TEST_F(ContractTest, VersionErrorsListsAndMemoryNeedNoLock) {
    freeLock();
    EXPECT_EQ(QuorUtilGetQuorviaVersion(), 1000377);
    QuorUtilDialogErrMsg("seen");
    const HostString text = HostString::copyOf("text");
    const HostSet set = setOf({7});
    EXPECT_TRUE(host().log().violations.empty());
}

TEST_F(ContractTest, WhatThisHostAsksOfMemoryListsAndSetsIsWhatTheSdkSays) {
    const std::vector<std::string> exempt = operationsOfSection("Memory, strings, lists, sets");
    EXPECT_EQ(exempt.size(), 27U);
    for (const std::string& name : exempt)
        EXPECT_EQ(OperationId::at(findOperation(name).value()).traits().lock, LockNeed_e::None)
            << name;
}

TEST_F(ContractTest, ZonesFieldsAndVariablesNeedTheLock) {
    const Texts names = operationsOfSection("Zones and variables");
    EXPECT_FALSE(names.empty());
    for (const std::string& name : names)
        EXPECT_EQ(OperationId::at(findOperation(name).value()).traits().lock, LockNeed_e::Held)
            << name;
}

TEST_F(ContractTest, UndoStateEndsOnce) {
    QuorUtilUndoStateBegin(9);
    QuorUtilUndoStateEnd(false, true);
    QuorUtilUndoStateEnd(false, false);
    ASSERT_EQ(host().log().undo.size(), 2U);
    EXPECT_EQ(host().log().undo[0].category, 9);
    EXPECT_EQ(host().log().undo[1].success, std::optional(true));
    expectViolations({"QuorUtilUndoStateEnd: no undo state was begun"});
}

TEST_F(ContractTest, UndoNeverInvalidates) {
    QuorUtilUndoStateBegin(9);
    QuorUtilUndoStateEnd(true, true);
    expectViolations({"QuorUtilUndoStateEnd: the first argument is always false"});
}

TEST_F(ContractTest, RegistrationWordIsHundred) {
    EXPECT_EQ(QuorUtilAddOnRegister(99, "Guest", "1", "Tests"), nullptr);
    expectViolations({"QuorUtilAddOnRegister: bad registration word, or a text is null"});
}

TEST_F(ContractTest, PlotTypesAreThoseOfTheHost) {
    QuorUtilFrameSetPlotType(QuorPlotType_Polar);
    QuorUtilFrameSetPlotType(6);
    EXPECT_EQ(QuorUtilFrameGetPlotType(), QuorPlotType_Polar);
    expectViolations({"QuorUtilFrameSetPlotType: there is no plot type 6"});
}

TEST_F(ContractTest, OtherFramesCantBeReset) {
    createDataSet({"X"});
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID() + 1);
    EXPECT_TRUE(QuorUtilDataSetIsAvailable());
    expectViolations({"QuorUtilFrameReset: there is no frame 2"});
}

TEST_F(ContractTest, ResetFrameHasNoDataSetAndNoPlotType) {
    createDataSet({"X"});
    QuorUtilFrameSetPlotType(QuorPlotType_2D);
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
    EXPECT_FALSE(QuorUtilDataSetIsAvailable());
    EXPECT_EQ(QuorUtilFrameGetPlotType(), QuorPlotType_None);
}

TEST_F(ContractTest, VersionIsWhatTheHostClaims) {
    host().settings().version = 1000376;
    EXPECT_EQ(QuorUtilGetQuorviaVersion(), 1000376);
}

TEST_F(ContractTest, StateChangesAreKeptWithTheirMembers) {
    QuorUtilStateChanged(QuorStateChange_ZonesAdded, setOf({5, 2, 3}).get());
    ASSERT_EQ(host().log().stateChanges.size(), 1U);
    EXPECT_EQ(host().log().stateChanges[0].code, 3);
    EXPECT_EQ(host().log().stateChanges[0].members, (std::vector<std::int64_t>{2, 3, 5}));
}

std::int32_t gLastStateChange = -1;
void noteStateChange(std::int32_t code) {
    gLastStateChange = code;
}

TEST_F(ContractTest, StateChangesReachTheCallbacks) {
    QuorUtilStateChangeAddCallback(noteStateChange);
    host().sendStateChange(15);
    EXPECT_EQ(gLastStateChange, 15);
    QuorUtilStateChanged(QuorStateChange_VarsAdded, setOf({2}).get());
    EXPECT_EQ(gLastStateChange, 1);
}

TEST_F(ContractTest, GuestTellsOnlyItsOwnStateChanges) {
    QuorUtilStateChanged(15, setOf({}).get());
    QuorUtilStateChanged(QuorStateChange_VarsAltered, nullptr);
    expectViolations({"QuorUtilStateChanged: an add-on does not tell code 15",
                      "QuorUtilStateChanged: set is null"});
}

TEST_F(ContractTest, KeyStandsOnceInAnArgumentList) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    EXPECT_TRUE(QuorUtilArgListAppendInt(arguments.get(), "IMax", 2));
    EXPECT_FALSE(QuorUtilArgListAppendDouble(arguments.get(), "IMax", 3.0));
    QuorUtilArgListClear(arguments.get());
    EXPECT_TRUE(QuorUtilArgListAppendDouble(arguments.get(), "IMax", 3.0));
    expectViolations({"QuorUtilArgListAppendDouble: the key \"IMax\" stands in the list already"});
}

TEST_F(ContractTest, NullArgumentsAreBlamed) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    const HostStringList list(QuorUtilStringListAlloc());
    EXPECT_FALSE(QuorUtilArgListAppendString(arguments.get(), "Name", nullptr));
    EXPECT_FALSE(QuorUtilArgListAppendArray(arguments.get(), "VarDataType", nullptr));
    EXPECT_FALSE(QuorUtilArgListAppendInt(arguments.get(), nullptr, 1));
    EXPECT_FALSE(QuorUtilStringListAppendString(list.get(), nullptr));
    QuorUtilDialogErrMsg(nullptr);
    expectViolations(
        {"QuorUtilArgListAppendString: text is null", "QuorUtilArgListAppendArray: array is null",
         "QuorUtilArgListAppendInt: key is null", "QuorUtilStringListAppendString: text is null",
         "QuorUtilDialogErrMsg: text is null"});
}

TEST_F(ContractTest, LoaderNeedsAllItsKeys) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "LoaderName", "Guest Loader");
    EXPECT_FALSE(QuorUtilImportAddLoaderX(arguments.get()));
    expectViolations({"QuorUtilImportAddLoaderX: key \"FileNameExtensions\" is missing"});
}

} // namespace
} // namespace quorvia::host
