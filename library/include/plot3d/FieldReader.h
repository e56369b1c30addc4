// Reads one field by its source: positioned reads of the bytes that are needed, and no others.
#pragma once

#include <cstdint>
#include <memory>
#include <stop_token>

#include <plot3d/Box.h>
#include <plot3d/Field.h>

namespace plot3d {

/// Owns an open file, or holds values in memory. Takes no lock and calls no host, so that any
/// number of threads may use one reader at once; only a field of another guest (FieldKind::AtHost)
/// is read under the lock of the host. Outlives its data set.
class FieldReader {
public:
    /// Opens the file. `size` is the field's; the pieces must hold its values to the byte. Throws
    /// Error.
    FieldReader(const Source& source, const Extent& size);

    FieldReader(FieldReader&&) noexcept;
    FieldReader& operator=(FieldReader&&) noexcept;
    ~FieldReader();

    ValueType type() const;
    const Extent& size() const;

    /// Fills `destination` with the values of the box, of the field's type, in the machine's byte
    /// order, I fastest. There must be room for box.count() values. Rows and runs that lie near to
    /// one another in the file come in one read of at least 64 KiB where that is cheaper than a
    /// read for each. A box without points reads nothing. `stop` is asked every few MiB. Throws
    /// Error: Usage for a box that leaves the field, Unreadable with file and byte, Interrupted.
    void read(const Box& box, void* destination, std::stop_token stop = {}) const;
    void read(void* destination, std::stop_token stop = {}) const;

    /// The same as 64-bit reals, whatever the field's type.
    void readAsDouble(const Box& box, double* destination, std::stop_token stop = {}) const;

    /// Bytes read from the file so far, and reads made: what a test holds against what was needed.
    std::int64_t bytesRead() const;
    std::int64_t readCount() const;

    /// What the kinds of fields do differently.
    class Values;
    explicit FieldReader(std::unique_ptr<Values> values);

private:
    std::unique_ptr<Values> values_;
};

} // namespace plot3d
