// Whole sessions of every kind, for faults to be met in: a few loads, one onto the other, of files
// of a few points.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "acceptance/macros/FieldOfFile.h"
#include "session/ReferenceHost.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

using Texts = std::vector<std::string>;

/// What a load that fails may leave of the data set that it was for (docs/append-and-replace.md).
enum class Survival_e {
    BeforeOrNothing,    // a fresh load: what was there, or an empty frame
    BeforeAndVariables, // an append: all that was there; variables may have been added
    SomeReplaced        // a solution into zones that are there: those of the first step, each field
                        // old or new
};

/// A file beside the data, without which a load goes on.
enum class SideFile_e { None, Boundaries, Names };

struct Step_s {
    std::string name;
    Survival_e survival = Survival_e::BeforeOrNothing;
    std::function<host::LoadResult_s()> run;
};

struct Session_s {
    std::string name; // a word of letters
    std::vector<Step_s> steps;
    bool sharingAllowed = true; // of the host
    bool plainArrays = true;
    SideFile_e sideFile = SideFile_e::None;
    std::size_t zonesWithoutBoundaries = 0;
};

/// Grows with each message that the user is shown, the toolkit's own among them; one of the
/// add-on's counts also if the host has no memory to keep it.
std::int64_t messagesShown();

/// Writes the files of all sessions. They and the sessions are good as long as it lives.
class Sessions {
public:
    Sessions();
    const std::vector<Session_s>& all() const { return all_; }
    /// Where the files are.
    std::string folder() const { return directory_.path().string(); }
    /// Makes files in a folder of their own there.
    SmallFiles filesOf(const std::string& subfolder) const;
    /// Writes `text` to a file there; gives its whole name.
    std::string write(const std::string& name, const std::string& text) const {
        return directory_.write(name, text);
    }

private:
    Session_s& add(const std::string& name);

    void addFreshLoads();
    void addAppendsAndReplacements();
    void addSideFiles();
    void addLayouts();
    void addSelections();

    TemporaryDirectory directory_;
    std::vector<Session_s> all_;
};

} // namespace quorvia::testsupport
