// Whole sessions on the built library: a test writes its commands down, and gets the outcomes that
// `quorhost macro --json` gives a program.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/Json.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

using Texts = std::vector<std::string>;
using Commands = std::vector<Json>;

/// Commands of a macro.
Json command(const std::string& name, const Json& value);
Json select(const Texts& files);
Json describe(const std::string& name);
Json replay();
/// The standard syntax, with a list for each kind of file that there is, then the settings.
struct Files_s {
    Texts grids = {};
    Texts solutions = {};
    Texts functions = {};
};
Json load(const Files_s& files,
          const std::vector<std::pair<std::string, std::string>>& settings = {});

class MacroSession : public ::testing::Test {
protected:
    /// Plays a session of its own and keeps its outcomes. The test fails if the macro is bad, and
    /// if the add-on breaks the contract otherwise than expected or leaves the lock held.
    void play(const Commands& commands, const Texts& options = {});

    const Json& described(const std::string& name) const;
    const Json& last() const { return outcomes_["final"]; }

    /// Of an outcome.
    static Texts messages(const Json& outcome);
    static Texts zoneNames(const Json& outcome);
    /// What two loads can be compared by: the data set with the CRC-32 of every field, and the plot
    /// type.
    static Json dataSet(const Json& outcome);

    const TemporaryDirectory& directory() const { return directory_; }

private:
    TemporaryDirectory directory_;

protected:
    SmallFiles files_{directory_.path().string()};
    int exitCode_ = -1;
    Texts expectedViolations_;
    std::string shown_; // on standard error by the last session

private:
    Json outcomes_;
};

} // namespace quorvia::testsupport
