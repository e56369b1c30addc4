#include <cstdint>
#include <set>

#include <gtest/gtest.h>

#include "checks/AddressTable.h"

namespace quorvia::host {
namespace {

class AddressTableTest : public testing::Test {
protected:
    void* at(int place) { return bytes_ + 16 * place; }

    std::set<void*> all() const {
        std::set<void*> found;
        table_.forEach([&](void* address) { found.insert(address); });
        return found;
    }

    AddressTable table_;

private:
    char bytes_[16 * 5000] = {};
};

TEST_F(AddressTableTest, HoldsWhatWasAdded) {
    table_.add(at(3));
    EXPECT_TRUE(table_.contains(at(3)));
    EXPECT_FALSE(table_.contains(at(4)));
    EXPECT_EQ(table_.count(), 1);
}

TEST_F(AddressTableTest, NeverHoldsNull) {
    EXPECT_FALSE(table_.contains(nullptr));
    EXPECT_EQ(table_.remove(nullptr), nullptr);
}

TEST_F(AddressTableTest, GivesWhatItRemovesAndOnlyOnce) {
    table_.add(at(3));
    EXPECT_EQ(table_.remove(at(3)), at(3));
    EXPECT_EQ(table_.remove(at(3)), nullptr);
    EXPECT_EQ(table_.count(), 0);
}

TEST_F(AddressTableTest, FindsTheRestAfterAnyRemoval) {
    std::set<void*> expected;
    for (int place = 0; place < 5000; ++place) {
        table_.add(at(place));
        expected.insert(at(place));
        if (place % 3 == 0) {
            const int gone = place / 3 * 2;
            EXPECT_EQ(table_.remove(at(gone)) != nullptr, expected.erase(at(gone)) == 1);
        }
    }
    EXPECT_EQ(all(), expected);
    for (void* address : expected)
        EXPECT_TRUE(table_.contains(address));
    EXPECT_EQ(table_.count(), static_cast<std::int64_t>(expected.size()));
}

} // namespace
} // namespace quorvia::host
