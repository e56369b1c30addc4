// The handles that the host has given out. A handle is a number dressed as a pointer, never an
// address, and no number comes twice: whatever a guest does with a handle that it gave back is
// found.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "checks/Operations.h"
#include "model/FieldStorage.h"
#include "model/NodeMap.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::host {

struct GuestStringList_s {
    std::vector<std::optional<std::string>> strings; // empty for one that was never set
    bool isHostOwned = false;                        // borrowed by the guest for one callback
};

struct GuestArgument_s {
    std::string key;
    std::variant<std::string, std::int64_t, double, QuorStringListHandle, const void*, QuorFunction>
        value;
};

struct GuestArgList_s {
    std::vector<GuestArgument_s> arguments;
};

struct GuestSet_s {
    std::set<std::int64_t> members;
};

struct FieldReference_s {
    std::weak_ptr<FieldStorage> storage; // gone once the field has changed, and during clean-up
    void* clientData = nullptr;
};

struct NodeMapReference_s {
    std::weak_ptr<NodeMap> nodeMap;
};

struct AuxDataReference_s {
    std::int64_t ownerId = 0; // of a zone or a data set
};

struct AddOnIdentity_s {
    std::string name;
};

/// Numbers that tell in which order handles and blocks were given out.
class SerialSource {
public:
    std::int64_t next() { return ++last_; }
    std::int64_t last() const { return last_; }

private:
    std::int64_t last_ = 0;
};

/// The handles of one kind. `Handle` is the pointer type of the contract, `Object` what stands
/// behind.
template <typename Handle, typename Object>
class HandleTable {
public:
    struct Entry_s {
        Object object;
        OperationId origin;
        std::int64_t serial;
    };

    /// A handle that is in use as long as this lives, and needs no memory. The last one lent must
    /// end first.
    class Lent {
    public:
        Lent(HandleTable& table, Object object) noexcept
            : table_(table), number_(table.numberOf(table.serials_.next())),
              object_(std::move(object)), outer_(std::exchange(table.lent_, this)) {}
        ~Lent() { table_.lent_ = outer_; }
        Lent(const Lent&) = delete;
        Lent& operator=(const Lent&) = delete;

        Handle handle() const { return reinterpret_cast<Handle>(number_); }

    private:
        friend class HandleTable;
        HandleTable& table_;
        std::uintptr_t number_;
        Object object_;
        Lent* outer_;
    };

    HandleTable(SerialSource& serials, std::uintptr_t kind) : serials_(serials), kind_(kind) {}

    /// Throws std::bad_alloc, and nothing has changed then.
    Handle add(OperationId origin, Object object) {
        const std::int64_t serial = serials_.last() + 1;
        const std::uintptr_t number = numberOf(serial);
        entries_.emplace(number, Entry_s{std::move(object), origin, serial});
        serials_.next();
        return reinterpret_cast<Handle>(number);
    }
    /// Null if the handle is not in the table. Valid until the next `remove`.
    Object* find(Handle handle) {
        const auto number = reinterpret_cast<std::uintptr_t>(handle);
        if (found_ != nullptr && foundNumber_ == number)
            return found_;
        const auto place = entries_.find(number);
        if (place == entries_.end())
            return findLent(number);
        foundNumber_ = number;
        found_ = &place->second.object;
        return found_;
    }
    void remove(Handle handle) {
        found_ = nullptr;
        entries_.erase(reinterpret_cast<std::uintptr_t>(handle));
    }
    std::int64_t count() const { return static_cast<std::int64_t>(entries_.size()); }

    /// Calls `tell` with the origin of each that was given out after `serial`.
    template <typename Tell>
    void tellHeldSince(std::int64_t serial, Tell tell) const {
        for (const auto& [number, entry] : entries_) {
            if (entry.serial > serial)
                tell(entry.origin);
        }
    }

private:
    std::uintptr_t numberOf(std::int64_t serial) const {
        return (static_cast<std::uintptr_t>(serial) << 4) | (kind_ << 1) | 1;
    }
    Object* findLent(std::uintptr_t number) {
        for (Lent* lent = lent_; lent != nullptr; lent = lent->outer_) {
            if (lent->number_ == number)
                return &lent->object_;
        }
        return nullptr;
    }

