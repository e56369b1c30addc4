// The add-on that is linked into this library, as a guest of the host, and what its fields keep.
#pragma once

#include "boundary/BoundaryFields.h"
#include "dataset/ondemand/LoadOnDemand.h"
#include "model/FieldStorage.h"

namespace plot3dlib {

/// Makes the add-on known to the host, the first time. Throws plot3d::Error if it does not register
/// a loader there. The host lock must be held.
void registerLinkedAddOn();

/// What the add-on keeps of a field that lies in a file; null for any other field, those of another
/// copy of the add-on among them.
const quorvia::quorutildataio::Plot3DLodRecord_s*
fileRecordOf(const quorvia::host::FieldStorage& field);

/// What it keeps of a boundary's field; null for any other.
const quorvia::quorutildataio::Plot3DBoundaryClientData_s*
boundaryRecordOf(const quorvia::host::FieldStorage& field);

} // namespace plot3dlib
