// What text fields show and hold: texts, indices and sets of numbers.
#include <string>
#include <utility>

#include "services/GuiCall.h"
#include "toolkit/FieldText.h"

using namespace quorvia::host;

namespace {

void show(GuiCall& call, const FoundControl& field, std::string text) {
    field.control->text = std::move(text);
    call.changed(field);
}

std::string inQuotes(const std::string& text) {
    return '"' + text + '"';
}

bool isIndexWithin(const Control& field, std::int64_t minimum, std::int64_t maximum,
                   bool zeroIsLast) {
    const bool takesLast = zeroIsLast || field.zeroIsLast;
    const std::optional<std::int64_t> index = readIndex(field.text, takesLast);
    if (!index)
        return false;
    return (takesLast && *index == 0) || (*index >= minimum && *index <= maximum);
}

void tellBounds(GuiCall& call, const Control& field, const char* name, std::int64_t minimum,
                std::int64_t maximum) {
    call.host().showMessage({MessageKind::Error,
                             std::string(name) + ": " + inQuotes(field.text) +
                                 " is not a whole number from " + std::to_string(minimum) + " to " +
                                 std::to_string(maximum) + ".",
                             std::nullopt});
}

/// A null handle becomes a new set; false if the handle is not valid.
bool putIntoSet(GuiCall& call, QuorSetHandle* set, std::set<std::int64_t> members) {
    if (*set == nullptr) {
        *set = call.host().handles.of(*set).add(call.operation(), GuestSet{std::move(members)});
        return true;
    }
    GuestSet* found = call.object(*set);
    if (found != nullptr)
        found->members = std::move(members);
    return found != nullptr;
}

bool readFieldIntoSet(GuiCall& call, const Control& field, QuorSetHandle* set) {
    std::string why;
    std::optional<std::set<std::int64_t>> members = readSet(field.text, why);
    if (!members) {
        call.host().showMessage(
            {MessageKind::Error, inQuotes(field.text) + ' ' + why + '.', std::nullopt});
        return call.refuse(why);
    }
    return putIntoSet(call, set, *std::move(members));
}

} // namespace

extern "C" {

void QuorGUITextFieldSetString(std::int32_t textField, const char* text) {
    GuiCall call("QuorGUITextFieldSetString", textField, text);
    const FoundControl field = call.control(textField, ControlKind::TextField);
    if (text == nullptr)
        call.violation("text is null");
    else if (field)
        show(call, field, text);
}

char* QuorGUITextFieldGetString(std::int32_t textField) {
    GuiCall call("QuorGUITextFieldGetString", textField);
    const FoundControl field = call.control(textField, ControlKind::TextField);
    if (call.fails() || !field)
        return call.result<char*>(nullptr);
    return call.result(call.host().memory.copyText(call.operation(), field.control->text));
}

void QuorGUITextFieldSetLgIndex(std::int32_t textField, std::int64_t value, bool zeroIsLast) {
    GuiCall call("QuorGUITextFieldSetLgIndex", textField, value, zeroIsLast);
    if (const FoundControl field = call.control(textField, ControlKind::TextField)) {
        // A guest may write back what a refused input replaced without saying again what 0 means.
        field.control->zeroIsLast |= zeroIsLast;
        show(call, field, indexText(value, field.control->zeroIsLast));
    }
}

bool QuorGUITextFieldGetLgIndex(std::int32_t textField, std::int64_t* value) {
    GuiCall call("QuorGUITextFieldGetLgIndex", textField);
    const FoundControl field = call.control(textField, ControlKind::TextField);
    if (value == nullptr)
        return call.result(call.violate("value is null"));
    if (call.fails() || !field)
        return call.result(false);
    const std::optional<std::int64_t> index =
        readIndex(field.control->text, field.control->zeroIsLast);
    if (!index)
        return call.result(call.refuse(inQuotes(field.control->text) + " is no index"));
    *value = *index;
    call.result(true);
    call.out(*value);
    return true;
}

bool QuorGUITextFieldValidateLgIndex(std::int32_t textField, const char* name, std::int64_t minimum,
                                     std::int64_t maximum, bool zeroIsLast) {
    GuiCall call("QuorGUITextFieldValidateLgIndex", textField, name, minimum, maximum, zeroIsLast);
    const FoundControl field = call.control(textField, ControlKind::TextField);
    if (name == nullptr)
        return call.result(call.violate("name is null"));
    if (call.fails() || !field)
        return call.result(false);
    const bool isValid = isIndexWithin(*field.control, minimum, maximum, zeroIsLast);
    if (!isValid)
        tellBounds(call, *field.control, name, minimum, maximum);
    return call.result(isValid);
}

void QuorGUITextFieldSetSet(std::int32_t textField, QuorSetHandle set, bool reserved) {
    GuiCall call("QuorGUITextFieldSetSet", textField, set, reserved);
    const FoundControl field = call.control(textField, ControlKind::TextField);
    if (reserved)
        call.violation("the reserved argument is not false");
    if (!field)
        return;
    const GuestSet* shown = set != nullptr ? call.object(set) : nullptr;
    show(call, field, shown != nullptr ? setText(shown->members) : "");
}

bool QuorGUITextFieldGetSet(std::int32_t textField, QuorSetHandle* set) {
    GuiCall call("QuorGUITextFieldGetSet", textField, set != nullptr ? *set : nullptr);
    const FoundControl field = call.control(textField, ControlKind::TextField);
    if (set == nullptr)
        return call.result(call.violate("set is null"));
    if (call.fails() || !field)
        return call.result(false);
    return call.result(readFieldIntoSet(call, *field.control, set));
}

} // extern "C"
