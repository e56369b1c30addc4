#include "acceptance/dialog/DialogSession.h"

#include <stdexcept>

namespace quorvia::testsupport {

namespace {

std::size_t placeOf(const std::string& column) {
    for (std::size_t place = 1; const char* name : {"Grid", "Solution", "Function"}) {
        if (column == name)
            return place;
        ++place;
    }
    throw std::invalid_argument("no column " + column);
}

} // namespace

Json toPage(const char* caption) {
    return command("page", caption);
}

Json toggle(const std::string& caption, bool value) {
    return {{"toggle", caption}, {"value", value}};
}

Json radio(const std::string& item) {
    return command("radio", item);
}

Json menu(const std::string& item) {
    return command("menu", item);
}

Json press(const std::string& caption) {
    return command("press", caption);
}

Json press(const std::string& caption, const std::string& column) {
    return {{"press", caption}, {"list", column}};
}

Json selectItems(const std::vector<int>& positions, const std::string& column) {
    return {{"selectItems", positions}, {"list", column}};
}

Json type(const std::string& text, const std::string& field) {
    return {{"type", text}, {"field", field}};
}

Json choose(const Texts& files) {
    return command("choose", files.empty() ? Json(nullptr) : Json(files));
}

Commands atDialog(const Texts& files, const Actions& actions) {
    return {command("dialog", actions),
            command("select", Json{{"files", files}, {"advanced", true}})};
}

const Json& nthControl(const Json& outcome, const char* page, const std::string& kind,
                       std::size_t number, const std::string& caption) {
    std::size_t found = 0;
    for (const Json& control : outcome["dialog"]["controls"])
        if (control["page"] == page && control["kind"] == kind && control["caption"] == caption &&
            ++found == number)
            return control;
    throw std::out_of_range("no " + kind + " \"" + caption + "\" on " + page);
}

const Json& control(const Json& outcome, const char* page, const std::string& kind,
                    const std::string& caption) {
    return nthControl(outcome, page, kind, 1, caption);
}

const Json& listOf(const Json& outcome, const std::string& column) {
    return nthControl(outcome, selectionPage, "list", placeOf(column));
}

bool isOn(const Json& outcome, const char* page, const std::string& caption) {
    return control(outcome, page, "toggle", caption)["value"].get<bool>();
}

const Json& DialogSession::shownAfter(const Texts& files, Actions actions) {
    actions.push_back(describe("shown"));
    playAtDialog(files, actions);
    return described("shown");
}

} // namespace quorvia::testsupport
