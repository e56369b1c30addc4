// What a FieldReader stands on: the kinds of fields, each with its own way to the values. Whoever
// opens data sets makes one of these and hands it to FieldReader's constructor.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

#include <plot3d/Box.h>
#include <plot3d/Field.h>
#include <plot3d/FieldReader.h>

/// The values of one field. Everything may be called from any number of threads at once.
class plot3d::FieldReader::Values {
public:
    Values(ValueType type, const Extent& size) : type_(type), size_(size) {}
    virtual ~Values() = default;
    Values(const Values&) = delete;
    Values& operator=(const Values&) = delete;

    ValueType type() const { return type_; }
    const Extent& size() const { return size_; }

    /// As FieldReader::read. The box lies in the field, and has at least one point: FieldReader has
    /// looked. Throws Error; the destination is worthless then.
    virtual void read(const Box& box, void* destination, const std::stop_token& stop) const = 0;
    /// The same as 64-bit reals. By itself: reads into the upper half of the destination, and
    /// widens from there.
    virtual void readAsDouble(const Box& box, double* destination,
                              const std::stop_token& stop) const;

    /// Of what was read from a file through this reader.
    virtual std::int64_t bytesRead() const { return 0; }
    virtual std::int64_t readCount() const { return 0; }

private:
    ValueType type_;
    Extent size_;
};

namespace plot3dlib {

using FieldValues = std::unique_ptr<plot3d::FieldReader::Values>;

/// Values that lie in memory: those of the whole field, of its type, in the machine's byte order, I
/// fastest. `values` is borrowed and stays as it is for as long as `owner` is held.
FieldValues valuesInMemory(plot3d::ValueType type, const plot3d::Extent& size, const void* values,
                           std::shared_ptr<const void> owner);

/// Some of the points of another field: `box` is in that one and lies in it; the part's size is
/// box.extent(). Throws Error (Usage) for a box that leaves it.
FieldValues valuesOfPart(std::shared_ptr<const plot3d::FieldReader> whole, const plot3d::Box& box);

/// Takes the lock of the host, has it bring the values of the whole field, calls `use` with them
/// once, and gives the lock back on every way out. The values need to stand only for the call. May
/// throw Error, Interrupted if `stop` asked for it, and lets through what `use` throws.
using WithHostValues = std::function<void(const std::function<void(const void* values)>& use,
                                          const std::stop_token& stop)>;

/// Values that are known through a host alone. `withValues` may be called from any thread.
FieldValues valuesAtHost(plot3d::ValueType type, const plot3d::Extent& size,
                         WithHostValues withValues);

} // namespace plot3dlib
