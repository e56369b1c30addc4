// Handles of the HDF5 library that are given back by themselves.
#pragma once

#include <utility>

#include <hdf5.h>

namespace plot3d::program {

class Hdf5Handle {
public:
    using Close = herr_t (*)(hid_t);

    Hdf5Handle() = default;
    /// Takes a handle over. Throws Error (Refused) if it is none: the library could not make it.
    Hdf5Handle(hid_t id, Close close);
    Hdf5Handle(Hdf5Handle&& other) noexcept
        : id_(std::exchange(other.id_, H5I_INVALID_HID)), close_(other.close_) {}
    Hdf5Handle& operator=(Hdf5Handle&& other) noexcept;
    ~Hdf5Handle() { reset(); }

    hid_t get() const { return id_; }
    bool isOpen() const { return id_ != H5I_INVALID_HID; }
    /// Gives the handle back. False (not told): what was to be written could not be.
    bool reset() noexcept;

private:
    hid_t id_ = H5I_INVALID_HID;
    Close close_ = nullptr;
};

/// Throws Error (Refused) if `result` is the library's word for a failure.
void checkHdf5(herr_t result);

} // namespace plot3d::program
