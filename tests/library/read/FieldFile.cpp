#include "FieldFile.h"

#include <algorithm>
#include <bit>

namespace quorvia::testsupport {

using plot3d::Box;
using plot3d::ByteOrder;
using plot3d::Extent;
using plot3d::Piece;
using plot3d::ValueType;

namespace {

constexpr std::string_view noValue = "\xEE\xDD\xCC\xBB\xAA\x99\x88";

template <typename Bits>
std::string bigEndian(Bits bits) {
    std::string bytes;
    for (std::size_t n = sizeof(Bits); n-- > 0;)
        bytes += static_cast<char>(bits >> (8 * n) & 0xFF);
    return bytes;
}

/// Calls `use(index)` for the index in the field of each point of the box.
template <typename Use>
void forEachPoint(const Extent& size, const Box& box, Use use) {
    for (std::int64_t k = box.k.first; k <= box.k.last; k += box.k.step)
        for (std::int64_t j = box.j.first; j <= box.j.last; j += box.j.step)
            for (std::int64_t i = box.i.first; i <= box.i.last; i += box.i.step)
                use((k * size.j + j) * size.i + i);
}

} // namespace

double valueAt(std::int64_t index) {
    constexpr std::int64_t prime = 8'388'593; // each value below it is a 32-bit real
    const std::int64_t value = (index + 1) * 7 % prime;
    return static_cast<double>(index % 3 == 0 ? -value : value);
}

std::string bytesOfValue(ValueType type, ByteOrder order, std::int64_t index) {
    const double value = valueAt(index);
    std::string bytes;
    if (type == ValueType::Float64)
        bytes = bigEndian(std::bit_cast<std::uint64_t>(value));
    else if (type == ValueType::Float32)
        bytes = bigEndian(std::bit_cast<std::uint32_t>(static_cast<float>(value)));
    else
        bytes = bigEndian(static_cast<std::uint32_t>(static_cast<std::int32_t>(value)));
    if (order == ByteOrder::Little)
        std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

std::string bytesOfValues(ValueType type, ByteOrder order, std::int64_t count) {
    std::string bytes;
    for (std::int64_t index = 0; index < count; ++index)
        bytes += bytesOfValue(type, order, index);
    return bytes;
}

std::string expectedBytes(ValueType type, const Extent& size, const Box& box) {
    std::string bytes;
    forEachPoint(size, box,
                 [&](std::int64_t index) { bytes += bytesOfValue(type, machineOrder(), index); });
    return bytes;
}

std::vector<double> expectedReals(const Extent& size, const Box& box) {
    std::vector<double> reals;
    forEachPoint(size, box, [&](std::int64_t index) { reals.push_back(valueAt(index)); });
    return reals;
}

ByteOrder machineOrder() {
    return std::endian::native == std::endian::little ? ByteOrder::Little : ByteOrder::Big;
}

ByteOrder otherOrder() {
    return machineOrder() == ByteOrder::Little ? ByteOrder::Big : ByteOrder::Little;
}

plot3d::Source FieldFile_s::write(const TemporaryDirectory& directory) const {
    const std::string values = bytesOfValues(type, order, size.count());
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (const std::int64_t length : pieceBytes) {
        parts.push_back(values.substr(begin, static_cast<std::size_t>(length)));
        begin += parts.back().size();
    }
    parts.push_back(values.substr(begin));

    plot3d::Source source{directory.file("field.bin"), type, order, {}};
    source.pieces.resize(parts.size());
    std::string bytes(noValue);
    for (std::size_t n = 0; n < parts.size(); ++n) {
        const std::size_t part = backwards ? parts.size() - 1 - n : n;
        source.pieces[part] = {std::ssize(bytes), std::ssize(parts[part])};
        bytes += parts[part];
        bytes += noValue;
    }
    directory.write("field.bin", bytes);
    return source;
}

std::string readBytes(const plot3d::FieldReader& reader, const Box& box) {
    std::string bytes(static_cast<std::size_t>(box.count() * plot3d::width(reader.type())), '\x5A');
    reader.read(box, bytes.data());
    return bytes;
}

std::vector<double> readReals(const plot3d::FieldReader& reader, const Box& box) {
    std::vector<double> reals(static_cast<std::size_t>(box.count()), -0.5);
    reader.readAsDouble(box, reals.data());
    return reals;
}

} // namespace quorvia::testsupport
