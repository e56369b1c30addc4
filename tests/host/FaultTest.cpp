// Calls that fail on purpose, and the counts of calls.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

using FaultTest = HostTest;

TEST_F(FaultTest, TheCallThatIsNamedFailsAndNoOther) {
    host().failCall("QuorUtilSetAlloc", 2);
    EXPECT_TRUE(static_cast<bool>(HostSet(QuorUtilSetAlloc(true))));
    EXPECT_FALSE(static_cast<bool>(HostSet(QuorUtilSetAlloc(true))));
    EXPECT_TRUE(static_cast<bool>(HostSet(QuorUtilSetAlloc(true))));
}

TEST_F(FaultTest, CountsFromTheTimeItWasSet) {
    const HostSet first(QuorUtilSetAlloc(true));
    host().failCall("QuorUtilSetAlloc", 1);
    EXPECT_FALSE(static_cast<bool>(HostSet(QuorUtilSetAlloc(true))));
}

TEST_F(FaultTest, SeveralCallsOfOneOperationMayFail) {
    host().failCall("QuorUtilStringAlloc", 1);
    host().failCall("QuorUtilStringAlloc", 3);
    EXPECT_FALSE(static_cast<bool>(HostString::copyOf("a")));
    EXPECT_TRUE(static_cast<bool>(HostString::copyOf("b")));
    EXPECT_FALSE(static_cast<bool>(HostString::copyOf("c")));
}

TEST_F(FaultTest, IsTheHostsLastError) {
    host().failCall("QuorUtilDataSetCreateX", 1);
    const HostArgList arguments(QuorUtilArgListAlloc());
    EXPECT_FALSE(QuorUtilDataSetCreateX(arguments.get()));
    QuorUtilPostLastErrorMessage();
    EXPECT_EQ(host().log().messages[0].text, "QuorUtilDataSetCreateX: failed on purpose");
}

TEST_F(FaultTest, OperationWithoutAWayToFailCarriesOn) {
    host().failCall("QuorUtilRedraw", 1);
    QuorUtilRedraw(true);
    EXPECT_EQ(host().log().redraws, 1);
}

TEST_F(FaultTest, UnknownOperationIsToldToTheTest) {
    EXPECT_THROW(host().failCall("QuorUtilSetAloc", 1), std::invalid_argument);
    EXPECT_THROW(host().callCount("QuorUtilSetAloc"), std::invalid_argument);
}

TEST_F(FaultTest, CallsAreCounted) {
    const HostSet set = setOf({2, 3, 5});
    EXPECT_EQ(host().callCount("QuorUtilSetAddMember"), 3);
    host().clearFaults();
    EXPECT_EQ(host().callCount("QuorUtilSetAddMember"), 0);
}

TEST_F(FaultTest, ClearedFaultsDoNotHappen) {
    host().failCall("QuorUtilSetAlloc", 1);
    host().clearFaults();
    EXPECT_TRUE(static_cast<bool>(HostSet(QuorUtilSetAlloc(true))));
}

TEST_F(FaultTest, ProgressBarFailsForWantOfMemory) {
    host().failCall("createTaskProgressBar", 1);
    EXPECT_THROW(createTaskProgressBar(2), std::bad_alloc);
}

TEST_F(FaultTest, QueriesAndOperationsWithoutResultCantFail) {
    const Texts failing = ReferenceHost::operationsThatCanFail();
    const auto canFail = [&](const char* name) {
        return std::find(failing.begin(), failing.end(), name) != failing.end();
    };
    EXPECT_TRUE(canFail("QuorUtilDataSetAddZoneX"));
    EXPECT_FALSE(canFail("QuorUtilSetIsEmpty"));
    EXPECT_FALSE(canFail("QuorUtilLockStart"));
    EXPECT_GT(ReferenceHost::operationNames().size(), failing.size());
}

// One call of each operation that can fail and gives a bool.
struct FailingCall_s {
    const char* operation;
    bool (*call)();
};

class EveryFault : public HostTest {
protected:
    EveryFault() {
        createDataSet({"X"});
        addZone(2, 3, 5);
        addZone(2, 3, 5);
        QuorUtilDataValueAlloc(1, 1);
        QuorUtilDataValueAlloc(2, 1);
    }
};

