#include "services/ArgumentReader.h"

#include <algorithm>

namespace quorvia::host {

ArgumentReader::ArgumentReader(Call& call, QuorArgListHandle arguments,
                               std::initializer_list<std::string_view> known)
    : call_(call), list_(call.object(arguments)) {
    ok_ = list_ != nullptr;
    if (!ok_)
        return;
    for (const GuestArgument_s& argument : list_->arguments) {
        if (std::find(known.begin(), known.end(), argument.key) == known.end())
            complain(argument.key, "is unknown");
    }
}

const GuestArgument_s* ArgumentReader::find(std::string_view key) const {
    if (list_ == nullptr)
        return nullptr;
    for (const GuestArgument_s& argument : list_->arguments) {
        if (argument.key == key)
            return &argument;
    }
    return nullptr;
}

void ArgumentReader::complain(std::string_view key, std::string_view what, std::string_view kind) {
    if (ok_)
        call_.violate(
            "key ", [key] { return Transcript::quoted(key); }, " ", what, kind);
    ok_ = false;
}

template <typename Value>
Value ArgumentReader::valueOf(std::string_view key, const GuestArgument_s& argument,
                              Value otherwise, const char* kind) {
    if (const Value* value = std::get_if<Value>(&argument.value))
        return *value;
    complain(key, "is not ", kind);
    return otherwise;
}

template <typename Value>
Value ArgumentReader::optional(std::string_view key, Value otherwise, const char* kind) {
    const GuestArgument_s* argument = find(key);
    return argument != nullptr ? valueOf(key, *argument, otherwise, kind) : otherwise;
}

template <typename Value>
Value ArgumentReader::required(std::string_view key, const char* kind) {
    const GuestArgument_s* argument = find(key);
    if (argument != nullptr)
        return valueOf(key, *argument, Value{}, kind);
    complain(key, "is missing");
    return Value{};
}

std::string ArgumentReader::text(std::string_view key) {
    return required<std::string>(key, "a string");
}

std::int64_t ArgumentReader::integer(std::string_view key) {
    return required<std::int64_t>(key, "an integer");
}

QuorStringListHandle ArgumentReader::stringList(std::string_view key) {
    return required<QuorStringListHandle>(key, "a string list");
}

QuorFunction ArgumentReader::function(std::string_view key) {
    return required<QuorFunction>(key, "a function");
}

std::int64_t ArgumentReader::integerOr(std::string_view key, std::int64_t otherwise) {
    return optional<std::int64_t>(key, otherwise, "an integer");
}

double ArgumentReader::realOr(std::string_view key, double otherwise) {
    return optional<double>(key, otherwise, "a double");
}

const void* ArgumentReader::arrayOrNull(std::string_view key) {
    return optional<const void*>(key, nullptr, "an array");
}

} // namespace quorvia::host
