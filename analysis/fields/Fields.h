// What works on values needs of a data set, and no more: so that it can be tried on fields that are
// made up, and on reads that fail.
#pragma once

#include <cstddef>
#include <memory>
#include <stop_token>

#include <plot3d/Box.h>
#include <plot3d/Field.h>

namespace plot3d::analysis {

/// One field, open. Used by one thread at a time.
class OpenField {
public:
    virtual ~OpenField() = default;
    /// Fills `destination` with the values of the box, of the field's type, in the machine's byte
    /// order, I fastest. Throws plot3d::Error.
    virtual void read(const Box& box, void* destination, std::stop_token stop) const = 0;
};

/// Zones and variables count from 0. Any number of threads may ask at once.
class Fields {
public:
    virtual ~Fields() = default;
    virtual ValueType type(std::size_t zone, std::size_t variable) const = 0;
    virtual bool isEmpty(std::size_t zone, std::size_t variable) const = 0;
    /// The first zone with this very field: an earlier one, where zones share it.
    virtual std::size_t holder(std::size_t zone, std::size_t variable) const = 0;
    /// Of a field that is not empty. Throws plot3d::Error.
    virtual std::unique_ptr<OpenField> open(std::size_t zone, std::size_t variable) const = 0;
};

} // namespace plot3d::analysis
