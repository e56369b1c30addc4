#include "describe/Json.h"

#include <optional>
#include <sstream>
#include <vector>

#include <fmt/core.h>

#include "describe/JsonStream.h"
#include "describe/Words.h"
#include "toolkit/Toolkit.h"

namespace quorvia::host {
namespace {

/// Every tell() writes one value.
void tell(JsonStream& json, const Message_s& told);
void tell(JsonStream& json, const StateChange_s& change);
void tell(JsonStream& json, const UndoEvent_s& event);
void tell(JsonStream& json, const FieldOutcome_s& told);
void tell(JsonStream& json, const ConnectivityOutcome_s& told);
void tell(JsonStream& json, const ZoneOutcome_s& told);
void tell(JsonStream& json, const DataSetOutcome_s& told);
void tell(JsonStream& json, const Dialog_s& told);
void tell(JsonStream& json, const TextLog& texts);

template <typename Value>
requires requires(JsonStream& json, const Value& value) {
    json.value(value);
}
void tell(JsonStream& json, const Value& value) {
    json.value(value);
}

template <typename Value>
void tell(JsonStream& json, const std::optional<Value>& value) {
    if (value)
        tell(json, *value);
    else
        json.null();
}

template <typename Value>
void tell(JsonStream& json, const Sparse<Value>& value) {
    if (value)
        tell(json, *value);
    else
        json.null();
}

template <typename Entry>
void tell(JsonStream& json, const std::vector<Entry>& entries) {
    json.beginList();
    for (const Entry& entry : entries)
        tell(json, entry);
    json.endList();
}

template <typename Value>
void member(JsonStream& json, std::string_view key, const Value& value) {
    json.key(key);
    tell(json, value);
}

std::string checksum(std::uint32_t crc32) {
    return fmt::format("{:08x}", crc32);
}

void tell(JsonStream& json, const Message_s& told) {
    json.beginObject();
    member(json, "kind", wordOf(told.kind));
    member(json, "text", told.text);
    member(json, "answer", told.answer);
    json.endObject();
}

void tell(JsonStream& json, const StateChange_s& change) {
    json.beginObject();
    member(json, "code", change.code);
    member(json, "members", change.members);
    json.endObject();
}

void tell(JsonStream& json, const UndoEvent_s& event) {
    json.beginObject();
    member(json, "event", event.kind == UndoKind_e::Begin ? "begin" : "end");
    member(json, "success", event.success);
    json.endObject();
}

void tell(JsonStream& json, const TextLog& texts) {
    json.beginList();
    texts.forEach([&json](std::string_view text) { json.value(text); });
    json.endList();
}

void auxData(JsonStream& json, const AuxDataItems& items) {
    json.key("auxData");
    json.beginObject();
    for (const auto& [name, text] : items)
        member(json, name, text);
    json.endObject();
}

void tell(JsonStream& json, const FieldOutcome_s& told) {
    json.beginObject();
    member(json, "variable", told.variable);
    member(json, "type", wordOf(told.type));
    member(json, "state", stateWordOf(told));
    member(json, "sharedWith", told.sharedWith);
    member(json, "count", told.count);
    if (told.statistics) {
        member(json, "min", told.statistics->min);
        member(json, "max", told.statistics->max);
        member(json, "mean", told.statistics->mean);
        member(json, "crc32", checksum(told.statistics->crc32));
    }
    member(json, "error", told.error);
    json.endObject();
}

void tell(JsonStream& json, const ConnectivityOutcome_s& told) {
    json.beginObject();
    member(json, "elements", told.elements);
    member(json, "corners", told.corners);
    member(json, "crc32", checksum(told.crc32));
    json.endObject();
}

void tell(JsonStream& json, const ZoneOutcome_s& told) {
    json.beginObject();
    member(json, "number", told.number);
    member(json, "name", told.name);
    member(json, "type", wordOf(told.type));
    member(json, "i", told.i);
    member(json, "j", told.j);
    member(json, "k", told.k);
    member(json, "strandId", told.strandId);
    member(json, "solutionTime", told.solutionTime);
    member(json, "parentZone", told.parentZone);
    member(json, "connectivitySharedWith", told.connectivitySharedWith);
    auxData(json, told.auxData.items());
    member(json, "connectivity", told.connectivity);
    member(json, "fields", told.fields);
    json.endObject();
}

void tell(JsonStream& json, const DataSetOutcome_s& told) {
    json.beginObject();
    member(json, "title", told.title);
    auxData(json, told.auxData);
    member(json, "variables", told.variables);
    member(json, "zones", told.zones);
    json.endObject();
}

void tellValue(JsonStream& json, const Control_s& control) {
    switch (control.kind) {
    case ControlKind_e::Toggle:
        json.value(control.value != 0);
        return;
    case ControlKind_e::RadioBox:
    case ControlKind_e::OptionMenu:
        json.value(control.value);
        return;
    case ControlKind_e::TextField:
        json.value(control.text);
        return;
    case ControlKind_e::Frame:
    case ControlKind_e::Label:
    case ControlKind_e::Button:
    case ControlKind_e::List:
        break;
    }
    json.null();
}

void tellCaption(JsonStream& json, const Page_s* page) {
    if (page != nullptr)
        json.value(page->caption);
    else
        json.null();
}

void tellControl(JsonStream& json, const Dialog_s& dialog, const Control_s& told) {
    json.beginObject();
    json.key("page");
    tellCaption(json, findPage(dialog, told.parent));
    member(json, "kind", std::string(wordFor(told.kind)));
    member(json, "caption", told.caption);
    member(json, "x", told.geometry.x);
    member(json, "y", told.geometry.y);
    member(json, "w", told.geometry.width);
    member(json, "h", told.geometry.height);
    json.key("value");
    tellValue(json, told);
    member(json, "items", told.items);
    member(json, "selected", told.selected);
    member(json, "sensitive", told.sensitive);
    member(json, "focus", told.id == dialog.focus);
    json.endObject();
}

void tell(JsonStream& json, const Dialog_s& told) {
    json.beginObject();
    member(json, "open", told.open);
    json.key("page");
    tellCaption(json, told.tabs ? findPage(told, told.tabs->frontPage) : nullptr);
    json.key("controls");
    json.beginList();
    for (const Control_s& control : told.controls)
        tellControl(json, told, control);
    json.endList();
    json.endObject();
}

enum class Of_e { Load, Session };

/// Dialogs can be worked with in a session alone.
void tellOutcome(JsonStream& json, const Outcome_s& outcome, Of_e of) {
    json.beginObject();
    member(json, "schema", "quorhost.outcome/1");
    member(json, "ok", outcome.ok);
    member(json, "hostError", outcome.hostError);
    member(json, "messages", outcome.messages);
    member(json, "progress", outcome.progress);
    member(json, "plotType", wordOf(outcome.plotType));
    member(json, "instructions", outcome.instructions);
    member(json, "stateChanges", outcome.stateChanges);
    member(json, "undo", outcome.undo);
    member(json, "redraws", outcome.redraws);
    member(json, "lockDepth", outcome.lockDepth);
    member(json, "violations", outcome.violations);
    member(json, "dataSet", outcome.dataSet);
    if (of == Of_e::Session) {
        member(json, "dialog", outcome.dialog);
        member(json, "helpShown", outcome.helpShown);
    }
    json.endObject();
}

} // namespace

void writeJson(const Outcome_s& outcome, std::ostream& out) {
    JsonStream json(out);
    tellOutcome(json, outcome, Of_e::Load);
    json.finish();
}

void writeJson(const SessionOutcome_s& session, std::ostream& out) {
    JsonStream json(out);
    json.beginObject();
    member(json, "schema", "quorhost.session/1");
    json.key("descriptions");
    json.beginObject();
    for (const auto& [name, outcome] : session.descriptions) {
        json.key(name);
        tellOutcome(json, outcome, Of_e::Session);
    }
    json.endObject();
    json.key("final");
    tellOutcome(json, session.final, Of_e::Session);
    json.endObject();
    json.finish();
}

std::string toJson(const Outcome_s& outcome) {
    std::ostringstream text;
    writeJson(outcome, text);
    return text.str();
}

std::string toJson(const SessionOutcome_s& session) {
    std::ostringstream text;
    writeJson(session, text);
    return text.str();
}

} // namespace quorvia::host
