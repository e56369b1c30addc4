// Each service of the host while the host's memory runs out at its first, second, third ...
// allocation: it happens whole or not at all, as its result says; the guest is blamed for nothing;
// and the same call works once there is memory again. And each as its row among the operations
// tells: counted by its name, and failing on purpose if it has a way to.
#include <cctype>
#include <memory>
#include <new>

#include "checks/Operations.h"
#include "memory/HostPicture.h"
#include "memory/ServiceScenarios.h"
#include "state/HostState.h"
#include "support/AllocationFaults.h"

namespace quorvia::host {

void PrintTo(const ServiceScenario_s& scenario, std::ostream* out) {
    *out << scenario.service;
}

namespace {

using testsupport::FaultSpan_e;

struct Attempt_s {
    Ended_e ended = Ended_e::Done;
    bool wasFaulted = false; // an allocation failed
};

Ended_e callOf(const ServiceScenario_s& scenario, Guest_s& guest) {
    try {
        return scenario.call(guest);
    } catch (const std::bad_alloc&) {
        return Ended_e::BadAlloc;
    } catch (const InterruptedException&) {
        return Ended_e::Refused;
    }
}

/// Allocation `n`, from 1, fails; 0 for none.
Attempt_s attempt(const ServiceScenario_s& scenario, Guest_s& guest, std::int64_t n,
                  FaultSpan_e span) {
    testsupport::failAllocation(n, span);
    const Ended_e ended = callOf(scenario, guest);
    return {ended, testsupport::endAllocationFaults()};
}

class EveryService : public HostTest, public ::testing::WithParamInterface<ServiceScenario_s> {
protected:
    EveryService() {
        testsupport::countCAllocations();
        freeLock(); // each stage takes it anew
    }

    /// A host as at its start, with a guest who is about to call the service.
    class Stage {
    public:
        Stage(const ServiceScenario_s& scenario, QuorAddOnHandle addOn, bool recordsTranscript) {
            hostState().toolkit.removeWhere([](const Dialog_s&) { return true; });
            hostState().loaders.clear();
            hostState().stateChangeCallbacks.clear();
            host().reset();
            QuorUtilLockStart(addOn);
            before_ = GivenOut_s::now();
            guest_ = std::make_unique<Guest_s>();
            guest_->addOn = addOn;
            scenario.prepare(*guest_);
            host().recordTranscript(recordsTranscript);
        }
        Guest_s& guest() { return *guest_; }
        std::string picture() const { return hostPicture(*guest_, before_); }
        /// What is wrong when the guest has left.
        Texts faultsAtTheEnd() {
            guest_.reset();
            // What these scenarios leave open is theirs to leave open.
            hostState().guestLockDepth = hostState().entryLockDepth = 0;
            hostState().openUndoStates = 0;
            host().checkForLeaks();
            return host().log().violations;
        }

    private:
        GivenOut_s before_ = {};
        std::unique_ptr<Guest_s> guest_;
    };

    /// Runs without a fault first, and then with each; false once there is nothing left to fail.
    void failEachAllocation(FaultSpan_e span, bool recordsTranscript) {
        Stage faultless(GetParam(), addOn(), recordsTranscript);
        before_ = faultless.picture();
        ended_ = attempt(GetParam(), faultless.guest(), 0, span).ended;
        after_ = faultless.picture();
        ASSERT_TRUE(ended_ == Ended_e::Done || ended_ == Ended_e::Silent);
        EXPECT_EQ(faultless.faultsAtTheEnd(), Texts());
        for (std::int64_t n = 1; n < 1000 && failOneAllocation(n, span, recordsTranscript); ++n) {
        }
    }

private:
    bool failOneAllocation(std::int64_t n, FaultSpan_e span, bool recordsTranscript) {
        SCOPED_TRACE("allocation " + std::to_string(n));
        Stage stage(GetParam(), addOn(), recordsTranscript);
        EXPECT_EQ(stage.picture(), before_);
        const Attempt_s faulted = attempt(GetParam(), stage.guest(), n, span);
        const std::string now = stage.picture();
        EXPECT_EQ(now, expectedAfter(faulted.ended, now));
        EXPECT_TRUE(faulted.ended != Ended_e::BadAlloc || GetParam().mayThrow);
        if (now == before_ && before_ != after_) {
            EXPECT_EQ(callOf(GetParam(), stage.guest()), ended_);
            EXPECT_EQ(stage.picture(), after_);
        }
        EXPECT_EQ(stage.faultsAtTheEnd(), Texts());
        return faulted.wasFaulted && !HasFailure();
    }
    const std::string& expectedAfter(Ended_e ended, const std::string& now) const {
        if (ended == Ended_e::Refused || ended == Ended_e::BadAlloc)
            return before_;
        return ended == Ended_e::Silent && now == before_ ? before_ : after_;
    }

