#include "app/macro/DialogCommandParser.h"

#include <map>

namespace quorvia::host {
namespace {

FileColumn_e toColumn(const MacroJson& value, const std::string& what) {
    return static_cast<FileColumn_e>(
        toWord(value, what, {{"Grid", 1}, {"Solution", 2}, {"Function", 3}}));
}

/// Each key of an action is the command's name or one that goes with it.
MacroDialogAction parsePage(const ObjectReader& action) {
    return ShowPageAction_s{toText(action.get("page"), inQuotes("page"))};
}

MacroDialogAction parseToggle(const ObjectReader& action) {
    return ToggleAction_s{toText(action.get("toggle"), inQuotes("toggle")),
                          toBool(action.get("value"), inQuotes("value"))};
}

MacroDialogAction parseRadio(const ObjectReader& action) {
    return RadioAction_s{toText(action.get("radio"), inQuotes("radio"))};
}

MacroDialogAction parseMenu(const ObjectReader& action) {
    return MenuAction_s{toText(action.get("menu"), inQuotes("menu"))};
}

MacroDialogAction parsePress(const ObjectReader& action) {
    PressAction_s press;
    press.caption = toText(action.get("press"), inQuotes("press"));
    action.take("list", press.column, toColumn);
    return press;
}

MacroDialogAction parseSelectItems(const ObjectReader& action) {
    const auto toPosition = [](const MacroJson& position, const std::string& name) {
        return toInt32(position, name, 1);
    };
    return SelectItemsAction_s{
        toList(action.get("selectItems"), inQuotes("selectItems"), toPosition),
        toColumn(action.get("list"), inQuotes("list"))};
}

MacroDialogAction parseType(const ObjectReader& action) {
    return TypeAction_s{toText(action.get("type"), inQuotes("type")),
                        toText(action.get("field"), inQuotes("field"))};
}

MacroDialogAction parseChoose(const ObjectReader& action) {
    const MacroJson& files = action.get("choose");
    return files.is_null() ? ChooseAction_s()
                           : ChooseAction_s{toList(files, inQuotes("choose"), toText)};
}

MacroDialogAction parseDescribe(const ObjectReader& action) {
    return DescribeAction_s{toText(action.get("describe"), inQuotes("describe"))};
}

struct ActionForm_s {
    MacroDialogAction (*parse)(const ObjectReader&);
    std::vector<std::string_view> keys; // its name and what may stand beside it
};

const std::map<std::string_view, ActionForm_s>& actionForms() {
    static const std::map<std::string_view, ActionForm_s> forms = {
        {"page", {parsePage, {"page"}}},
        {"toggle", {parseToggle, {"toggle", "value"}}},
        {"radio", {parseRadio, {"radio"}}},
        {"menu", {parseMenu, {"menu"}}},
        {"press", {parsePress, {"press", "list"}}},
        {"selectItems", {parseSelectItems, {"selectItems", "list"}}},
        {"type", {parseType, {"type", "field"}}},
        {"choose", {parseChoose, {"choose"}}},
        {"describe", {parseDescribe, {"describe"}}}};
    return forms;
}

MacroDialogAction parseAction(const MacroJson& value, const std::string& what) {
    if (!value.is_object() || value.empty())
        throw MacroError(what + " must be an object with the action's name as a key");
    for (const auto& [name, form] : actionForms())
        if (value.contains(name))
            return form.parse(ObjectReader(value, what, form.keys));
    std::vector<std::string_view> known;
    for (const auto& entry : actionForms())
        known.push_back(entry.first);
    throw MacroError(what + ": " + unknownName("action", value.begin().key(), known));
}

} // namespace

DialogCommand_s parseDialogCommand(const MacroJson& value, const std::string& what) {
    return DialogCommand_s{toList(value, what, parseAction)};
}

} // namespace quorvia::host
