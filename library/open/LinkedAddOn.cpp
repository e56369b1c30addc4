#include "open/LinkedAddOn.h"

#include <cstddef>

#include <plot3d/Error.h>

#include "addon/AddOnEntry.h"
#include "session/ReferenceHost.h"

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

void registerLinkedAddOn() {
    static bool isRegistered = false;
    if (isRegistered)
        return;
    const auto& loaders = quorvia::host::ReferenceHost::instance().loaders();
    const std::size_t before = loaders.size();
    InitQuorAddOn113();
    isRegistered = loaders.size() > before;
    if (!isRegistered)
        throw plot3d::Error(plot3d::ErrorKind::NoMemory, "The loader could not be set up.");
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
