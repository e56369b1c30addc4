// Tests inside the reference host, whichever way the guest has come in: each begins with a fresh
// host and ends with the check that the guest kept the contract and gave everything back.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "quorvia/HostHandles.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {

using Texts = std::vector<std::string>;
using Numbers = std::vector<double>;
using Members = std::vector<std::int64_t>;

class HostedTest : public ::testing::Test {
protected:
    enum class LeakCheck_e { AtEnd, None };

    explicit HostedTest(LeakCheck_e leakCheck = LeakCheck_e::AtEnd);
    /// Asks the host for leaks, its lock and violations when all that the test held is gone.
    ~HostedTest() override;

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    /// The violations of the whole test, in order; none unless it says so.
    void expectViolations(Texts violations) { expectedViolations_ = std::move(violations); }

    // ---- What the user saw since the last reset or clearLog

    static Texts messages();
    static Texts progress() { return host().log().progress.texts(); }
    static bool showedProgress(const std::string& text);

    // ---- What is in the frame: zones and variables from 1. What is not there throws
    // std::runtime_error, which ends the test; lists are empty without a data set.

    static host::DataSet& dataSet();
    static host::Zone_s& zone(std::int32_t number);
    static const host::Field_s& field(std::int32_t zone, std::int32_t variable);
    static std::int32_t zoneCount();
    static Texts zoneNames();
    static Texts variableNames();
    static std::vector<std::int32_t> strands();
    static Numbers solutionTimes();
    static std::int32_t fieldType(std::int32_t zone, std::int32_t variable);
    static host::FieldState_e state(std::int32_t zone, std::int32_t variable);
    /// The zone whose field this one shares; its own number if it shares none.
    static std::int32_t holder(std::int32_t zone, std::int32_t variable);
    /// The values of a field, I fastest, fetched if need be, whatever its type.
    static Numbers values(std::int32_t zone, std::int32_t variable);
    static std::vector<std::int32_t> integers(std::int32_t zone, std::int32_t variable);

    // ---- What another program leaves at the host. The caller holds the lock.

    static void makeDataSet(const Texts& variables, const char* loader = "another loader",
                            const char* title = "an old data set");
    /// A zone named "old" of the last data set. `fieldTypes` has a type for each variable; empty:
    /// 32-bit reals.
    static void makeZone(std::int64_t i, std::int64_t j, std::int64_t k,
                         const std::vector<std::int32_t>& fieldTypes = {},
                         std::int32_t zoneType = QuorZoneType_Ordered);

    // ---- The host's containers

    static HostStringList listOf(const Texts& texts);
    static Texts textsOf(const HostStringList& list);
    static HostSet setOf(const Members& members);
    static Members membersOf(QuorSetHandle set);

private:
    LeakCheck_e leakCheck_;
    Texts expectedViolations_;
};

/// Plays the guest itself, and holds the host's lock for that, from before its members are made
/// until they are gone.
class GuestTest : public HostedTest {
protected:
    GuestTest() { QuorUtilLockOn(); }
    ~GuestTest() override { QuorUtilLockOff(); }
};

} // namespace quorvia::testsupport
