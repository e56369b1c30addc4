// The built library in the reference host, for tests that drive it as a user of the host does. The
// library is opened once per program, before the first test, and unloaded after the last; each test
// begins with an empty frame, and ends with the check that the add-on kept the contract.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "session/ReferenceHost.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

using Texts = std::vector<std::string>;

/// The files of one load and what else it is told.
struct Load_s {
    Texts gridFiles = {};
    Texts solutionFiles = {};
    Texts functionFiles = {};
    std::string nameFile = {};                                      // empty: none
    std::vector<std::pair<std::string, std::string>> settings = {}; // key and value, in this order
};

/// The load as a list of instructions: the head of the standard syntax, the files, the settings.
Texts instructionsOf(const Load_s& load);

class LoadedAddOnTest : public ::testing::Test {
protected:
    void SetUp() override;
    /// Discards the data set, with its clean-up callbacks, before it looks for leaks.
    void TearDown() override;

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    /// Runs the load as a macro does. The data set of an earlier load is replaced.
    static host::LoadResult_s load(const Load_s& load);
    /// Hands the files over as the import menu does.
    static host::LoadResult_s select(const Texts& files);

    /// Runs the load, and fails the test with the add-on's messages unless it came in silently.
    static void expectLoads(const Load_s& load);
    static void expectSelectionLoads(const Texts& files);

    /// What was shown to the user since the last reset or clearLog.
    static Texts messages();
    static Texts variableNames();
    static Texts zoneNames();

    /// The data set, zone and field of numbers from 1. Throw std::runtime_error if they aren't
    /// there, which ends the test.
    static host::DataSet& dataSet();
    static host::Zone_s& zone(std::int32_t number);
    static const host::Field_s& field(std::int32_t zoneNumber, std::int32_t variable);

    /// Values of a field, I fastest, fetched if need be, whatever its type. Throw
    /// std::runtime_error if the host could not fetch them.
    static std::vector<double> values(std::int32_t zoneNumber, std::int32_t variable);
    static std::vector<std::int32_t> integers(std::int32_t zoneNumber, std::int32_t variable);

    /// A directory of the test's own for its files.
    const TemporaryDirectory& directory() const { return directory_; }

private:
    TemporaryDirectory directory_;
};

} // namespace quorvia::testsupport
