// Lists of strings.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

// A list that a guest could grow to this length only by mistake.
constexpr std::int64_t longestList = 2147483647;

bool appendText(Call& call, QuorStringListHandle list, const char* text) {
    GuestStringList* target = call.object(list);
    if (target == nullptr)
        return false;
    if (text == nullptr)
        return call.violate("text is null");
    target->strings.emplace_back(text);
    return true;
}

bool setText(Call& call, QuorStringListHandle list, std::int64_t index, const char* text) {
    GuestStringList* target = call.object(list);
    if (target == nullptr)
        return false;
    if (text == nullptr)
        return call.violate("text is null");
    if (index < 1 || index > longestList)
        return call.violate("there is no string " + std::to_string(index));
    const auto position = static_cast<std::size_t>(index - 1);
    if (position >= target->strings.size())
        target->strings.resize(position + 1);
    target->strings[position] = text;
    return true;
}

bool appendList(Call& call, QuorStringListHandle list, QuorStringListHandle other) {
    GuestStringList* target = call.object(list);
    const GuestStringList* source = call.object(other);
    if (target == nullptr || source == nullptr)
        return false;
    const std::vector<std::optional<std::string>> copies = source->strings; // may be the same list
    target->strings.insert(target->strings.end(), copies.begin(), copies.end());
    return true;
}

} // namespace

extern "C" {

QuorStringListHandle QuorUtilStringListAlloc() {
    Call call("QuorUtilStringListAlloc");
    if (call.fails())
        return call.result(QuorStringListHandle{});
    return call.result(
        call.host().handles.of(QuorStringListHandle{}).add(call.operation(), GuestStringList{}));
}

void QuorUtilStringListDealloc(QuorStringListHandle* list) {
    Call call("QuorUtilStringListDealloc", list != nullptr ? *list : nullptr);
    if (list != nullptr && *list != nullptr) {
        const GuestStringList* found = call.object(*list);
        if (found != nullptr && found->isHostOwned) {
            call.violation("the list is borrowed and stays the host's");
            *list = nullptr;
        }
        if (found == nullptr)
            *list = nullptr;
    }
    call.giveBack(list);
}

std::int64_t QuorUtilStringListGetCount(QuorStringListHandle list) {
    Call call("QuorUtilStringListGetCount", list);
    const GuestStringList* found = call.object(list);
    return call.result(found != nullptr ? static_cast<std::int64_t>(found->strings.size()) : 0);
}

char* QuorUtilStringListGetString(QuorStringListHandle list, std::int64_t index) {
    Call call("QuorUtilStringListGetString", list, index);
    if (call.fails())
        return call.result<char*>(nullptr);
    const GuestStringList* found = call.object(list);
    if (found == nullptr)
        return call.result<char*>(nullptr);
    if (index < 1 || index > static_cast<std::int64_t>(found->strings.size())) {
        call.violate("there is no string " + std::to_string(index) + " in a list of " +
                     std::to_string(found->strings.size()));
        return call.result<char*>(nullptr);
    }
    const std::optional<std::string>& text = found->strings[static_cast<std::size_t>(index - 1)];
    if (!text.has_value())
        return call.result<char*>(nullptr);
    char* copy = call.host().memory.copyText(call.operation(), *text);
    call.result(copy);
    call.out(*text);
    return copy;
}

bool QuorUtilStringListSetString(QuorStringListHandle list, std::int64_t index, const char* text) {
    Call call("QuorUtilStringListSetString", list, index, text);
    return call.result(!call.fails() && setText(call, list, index, text));
}

bool QuorUtilStringListAppendString(QuorStringListHandle list, const char* text) {
    Call call("QuorUtilStringListAppendString", list, text);
    return call.result(!call.fails() && appendText(call, list, text));
}

bool QuorUtilStringListAppend(QuorStringListHandle list, QuorStringListHandle other) {
    Call call("QuorUtilStringListAppend", list, other);
    return call.result(!call.fails() && appendList(call, list, other));
}

} // extern "C"
