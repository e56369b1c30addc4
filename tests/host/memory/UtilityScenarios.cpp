// The utility library, and what a user does at the host.
#include "memory/ServiceScenarios.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

void readyNothing(Guest_s&) {}

void watchBar(Guest_s& guest) {
    ReferenceHost::instance().settings().progressObserver = [&guest](const ProgressState_s& state) {
        guest.shownFraction = state.fraction;
        guest.isBarShown = state.open;
    };
}

/// Made so that the bar has shown a text already.
void readyBar(Guest_s& guest) {
    watchBar(guest);
    guest.bar = createTaskProgressBar(7);
    guest.bar->setMessage("a first text, which is shorter");
}

void readySubTask(Guest_s& guest) {
    readyBar(guest);
    guest.bar->createSubTask(guest.task, 3);
}

void readyFullLog(Guest_s& guest) {
    readyBar(guest);
    const std::string text(32 * 1024 - 40, '.'); // the block of the log is as good as full
    guest.bar->setMessage(text);
}

void readyOwnedList(Guest_s& guest) {
    guest.ownedList = std::make_unique<StringList>();
}

void readyDeferrer(Guest_s& guest) {
    readyZones(guest);
    guest.deferrer = std::make_unique<SolutionTimeNotificationDeferrer>();
    QuorUtilZoneSetSolutionTime(1, 2.5);
}

// Texts that are made ahead of the calls.
const std::string& textOfGuest() {
    static const std::string text = longText;
    return text;
}

ReferenceHost& host() {
    return ReferenceHost::instance();
}

/// A field that was never in memory, and one that is.
void readyDeferredFields(Guest_s& guest) {
    readyZones(guest);
    guest.first.registerAt(1, 1);
    guest.second.registerAt(2, 1);
    host().fetch(2, 1);
}

bool loadWithoutMemory(QuorFieldHandle) {
    throw std::bad_alloc();
}

void readyFieldWithoutMemory(Guest_s& guest) {
    readyZones(guest);
    QuorUtilDataValueCustomLOD(1, 1, loadWithoutMemory, nullptr, FakeSource_s::cleanUp, nullptr,
                               nullptr, &guest.first);
}

bool handOver(QuorStringListHandle instructions) {
    return QuorUtilImportSetLoaderInstr("Guest Loader", instructions);
}
void handOverSelected(QuorStringListHandle files, bool, bool) {
    handOver(files);
}

void readyLoader(Guest_s&) {
    host().state().loaders.push_back(
        {"Guest Loader", "*.guest", true, true, true, handOver, handOverSelected});
}

const Texts& files() {
    static const Texts names = {longText, longText};
    return names;
}

} // namespace

std::vector<ServiceScenario_s> utilityScenarios() {
    return {
        {"createTaskProgressBar", watchBar,
         [](Guest_s& guest) {
             guest.bar = createTaskProgressBar(7);
             return Ended_e::Done;
         },
         true},
        {"TaskProgress::createSubTask", readyBar,
         [](Guest_s& guest) {
             guest.bar->createSubTask(guest.task, 3);
             return Ended_e::Done;
         },
         true},
        {"TaskProgress::setStepCount", readyBar,
         [](Guest_s& guest) {
             guest.bar->setStepCount(5);
             return Ended_e::Done;
         }},
        {"TaskProgress::setMessage", readyBar,
         [](Guest_s& guest) {
             return guest.bar->setMessage(textOfGuest()) ? Ended_e::Silent : Ended_e::Refused;
         }},
        {"TaskProgress::setMessage", readyFullLog,
         [](Guest_s& guest) {
             return guest.bar->setMessage(textOfGuest()) ? Ended_e::Silent : Ended_e::Refused;
         }},
        {"TaskProgress::step", readyBar, [](Guest_s& guest) { return told(guest.bar->step()); }},
        {"TaskProgress::stepWithMessage", readySubTask,
         [](Guest_s& guest) {
             return guest.task->stepWithMessage(textOfGuest()) ? Ended_e::Silent : Ended_e::Refused;
         }},
        {"TaskProgress::~TaskProgress", readyBar,
         [](Guest_s& guest) {
             guest.bar.reset();
             return Ended_e::Done;
         }},
        {"TaskProgress::~TaskProgress", readySubTask,
         [](Guest_s& guest) {
             guest.task.reset();
             return Ended_e::Done;
         }},
        {"SolutionTimeNotificationDeferrer::SolutionTimeNotificationDeferrer", readyNothing,
         [](Guest_s&) {
             const SolutionTimeNotificationDeferrer deferrer;
             return told(hostState().timeDeferrers == 1);
         }},
        {"SolutionTimeNotificationDeferrer::~SolutionTimeNotificationDeferrer", readyDeferrer,
         [](Guest_s& guest) {
             guest.deferrer.reset();
             return Ended_e::Done;
         }},
        {"StringList::StringList", readyNothing,
         [](Guest_s& guest) {
             guest.ownedList = std::make_unique<StringList>();
             return Ended_e::Done;
         },
         true},
        {"StringList::~StringList", readyOwnedList,
         [](Guest_s& guest) {
             guest.ownedList.reset();
             return Ended_e::Done;
         }},
        {"StringList::append", readyOwnedList,
         [](Guest_s& guest) {
             guest.ownedList->append(textOfGuest());
             return Ended_e::Done;
         },
         true},
        {"StringList::getRef", readyOwnedList,
         [](Guest_s& guest) { return told(guest.ownedList->getRef()); }},
        {"utf8ToWideString", readyNothing,
         [](Guest_s&) {
             return told(utf8ToWideString(textOfGuest()).size() == textOfGuest().size());
         },
         true},
        {"InterruptedException::~InterruptedException", readyNothing,
         [](Guest_s&) {
             const InterruptedException interruption;
             return Ended_e::Done;
         }},
        {"InterruptedException::what", readyNothing,
         [](Guest_s&) { return told(*InterruptedException().what()); }},
    };
}

std::vector<ServiceScenario_s> sessionScenarios() {
    return {
        {"ReferenceHost::fetch", readyDeferredFields,
         [](Guest_s&) { return told(host().fetch(1, 1).ok); }},
        {"ReferenceHost::fetch", readyFieldWithoutMemory, // of the guest, who is not blamed for it
         [](Guest_s&) { return host().fetch(1, 1).ok ? Ended_e::Done : Ended_e::Silent; }},
        {"ReferenceHost::unload", readyDeferredFields,
         [](Guest_s&) { return told(host().unload(2, 1)); }},
        {"ReferenceHost::unloadAll", readyDeferredFields,
         [](Guest_s&) {
             host().unloadAll();
             return Ended_e::Done;
         }},
        {"ReferenceHost::sendStateChange", readyNothing,
         [](Guest_s&) {
             host().sendStateChange(QuorStateChange_FilesForgotten);
             return Ended_e::Done;
         }},
        {"ReferenceHost::importInstructions", readyLoader,
         [](Guest_s&) { return told(host().importInstructions(files()).ok); }},
        {"ReferenceHost::importSelection", readyLoader,
         [](Guest_s&) { return told(host().importSelection(files(), false, false).ok); }},
    };
}

} // namespace quorvia::host