TEST_F(EveryFault, IsAFalseResultAndChangesNothing) {
    const FailingCall_s calls[] = {
        {"QuorUtilDataSetGetInfo",
         [] { return QuorUtilDataSetGetInfo(nullptr, nullptr, nullptr); }},
        {"QuorUtilDataSetAddZoneX",
         [] { return QuorUtilDataSetAddZoneX(zoneArguments(2, 3, 5).get()); }},
        {"QuorUtilZoneDelete", [] { return QuorUtilZoneDelete(setOf({1}).get()); }},
        {"QuorUtilDataSetDeleteZone", [] { return QuorUtilDataSetDeleteZone(setOf({1}).get()); }},
        {"QuorUtilDataSetDeleteVar", [] { return QuorUtilDataSetDeleteVar(setOf({1}).get()); }},
        {"QuorUtilZoneRename", [] { return QuorUtilZoneRename(1, "other"); }},
        {"QuorUtilZoneSetSolutionTime", [] { return QuorUtilZoneSetSolutionTime(1, 3.0); }},
        {"QuorUtilDataValueAlloc", [] { return QuorUtilDataValueAlloc(1, 1); }},
        {"QuorUtilDataValueIsSharingOk", [] { return QuorUtilDataValueIsSharingOk(1, 2, 1); }},
        {"QuorUtilDataValueShare", [] { return QuorUtilDataValueShare(1, 2, 1); }},
        {"QuorUtilDataValueCopy", [] { return QuorUtilDataValueCopy(1, 2, 1); }}};
    const std::shared_ptr<FieldStorage> storage = field(1, 1).storage;
    for (const auto& [operation, call] : calls) {
        host().failCall(operation, 1);
        EXPECT_FALSE(call()) << operation;
    }
    EXPECT_EQ(host().frame().dataSet()->zoneCount(), 2);
    EXPECT_EQ(host().frame().dataSet()->zone(1)->name, "zone");
    EXPECT_EQ(field(1, 1).storage, storage);
    EXPECT_NE(field(2, 1).storage, storage);
    for (const auto& [operation, call] : calls)
        EXPECT_EQ(host().callCount(operation) > 0, true) << operation;
}

TEST_F(EveryFault, IsANullResult) {
    for (const char* operation :
         {"QuorUtilStringListAlloc", "QuorUtilArgListAlloc", "QuorUtilGetBasePath",
          "QuorUtilAuxDataZoneGetRef", "QuorUtilAuxDataDataSetGetRef",
          "QuorUtilDataValueGetWritableRef", "QuorUtilDataValueGetRawPtr"})
        host().failCall(operation, 1);
    EXPECT_EQ(QuorUtilStringListAlloc(), nullptr);
    EXPECT_EQ(QuorUtilArgListAlloc(), nullptr);
    EXPECT_EQ(QuorUtilGetBasePath("/a/b"), nullptr);
    EXPECT_EQ(QuorUtilAuxDataZoneGetRef(1), nullptr);
    EXPECT_EQ(QuorUtilAuxDataDataSetGetRef(), nullptr);
    EXPECT_EQ(QuorUtilDataValueGetWritableRef(1, 1), nullptr);
    void* array = this;
    QuorUtilDataValueGetRawPtr(1, 1, &array, nullptr);
    EXPECT_EQ(array, nullptr);
}

TEST_F(EveryFault, LeavesOutArgumentsNull) {
    for (const char* operation :
         {"QuorUtilZoneGetEnabled", "QuorUtilVarGetEnabled", "QuorUtilVarGetName"})
        host().failCall(operation, 1);
    HostSet zones;
    HostSet vars;
    HostString name;
    EXPECT_FALSE(QuorUtilZoneGetEnabled(zones.outArgument()));
    EXPECT_FALSE(QuorUtilVarGetEnabled(vars.outArgument()));
    EXPECT_FALSE(QuorUtilVarGetName(1, name.outArgument()));
    EXPECT_FALSE(zones || vars || name);
}

} // namespace
} // namespace quorvia::host
