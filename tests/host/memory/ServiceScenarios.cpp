#include "memory/ServiceScenarios.h"

#include "state/HostState.h"

namespace quorvia::host {

Guest::~Guest() {
    hostState().frame.reset();
    task.reset(); // a task ends before its parent
    QuorUtilArrayDealloc(&array);
}

void readyZones(Guest&) {
    Made::createDataSet({"a variable with a long name", "Y"});
    Made::addZone(2, 3, 5);
    Made::addZone(2, 3, 5);
}

std::vector<ServiceScenario> allScenarios() {
    std::vector<ServiceScenario> scenarios;
    for (const auto& group : {basicScenarios(), dataScenarios(), dialogScenarios(),
                              utilityScenarios(), sessionScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

} // namespace quorvia::host
