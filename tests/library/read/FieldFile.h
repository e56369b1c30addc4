// A field of known values in a file: its bytes cut into pieces anywhere, the pieces laid down in
// any order, with bytes between them that belong to no value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <plot3d/Field.h>
#include <plot3d/FieldReader.h>

#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

/// Value number n of a field: (n + 1) * 7 modulo a prime, different for neighbours in each
/// direction and without bytes that are the same from both ends. Negative for every third.
double valueAt(std::int64_t index);

/// Value number `index` as the bytes of its type and order, built byte by byte.
std::string bytesOfValue(plot3d::ValueType type, plot3d::ByteOrder order, std::int64_t index);

/// All values of a field back to back.
std::string bytesOfValues(plot3d::ValueType type, plot3d::ByteOrder order, std::int64_t count);

/// The values of the box one after the other, picked one by one, in the machine's byte order.
std::string expectedBytes(plot3d::ValueType type, const plot3d::Extent& size,
                          const plot3d::Box& box);
std::vector<double> expectedReals(const plot3d::Extent& size, const plot3d::Box& box);

plot3d::ByteOrder machineOrder();
plot3d::ByteOrder otherOrder();

/// A field of odd numbers of points, of which every test that needs just some takes this.
inline constexpr plot3d::Extent smallField{7, 5, 3};

struct FieldFile_s {
    plot3d::Extent size;
    plot3d::ValueType type = plot3d::ValueType::Float32;
    plot3d::ByteOrder order = plot3d::ByteOrder::Little;
    std::vector<std::int64_t> pieceBytes; // empty: one piece
    bool backwards = false;               // the last piece comes first in the file

    /// Writes the file and tells where the values are.
    plot3d::Source write(const TemporaryDirectory& directory) const;
};

std::string readBytes(const plot3d::FieldReader& reader, const plot3d::Box& box);
std::vector<double> readReals(const plot3d::FieldReader& reader, const plot3d::Box& box);

} // namespace quorvia::testsupport
