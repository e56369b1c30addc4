#include "index/cgns/CgnsTree.h"

#include <plot3d/Error.h>

#include "index/contents/Slots.h"

namespace plot3d::program {

namespace {

constexpr std::size_t nameBytes = 33;
constexpr std::size_t kindBytes = 3;
constexpr unsigned inOrder = H5P_CRT_ORDER_TRACKED | H5P_CRT_ORDER_INDEXED;

Hdf5Handle textType(std::size_t length) {
    Hdf5Handle type(H5Tcopy(H5T_C_S1), H5Tclose);
    checkHdf5(H5Tset_size(type.get(), length));
    return type;
}

Hdf5Handle properties(hid_t kind) {
    return {H5Pcreate(kind), H5Pclose};
}

/// Nodes have few links, but some have one for each time step: those are kept in a tree by the
/// library, the others in the header of the group. Room for its attributes is taken at once, as if
/// it were for links: a header that grows costs time and bytes.
Hdf5Handle nodeProperties() {
    constexpr unsigned mostInHeader = 64;
    constexpr unsigned linksInRoom = 4;
    constexpr unsigned lengthInRoom = 44;
    Hdf5Handle list = properties(H5P_GROUP_CREATE);
    checkHdf5(H5Pset_link_creation_order(list.get(), inOrder));
    checkHdf5(H5Pset_link_phase_change(list.get(), mostInHeader, mostInHeader / 2));
    checkHdf5(H5Pset_est_link_info(list.get(), linksInRoom, lengthInRoom));
    checkHdf5(H5Pset_obj_track_times(list.get(), false));
    return list;
}

Hdf5Handle dataProperties() {
    Hdf5Handle list = properties(H5P_DATASET_CREATE);
    checkHdf5(H5Pset_obj_track_times(list.get(), false));
    checkHdf5(H5Pset_fill_time(list.get(), H5D_FILL_TIME_NEVER));
    return list;
}

Hdf5Handle createdFile(const std::filesystem::path& path) {
    constexpr hsize_t metadataAtATime = 8192; // of which the last may stay empty
    const Hdf5Handle access = properties(H5P_FILE_ACCESS);
    checkHdf5(H5Pset_libver_bounds(access.get(), H5F_LIBVER_V18, H5F_LIBVER_V18));
    checkHdf5(H5Pset_meta_block_size(access.get(), metadataAtATime));
    const Hdf5Handle creation = properties(H5P_FILE_CREATE);
    checkHdf5(H5Pset_link_creation_order(creation.get(), inOrder));
    return {H5Fcreate(path.c_str(), H5F_ACC_TRUNC, creation.get(), access.get()), H5Fclose};
}

hid_t fileType(const Source& source) {
    const bool isBig = source.order == ByteOrder::Big;
    switch (source.type) {
    case ValueType::Float64:
        return isBig ? H5T_IEEE_F64BE : H5T_IEEE_F64LE;
    case ValueType::Int32:
        return isBig ? H5T_STD_I32BE : H5T_STD_I32LE;
    case ValueType::Float32:
        break;
    }
    return isBig ? H5T_IEEE_F32BE : H5T_IEEE_F32LE;
}

const char* kindOf(ValueType type) {
    if (type == ValueType::Int32)
        return "I4";
    return type == ValueType::Float64 ? "R8" : "R4";
}

Hdf5Handle space(std::span<const hsize_t> sizes) {
    return {H5Screate_simple(static_cast<int>(sizes.size()), sizes.data(), nullptr), H5Sclose};
}

/// The properties of a data set in another file.
Hdf5Handle externalProperties(const Hdf5Handle& common, const Source& source,
                              const std::string& path) {
    const std::vector<Piece> slots = slotsOf(source.pieces);
    if (slots.size() > mostSlots)
        throw Error(ErrorKind::Unsupported,
                    "a field is cut into " + std::to_string(slots.size()) + " pieces, and HDF5 " +
                        "takes " + std::to_string(mostSlots),
                    {.file = source.file});
    Hdf5Handle list(H5Pcopy(common.get()), H5Pclose);
    for (const Piece& slot : slots)
        checkHdf5(H5Pset_external(list.get(), path.c_str(), static_cast<off_t>(slot.offset),
                                  static_cast<hsize_t>(slot.byteCount)));
    return list;
}

} // namespace

CgnsTree::CgnsTree(const std::filesystem::path& file) {
    checkHdf5(H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr)); // errors are told by us
    file_ = createdFile(file);
    root_ = Hdf5Handle(H5Gopen2(file_.get(), "/", H5P_DEFAULT), H5Gclose);
    scalar_ = Hdf5Handle(H5Screate(H5S_SCALAR), H5Sclose);
    nameType_ = textType(nameBytes);
    kindType_ = textType(kindBytes);
    nodeProperties_ = nodeProperties();
    dataProperties_ = dataProperties();
    beginRoot();
}

void CgnsTree::beginRoot() {
    addAttribute(root_, "name", nameType_, "HDF5 MotherNode");
    addAttribute(root_, "label", nameType_, "Root Node of HDF5 File");
    addAttribute(root_, "type", kindType_, "MT");
    const std::string format = "IEEE_LITTLE_32";
    addBytes(" format", format, format.size() + 1);
    unsigned major = 0, minor = 0, release = 0;
    checkHdf5(H5get_libversion(&major, &minor, &release));
    addBytes(" hdf5version",
             "HDF5 Version " + std::to_string(major) + "." + std::to_string(minor) + "." +
                 std::to_string(release),
             nameBytes);
    constexpr std::array<float, 1> version = {3.4F};
    addReals(root_, "CGNSLibraryVersion", "CGNSLibraryVersion_t", version);
}

