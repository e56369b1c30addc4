#include "read/FieldValues.h"

#include <cstddef>
#include <utility>

#include "facts/StopQuestion.h"
#include "read/Batches.h"
#include "read/BoxStrides.h"
#include "read/Widening.h"

void plot3d::FieldReader::Values::readAsDouble(const Box& box, double* destination,
                                               const std::stop_token& stop) const {
    const std::int64_t count = box.count();
    read(box, plot3dlib::placeToWidenFrom(type_, destination, count), stop);
    plot3dlib::widen(type_, destination, count);
}

namespace plot3dlib {

namespace {

using plot3d::Box;
using plot3d::Extent;
using plot3d::Range;
using plot3d::ValueType;
using Values = plot3d::FieldReader::Values;

/// Copies the box out of the values of a whole field.
void copyBox(const void* whole, const Values& field, const Box& box, void* destination,
             const std::stop_token& stop) {
    constexpr std::int64_t valuesBetweenQuestions = 1 << 20;
    const std::int64_t width = plot3d::width(field.type());
    const auto* from = static_cast<const std::byte*>(whole);
    auto* to = static_cast<std::byte*>(destination);
    forEachBatch(stridesOf(box, field.size()), {valuesBetweenQuestions, valuesBetweenQuestions},
                 [&](const BoxStrides_s& batch) {
                     endIfStopped(stop);
                     gather(from + batch.first * width, batch, width, to);
                     to += batch.count() * width;
                 });
}

class MemoryValues final : public Values {
public:
    MemoryValues(ValueType type, const Extent& size, const void* values,
                 std::shared_ptr<const void> owner)
        : Values(type, size), values_(values), owner_(std::move(owner)) {}

    void read(const Box& box, void* destination, const std::stop_token& stop) const override {
        copyBox(values_, *this, box, destination, stop);
    }

private:
    const void* values_;
    std::shared_ptr<const void> owner_;
};

class PartValues final : public Values {
public:
    PartValues(std::shared_ptr<const plot3d::FieldReader> whole, const Box& part)
        : Values(whole->type(), part.extent()), whole_(std::move(whole)), part_(part) {}

    void read(const Box& box, void* destination, const std::stop_token& stop) const override {
        whole_->read(boxInWhole(box), destination, stop);
    }
    void readAsDouble(const Box& box, double* destination,
                      const std::stop_token& stop) const override {
        whole_->readAsDouble(boxInWhole(box), destination, stop);
    }
    std::int64_t bytesRead() const override { return whole_->bytesRead(); }
    std::int64_t readCount() const override { return whole_->readCount(); }

private:
    static Range rangeInWhole(const Range& part, const Range& range) {
        const std::int64_t first = part.first + range.first * part.step;
        if (range.count() == 1) // its step may be any number
            return {first, first, 1};
        return {first, part.first + range.last * part.step, range.step * part.step};
    }
    Box boxInWhole(const Box& box) const {
        return {rangeInWhole(part_.i, box.i), rangeInWhole(part_.j, box.j),
                rangeInWhole(part_.k, box.k)};
    }

    std::shared_ptr<const plot3d::FieldReader> whole_;
    Box part_; // in the whole field
};

class HostValues final : public Values {
public:
    HostValues(ValueType type, const Extent& size, WithHostValues withValues)
        : Values(type, size), withValues_(std::move(withValues)) {}

    void read(const Box& box, void* destination, const std::stop_token& stop) const override {
        withValues_([&](const void* values) { copyBox(values, *this, box, destination, stop); },
                    stop);
    }

private:
    WithHostValues withValues_;
};

} // namespace

FieldValues valuesInMemory(ValueType type, const Extent& size, const void* values,
                           std::shared_ptr<const void> owner) {
    return std::make_unique<MemoryValues>(type, size, values, std::move(owner));
}

FieldValues valuesOfPart(std::shared_ptr<const plot3d::FieldReader> whole, const Box& box) {
    requireInside(box, whole->size());
    return std::make_unique<PartValues>(std::move(whole), box);
}

FieldValues valuesAtHost(ValueType type, const Extent& size, WithHostValues withValues) {
    return std::make_unique<HostValues>(type, size, std::move(withValues));
}

} // namespace plot3dlib
