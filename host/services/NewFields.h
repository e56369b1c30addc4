// What the services that add zones and variables have in common: the types of the new fields, and
// their storage.
#pragma once

#include <cstdint>
#include <vector>

#include "services/ArgumentReader.h"

namespace quorvia::host {

/// The types in the argument "VarDataType", which is there, `count` of them. Empty, and a
/// violation, if one is no type of a field (`count` is at least 1 in that case).
std::vector<std::int32_t> readTypes(Call& call, ArgumentReader& reader, std::size_t count);

/// Gives the field the storage that "DeferVarCreation" asks for: none (1), or zeros. False: no
/// memory.
bool createField(Call& call, Field_s& field, std::int64_t valueCount, bool isDeferred);

/// "VarDataType [1, 1, 2]" for the transcript.
std::string describeTypes(const std::vector<std::int32_t>& types);

} // namespace quorvia::host
