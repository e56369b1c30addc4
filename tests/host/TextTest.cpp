// Host memory, lists, sets, paths and wide names.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

using TextTest = HostTest;

std::string stringAt(const HostStringList& list, std::int64_t index) {
    return HostString(QuorUtilStringListGetString(list.get(), index)).str();
}

TEST_F(TextTest, BlockOfNoBytesIsABlock) {
    const HostArray<double> none = HostArray<double>::allocate(0, "none");
    EXPECT_TRUE(static_cast<bool>(none));
}

TEST_F(TextTest, ArrayThatWasMovedFromIsEmpty) {
    HostArray<double> source = HostArray<double>::allocate(3, "three");
    HostArray<double> constructed(std::move(source));
    EXPECT_EQ(constructed.count(), 3);
    EXPECT_EQ(source.count(), 0);
    EXPECT_EQ(source.begin(), source.end());
    HostArray<double> assigned;
    assigned = std::move(constructed);
    EXPECT_EQ(assigned.count(), 3);
    EXPECT_EQ(constructed.count(), 0);
}

TEST_F(TextTest, BlockOfNegativeSizeIsRefused) {
    EXPECT_EQ(QuorUtilStringAlloc(-1, "negative"), nullptr);
    expectViolations({"QuorUtilStringAlloc: negative size, or no label"});
}

TEST_F(TextTest, BlockBeyondAllMemoryIsRefused) {
    EXPECT_EQ(QuorUtilStringAlloc(std::int64_t{1} << 62, "too much"), nullptr);
}

TEST_F(TextTest, ListGrowsToTheIndexThatIsSet) {
    const HostStringList list(QuorUtilStringListAlloc());
    EXPECT_TRUE(QuorUtilStringListSetString(list.get(), 3, "three"));
    EXPECT_EQ(QuorUtilStringListGetCount(list.get()), 3);
    EXPECT_EQ(QuorUtilStringListGetString(list.get(), 2), nullptr);
    EXPECT_EQ(stringAt(list, 3), "three");
}

TEST_F(TextTest, ListHasNoPlaceBelowOne) {
    const HostStringList list(QuorUtilStringListAlloc());
    EXPECT_FALSE(QuorUtilStringListSetString(list.get(), 0, "zero"));
    expectViolations({"QuorUtilStringListSetString: there is no string 0"});
}

TEST_F(TextTest, ListAppendsAnotherAndItself) {
    const HostStringList list(QuorUtilStringListAlloc());
    const HostStringList other(QuorUtilStringListAlloc());
    QuorUtilStringListAppendString(list.get(), "a");
    QuorUtilStringListAppendString(other.get(), "b");
    EXPECT_TRUE(QuorUtilStringListAppend(list.get(), other.get()));
    EXPECT_TRUE(QuorUtilStringListAppend(list.get(), list.get()));
    EXPECT_EQ(QuorUtilStringListGetCount(list.get()), 4);
    EXPECT_EQ(stringAt(list, 4), "b");
}

TEST_F(TextTest, SetGoesUpwardsThroughItsMembers) {
    const HostSet set = setOf({11, 2, 5, 5});
    EXPECT_EQ(QuorUtilSetGetMemberCount(set.get()), 3);
    EXPECT_EQ(QuorUtilSetGetNextMember(set.get(), 0), 2);
    EXPECT_EQ(QuorUtilSetGetNextMember(set.get(), 2), 5);
    EXPECT_EQ(QuorUtilSetGetNextMember(set.get(), 11), 0);
}

TEST_F(TextTest, SetHoldsNumbersFromOneTo31Bits) {
    const HostSet set(QuorUtilSetAlloc(true));
    EXPECT_FALSE(QuorUtilSetAddMember(set.get(), 0, true));
    EXPECT_FALSE(QuorUtilSetAddMember(set.get(), 2147483648, true));
    EXPECT_TRUE(QuorUtilSetAddMember(set.get(), 2147483647, true));
    QuorUtilSetRemoveMember(set.get(), 3);
    EXPECT_TRUE(QuorUtilSetIsMember(set.get(), 2147483647));
}

TEST_F(TextTest, SetsDoNotGrowUntilTheMemoryIsFull) {
    const HostSet set(QuorUtilSetAlloc(true));
    std::int64_t member = 1;
    while (member <= 20'000'000 && QuorUtilSetAddMember(set.get(), member, true))
        ++member;
    EXPECT_EQ(member - 1, 10'000'000);
    EXPECT_EQ(QuorUtilSetGetMemberCount(set.get()), 10'000'000);
}

TEST_F(TextTest, NullSetIsEmptyAndHoldsNothing) {
    EXPECT_TRUE(QuorUtilSetIsEmpty(nullptr));
    EXPECT_FALSE(QuorUtilSetIsMember(nullptr, 1));
}

TEST_F(TextTest, BasePathEndsBehindTheLastSeparator) {
    const std::pair<const char*, std::string> cases[] = {{"/data/run 2/wing.x", "/data/run 2/"},
                                                         {"C:\\data\\wing.x", "C:\\data\\"},
                                                         {"wing.x", ""},
                                                         {"/wing.x", "/"},
                                                         {"a/b\\c", "a/b\\"},
                                                         {"", ""}};
    for (const auto& [path, directory] : cases)
        EXPECT_EQ(HostString(QuorUtilGetBasePath(path)).str(), directory) << path;
}

TEST_F(TextTest, WideNamesHoldOneCharacterForEachCodePoint) {
    EXPECT_EQ(utf8ToWideString("a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"),
              L"a\u00FC\u20AC\U0001F600");
}

TEST_F(TextTest, BytesThatAreNoUtf8AreReplaced) {
    const std::pair<const char*, std::wstring> cases[] = {
        {"\xFF"
         "a",
         L"\uFFFD"
         L"a"},              // no lead byte
        {"\x80", L"\uFFFD"}, // continuation alone
        {"\xC3", L"\uFFFD"}, // cut short
        {"\xC3"
         "a",
         L"\uFFFD"
         L"a"},                                             // continuation missing
        {"\xC0\x80", L"\uFFFD\uFFFD"},                      // longer than needed
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},            // surrogate
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"}}; // above the last code point
    for (const auto& [bytes, wide] : cases)
        EXPECT_EQ(utf8ToWideString(bytes), wide);
}

TEST_F(TextTest, OwningListThrowsWhenTheHostHasNoMemory) {
    host().failCall("QuorUtilStringListAlloc", 1);
    EXPECT_THROW(StringList(), std::bad_alloc);
    StringList list;
    host().failCall("QuorUtilStringListAppendString", 1);
    EXPECT_THROW(list.append("lost"), std::bad_alloc);
    list.append("kept");
    EXPECT_EQ(QuorUtilStringListGetCount(list.getRef()), 1);
}

} // namespace
} // namespace quorvia::host
