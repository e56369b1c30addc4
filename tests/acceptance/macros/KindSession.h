// The six kinds of load, each on a data set that it can go onto.
#pragma once

#include <string>
#include <vector>

#include "acceptance/macros/FieldOfFile.h"
#include "acceptance/macros/MacroSession.h"

namespace quorvia::testsupport {

enum class LoadKind_e {
    Fresh,
    ReplaceSolution,
    AppendGrid,
    AppendToLoneGrid,
    AppendSolution,
    AppendFunctions
};

inline constexpr LoadKind_e allLoadKinds[] = {
    LoadKind_e::Fresh,          LoadKind_e::ReplaceSolution,
    LoadKind_e::AppendGrid,     LoadKind_e::AppendToLoneGrid,
    LoadKind_e::AppendSolution, LoadKind_e::AppendFunctions};

std::string nameOf(LoadKind_e kind);

using Settings = std::vector<std::pair<std::string, std::string>>;

/// Two grids and five time steps of them, or a line for a data set that holds a grid alone: only a
/// 1-D solution has so few variables that it can join one.
class KindSession : public MacroSession {
protected:
    KindSession();

    /// A load of the first two time steps (times 1 and 2), or what else the kind goes onto.
    Json start(LoadKind_e kind) const;
    /// The load itself brings two time steps (3 and 4) with values 50 and 70 above those of the
    /// first; function files have two variables, shifted alike.
    Json loadOf(LoadKind_e kind, const Settings& more = {}) const;

    static bool appends(LoadKind_e kind);
    /// Codes and members of the state changes, such as "3: 5 6".
    static Texts stateChanges(const Json& outcome);
    /// "begin", "end ok", "end failed".
    static Texts undo(const Json& outcome);
    static bool showed(const Json& outcome, const std::string& progressText);

    SmallFiles series_{directory().path().string()};
    std::string grid_;
    Texts solutions_; // times 1 to 5
    Texts functions_;
    std::string line_;
    Texts lineSolutions_; // times 1 to 5
};

} // namespace quorvia::testsupport
