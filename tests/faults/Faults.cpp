#include "faults/Faults.h"

#include "faults/FaultPoints.h"

namespace quorvia::testsupport {

namespace {

struct FaultTraits_s {
    Fault_e fault;
    const char* name;
    Point_e point;
    bool fromOn;
    ReadFault_e read = ReadFault_e::None;
};

constexpr FaultTraits_s faultTable[] = {
    {Fault_e::AddOnMemoryOnce, "AddOnMemoryOnce", Point_e::AddOnMemory, false},
    {Fault_e::AddOnMemoryFromOn, "AddOnMemoryFromOn", Point_e::AddOnMemory, true},
    {Fault_e::HostMemoryOnce, "HostMemoryOnce", Point_e::HostMemory, false},
    {Fault_e::MemoryFromOn, "MemoryFromOn", Point_e::HostMemory, true},
    {Fault_e::HostBlockOnce, "HostBlockOnce", Point_e::HostBlock, false},
    {Fault_e::HostBlockFromOn, "HostBlockFromOn", Point_e::HostBlock, true},
    {Fault_e::ReadFails, "ReadFails", Point_e::Read, false, ReadFault_e::Error},
    {Fault_e::ReadFailsFromOn, "ReadFailsFromOn", Point_e::Read, true, ReadFault_e::Error},
    {Fault_e::ReadIsShort, "ReadIsShort", Point_e::Read, false, ReadFault_e::Short},
    {Fault_e::ReadIsShortFromOn, "ReadIsShortFromOn", Point_e::Read, true, ReadFault_e::Short},
    {Fault_e::ReadComesUpEmpty, "ReadComesUpEmpty", Point_e::Read, false, ReadFault_e::Empty},
    {Fault_e::ReadComesUpEmptyFromOn, "ReadComesUpEmptyFromOn", Point_e::Read, true,
     ReadFault_e::Empty},
    {Fault_e::OpenFails, "OpenFails", Point_e::Open, false},
    {Fault_e::OpenFailsFromOn, "OpenFailsFromOn", Point_e::Open, true},
    {Fault_e::SizeFails, "SizeFails", Point_e::Size, false},
    {Fault_e::SizeFailsFromOn, "SizeFailsFromOn", Point_e::Size, true}};

const FaultTraits_s& traitsOf(Fault_e fault) {
    return faultTable[static_cast<std::size_t>(fault)];
}

struct Plan_s {
    const FaultTraits_s* traits = nullptr; // null: nothing is armed
    std::int64_t n = 0;
    ProgramMemory_e programMemory = ProgramMemory_e::NeverFails;
    std::int64_t points = 0;
    std::int64_t messages = 0;
    std::int64_t pauses = 0;
    std::int64_t openFiles = 0;
};

Plan_s gPlan;

bool isOfKind(Point_e point) {
    if (gPlan.traits->fault == Fault_e::MemoryFromOn)
        return point == Point_e::AddOnMemory || point == Point_e::HostMemory;
    return gPlan.traits->point == point;
}

} // namespace

const std::vector<Fault_e>& allFaults() {
    static const std::vector<Fault_e> faults = [] {
        std::vector<Fault_e> all;
        for (const FaultTraits_s& traits : faultTable)
            all.push_back(traits.fault);
        return all;
    }();
    return faults;
}

std::string nameOf(Fault_e fault) {
    return traitsOf(fault).name;
}

std::optional<Fault_e> faultNamed(std::string_view name) {
    for (const FaultTraits_s& traits : faultTable)
        if (name == traits.name)
            return traits.fault;
    return std::nullopt;
}

bool isOfMemory(Fault_e fault) {
    return isHostsOwn(fault) || traitsOf(fault).point == Point_e::AddOnMemory;
}

bool isHostsOwn(Fault_e fault) {
    const Point_e point = traitsOf(fault).point;
    return point == Point_e::HostMemory || point == Point_e::HostBlock;
}

void armFault(Fault_e fault, std::int64_t n, ProgramMemory_e programMemory) {
    gPlan = {.traits = &traitsOf(fault),
             .n = n,
             .programMemory = programMemory,
             .pauses = gPlan.pauses,
             .openFiles = gPlan.openFiles};
}

void disarmFault() {
    gPlan.traits = nullptr;
}

std::int64_t faultPoints() {
    return gPlan.points;
}

std::int64_t messagesSent() {
    return gPlan.messages;
}

std::int64_t openFiles() {
    return gPlan.openFiles;
}

FaultPause::FaultPause() {
    ++gPlan.pauses;
}

FaultPause::~FaultPause() {
    --gPlan.pauses;
}

bool isFaultArmedFor(Point_e point) {
    return gPlan.traits != nullptr && gPlan.pauses == 0 && isOfKind(point);
}

bool failsAt(Point_e point) {
    if (!isFaultArmedFor(point))
        return false;
    const std::int64_t number = ++gPlan.points;
    return gPlan.traits->fromOn ? number >= gPlan.n : number == gPlan.n;
}

bool countsProgramAsHost() {
    return gPlan.programMemory == ProgramMemory_e::IsTheHosts;
}

ReadFault_e readFault() {
    return failsAt(Point_e::Read) ? gPlan.traits->read : ReadFault_e::None;
}

void noteMessageSent() {
    ++gPlan.messages;
}

void noteOpenFiles(std::int64_t change) {
    gPlan.openFiles += change;
}

} // namespace quorvia::testsupport
