#include "checks/HandleRegistry.h"

#include <array>

namespace quorvia::host {

namespace {

constexpr std::array<const char*, 7> kindNames = {"string list", "argument list",  "set",   "field",
                                                  "node map",    "auxiliary data", "add-on"};

} // namespace

std::string HandleRegistry::whyInvalid(std::uintptr_t number, Kind_e expected) const {
    const std::string name = kindNames[expected];
    if (number == 0)
        return name + " is null";
    const std::uintptr_t kind = (number >> 1) & 7;
    const bool isOurs = (number & 1) != 0 && kind < kindNames.size() &&
                        (number >> 4) <= static_cast<std::uintptr_t>(serials_.last());
    if (!isOurs)
        return name + " is no handle of this host";
    if (kind != expected)
        return name + " expected, but a handle of another kind was given: " + kindNames[kind];
    return name + " was given back already";
}

} // namespace quorvia::host