void CgnsTree::addBytes(const char* name, std::string text, std::size_t length) {
    text.resize(length);
    const std::array<hsize_t, 1> sizes = {length};
    const Hdf5Handle set(H5Dcreate2(root_.get(), name, H5T_STD_I8LE, space(sizes).get(),
                                    H5P_DEFAULT, dataProperties_.get(), H5P_DEFAULT),
                         H5Dclose);
    checkHdf5(H5Dwrite(set.get(), H5T_NATIVE_SCHAR, H5S_ALL, H5S_ALL, H5P_DEFAULT, text.data()));
}

void CgnsTree::addAttribute(const CgnsNode& node, const char* name, const Hdf5Handle& type,
                            const std::string& text) {
    std::array<char, nameBytes> bytes = {};
    text.copy(bytes.data(), nameBytes - 1);
    const Hdf5Handle attribute(
        H5Acreate2(node.get(), name, type.get(), scalar_.get(), H5P_DEFAULT, H5P_DEFAULT),
        H5Aclose);
    checkHdf5(H5Awrite(attribute.get(), type.get(), bytes.data()));
}

CgnsNode CgnsTree::addNode(const CgnsNode& parent, const std::string& name,
                           const std::string& label, const char* type) {
    constexpr std::int32_t flags = 1;
    constexpr std::array<hsize_t, 1> one = {1};
    CgnsNode node(
        H5Gcreate2(parent.get(), name.c_str(), H5P_DEFAULT, nodeProperties_.get(), H5P_DEFAULT),
        H5Gclose);
    addAttribute(node, "name", nameType_, name);
    addAttribute(node, "type", kindType_, type);
    addAttribute(node, "label", nameType_, label);
    const Hdf5Handle attribute(
        H5Acreate2(node.get(), "flags", H5T_STD_I32LE, space(one).get(), H5P_DEFAULT, H5P_DEFAULT),
        H5Aclose);
    checkHdf5(H5Awrite(attribute.get(), H5T_NATIVE_INT32, &flags));
    return node;
}

void CgnsTree::addData(const CgnsNode& node, std::span<const hsize_t> sizes, hid_t fileType,
                       hid_t memoryType, const void* values) {
    const Hdf5Handle set(H5Dcreate2(node.get(), " data", fileType, space(sizes).get(), H5P_DEFAULT,
                                    dataProperties_.get(), H5P_DEFAULT),
                         H5Dclose);
    checkHdf5(H5Dwrite(set.get(), memoryType, H5S_ALL, H5S_ALL, H5P_DEFAULT, values));
}

CgnsNode CgnsTree::add(const CgnsNode& parent, const std::string& name, const std::string& label) {
    return addNode(parent, name, label, "MT");
}

CgnsNode CgnsTree::addIntegers(const CgnsNode& parent, const std::string& name,
                               const std::string& label, std::span<const hsize_t> sizes,
                               std::span<const std::int32_t> values) {
    CgnsNode node = addNode(parent, name, label, "I4");
    addData(node, sizes, H5T_STD_I32LE, H5T_NATIVE_INT32, values.data());
    return node;
}

CgnsNode CgnsTree::addReals(const CgnsNode& parent, const std::string& name,
                            const std::string& label, std::span<const float> values) {
    CgnsNode node = addNode(parent, name, label, "R4");
    const std::array<hsize_t, 1> sizes = {values.size()};
    addData(node, sizes, H5T_IEEE_F32LE, H5T_NATIVE_FLOAT, values.data());
    return node;
}

CgnsNode CgnsTree::addReals(const CgnsNode& parent, const std::string& name,
                            const std::string& label, std::span<const double> values) {
    CgnsNode node = addNode(parent, name, label, "R8");
    const std::array<hsize_t, 1> sizes = {values.size()};
    addData(node, sizes, H5T_IEEE_F64LE, H5T_NATIVE_DOUBLE, values.data());
    return node;
}

CgnsNode CgnsTree::addText(const CgnsNode& parent, const std::string& name,
                           const std::string& label, const std::string& text) {
    const std::array<hsize_t, 1> sizes = {text.size()};
    return addText(parent, name, label, sizes, text);
}

CgnsNode CgnsTree::addText(const CgnsNode& parent, const std::string& name,
                           const std::string& label, std::span<const hsize_t> sizes,
                           const std::string& text) {
    CgnsNode node = addNode(parent, name, label, "C1");
    addData(node, sizes, H5T_STD_I8LE, H5T_NATIVE_SCHAR, text.data());
    return node;
}

CgnsNode CgnsTree::addExternal(const CgnsNode& parent, const std::string& name,
                               const std::string& label, std::span<const hsize_t> sizes,
                               const Source& source, const std::string& path) {
    const Hdf5Handle list = externalProperties(dataProperties_, source, path);
    CgnsNode node = addNode(parent, name, label, kindOf(source.type));
    const Hdf5Handle set(H5Dcreate2(node.get(), " data", fileType(source), space(sizes).get(),
                                    H5P_DEFAULT, list.get(), H5P_DEFAULT),
                         H5Dclose);
    return node;
}

CgnsPlace CgnsTree::placeOf(const CgnsNode& node) const {
    H5O_info_t info;
    checkHdf5(H5Oget_info2(node.get(), &info, H5O_INFO_BASIC));
    return info.addr;
}

void CgnsTree::link(const CgnsNode& parent, const std::string& name, CgnsPlace place) {
    const Hdf5Handle node(H5Oopen_by_addr(file_.get(), place), H5Oclose);
    checkHdf5(H5Olink(node.get(), parent.get(), name.c_str(), H5P_DEFAULT, H5P_DEFAULT));
}

void CgnsTree::finish() {
    root_.reset();
    if (!file_.reset())
        throw Error(ErrorKind::Refused, "could not be written whole");
}

} // namespace plot3d::program
