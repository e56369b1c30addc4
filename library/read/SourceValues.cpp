#include "read/SourceValues.h"

#include <bit>
#include <cstddef>
#include <memory>
#include <string>

#include <plot3d/Error.h>

#include "facts/StopQuestion.h"
#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/bytes/CheckedSize.h"
#include "read/Batches.h"
#include "read/BoxStrides.h"
#include "read/Widening.h"

namespace plot3dlib {

namespace {

using plot3d::Box;
using plot3d::ByteOrder;
using plot3d::Extent;
using plot3d::ValueType;

constexpr std::int64_t kibibyte = 1024;
constexpr std::int64_t mebibyte = 1024 * kibibyte;

// Runs of this length are read one by one, straight to where they belong: another read costs less
// than copying one of them.
constexpr std::int64_t longRunBytes = 64 * kibibyte;
// Shorter runs come in one read if no more than this lies between them: about what a disk or a file
// server gives in the time that it takes to answer another read.
constexpr std::int64_t gapBytes = 128 * kibibyte;
// What a joined read may hold. A plane of constant I touches every row of a K plane: these come in
// two reads as long as a K plane has 16 MiB.
constexpr std::int64_t joinedBytes = 8 * mebibyte;
// Between two questions whether to stop.
constexpr std::int64_t straightBytes = 8 * mebibyte;
// The same where a second pass goes over the values, for which they should still be in the cache.
constexpr std::int64_t cachedBytes = 512 * kibibyte;

constexpr ByteOrder machineOrder =
    std::endian::native == std::endian::little ? ByteOrder::Little : ByteOrder::Big;

std::int64_t byteCountOf(ValueType type, const Extent& size) {
    quorvia::quorutildataio::CheckedSize bytes;
    bytes.addProduct({plot3d::width(type), size.i, size.j, size.k});
    if (size.i < 1 || size.j < 1 || size.k < 1 || !bytes.value())
        throw plot3d::Error(plot3d::ErrorKind::Usage, "a field can't have this size",
                            {{},
                             {},
                             "at least one point along I, J and K",
                             std::to_string(size.i) + " x " + std::to_string(size.j) + " x " +
                                 std::to_string(size.k),
                             {}});
    return *bytes.value();
}

BatchLimits_s limitsFor(std::int64_t runBytes, std::int64_t width, bool needsSecondPass) {
    if (runBytes < longRunBytes)
        return {joinedBytes / width, gapBytes / width};
    return {(needsSecondPass ? cachedBytes : straightBytes) / width, -1};
}

} // namespace

SourceValues::SourceValues(const plot3d::Source& source, const Extent& size)
    : Values(source.type, size), bytes_(source, byteCountOf(source.type, size)),
      isSwapped_(source.order != machineOrder) {}

void SourceValues::read(const Box& box, void* destination, const std::stop_token& stop) const {
    readAs(Form_e::AsItIs, box, destination, stop);
}

void SourceValues::readAsDouble(const Box& box, double* destination,
                                const std::stop_token& stop) const {
    readAs(Form_e::Reals64, box, destination, stop);
}

void SourceValues::readAs(Form_e form, const Box& box, void* destination,
                          const std::stop_token& stop) const {
    const std::int64_t width = plot3d::width(type());
    const bool widens = form == Form_e::Reals64 && type() != ValueType::Float64;
    const BoxStrides_s strides = stridesOf(box, size());
    const BatchLimits_s limits = limitsFor(strides.run * width, width, isSwapped_ || widens);
    std::unique_ptr<std::byte[]> joined; // made by the first joined read, which is no smaller
    char* target = static_cast<char*>(destination);

    const auto fetch = [&](const BoxStrides_s& batch, void* values) {
        if (batch.directionCount == 0)
            return bytes_.read(batch.first * width, values, batch.run * width);
        if (!joined)
            joined = std::make_unique_for_overwrite<std::byte[]>(
                static_cast<std::size_t>(batch.span() * width));
        bytes_.read(batch.first * width, joined.get(), batch.span() * width);
        gather(joined.get(), batch, width, static_cast<std::byte*>(values));
    };
    forEachBatch(strides, limits, [&](const BoxStrides_s& batch) {
        endIfStopped(stop);
        const std::int64_t count = batch.count();
        auto* reals = reinterpret_cast<double*>(target);
        void* values = widens ? placeToWidenFrom(type(), reals, count) : target;
        fetch(batch, values);
        if (isSwapped_)
            quorvia::quorutildataio::reverseEach(values, width, count);
        if (widens)
            widen(type(), reals, count);
        target += count * (widens ? 8 : width);
    });
}

} // namespace plot3dlib
