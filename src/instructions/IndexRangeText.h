// The text of an index range, "Start,End,Skip", such as 2,40,3 or 1,,1.
#pragma once

#include <cstdint>
#include <string>

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Reads the three fields in their order into `range` and checks them. An empty field, or one that
/// the text does not reach, keeps its value. `label` names the range in messages. False (told): a
/// field or the range is wrong; the fields before it are stored.
[[nodiscard]] bool parseIndexRange(const char* text, Plot3DIndexRange_s& range,
                                   const std::string& label);

/// Reads one field of at most nine digits, leading zeros apart, and moves the cursor behind the
/// separator that ends it, but never behind the end of the text. There is no sign. False (told): it
/// is wrong or too large; `field` is as it was.
[[nodiscard]] bool parseIndexRangeField(const char*& cursor, std::int32_t& field,
                                        const std::string& label);

} // namespace quorvia::quorutildataio
