#include "index/cgns/CgnsText.h"

#include <array>

#include <plot3d/Error.h>

#include "index/cgns/Hdf5Handle.h"

namespace plot3d::program {

namespace {

bool has(const Hdf5Handle& file, const std::string& path) {
    return H5Lexists(file.get(), path.c_str(), H5P_DEFAULT) > 0;
}

std::string textAt(const Hdf5Handle& file, const std::string& path) {
    const Hdf5Handle set(H5Dopen2(file.get(), path.c_str(), H5P_DEFAULT), H5Dclose);
    const Hdf5Handle space(H5Dget_space(set.get()), H5Sclose);
    std::string text(static_cast<std::size_t>(H5Sget_simple_extent_npoints(space.get())), ' ');
    checkHdf5(H5Dread(set.get(), H5T_NATIVE_SCHAR, H5S_ALL, H5S_ALL, H5P_DEFAULT, text.data()));
    return text;
}

} // namespace

std::string readCgnsText(const std::filesystem::path& path, const std::string& name) {
    checkHdf5(H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr)); // errors are told by us
    if (H5Fis_hdf5(path.c_str()) <= 0)
        throw Error(ErrorKind::Unreadable, "is no HDF5 file");
    const Hdf5Handle file(H5Fopen(path.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
    for (const std::string base : {"Base1D", "Base2D", "Base3D"})
        if (has(file, base) && has(file, base + "/" + name))
            return textAt(file, base + "/" + name + "/ data");
    throw Error(ErrorKind::Unreadable, "is no index of plot3d: it has no notes on originals");
}

} // namespace plot3d::program
