// What --set may add to a list of load instructions. A key that the list does not know would end
// its reading without a word, and a word that a key does not know counts as another or ends the
// load without one: so both are looked at before anything is loaded.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvia::host {

/// Why `key` with `value` can't stand in a list, with the nearest key or word that can; empty if it
/// can. Keys and words are compared without regard to case. What a range, a set or a file name
/// holds is for the loader to judge.
std::string settingProblem(std::string_view key, std::string_view value);

/// Every key that is told as the nearest one: those that a value follows, and the lists of files.
std::vector<std::string_view> settingKeys();

} // namespace quorvia::host
