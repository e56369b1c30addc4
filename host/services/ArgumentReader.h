// Reads the named arguments of an ...X operation. The first thing that is wrong becomes a violation
// and the call's failure; the reader then gives defaults, so that one test at the end is enough.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "services/Call.h"

namespace quorvia::host {

class ArgumentReader {
public:
    /// `arguments` may hold the keys of `known` and no others.
    ArgumentReader(Call& call, QuorArgListHandle arguments,
                   std::initializer_list<std::string_view> known);

    /// Nothing was wrong so far.
    bool ok() const { return ok_; }
    bool has(std::string_view key) const { return find(key) != nullptr; }

    /// Required arguments.
    std::string text(std::string_view key);
    std::int64_t integer(std::string_view key);
    QuorStringListHandle stringList(std::string_view key);
    QuorFunction function(std::string_view key);
    /// Optional arguments.
    std::int64_t integerOr(std::string_view key, std::int64_t otherwise);
    double realOr(std::string_view key, double otherwise);
    /// Null if absent.
    const void* arrayOrNull(std::string_view key);

private:
    const GuestArgument_s* find(std::string_view key) const;
    void complain(std::string_view key, std::string_view what, std::string_view kind = {});
    template <typename Value>
    Value valueOf(std::string_view key, const GuestArgument_s& argument, Value otherwise,
                  const char* kind);
    template <typename Value>
    Value required(std::string_view key, const char* kind);
    template <typename Value>
    Value optional(std::string_view key, Value otherwise, const char* kind);

    Call& call_;
    const GuestArgList_s* list_;
    bool ok_ = true;
};

} // namespace quorvia::host
