// How text fields show indices and sets of numbers, and how they read them.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace quorvia::host {

/// More members than this a field does not take: a slip such as 1-2000000000 would fill the memory.
inline constexpr std::int64_t largestSetInField = 1'000'000;

/// 0 is shown as "Last" where it stands for the last index.
std::string indexText(std::int64_t value, bool zeroIsLast);

/// A whole number with blanks around it. With `zeroIsLast` also "Last" in any case, and nothing at
/// all, both as 0.
std::optional<std::int64_t> readIndex(std::string_view text, bool zeroIsLast);

/// In the form 1-5,7,12.
std::string setText(const std::set<std::int64_t>& members);

/// Numbers and ranges such as 1-5,7,12, also with a step as in 1-9:2, with commas or blanks between
/// them. Nothing, and `why` says in words, if the text is no such set.
std::optional<std::set<std::int64_t>> readSet(std::string_view text, std::string& why);

} // namespace quorvia::host
