// The calls of a guest in words, one line for each: operation, arguments, result. Handles and
// blocks go by short names in the order in which they first appear (list#1), so that two runs of
// the same load give the same lines.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>

#include "quorvia/QuorUtil.h"

namespace quorvia::host {

/// A progress task by the guest's object.
struct TaskName_s {
    const void* task;
};

class Transcript {
public:
    bool isOn() const { return isOn_; }
    /// Switching it on makes the names begin anew.
    void turnOn(bool on);

    /// An address that was given back may come again as another block.
    void forgetName(const void* thing) { names_.erase(thing); }

    std::string describe(QuorStringListHandle list) { return nameOf(list, "list"); }
    std::string describe(QuorArgListHandle arguments) { return nameOf(arguments, "args"); }
    std::string describe(QuorSetHandle set) { return nameOf(set, "set"); }
    std::string describe(QuorFieldHandle field) { return nameOf(field, "field"); }
    std::string describe(QuorNodeMapHandle nodeMap) { return nameOf(nodeMap, "nodes"); }
    std::string describe(QuorAuxDataHandle auxData) { return nameOf(auxData, "aux"); }
    std::string describe(QuorAddOnHandle addOn) { return nameOf(addOn, "addon"); }
    std::string describe(char* block) { return nameOf(block, "block"); }
    std::string describe(const char* text) { return text != nullptr ? quoted(text) : "null"; }
    std::string describe(const std::string& text) { return quoted(text); }
    std::string describe(bool value) { return value ? "true" : "false"; }
    std::string describe(double value);
    std::string describe(std::int32_t value) { return std::to_string(value); }
    std::string describe(std::int64_t value) { return std::to_string(value); }
    /// Arrays, client data and functions: only whether they are there.
    template <typename Thing>
    requires std::is_void_v<Thing> || std::is_function_v<Thing> std::string describe(Thing* thing) {
        return thing != nullptr ? "given" : "null";
    }
    std::string describe(TaskName_s task) { return nameOf(task.task, "task"); }

    /// In double quotes, with line ends, quotes and backslashes escaped.
    static std::string quoted(std::string_view text);

private:
    std::string nameOf(const void* thing, const char* kind);

    bool isOn_ = false;
    std::map<const void*, std::string> names_;
    std::map<std::string, int> lastNumbers_;
};

} // namespace quorvia::host
