// A CGNS tree in an HDF5 file, node by node. Each node is a group with its name, label and type as
// attributes, and its values in a data set " data", index order C (the last index fastest). The
// layout is the one that the CGNS library gives its HDF5 files; values that lie in other files are
// external data sets.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include <plot3d/Field.h>

#include "index/cgns/Hdf5Handle.h"

namespace plot3d::program {

using CgnsNode = Hdf5Handle; // an open group
/// Where a node is in its file, for further links to it.
using CgnsPlace = haddr_t;

class CgnsTree {
public:
    /// Makes the file, in the place of an empty one. Throws Error (Refused), as all of these do.
    explicit CgnsTree(const std::filesystem::path& file);

    const CgnsNode& root() const { return root_; }

    /// A node without values.
    CgnsNode add(const CgnsNode& parent, const std::string& name, const std::string& label);
    CgnsNode addIntegers(const CgnsNode& parent, const std::string& name, const std::string& label,
                         std::span<const hsize_t> sizes, std::span<const std::int32_t> values);
    CgnsNode addReals(const CgnsNode& parent, const std::string& name, const std::string& label,
                      std::span<const float> values);
    CgnsNode addReals(const CgnsNode& parent, const std::string& name, const std::string& label,
                      std::span<const double> values);
    CgnsNode addText(const CgnsNode& parent, const std::string& name, const std::string& label,
                     const std::string& text);
    /// The same with the text cut into pieces of equal lengths, as `sizes` tells.
    CgnsNode addText(const CgnsNode& parent, const std::string& name, const std::string& label,
                     std::span<const hsize_t> sizes, const std::string& text);
    /// Values that lie in the file `path` as `source` tells, in slots.
    CgnsNode addExternal(const CgnsNode& parent, const std::string& name, const std::string& label,
                         std::span<const hsize_t> sizes, const Source& source,
                         const std::string& path);

    CgnsPlace placeOf(const CgnsNode& node) const;
    /// One more name for a node that is there: it stands below `parent` as well.
    void link(const CgnsNode& parent, const std::string& name, CgnsPlace place);

    /// Writes what is not written yet and closes the file.
    void finish();

private:
    void beginRoot();
    void addAttribute(const CgnsNode& node, const char* name, const Hdf5Handle& type,
                      const std::string& text);
    CgnsNode addNode(const CgnsNode& parent, const std::string& name, const std::string& label,
                     const char* type);
    void addData(const CgnsNode& node, std::span<const hsize_t> sizes, hid_t fileType,
                 hid_t memoryType, const void* values);
    void addBytes(const char* name, std::string text, std::size_t length);

    Hdf5Handle file_;
    CgnsNode root_;
    Hdf5Handle scalar_;
    Hdf5Handle nameType_; // of 33 bytes
    Hdf5Handle kindType_; // of 3 bytes
    Hdf5Handle nodeProperties_;
    Hdf5Handle dataProperties_;
};

} // namespace plot3d::program
