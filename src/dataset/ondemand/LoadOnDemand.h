// Fields that stay in their files: what the host keeps of one, and what it calls when it needs the
// values. From a request to the host's array: one open, one positioned read, one pass for the byte
// order. A long read asks between its pieces whether it is to go on. Nothing here depends on a load
// that is over.
#pragma once

#include <cstdint>
#include <memory>

#include "dataset/ondemand/Plot3DVarRepo.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// The client data of one variable of one zone; the host keeps it, the clean-up callback frees it.
struct Plot3DLodRecord_s {
    std::shared_ptr<Plot3DVariable_s> variable;
    std::int64_t fileOffset; // bytes from the file's start to the field's first value
    std::int64_t numValues;
};

/// Hands the field over to the host for load on demand. False (not told): the host refused
/// it, or no memory.
[[nodiscard]] bool registerLodVariable(const std::shared_ptr<Plot3DVariable_s>& variable,
                                       std::int32_t zone, std::int32_t var, std::int64_t fileOffset,
                                       std::int64_t numValues);

// The host's callbacks. They take no lock and touch nothing of a load. False (told),
// False (not told): as readLodVariable.
[[nodiscard]] bool lodLoadCallback(QuorFieldHandle field);
[[nodiscard]] bool lodUnloadCallback(QuorFieldHandle field);
void lodCleanupCallback(QuorFieldHandle field);

/// Reads the field into the host's array, which is partly written where it fails; the field can be
/// read again. False (told): the file does not open, or the host threw. False (not told): the file
/// is too short, the type is not that of its numbers, or the user stopped the read.
[[nodiscard]] bool readLodVariable(const Plot3DLodRecord_s& record, QuorFieldHandle field);

} // namespace quorvia::quorutildataio
