#include "open/LinkedAddOn.h"

#include <optional>
#include <string>

#include <plot3d/AddOn.h>
#include <plot3d/Error.h>

#include "addon/AddOnEntry.h"
#include "open/HostLock.h"
#include "session/GuestEntry.h"
#include "session/SeparateFrame.h"

namespace plot3dlib {

namespace {

using quorvia::host::Deferral;
using quorvia::host::FieldStorage;

/// What the guest whose load callback this is keeps of the field; null for another guest's.
template <typename Record>
const Record* recordOf(const FieldStorage& field, bool (*loadCallback)(QuorFieldHandle)) {
    const Deferral* const deferral = field.deferral();
    if (deferral == nullptr || deferral->code() != reinterpret_cast<const void*>(loadCallback))
        return nullptr;
    return static_cast<const Record*>(deferral->clientData());
}

} // namespace

const quorvia::host::Loader_s& linkedLoader() {
    static std::optional<quorvia::host::Loader_s> loader;
    if (loader)
        return *loader;
    const quorvia::host::SeparateFrame unseen;
    std::string error;
    loader = quorvia::host::enterLinkedGuest(InitQuorAddOn113, error);
    if (!loader)
        throw plot3d::Error(plot3d::ErrorKind::NoMemory, error);
    return *loader;
}

const quorvia::quorutildataio::Plot3DLodRecord_s* fileRecordOf(const FieldStorage& field) {
    return recordOf<quorvia::quorutildataio::Plot3DLodRecord_s>(
        field, quorvia::quorutildataio::lodLoadCallback);
}

const quorvia::quorutildataio::Plot3DBoundaryClientData_s*
boundaryRecordOf(const FieldStorage& field) {
    return recordOf<quorvia::quorutildataio::Plot3DBoundaryClientData_s>(
        field, quorvia::quorutildataio::loadBoundaryVar);
}

} // namespace plot3dlib

namespace plot3d {

void registerAddOn() {
    const plot3dlib::HostLock lock;
    plot3dlib::linkedLoader();
}

} // namespace plot3d
