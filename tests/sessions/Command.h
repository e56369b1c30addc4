// What a user does in a session, as plain values: the model says what comes of it
// (rules/SessionRules.h), the player does it at the host (Player.h).
#pragma once

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "sessions/FileModel.h"

namespace quorvia::sessions {

/// Points that a load takes of a direction, from 1.
struct Range_s {
    std::int32_t start = 1;
    std::int32_t end = 0; ///< 0: the last
    std::int32_t skip = 1;

    bool isTurned() const { return end >= 1 && end < start; }
    bool isWhole() const { return start == 1 && end == 0 && skip == 1; }
};

/// By which road a load comes.
enum class Road_e {
    Instructions, ///< everything can be told
    Selection,    ///< files picked in the import menu, nothing else
    Dialog        ///< picked with advanced options, then set at the dialog
};

/// Files by their place in the session's list.
struct Load_s {
    Road_e road = Road_e::Instructions;
    std::vector<std::size_t> grids, solutions, functions;
    bool append = false;
    bool isDescribed = false; ///< the structure by hand, not by trial
    std::array<Range_s, 3> ranges;
    std::set<std::int32_t> gridSet; ///< from 1; empty: all
    bool sharesStructure = true;
    bool isUniform = true;
    bool assignsStrands = true;
    bool addsToStrands = false;
    bool newStrandEachStep = true;
    bool timesFromNames = false;
    bool loadsBoundary = false;
    bool answersOk = true; ///< to whatever is asked
};

/// Numbers that there are no zones of are passed over.
struct DeleteZones_s {
    std::set<std::int64_t> zones;
};

/// Drops all values that were fetched.
struct Unload_s {};

struct AllowSharing_s {
    bool isAllowed = true;
};

using Command = std::variant<Load_s, DeleteZones_s, Unload_s, AllowSharing_s>;

struct Session_s {
    std::uint64_t seed = 0;
    std::vector<FileModel_s> files;
    std::vector<Command> commands;
    bool fetchesOften =
        true; ///< every value is looked at behind each command, not at the end alone
};

/// For people: a command in one line, the session with the files that it uses in several.
std::string describe(const Command& command, const std::vector<FileModel_s>& files);
std::string describe(const Session_s& session);

} // namespace quorvia::sessions
