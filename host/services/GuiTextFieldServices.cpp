// What text fields show and hold: texts, indices and sets of numbers.
#include <new>
#include <string>
#include <utility>

#include "services/GuiCall.h"
#include "toolkit/FieldText.h"

using namespace quorvia::host;

namespace {

void show(GuiCall& call, const FoundControl_s& field, std::string text) {
    field.control->text = std::move(text);
    call.changed(field);
}

/// For services that tell the user why they fail: so they do for want of memory.
template <typename Work>
bool serveOrTell(GuiCall& call, Work work) {
    return call.serve([&] {
        try {
            return work();
        } catch (const std::bad_alloc&) {
            call.host().showMessage(MessageKind_e::Error, "Out of memory.");
            throw;
        }
    });
}

bool isIndexWithin(const Control_s& field, std::int64_t minimum, std::int64_t maximum,
                   bool zeroIsLast) {
    const bool takesLast = zeroIsLast || field.zeroIsLast;
    const std::optional<std::int64_t> index = readIndex(field.text, takesLast);
    if (!index)
        return false;
    return (takesLast && *index == 0) || (*index >= minimum && *index <= maximum);
}

void tellBounds(GuiCall& call, const Control_s& field, const char* name, std::int64_t minimum,
                std::int64_t maximum) {
    const std::string text = joined(name, ": \"", field.text, "\" is not a whole number from ",
                                    minimum, " to ", maximum, ".");
    call.host().showMessage(MessageKind_e::Error, text);
}

/// A null handle becomes a new set; false if the handle is not valid.
bool putIntoSet(GuiCall& call, QuorSetHandle* set, std::set<std::int64_t> members) {
    if (*set == nullptr) {
        *set = call.host().handles.of(*set).add(call.operation(), GuestSet_s{std::move(members)});
        return true;
    }
    GuestSet_s* found = call.object(*set);
    if (found != nullptr)
        found->members = std::move(members);
    return found != nullptr;
}

bool readFieldIntoSet(GuiCall& call, const Control_s& field, QuorSetHandle* set) {
    std::string why;
    std::optional<std::set<std::int64_t>> members = readSet(field.text, why);
    if (!members) {
        call.host().showMessage(MessageKind_e::Error, joined("\"", field.text, "\" ", why, "."));
        return call.refuse(why);
    }
    return putIntoSet(call, set, *std::move(members));
}

} // namespace

extern "C" {

void QuorGUITextFieldSetString(std::int32_t textField, const char* text) {
    GuiCall call("QuorGUITextFieldSetString", textField, text);
    const FoundControl_s field = call.control(textField, ControlKind_e::TextField);
    if (text == nullptr)
        call.violation("text is null");
    else if (field)
        call.tryTo([&] { show(call, field, text); });
}

char* QuorGUITextFieldGetString(std::int32_t textField) {
    GuiCall call("QuorGUITextFieldGetString", textField);
    const FoundControl_s field = call.control(textField, ControlKind_e::TextField);
    return call.serve<char*>(nullptr, [&] {
        return field ? call.host().memory.copyText(call.operation(), field.control->text) : nullptr;
    });
}

void QuorGUITextFieldSetLgIndex(std::int32_t textField, std::int64_t value, bool zeroIsLast) {
    GuiCall call("QuorGUITextFieldSetLgIndex", textField, value, zeroIsLast);
    if (const FoundControl_s field = call.control(textField, ControlKind_e::TextField)) {
        call.tryTo([&] {
            // A guest may write back what a refused input replaced without saying again what 0
            // means.
            const bool isLast = zeroIsLast || field.control->zeroIsLast;
            show(call, field, indexText(value, isLast));
            field.control->zeroIsLast = isLast;
        });
    }
}

bool QuorGUITextFieldGetLgIndex(std::int32_t textField, std::int64_t* value) {
    GuiCall call("QuorGUITextFieldGetLgIndex", textField);
    const FoundControl_s field = call.control(textField, ControlKind_e::TextField);
    if (value == nullptr)
        return call.result(call.violate("value is null"));
    if (call.fails() || !field)
        return call.result(false);
    const std::optional<std::int64_t> index =
        readIndex(field.control->text, field.control->zeroIsLast);
    if (!index)
        return call.result(call.refuse("\"", field.control->text, "\" is no index"));
    *value = *index;
    call.result(true);
    call.out(*value);
    return true;
}

bool QuorGUITextFieldValidateLgIndex(std::int32_t textField, const char* name, std::int64_t minimum,
                                     std::int64_t maximum, bool zeroIsLast) {
    GuiCall call("QuorGUITextFieldValidateLgIndex", textField, name, minimum, maximum, zeroIsLast);
    const FoundControl_s field = call.control(textField, ControlKind_e::TextField);
    if (name == nullptr)
        return call.result(call.violate("name is null"));
    return serveOrTell(call, [&] {
        if (!field)
            return false;
        const bool isValid = isIndexWithin(*field.control, minimum, maximum, zeroIsLast);
        if (!isValid)
            tellBounds(call, *field.control, name, minimum, maximum);
        return isValid;
    });
}

void QuorGUITextFieldSetSet(std::int32_t textField, QuorSetHandle set, bool reserved) {
    GuiCall call("QuorGUITextFieldSetSet", textField, set, reserved);
    const FoundControl_s field = call.control(textField, ControlKind_e::TextField);
    if (reserved)
        call.violation("the reserved argument is not false");
    if (!field)
        return;
    const GuestSet_s* shown = set != nullptr ? call.object(set) : nullptr;
    call.tryTo([&] { show(call, field, shown != nullptr ? setText(shown->members) : ""); });
}

bool QuorGUITextFieldGetSet(std::int32_t textField, QuorSetHandle* set) {
    GuiCall call("QuorGUITextFieldGetSet", textField, set != nullptr ? *set : nullptr);
    const FoundControl_s field = call.control(textField, ControlKind_e::TextField);
    if (set == nullptr)
        return call.result(call.violate("set is null"));
    return serveOrTell(call, [&] { return field && readFieldIntoSet(call, *field.control, set); });
}

} // extern "C"
