// Numbers that tell two fields apart at a glance, and a checksum that tells them apart for certain.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>

#include "describe/Outcome.h"

namespace quorvia::host {

/// Goes over `count` values of `type` (QuorFieldDataType_e) that begin at `values`, which may be
/// null if `count` is 0. Of an unknown type only the NaNs of an empty field are told.
FieldStatistics_s describeValues(QuorFieldDataType_e type, const void* values, std::int64_t count);

/// The same, with `mayGoOn` asked every few milliseconds. Nothing once it has said no.
std::optional<FieldStatistics_s> describeValuesWhile(const std::function<bool()>& mayGoOn,
                                                     QuorFieldDataType_e type, const void* values,
                                                     std::int64_t count);

/// CRC-32, with the polynomial of zlib, over the integers as little-endian bytes.
std::uint32_t crc32OfIntegers(std::span<const std::int32_t> values);

} // namespace quorvia::host
