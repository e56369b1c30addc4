// The add-on that is linked into this library, as a guest of the host, and what its fields keep.
#pragma once

#include "boundary/BoundaryFields.h"
#include "dataset/ondemand/LoadOnDemand.h"
#include "model/FieldStorage.h"
#include "state/Loader.h"

namespace plot3dlib {

/// The add-on's loader. Makes the add-on known to the host, the first time; throws plot3d::Error if
/// that fails. The host lock must be held.
const quorvia::host::Loader_s& linkedLoader();

/// What the add-on keeps of a field that lies in a file; null for any other field, those of another
/// copy of the add-on among them.
const quorvia::quorutildataio::Plot3DLodRecord_s*
fileRecordOf(const quorvia::host::FieldStorage& field);

/// What it keeps of a boundary's field; null for any other.
const quorvia::quorutildataio::Plot3DBoundaryClientData_s*
boundaryRecordOf(const quorvia::host::FieldStorage& field);

} // namespace plot3dlib
