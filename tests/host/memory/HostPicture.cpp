#include "memory/HostPicture.h"

#include <cstring>
#include <sstream>

#include "state/HostState.h"

namespace quorvia::host {

namespace {

template <typename Numbers>
void addNumbers(std::ostream& out, const Numbers& numbers) {
    for (const auto number : numbers)
        out << ' ' << number;
    out << '\n';
}

void addAuxData(std::ostream& out, const AuxData& items) {
    for (const auto& [name, text] : items)
        out << "  aux " << name << '=' << text << '\n';
}

void addField(std::ostream& out, const Field_s& field, std::int32_t holder) {
    // A member that is added does not compile until the picture has a place for it.
    const auto& [type, location, passive, storage] = field;
    out << "  field " << type << ' ' << location << ' ' << passive << ' '
        << static_cast<int>(field.state()) << " of " << holder;
    if (field.state() == FieldState_e::Stored) {
        std::uint64_t sum = 0;
        const auto* bytes = static_cast<const unsigned char*>(storage->values());
        for (std::int64_t index = 0; index < storage->byteCount(); ++index)
            sum = sum * 31 + bytes[index];
        out << " values " << sum;
    }
    out << '\n';
}

void addZone(std::ostream& out, const DataSet& data, const Zone_s& zone) {
    // As of a field.
    const auto& [number, uniqueId, name, type, i, j, k, strandId, solutionTime, parentZoneId,
                 nodeMap, auxData, fields] = zone;
    out << "zone " << number << ' ' << data.zoneNumber(uniqueId) << ' ' << name << ' ' << type
        << ' ' << i << ' ' << j << ' ' << k << " strand " << strandId << " at " << solutionTime
        << " parent " << data.zoneNumber(parentZoneId) << '\n';
    addAuxData(out, auxData);
    for (std::int32_t var = 1; var <= static_cast<std::int32_t>(fields.size()); ++var)
        addField(out, fields[static_cast<std::size_t>(var - 1)],
                 data.fieldHolders(var)[static_cast<std::size_t>(number - 1)]);
    if (nodeMap != nullptr) {
        const std::int32_t* nodes = nodeMap->nodes();
        out << "  nodes " << (nodes != nullptr ? std::to_string(nodes[0]) : "none") << '\n';
    }
}

void addDataSet(std::ostream& out, const DataSet& data) {
    out << "data set " << data.loaderName << ' ' << data.title << '\n';
    addAuxData(out, data.auxData);
    std::int32_t number = 0;
    for (const Variable_s& variable : data.variables())
        out << "variable " << ++number << ' ' << data.variableNumber(variable.uniqueId) << ' '
            << variable.name << '\n';
    for (const std::unique_ptr<Zone_s>& zone : data.zones())
        addZone(out, data, *zone);
}

void addList(std::ostream& out, QuorStringListHandle list) {
    const GuestStringList_s* found = hostState().handles.of(list).find(list);
    if (found == nullptr)
        return;
    out << "list";
    for (const std::optional<std::string>& text : found->strings)
        out << " [" << text.value_or("never set") << ']';
    out << '\n';
}

void addArguments(std::ostream& out, QuorArgListHandle arguments) {
    const GuestArgList_s* found = hostState().handles.of(arguments).find(arguments);
    for (std::size_t index = 0; found != nullptr && index < found->arguments.size(); ++index)
        out << "argument " << found->arguments[index].key << ' '
            << found->arguments[index].value.index() << '\n';
}

void addSet(std::ostream& out, QuorSetHandle set) {
    const GuestSet_s* found = hostState().handles.of(set).find(set);
    if (found == nullptr)
        return;
    out << "set";
    addNumbers(out, found->members);
}

void addSource(std::ostream& out, const FakeSource_s& source) {
    out << "source " << source.loadCount << ' ' << source.unloadCount << ' ' << source.cleanUpCount
        << '\n';
}

void addGivenOut(std::ostream& out, const GivenOut_s& before) {
    const GivenOut_s now = GivenOut_s::now();
    out << "given out " << now.lists - before.lists << ' ' << now.argLists - before.argLists << ' '
        << now.sets - before.sets << ' ' << now.fields - before.fields << ' '
        << now.nodeMaps - before.nodeMaps << ' ' << now.auxData - before.auxData << ' '
        << now.addOns - before.addOns << ' ' << now.blocks - before.blocks << ' '
        << now.callbacks - before.callbacks << ' ' << now.loaders - before.loaders << '\n';
}

void addLog(std::ostream& out, const HostLog_s& log) {
    for (const Message_s& message : log.messages)
        if (message.text != "Out of memory.")
            out << "message " << static_cast<int>(message.kind) << ' ' << message.text << ' '
                << message.answer.has_value() << message.answer.value_or(false) << '\n';
    for (const std::string& text : log.progress.texts())
        out << "progress " << text << '\n';
    for (const std::string& text : log.instructions)
        out << "instruction " << text << '\n';
    for (const StateChange_s& change : log.stateChanges) {
        out << "state change " << change.code << " of";
        addNumbers(out, change.members);
    }
    for (const UndoEvent_s& event : log.undo)
        out << "undo " << static_cast<int>(event.kind) << ' ' << event.category << ' '
            << event.success.has_value() << event.success.value_or(false) << '\n';
    for (const std::vector<std::int64_t>& zones : log.autoStyledZones) {
        out << "styled";
        addNumbers(out, zones);
    }
    for (const std::string& target : log.helpTargets)
        out << "help " << target << '\n';
    for (const std::string& violation : log.violations)
        out << "violation " << violation << '\n';
    out << "log " << log.instructionsHandedOver << ' ' << log.redraws << ' '
        << log.solutionTimeNotifications << '\n';
}

void addControl(std::ostream& out, const Control_s& control) {
    out << "  control " << wordFor(control.kind) << ' ' << control.caption << ' ' << control.value
        << ' ' << control.text << ' ' << control.zeroIsLast << control.sensitive << " [";
    for (const std::string& item : control.items)
        out << item << '|';
    out << "] selected";
    addNumbers(out, control.selected);
}

void addDialog(std::ostream& out, const Dialog_s& dialog) {
    out << "dialog " << dialog.title << ' ' << dialog.open << " focus "
        << (findControl(dialog, dialog.focus) != nullptr) << '\n';
    if (dialog.tabs.has_value()) {
        out << "  tabs in front " << (findPage(dialog, dialog.tabs->frontPage) != nullptr);
        for (const Page_s& page : dialog.tabs->pages)
            out << " [" << page.caption << ']';
        out << '\n';
    }
    for (const Control_s& control : dialog.controls)
        addControl(out, control);
}

} // namespace

GivenOut_s GivenOut_s::now() {
    HostState_s& host = hostState();
    HandleRegistry& handles = host.handles;
    return {handles.of(QuorStringListHandle{}).count(),
            handles.of(QuorArgListHandle{}).count(),
            handles.of(QuorSetHandle{}).count(),
            handles.of(QuorFieldHandle{}).count(),
            handles.of(QuorNodeMapHandle{}).count(),
            handles.of(QuorAuxDataHandle{}).count(),
            handles.of(QuorAddOnHandle{}).count(),
            host.memory.count(),
            static_cast<std::int64_t>(host.stateChangeCallbacks.size()),
            static_cast<std::int64_t>(host.loaders.size())};
}

std::string hostPicture(const Guest_s& guest, const GivenOut_s& before) {
    const HostState_s& host = hostState();
    std::ostringstream out;
    out << "plot type " << host.frame().plotType() << '\n';
    if (const DataSet* data = host.frame().dataSet())
        addDataSet(out, *data);
    for (const QuorStringListHandle list :
         {guest.list.get(), guest.otherList.get(),
          guest.ownedList != nullptr ? guest.ownedList->getRef() : nullptr})
        addList(out, list);
    addArguments(out, guest.arguments.get());
    addSet(out, guest.set.get());
    addSet(out, guest.newSet.get());
    out << "text " << guest.text.view() << '\n';
    addSource(out, guest.first);
    addSource(out, guest.second);
    out << "bar " << guest.shownFraction << ' ' << guest.isBarShown << '\n';
    addGivenOut(out, before);
    out << "fetched " << host.cache.bytesInMemory() << '\n';
    out << "open " << host.entryLockDepth << ' ' << host.guestLockDepth << ' '
        << host.openUndoStates << ' ' << host.openProgressBars << ' ' << host.timeDeferrers << ' '
        << host.solutionTimesChanged << '\n';
    addLog(out, host.log);
    for (const Dialog_s& dialog : host.toolkit.dialogs())
        addDialog(out, dialog);
    return out.str();
}

} // namespace quorvia::host