    SerialSource& serials_;
    std::uintptr_t kind_;
    std::unordered_map<std::uintptr_t, Entry_s> entries_;
    Lent* lent_ = nullptr; // the last one
    // A guest asks for the same handle many times in a row, once for each node of a zone.
    std::uintptr_t foundNumber_ = 0;
    Object* found_ = nullptr;
};

class HandleRegistry {
public:
    explicit HandleRegistry(SerialSource& serials) : serials_(serials) {}

    HandleTable<QuorStringListHandle, GuestStringList_s>& of(QuorStringListHandle) {
        return lists_;
    }
    HandleTable<QuorArgListHandle, GuestArgList_s>& of(QuorArgListHandle) { return argLists_; }
    HandleTable<QuorSetHandle, GuestSet_s>& of(QuorSetHandle) { return sets_; }
    HandleTable<QuorFieldHandle, FieldReference_s>& of(QuorFieldHandle) { return fields_; }
    HandleTable<QuorNodeMapHandle, NodeMapReference_s>& of(QuorNodeMapHandle) { return nodeMaps_; }
    HandleTable<QuorAuxDataHandle, AuxDataReference_s>& of(QuorAuxDataHandle) { return auxData_; }
    HandleTable<QuorAddOnHandle, AddOnIdentity_s>& of(QuorAddOnHandle) { return addOns_; }

    /// Why a handle is not one of its kind, in words such as "set was given back already".
    template <typename Handle>
    std::string whyInvalid(Handle handle) const {
        return whyInvalid(reinterpret_cast<std::uintptr_t>(handle), kindOf(handle));
    }

    /// Calls `tell` with the operation that each list, argument list and set came from that was
    /// given out after `serial` and not given back. Handles that the host owns don't count.
    template <typename Tell>
    void tellHeldSince(std::int64_t serial, Tell tell) const {
        lists_.tellHeldSince(serial, tell);
        argLists_.tellHeldSince(serial, tell);
        sets_.tellHeldSince(serial, tell);
    }
    std::int64_t heldCount() const { return lists_.count() + argLists_.count() + sets_.count(); }

private:
    enum Kind_e : std::uintptr_t {
        StringList,
        ArgList,
        Set,
        Field,
        NodeMapKind,
        AuxDataKind,
        AddOn
    };
    static Kind_e kindOf(QuorStringListHandle) { return StringList; }
    static Kind_e kindOf(QuorArgListHandle) { return ArgList; }
    static Kind_e kindOf(QuorSetHandle) { return Set; }
    static Kind_e kindOf(QuorFieldHandle) { return Field; }
    static Kind_e kindOf(QuorNodeMapHandle) { return NodeMapKind; }
    static Kind_e kindOf(QuorAuxDataHandle) { return AuxDataKind; }
    static Kind_e kindOf(QuorAddOnHandle) { return AddOn; }
    std::string whyInvalid(std::uintptr_t number, Kind_e expected) const;

    SerialSource& serials_;
    HandleTable<QuorStringListHandle, GuestStringList_s> lists_{serials_, StringList};
    HandleTable<QuorArgListHandle, GuestArgList_s> argLists_{serials_, ArgList};
    HandleTable<QuorSetHandle, GuestSet_s> sets_{serials_, Set};
    HandleTable<QuorFieldHandle, FieldReference_s> fields_{serials_, Field};
    HandleTable<QuorNodeMapHandle, NodeMapReference_s> nodeMaps_{serials_, NodeMapKind};
    HandleTable<QuorAuxDataHandle, AuxDataReference_s> auxData_{serials_, AuxDataKind};
    HandleTable<QuorAddOnHandle, AddOnIdentity_s> addOns_{serials_, AddOn};
};

} // namespace quorvia::host
