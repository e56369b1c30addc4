// The add-on in the reference host, for tests that drive it as a user of the host does. It comes in
// once per program, before the first test, by one of two roads: linked in, or as the built library.
// Each test begins with an empty frame, and ends with the check that the add-on kept the contract.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "support/HostedTest.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

/// Key and value of what a load is told beside its files.
using Setting = std::pair<std::string, std::string>;
using Settings = std::vector<Setting>;

/// The variables of a grid in three dimensions with a classic solution.
inline const Texts gridAndSolution = {"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};

/// The files of one load and what else it is told.
struct Load_s {
    Texts gridFiles = {};
    Texts solutionFiles = {};
    Texts functionFiles = {};
    std::string nameFile = {}; // empty: none
    Settings settings = {};    // in this order
};

/// The load as a list of instructions: the head of the standard syntax, the files, the settings.
Texts instructionsOf(const Load_s& load);

class LoadedAddOnTest : public HostedTest {
protected:
    /// Discards the data set, with its clean-up callbacks, before it looks for leaks.
    void TearDown() override;

    /// Runs the load as a macro does. The data set of an earlier load is replaced.
    static host::LoadResult_s load(const Load_s& load);
    /// Hands the files over as the import menu does.
    static host::LoadResult_s select(const Texts& files);

    /// Runs the load, and fails the test with the add-on's messages unless it came in silently.
    static void expectLoads(const Load_s& load);
    static void expectSelectionLoads(const Texts& files);

    /// A directory of the test's own for its files.
    const TemporaryDirectory& directory() const { return directory_; }

private:
    TemporaryDirectory directory_;
};

} // namespace quorvia::testsupport
