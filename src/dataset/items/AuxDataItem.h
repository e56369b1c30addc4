// Items of auxiliary data: pairs of a name and a text that the host keeps on a zone or a data set.
#pragma once

#include <array>
#include <cstdint>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets a string item that the host saves with the data. False: refused, or `auxData` is null.
bool setAuxDataItem(QuorAuxDataHandle auxData, const char* name, const char* text);

/// Text of a value, zero-terminated.
using AuxDataText = std::array<char, 80>;

/// A real as "%lG" prints it, whatever the locale of the host; an integer in decimal. False: the
/// text does not fit.
bool formatReal(double value, AuxDataText& text);
bool formatInteger(std::int32_t value, AuxDataText& text);

} // namespace quorvia::quorutildataio
