#include <new>

#include "DatasetFixture.h"
#include "dataset/variables/NameFile.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

class NameFile : public DatasetTest {
protected:
    /// The names of four variables behind X, which were v1 to v4.
    Texts namesFrom(const std::string& content, std::int32_t count = 4) {
        const HostStringList list(QuorUtilStringListAlloc());
        for (const char* name : {"X", "v1", "v2", "v3", "v4"})
            QuorUtilStringListAppendString(list.get(), name);
        readNameFile(directory.write("names.txt", content), list.get(), 2, count);
        Texts names;
        for (std::int64_t index = 2; index <= QuorUtilStringListGetCount(list.get()); ++index)
            names.push_back(HostString(QuorUtilStringListGetString(list.get(), index)).str());
        return names;
    }
};

TEST_F(NameFile, GivesOneNameALine) {
    EXPECT_EQ(namesFrom("a\nb\nc\nd\n"), (Texts{"a", "b", "c", "d"}));
}

TEST_F(NameFile, LeavesNamesThatItHasNoLinesFor) {
    EXPECT_EQ(namesFrom("a\nb"), (Texts{"a", "b", "v3", "v4"}));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(NameFile, IsReadNoFurtherThanTheCount) {
    EXPECT_EQ(namesFrom("a\nb\nc\n", 2), (Texts{"a", "b", "v3", "v4"}));
    EXPECT_EQ(namesFrom("a\n", 0), (Texts{"v1", "v2", "v3", "v4"}));
    EXPECT_EQ(namesFrom("a\n", -7), (Texts{"v1", "v2", "v3", "v4"}));
}

TEST_F(NameFile, CutsCommentsAndKeepsBlanks) {
    EXPECT_EQ(namesFrom("word ; comment\n  two words  \n"),
              (Texts{"word ", "  two words  ", "v3", "v4"}));
}

TEST_F(NameFile, TakesEmptyLinesAndCommentsForEmptyNames) {
    EXPECT_EQ(namesFrom("; all comment\n\nc\n"), (Texts{"", "", "c", "v4"}));
}

TEST_F(NameFile, OfNoLinesChangesNothing) {
    EXPECT_EQ(namesFrom(""), (Texts{"v1", "v2", "v3", "v4"}));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(NameFile, EndsLinesAtCarriageReturnAndLineFeed) {
    EXPECT_EQ(namesFrom("a\r\nb\rc\r\r\n"), (Texts{"a", "b\rc\r", "v3", "v4"}));
}

TEST_F(NameFile, SpillsLongNamesIntoTheNext) {
    const std::string longest(127, 'n');
    EXPECT_EQ(namesFrom(longest + "rest\nb\n"), (Texts{longest, "rest", "b", "v4"}));
    EXPECT_EQ(namesFrom(longest + "\nb\n"), (Texts{longest, "", "b", "v4"}));
    const std::string shorter(126, 'n');
    EXPECT_EQ(namesFrom(shorter + "\nb\n"), (Texts{shorter, "b", "v3", "v4"}));
}

TEST_F(NameFile, EndsAtALineOfNothing) {
    EXPECT_EQ(namesFrom(std::string("a\n\0b\nc\n", 7)), (Texts{"a", "v2", "v3", "v4"}));
}

TEST_F(NameFile, ThatIsMissingCostsAMessage) {
    readNameFile("no/such.nam", nullptr, 1, 4);
    EXPECT_EQ(messages(), Texts{"The Name File no/such.nam could not be opened."});
}

TEST_F(NameFile, ThrowsWhenTheHostTakesNoName) {
    host().failCall("QuorUtilStringListSetString", 2);
    EXPECT_THROW(namesFrom("a\nb\n"), std::bad_alloc);
}

TEST_F(NameFile, StopsWithoutMemoryForALine) {
    host().failCall("QuorUtilStringAlloc", 2);
    EXPECT_EQ(namesFrom("a\nb\n"), (Texts{"a", "v2", "v3", "v4"}));
    EXPECT_EQ(messages(), Texts{"The Name File " + directory.file("names.txt") +
                                " could not be read to its end."});
}

} // namespace
