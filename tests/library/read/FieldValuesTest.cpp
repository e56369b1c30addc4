// Fields that lie in no file: in memory, parts of others, at a host.
#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "FieldFile.h"
#include "RandomBox.h"
#include "read/FieldValues.h"

namespace quorvia::testsupport {
namespace {

using plot3d::Box;
using plot3d::Extent;
using plot3d::FieldReader;
using plot3d::ValueType;

/// A field in memory that keeps its own values.
FieldReader fieldInMemory(ValueType type, const Extent& points = smallField) {
    const auto values =
        std::make_shared<const std::string>(bytesOfValues(type, machineOrder(), points.count()));
    return FieldReader(plot3dlib::valuesInMemory(type, points, values->data(), values));
}

TEST(ValuesInMemory, GiveAnyBox) {
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        sessions::Dice dice(seed);
        const Extent points = randomSize(dice);
        const Box box = randomBox(dice, points);
        const FieldReader reader = fieldInMemory(ValueType::Int32, points);
        ASSERT_TRUE(readBytes(reader, box) == expectedBytes(ValueType::Int32, points, box));
        ASSERT_TRUE(readReals(reader, box) == expectedReals(points, box));
    }
}

TEST(ValuesInMemory, AreReadFromNoFile) {
    const FieldReader reader = fieldInMemory(ValueType::Float64);
    EXPECT_EQ(readReals(reader, Box::whole(smallField)),
              expectedReals(smallField, Box::whole(smallField)));
    EXPECT_EQ(reader.bytesRead(), 0);
    EXPECT_EQ(reader.readCount(), 0);
}

TEST(ValuesInMemory, HoldTheirOwnerAsLongAsTheReaderLives) {
    const auto owner = std::make_shared<float>(1.5F);
    {
        const FieldReader reader(
            plot3dlib::valuesInMemory(ValueType::Float32, {1, 1, 1}, owner.get(), owner));
        EXPECT_EQ(owner.use_count(), 2);
    }
    EXPECT_EQ(owner.use_count(), 1);
}

class ValuesOfPart : public ::testing::Test {
protected:
    FieldReader partOfField(const Box& part) {
        const FieldFile_s file{smallField, ValueType::Float32, otherOrder(), {}, false};
        whole_ = std::make_shared<const FieldReader>(file.write(directory_), smallField);
        return FieldReader(plot3dlib::valuesOfPart(whole_, part));
    }

    TemporaryDirectory directory_;
    std::shared_ptr<const FieldReader> whole_;
};

TEST_F(ValuesOfPart, AreThePointsOfTheirBox) {
    const Box part{{1, 6, 2}, {4, 4, 1}, {0, 2, 2}};
    const FieldReader reader = partOfField(part);
    EXPECT_EQ(reader.size(), (Extent{3, 1, 2}));
    EXPECT_EQ(readBytes(reader, Box::whole(reader.size())),
              expectedBytes(ValueType::Float32, smallField, part));
}

TEST_F(ValuesOfPart, CountTheStepsOfABoxFromTheirOwn) {
    const FieldReader reader = partOfField({{1, 6, 2}, {0, 4, 2}, {0, 2, 1}});
    EXPECT_EQ(readReals(reader, {{0, 2, 2}, {1, 2, 1}, {2, 2, 1 << 30}}),
              expectedReals(smallField, {{1, 5, 4}, {2, 4, 2}, {2, 2, 1}}));
}

TEST_F(ValuesOfPart, ReadWhatTheyNeedAlone) {
    const FieldReader reader = partOfField({{0, 6, 1}, {0, 4, 1}, {2, 2, 1}});
    readReals(reader, Box::whole(reader.size()));
    EXPECT_EQ(reader.bytesRead(), 7 * 5 * 4);
    EXPECT_EQ(reader.readCount(), 1);
}

TEST_F(ValuesOfPart, LieInTheirField) {
    EXPECT_THROW(partOfField({{1, 7, 1}, {0, 0, 1}, {0, 0, 1}}), plot3d::Error);
}

/// Says how often it was asked, and whether two asked at once.
class FakeHost {
public:
    FieldReader field() {
        return FieldReader(
            plot3dlib::valuesAtHost(ValueType::Float64, smallField,
                                    [this](const auto& use, const auto&) { underLock(use); }));
    }
    std::atomic<int> calls = 0;
    std::atomic<int> inside = 0;
    std::atomic<bool> together = false;

private:
    void underLock(const std::function<void(const void*)>& use) {
        const std::lock_guard lock(mutex_);
        ++calls;
        together = together || ++inside > 1;
        use(values_.data());
        --inside;
    }
    std::mutex mutex_;
    std::string values_ = bytesOfValues(ValueType::Float64, machineOrder(), smallField.count());
};

TEST(ValuesAtHost, AreAskedForOnceForEachBox) {
    FakeHost host;
    const Box box{{1, 6, 2}, {0, 4, 2}, {0, 2, 1}};
    EXPECT_EQ(readReals(host.field(), box), expectedReals(smallField, box));
    EXPECT_EQ(host.calls, 1);
}

TEST(ValuesAtHost, AreReadUnderItsLock) {
    FakeHost host;
    const FieldReader reader = host.field();
    std::vector<std::thread> threads;
    for (int n = 0; n < 3; ++n)
        threads.emplace_back([&] {
            for (int turn = 0; turn < 50; ++turn)
                readReals(reader, Box::whole(smallField));
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(host.calls, 150);
    EXPECT_FALSE(host.together);
}

TEST(ValuesAtHost, PassOnWhatTheHostCannotGive) {
    const FieldReader reader(plot3dlib::valuesAtHost(
        ValueType::Float32, smallField, [](const auto&, const auto&) -> void {
            throw plot3d::Error(plot3d::ErrorKind::Unreadable, "the host gives no values");
        }));
    EXPECT_THROW(readReals(reader, Box::whole(smallField)), plot3d::Error);
}

} // namespace
} // namespace quorvia::testsupport
