#include "index/cgns/Hdf5Handle.h"

#include <string>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace {

/// The innermost entry of the library's stack of errors, which says what went wrong.
herr_t keepDescription(unsigned /*depth*/, const H5E_error2_t* error, void* text) {
    *static_cast<std::string*>(text) = error->desc != nullptr ? error->desc : "";
    return 0;
}

[[noreturn]] void fail() {
    std::string text;
    H5Ewalk2(H5E_DEFAULT, H5E_WALK_UPWARD, keepDescription, &text); // without it there is no text
    throw Error(ErrorKind::Refused, "HDF5 failed: " + text);
}

} // namespace

Hdf5Handle::Hdf5Handle(hid_t id, Close close) : id_(id), close_(close) {
    if (id < 0) {
        id_ = H5I_INVALID_HID;
        fail();
    }
}

Hdf5Handle& Hdf5Handle::operator=(Hdf5Handle&& other) noexcept {
    reset();
    id_ = std::exchange(other.id_, H5I_INVALID_HID);
    close_ = other.close_;
    return *this;
}

bool Hdf5Handle::reset() noexcept {
    const hid_t id = std::exchange(id_, H5I_INVALID_HID);
    return id == H5I_INVALID_HID || close_(id) >= 0;
}

void checkHdf5(herr_t result) {
    if (result < 0)
        fail();
}

} // namespace plot3d::program
