// What the host says to a guest that mistakes its handles.
#include "HostFixture.h"

namespace quorvia::host {
namespace {

using HandleTest = HostTest;

TEST_F(HandleTest, SetIsNotUsedAfterGivingBack) {
    QuorSetHandle set = QuorUtilSetAlloc(true);
    const QuorSetHandle copy = set;
    QuorUtilSetDealloc(&set);
    EXPECT_EQ(QuorUtilSetGetNextMember(copy, 0), 0);
    expectViolations({"QuorUtilSetGetNextMember: set was given back already"});
}

TEST_F(HandleTest, ListIsNotGivenBackTwice) {
    QuorStringListHandle list = QuorUtilStringListAlloc();
    QuorStringListHandle copy = list;
    QuorUtilStringListDealloc(&list);
    QuorUtilStringListDealloc(&copy);
    EXPECT_EQ(copy, nullptr);
    expectViolations({"QuorUtilStringListDealloc: string list was given back already"});
}

TEST_F(HandleTest, SetInPlaceOfAListIsNamed) {
    const HostSet set(QuorUtilSetAlloc(true));
    const auto list = reinterpret_cast<QuorStringListHandle>(set.get());
    EXPECT_EQ(QuorUtilStringListGetCount(list), 0);
    expectViolations({"QuorUtilStringListGetCount: string list expected, but a handle of another "
                      "kind was given: set"});
}

TEST_F(HandleTest, AddressIsNoHandle) {
    double number = 0.0;
    QuorUtilArgListClear(reinterpret_cast<QuorArgListHandle>(&number));
    expectViolations({"QuorUtilArgListClear: argument list is no handle of this host"});
}

TEST_F(HandleTest, NullIsNoListToReadFrom) {
    EXPECT_EQ(QuorUtilStringListGetCount(nullptr), 0);
    expectViolations({"QuorUtilStringListGetCount: string list is null"});
}

TEST_F(HandleTest, NullIsGivenBackForNothing) {
    QuorSetHandle set = nullptr;
    QuorStringListHandle list = nullptr;
    QuorArgListHandle arguments = nullptr;
    char* block = nullptr;
    QuorUtilSetDealloc(&set);
    QuorUtilStringListDealloc(&list);
    QuorUtilArgListDealloc(&arguments);
    QuorUtilStringDealloc(&block);
    EXPECT_TRUE(host().log().violations.empty());
}

TEST_F(HandleTest, NullReferenceIsBlamed) {
    QuorUtilSetDealloc(nullptr);
    QuorUtilStringDealloc(nullptr);
    QuorUtilStringListDealloc(nullptr);
    QuorUtilArrayDealloc(nullptr);
    expectViolations({"QuorUtilSetDealloc: reference is null",
                      "QuorUtilStringDealloc: reference is null",
                      "QuorUtilStringListDealloc: reference is null",
                      "QuorUtilArrayDealloc: reference is null"});
}

TEST_F(HandleTest, HandlesNeverComeTwice) {
    QuorSetHandle first = QuorUtilSetAlloc(true);
    const QuorSetHandle copy = first;
    QuorUtilSetDealloc(&first);
    EXPECT_EQ(first, nullptr);
    EXPECT_NE(HostSet(QuorUtilSetAlloc(true)).get(), copy);
}

TEST_F(HandleTest, StringIsNotGivenBackTwice) {
    char* block = QuorUtilStringAlloc(7, "new string");
    char* copy = block;
    QuorUtilStringDealloc(&block);
    QuorUtilStringDealloc(&copy);
    EXPECT_EQ(copy, nullptr);
    expectViolations({"QuorUtilStringDealloc: block was given back already, or is not the host's"});
}

TEST_F(HandleTest, MemoryOfOthersIsNotGivenBack) {
    char own[] = "mine";
    void* array = own;
    QuorUtilArrayDealloc(&array);
    EXPECT_STREQ(own, "mine");
    expectViolations({"QuorUtilArrayDealloc: block was given back already, or is not the host's"});
}

TEST_F(HandleTest, UnknownAddOnTakesNoLockUnblamed) {
    QuorUtilLockStart(nullptr);
    QuorUtilLockFinish(nullptr);
    expectViolations({"QuorUtilLockStart: add-on is null", "QuorUtilLockFinish: add-on is null"});
}

TEST_F(HandleTest, StringOutsideTheListIsBlamed) {
    const HostStringList list(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(list.get(), "one");
    EXPECT_EQ(QuorUtilStringListGetString(list.get(), 0), nullptr);
    EXPECT_EQ(QuorUtilStringListGetString(list.get(), 2), nullptr);
    expectViolations({"QuorUtilStringListGetString: there is no string 0 in a list of 1",
                      "QuorUtilStringListGetString: there is no string 2 in a list of 1"});
}

TEST_F(HandleTest, HandleForWritingEndsWithItsStorage) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    QuorUtilDataValueAlloc(1, 1);
    const QuorFieldHandle handle = QuorUtilDataValueGetWritableRef(1, 1);
    QuorUtilDataValueAlloc(1, 1);
    EXPECT_EQ(QuorUtilDataValueGetRawPtrByRef(handle), nullptr);
    expectViolations(
        {"QuorUtilDataValueGetRawPtrByRef: the field is gone, or has changed since the "
         "handle was given out"});
}

} // namespace
} // namespace quorvia::host
