#include "memory/ServiceScenarios.h"

#include "checks/Operations.h"
#include "state/HostState.h"

namespace quorvia::host {

Guest_s::~Guest_s() {
    hostState().frame.reset();
    task.reset(); // a task ends before its parent
    QuorUtilArrayDealloc(&array);
}

void readyZones(Guest_s&) {
    Made::createDataSet({"a variable with a long name", "Y"});
    Made::addZone(2, 3, 5);
    Made::addZone(2, 3, 5);
}

std::vector<ServiceScenario_s> allScenarios() {
    std::vector<ServiceScenario_s> scenarios;
    for (const auto& group : {basicScenarios(), dataScenarios(), dialogScenarios(),
                              utilityScenarios(), sessionScenarios()})
        scenarios.insert(scenarios.end(), group.begin(), group.end());
    return scenarios;
}

std::optional<std::size_t> rowOf(const std::string& service) {
    const std::optional<std::size_t> row = findOperation(service);
    const std::size_t colons = service.find("::");
    if (row || colons == std::string::npos)
        return row;
    return findOperation(service.substr(colons + 2));
}

} // namespace quorvia::host
