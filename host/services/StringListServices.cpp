// Lists of strings.
#include "model/Room.h"
#include "services/Call.h"

using namespace quorvia::host;

namespace {

// A list that a guest could grow to this length only by mistake.
constexpr std::int64_t longestList = 2147483647;

/// Null for one that was never set, and, with a violation, for one that is not in the list.
const std::string* textAt(Call& call, QuorStringListHandle list, std::int64_t index) {
    const GuestStringList_s* found = call.object(list);
    if (found == nullptr)
        return nullptr;
    const std::size_t count = found->strings.size();
    if (index < 1 || index > static_cast<std::int64_t>(count)) {
        call.violate("there is no string ", index, " in a list of ", count);
        return nullptr;
    }
    const std::optional<std::string>& text = found->strings[static_cast<std::size_t>(index - 1)];
    return text.has_value() ? &*text : nullptr;
}

bool appendText(Call& call, QuorStringListHandle list, const char* text) {
    GuestStringList_s* target = call.object(list);
    if (target == nullptr)
        return false;
    if (text == nullptr)
        return call.violate("text is null");
    target->strings.emplace_back(text);
    return true;
}

bool setText(Call& call, QuorStringListHandle list, std::int64_t index, const char* text) {
    GuestStringList_s* target = call.object(list);
    if (target == nullptr)
        return false;
    if (text == nullptr)
        return call.violate("text is null");
    if (index < 1 || index > longestList)
        return call.violate("there is no string ", index);
    std::string copy = text;
    const auto position = static_cast<std::size_t>(index - 1);
    if (position >= target->strings.size())
        target->strings.resize(position + 1);
    target->strings[position] = std::move(copy);
    return true;
}

bool appendList(Call& call, QuorStringListHandle list, QuorStringListHandle other) {
    GuestStringList_s* target = call.object(list);
    const GuestStringList_s* source = call.object(other);
    if (target == nullptr || source == nullptr)
        return false;
    std::vector<std::optional<std::string>> copies = source->strings; // may be the same list
    makeRoom(target->strings, copies.size());
    for (std::optional<std::string>& copy : copies)
        target->strings.push_back(std::move(copy));
    return true;
}

} // namespace

extern "C" {

QuorStringListHandle QuorUtilStringListAlloc() {
    Call call("QuorUtilStringListAlloc");
    return call.serve(QuorStringListHandle{}, [&] {
        return call.host().handles.of(QuorStringListHandle{}).add(call.operation(), {});
    });
}

void QuorUtilStringListDealloc(QuorStringListHandle* list) {
    Call call("QuorUtilStringListDealloc", list != nullptr ? *list : nullptr);
    if (list != nullptr && *list != nullptr) {
        const GuestStringList_s* found = call.object(*list);
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
    const GuestStringList_s* found = call.object(list);
    return call.result(found != nullptr ? static_cast<std::int64_t>(found->strings.size()) : 0);
}

char* QuorUtilStringListGetString(QuorStringListHandle list, std::int64_t index) {
    Call call("QuorUtilStringListGetString", list, index);
    const std::string* text = nullptr;
    char* copy = call.serve<char*>(nullptr, [&]() -> char* {
        text = textAt(call, list, index);
        return text != nullptr ? call.host().memory.copyText(call.operation(), *text) : nullptr;
    });
    if (text != nullptr)
        call.out(*text);
    return copy;
}

bool QuorUtilStringListSetString(QuorStringListHandle list, std::int64_t index, const char* text) {
    Call call("QuorUtilStringListSetString", list, index, text);
    return call.serve([&] { return setText(call, list, index, text); });
}

bool QuorUtilStringListAppendString(QuorStringListHandle list, const char* text) {
    Call call("QuorUtilStringListAppendString", list, text);
    return call.serve([&] { return appendText(call, list, text); });
}

bool QuorUtilStringListAppend(QuorStringListHandle list, QuorStringListHandle other) {
    Call call("QuorUtilStringListAppend", list, other);
    return call.serve([&] { return appendList(call, list, other); });
}

} // extern "C"
