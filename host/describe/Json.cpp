#include "describe/Json.h"

#include <cmath>
#include <utility>

#include <fmt/core.h>
#include <nlohmann/json.hpp>

#include "describe/Words.h"
#include "toolkit/Toolkit.h"

namespace quorvia::host {
namespace {

using Json = nlohmann::ordered_json;

Json number(double value) {
    if (std::isnan(value))
        return "NaN";
    if (std::isinf(value))
        return value > 0 ? "Infinity" : "-Infinity";
    return value;
}

std::string checksum(std::uint32_t crc32) {
    return fmt::format("{:08x}", crc32);
}

template <typename Value>
Json orNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json(nullptr);
}

template <typename Entry, typename Tell>
Json list(const std::vector<Entry>& entries, Tell tell) {
    Json result = Json::array();
    for (const Entry& entry : entries)
        result.push_back(tell(entry));
    return result;
}

Json message(const MessageOutcome_s& told) {
    return {{"kind", wordOf(told.kind)}, {"text", told.text}, {"answer", orNull(told.answer)}};
}

Json stateChange(const StateChangeOutcome_s& change) {
    return {{"code", change.code}, {"members", Json(change.members)}};
}

Json undoEvent(const UndoOutcome_s& event) {
    return {{"event", event.begins ? "begin" : "end"}, {"success", orNull(event.success)}};
}

Json auxData(const AuxDataItems& items) {
    Json result = Json::object();
    auto& members = result.get_ref<Json::object_t&>();
    members.reserve(items.size());
    for (const auto& [name, text] : items) // each name once, so that none need be looked for
        static_cast<Json::object_t::Container&>(members).emplace_back(name, text);
    return result;
}

Json field(const FieldOutcome_s& told) {
    Json result = {{"variable", told.variable},
                   {"type", wordOf(told.type)},
                   {"state", wordOf(told.state)},
                   {"sharedWith", told.sharedWith},
                   {"count", told.count}};
    if (told.statistics) {
        result["min"] = number(told.statistics->min);
        result["max"] = number(told.statistics->max);
        result["mean"] = number(told.statistics->mean);
        result["crc32"] = checksum(told.statistics->crc32);
    }
    result["error"] = orNull(told.error);
    return result;
}

Json connectivity(const std::optional<ConnectivityOutcome_s>& told) {
    if (!told)
        return nullptr;
    return {
        {"elements", told->elements}, {"corners", told->corners}, {"crc32", checksum(told->crc32)}};
}

Json zone(const ZoneOutcome_s& told) {
    return {{"number", told.number},
            {"name", told.name},
            {"type", wordOf(told.type)},
            {"i", told.i},
            {"j", told.j},
            {"k", told.k},
            {"strandId", told.strandId},
            {"solutionTime", number(told.solutionTime)},
            {"parentZone", told.parentZone},
            {"connectivitySharedWith", told.connectivitySharedWith},
            {"auxData", auxData(told.auxData)},
            {"connectivity", connectivity(told.connectivity)},
            {"fields", list(told.fields, field)}};
}

Json dataSet(const std::optional<DataSetOutcome_s>& told) {
    if (!told)
        return nullptr;
    return {{"title", told->title},
            {"auxData", auxData(told->auxData)},
            {"variables", Json(told->variables)},
            {"zones", list(told->zones, zone)}};
}

Json valueOf(const Control& control) {
    switch (control.kind) {
    case ControlKind::Toggle:
        return control.value != 0;
    case ControlKind::RadioBox:
    case ControlKind::OptionMenu:
        return control.value;
    case ControlKind::TextField:
        return control.text;
    case ControlKind::Frame:
    case ControlKind::Label:
    case ControlKind::Button:
    case ControlKind::List:
        break;
    }
    return nullptr;
}

Json control(const Dialog& dialog, const Control& told) {
    const Page* page = findPage(dialog, told.parent);
    return {{"page", page != nullptr ? Json(page->caption) : Json(nullptr)},
            {"kind", std::string(wordFor(told.kind))},
            {"caption", told.caption},
            {"x", told.geometry.x},
            {"y", told.geometry.y},
            {"w", told.geometry.width},
            {"h", told.geometry.height},
            {"value", valueOf(told)},
            {"items", Json(told.items)},
            {"selected", Json(told.selected)},
            {"sensitive", told.sensitive},
            {"focus", told.id == dialog.focus}};
}

Json dialogJson(const std::optional<Dialog>& told) {
    if (!told)
        return nullptr;
    const Page* front = told->tabs ? findPage(*told, told->tabs->frontPage) : nullptr;
    return {{"open", told->open},
            {"page", front != nullptr ? Json(front->caption) : Json(nullptr)},
            {"controls",
             list(told->controls, [&](const Control& each) { return control(*told, each); })}};
}

Json outcomeJson(const Outcome_s& outcome) {
    return {{"schema", "quorhost.outcome/1"},
            {"ok", outcome.ok},
            {"hostError", orNull(outcome.hostError)},
            {"messages", list(outcome.messages, message)},
            {"progress", Json(outcome.progress)},
            {"plotType", wordOf(outcome.plotType)},
            {"instructions", Json(outcome.instructions)},
            {"stateChanges", list(outcome.stateChanges, stateChange)},
            {"undo", list(outcome.undo, undoEvent)},
            {"redraws", outcome.redraws},
            {"lockDepth", outcome.lockDepth},
            {"violations", Json(outcome.violations)},
            {"dataSet", dataSet(outcome.dataSet)}};
}

/// Of a session, in which dialogs can be worked with.
Json sessionOutcomeJson(const Outcome_s& outcome) {
    Json result = outcomeJson(outcome);
    result["dialog"] = dialogJson(outcome.dialog);
    result["helpShown"] = outcome.helpShown;
    return result;
}

std::string textOf(const Json& json) {
    constexpr int kIndent = 2;
    return json.dump(kIndent, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace

std::string toJson(const Outcome_s& outcome) {
    return textOf(outcomeJson(outcome));
}

std::string toJson(const SessionOutcome_s& session) {
    Json descriptions = Json::object();
    for (const auto& [name, outcome] : session.descriptions)
        descriptions[name] = sessionOutcomeJson(outcome);
    return textOf({{"schema", "quorhost.session/1"},
                   {"descriptions", std::move(descriptions)},
                   {"final", sessionOutcomeJson(session.final)}});
}

} // namespace quorvia::host
