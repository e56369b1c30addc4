// For each service of the host a guest who calls it: what he has readied, and the one call.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "HostFixture.h"
#include "quorvia/QuorGUI.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {

/// What a guest of one scenario holds. At its end the data set is discarded and everything is given
/// back.
struct Guest_s {
    QuorAddOnHandle addOn = nullptr;
    HostStringList list, otherList;
    HostArgList arguments;
    HostSet set, newSet;
    HostString text;
    void* array = nullptr; // given back as an array
    QuorFieldHandle field = nullptr;
    QuorNodeMapHandle nodes = nullptr;
    QuorAuxDataHandle auxData = nullptr;
    std::int32_t dialog = QuorGUIId_None, tabs = QuorGUIId_None, control = QuorGUIId_None;
    FakeSource_s first{.firstValue = 2.0F}, second{.firstValue = 3.0F}; // of deferred fields
    std::unique_ptr<TaskProgress> bar, task;
    double shownFraction = 0.0; // what the bar's window was told last
    bool isBarShown = false;
    std::unique_ptr<StringList> ownedList;
    std::unique_ptr<SolutionTimeNotificationDeferrer> deferrer;

    Guest_s() = default;
    Guest_s(const Guest_s&) = delete;
    Guest_s& operator=(const Guest_s&) = delete;
    ~Guest_s();
};

/// How a call ended.
enum class Ended_e {
    Done,     // the result says that the service has done its work
    Refused,  // the result says that it has not
    Silent,   // there is no result
    BadAlloc, // std::bad_alloc was thrown
};

/// `what` is a result of the kind that is null or false for a failure.
template <typename Result>
Ended_e told(const Result& what) {
    return what ? Ended_e::Done : Ended_e::Refused;
}

struct ServiceScenario_s {
    std::string service; // as declared, members with their class: "StringList::append"
    void (*prepare)(Guest_s&);
    Ended_e (*call)(Guest_s&); // may be called again when it has done nothing
    bool mayThrow = false;     // std::bad_alloc, as the service's comment says
};

/// Of the operations in QuorUtil.h: memory and what needs no data set, and the rest.
std::vector<ServiceScenario_s> basicScenarios();
std::vector<ServiceScenario_s> dataScenarios();
/// Of QuorGUI.h.
std::vector<ServiceScenario_s> dialogScenarios();
/// Of QuorUtilityLibrary.h.
std::vector<ServiceScenario_s> utilityScenarios();
/// What a user does at the host, which calls the guest back.
std::vector<ServiceScenario_s> sessionScenarios();
std::vector<ServiceScenario_s> allScenarios();

/// The place of a service in the table of operations (checks/Operations.h), which names what makes
/// and ends an object by its class alone; nothing for one that is not in it.
std::optional<std::size_t> rowOf(const std::string& service);

// ---- For what scenarios ready -------------------------------------------------------------------

/// No string keeps so long a text within itself.
inline constexpr const char* longText = "a text for which every copy needs memory of its own";

/// The fixture's ways to make things, for those that are no tests.
class Made : public HostTest {
public:
    using HostTest::addZone;
    using HostTest::createDataSet;
    using HostTest::setOf;
    using HostTest::zoneArguments;
};

/// Two zones of 2 x 3 x 5 with two variables each; all fields are empty.
void readyZones(Guest_s& guest);

} // namespace quorvia::host
