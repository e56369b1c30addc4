// Items of auxiliary data: pairs of a name and a text that the host keeps on a zone or a data set.
#pragma once

#include <array>
#include <cstdint>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets a string item that the host saves with the data. False (not
/// told): refused, or `auxData` is null.
[[nodiscard]] bool setAuxDataItem(QuorAuxDataHandle auxData, const char* name, const char* text);

/// Text of a value, zero-terminated.
using AuxDataText = std::array<char, 80>;

/// A real as "%lG" prints it, whatever the locale of the host; an integer in decimal. False (not
/// told): the text does not fit.
[[nodiscard]] bool formatReal(double value, AuxDataText& text);
[[nodiscard]] bool formatInteger(std::int32_t value, AuxDataText& text);

} // namespace quorvia::quorutildataio
