// Fields of any size, type and byte order, cut into pieces anywhere, read as boxes of any kind and
// held against values that are picked one by one. A field follows from its seed:
// PLOT3D_TEST_SEED=n repeats one that failed.
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "FieldFile.h"
#include "RandomBox.h"

namespace quorvia::testsupport {
namespace {

using plot3d::ByteOrder;
using plot3d::ValueType;

FieldFile_s randomField(sessions::Dice& dice) {
    FieldFile_s field;
    field.size = randomSize(dice);
    field.type = dice.oneOf<ValueType>({ValueType::Float32, ValueType::Float64, ValueType::Int32});
    field.order = dice.oneOf<ByteOrder>({ByteOrder::Little, ByteOrder::Big});
    field.backwards = dice.chance(30);
    const std::int64_t bytes = field.size.count() * plot3d::width(field.type);
    const std::int64_t longest = dice.chance(50) ? 30 : bytes / 2 + 1;
    std::int64_t left = bytes;
    while (left > 0 && dice.chance(95)) {
        const std::int64_t most = std::min(left, longest);
        field.pieceBytes.push_back(dice.between(0, static_cast<std::int32_t>(most)));
        left -= field.pieceBytes.back();
    }
    return field;
}

std::string described(std::uint64_t seed, const plot3d::Box& box) {
    const auto text = [](const plot3d::Range& range) {
        return std::to_string(range.first) + ":" + std::to_string(range.last) + ":" +
               std::to_string(range.step);
    };
    return "PLOT3D_TEST_SEED=" + std::to_string(seed) + " repeats it; box " + text(box.i) + ", " +
           text(box.j) + ", " + text(box.k);
}

void readBoxesOfField(std::uint64_t seed) {
    sessions::Dice dice(seed);
    const FieldFile_s field = randomField(dice);
    const TemporaryDirectory directory;
    const plot3d::FieldReader reader(field.write(directory), field.size);
    for (int n = 0; n < 6; ++n) {
        const plot3d::Box box =
            n == 0 ? plot3d::Box::whole(field.size) : randomBox(dice, field.size);
        SCOPED_TRACE(described(seed, box));
        ASSERT_TRUE(readBytes(reader, box) == expectedBytes(field.type, field.size, box));
        ASSERT_TRUE(readReals(reader, box) == expectedReals(field.size, box));
    }
}

void readFieldsFrom(std::uint64_t firstSeed, std::uint64_t count) {
    for (std::uint64_t seed = firstSeed; seed < firstSeed + count; ++seed)
        ASSERT_NO_FATAL_FAILURE(readBoxesOfField(seed));
}

TEST(RandomFields, OfKnownSeedsHoldWhatWasWritten) {
    readFieldsFrom(1, 200);
}

TEST(RandomFields, OfARandomSeedHoldWhatWasWritten) {
    const char* given = std::getenv("PLOT3D_TEST_SEED");
    const std::uint64_t seed =
        given != nullptr ? std::strtoull(given, nullptr, 10) : 1'000'000 + std::random_device()();
    std::cout << "PLOT3D_TEST_SEED=" << seed << std::endl;
    readFieldsFrom(seed, given != nullptr ? 1 : 100);
}

} // namespace
} // namespace quorvia::testsupport