    std::string before_, after_; // of a run without a fault
    Ended_e ended_ = Ended_e::Done;
};

TEST_P(EveryService, HappensWholeOrNotAtAllIfOneAllocationFails) {
    failEachAllocation(FaultSpan_e::Once, false);
}

TEST_P(EveryService, HappensWholeOrNotAtAllIfAllAllocationsFailFromOneOn) {
    failEachAllocation(FaultSpan_e::FromThenOn, false);
}

TEST_P(EveryService, HappensWholeOrNotAtAllWhileItsCallsAreRecorded) {
    failEachAllocation(FaultSpan_e::Once, true);
    failEachAllocation(FaultSpan_e::FromThenOn, true);
}

/// The scenarios with a row among the operations: not those of what calls other operations, and
/// not those of what a user does.
class EveryOperation : public EveryService {
protected:
    const OperationTraits_s& row() const {
        return OperationId::at(*rowOf(GetParam().service)).traits();
    }
    /// He stops a task that has done its step, or answers No: what happened before stands.
    bool isRefusedByTheUser() const {
        return row().name == "QuorUtilDialogMessageBox" ||
               row().name.rfind("TaskProgress::", 0) == 0;
    }
};

TEST_P(EveryOperation, IsCountedByItsName) {
    Stage stage(GetParam(), addOn(), false);
    const std::int64_t before = host().callCount(row().name);
    callOf(GetParam(), stage.guest());
    EXPECT_GT(host().callCount(row().name), before);
    EXPECT_EQ(stage.faultsAtTheEnd(), Texts());
}

TEST_P(EveryOperation, FailsOnPurposeIfItsRowSaysSo) {
    Stage stage(GetParam(), addOn(), false);
    const std::string before = stage.picture();
    host().failCall(row().name, 1);
    const Ended_e ended = callOf(GetParam(), stage.guest());
    const bool isRefused = ended == Ended_e::Refused || ended == Ended_e::BadAlloc;
    EXPECT_EQ(isRefused, row().failure == Failure_e::Possible);
    // A task has done its step when it passes on that the user wants it to stop.
    EXPECT_TRUE(!isRefused || isRefusedByTheUser() || stage.picture() == before);
    EXPECT_EQ(stage.faultsAtTheEnd(), Texts());
}

std::vector<ServiceScenario_s> scenariosOfOperations() {
    std::vector<ServiceScenario_s> scenarios = allScenarios();
    std::erase_if(scenarios, [](const auto& each) { return !rowOf(each.service); });
    return scenarios;
}

std::string testName(const ::testing::TestParamInfo<ServiceScenario_s>& info) {
    std::string name = std::to_string(info.index) + '_';
    for (const char letter : info.param.service)
        if (std::isalnum(static_cast<unsigned char>(letter)) != 0)
            name += letter;
        else if (letter == '~')
            name += "End";
    return name;
}

INSTANTIATE_TEST_SUITE_P(Host, EveryService, ::testing::ValuesIn(allScenarios()), testName);
INSTANTIATE_TEST_SUITE_P(Host, EveryOperation, ::testing::ValuesIn(scenariosOfOperations()),
                         testName);

// ---- The faults are there -----------------------------------------------------------------------

TEST(AllocationFault, ReachesTheHost) {
    testsupport::countCAllocations();
    const auto number = static_cast<std::int32_t>(QuorFieldDataType_Float);
    testsupport::failAllocation(1, FaultSpan_e::Once);
    EXPECT_THROW(FieldStorage::stored(number, 3), std::bad_alloc);
    EXPECT_TRUE(testsupport::endAllocationFaults());
    EXPECT_NE(FieldStorage::stored(number, 3), nullptr);
    EXPECT_FALSE(testsupport::endAllocationFaults());
}

#ifndef __SANITIZE_ADDRESS__ // which has a malloc of its own

TEST(AllocationFault, ReachesTheBlocksOfTheHost) {
    testsupport::countCAllocations();
    testsupport::failAllocation(1, FaultSpan_e::Once);
    EXPECT_FALSE(static_cast<bool>(ValueBlock::zeroed(8)));
    EXPECT_TRUE(testsupport::endAllocationFaults());
}

#endif

} // namespace
} // namespace quorvia::host
