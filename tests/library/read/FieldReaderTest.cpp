#include <functional>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "FieldFile.h"

namespace quorvia::testsupport {
namespace {

using plot3d::Box;
using plot3d::Error;
using plot3d::ErrorKind;
using plot3d::Extent;
using plot3d::FieldReader;
using plot3d::Source;
using plot3d::ValueType;

std::optional<Error> errorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}

std::optional<ErrorKind> kindOf(const std::function<void()>& work) {
    const std::optional<Error> error = errorOf(work);
    return error ? std::optional(error->kind()) : std::nullopt;
}

class FieldReaderTest : public ::testing::Test {
protected:
    FieldReader readerOf(ValueType type) {
        return {FieldFile_s{smallField, type, otherOrder(), {}, false}.write(directory_),
                smallField};
    }
    std::optional<ErrorKind> kindOfRead(const Box& box) {
        const FieldReader reader = readerOf(ValueType::Float32);
        std::vector<float> room(static_cast<std::size_t>(smallField.count()));
        return kindOf([&] { reader.read(box, room.data()); });
    }

    TemporaryDirectory directory_;
};

TEST_F(FieldReaderTest, KnowsTypeAndSize) {
    const FieldReader reader = readerOf(ValueType::Int32);
    EXPECT_EQ(reader.type(), ValueType::Int32);
    EXPECT_EQ(reader.size(), smallField);
}

TEST_F(FieldReaderTest, ReadsOnBehindAMove) {
    FieldReader first = readerOf(ValueType::Float64);
    const FieldReader second = std::move(first);
    EXPECT_EQ(readReals(second, Box::whole(smallField)),
              expectedReals(smallField, Box::whole(smallField)));
}

TEST_F(FieldReaderTest, ReadsAllWithoutABox) {
    std::vector<double> values(static_cast<std::size_t>(smallField.count()));
    readerOf(ValueType::Float64).read(values.data());
    EXPECT_EQ(values, expectedReals(smallField, Box::whole(smallField)));
}

TEST_F(FieldReaderTest, TakesALastIndexThatTheStepMisses) {
    const Box box{{0, 5, 3}, {1, 4, 2}, {0, 2, 2}};
    EXPECT_EQ(readReals(readerOf(ValueType::Float32), box), expectedReals(smallField, box));
}

TEST_F(FieldReaderTest, ReadsNothingForABoxWithoutPoints) {
    const FieldReader reader = readerOf(ValueType::Float32);
    reader.read({{3, 2, 1}, {0, 4, 1}, {0, 2, 1}}, nullptr);
    EXPECT_EQ(reader.readCount(), 0);
}

TEST_F(FieldReaderTest, RefusesABoxThatLeavesTheField) {
    EXPECT_EQ(kindOfRead({{0, 7, 1}, {0, 4, 1}, {0, 2, 1}}), ErrorKind::Usage);
    EXPECT_EQ(kindOfRead({{0, 6, 1}, {-1, 4, 1}, {0, 2, 1}}), ErrorKind::Usage);
    EXPECT_EQ(kindOfRead({{0, 6, 1}, {0, 4, 1}, {3, 3, 1}}), ErrorKind::Usage);
    EXPECT_EQ(kindOfRead({{0, 6, 0}, {0, 4, 1}, {0, 2, 1}}), ErrorKind::Usage);
}

TEST_F(FieldReaderTest, SaysWhereABoxLeavesTheField) {
    const FieldReader reader = readerOf(ValueType::Float32);
    const auto error = errorOf([&] { reader.read({{0, 6, 1}, {2, 5, 1}, {0, 2, 1}}, nullptr); });
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(),
                 "a box leaves its field along J (expected indices from 0 to 4, found 2 to 5)");
}

TEST_F(FieldReaderTest, RefusesPiecesThatDoNotHoldTheValues) {
    const Source source{directory_.write("short.bin", "1234"),
                        ValueType::Float64,
                        machineOrder(),
                        {{0, 4}, {0, 3}}};
    const auto error = errorOf([&] { FieldReader(source, {1, 1, 1}); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind(), ErrorKind::Usage);
    EXPECT_EQ(error->facts().expected, "8 bytes");
    EXPECT_EQ(error->facts().found, "7 bytes");
}

TEST_F(FieldReaderTest, RefusesPiecesAndSizesThatCannotBe) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    const auto kindFor = [&](plot3d::Piece piece, const Extent& points) {
        return kindOf([&] {
            FieldReader(
                {directory_.write("f", "12345678"), ValueType::Float64, machineOrder(), {piece}},
                points);
        });
    };
    EXPECT_EQ(kindFor({-1, 8}, {1, 1, 1}), ErrorKind::Usage);
    EXPECT_EQ(kindFor({most - 4, 8}, {1, 1, 1}), ErrorKind::Usage);
    EXPECT_EQ(kindFor({0, 8}, {1, 0, 1}), ErrorKind::Usage);
    EXPECT_EQ(kindFor({0, 8}, {1 << 30, 1 << 30, 1 << 30}), ErrorKind::Usage);
    EXPECT_EQ(kindFor({0, 8}, {1, 1, 1}), std::nullopt);
}

TEST_F(FieldReaderTest, TellsAFileThatIsNotThere) {
    const Source source{directory_.file("none.bin"), ValueType::Float32, machineOrder(), {{0, 4}}};
    const auto error = errorOf([&] { FieldReader(source, {1, 1, 1}); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind(), ErrorKind::NotFound);
    EXPECT_EQ(error->facts().file, source.file);
}

TEST_F(FieldReaderTest, EndsWhenItIsStopped) {
    std::stop_source stop;
    stop.request_stop();
    const FieldReader reader = readerOf(ValueType::Float32);
    std::vector<float> room(static_cast<std::size_t>(smallField.count()));
    EXPECT_EQ(kindOf([&] { reader.read(room.data(), stop.get_token()); }), ErrorKind::Interrupted);
    EXPECT_EQ(reader.readCount(), 0);
}

TEST_F(FieldReaderTest, ServesManyThreadsAtOnce) {
    const FieldReader reader = readerOf(ValueType::Float32);
    std::vector<std::thread> threads;
    std::atomic<int> wrong = 0;
    for (int n = 0; n < 4; ++n)
        threads.emplace_back([&] {
            for (std::int64_t turn = 0; turn < 200; ++turn) {
                const Box box{{turn % 7, 6, 1}, {0, 4, 1 + turn % 3}, {turn % 3, 2, 1}};
                wrong += readReals(reader, box) != expectedReals(smallField, box);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace quorvia::testsupport
