// The values of a field, or the promise of them. Zones that share a field hold the same
// FieldStorage, so that a deferred field is fetched once for all of them and its clean-up comes
// with the last.
#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <utility>

#include "model/ValueBlock.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::host {

class FieldCache;
class FieldStorage;

/// Bytes of one value; 0 for a type that no field can have.
std::int64_t valueWidth(std::int32_t type);

/// Where the values of a deferred field come from. Ending it is the clean-up of the registration.
/// Nothing here throws.
class Deferral {
public:
    virtual ~Deferral() = default;
    /// Fills `storage.values()`; false leaves the field deferred.
    virtual bool load(FieldStorage& storage) noexcept = 0;
    /// Whether the array may be dropped; `load` may be called again afterwards.
    virtual bool mayUnload(FieldStorage& storage) noexcept = 0;
    /// An address in the code that fills the field, which must end before that code is unloaded;
    /// null if the code always stays.
    virtual const void* code() const { return nullptr; }
    /// What the one who made the promise keeps for it; null for none.
    virtual const void* clientData() const { return nullptr; }
};

class FieldStorage : public std::enable_shared_from_this<FieldStorage> {
    /// Storage is always shared, so that only `stored` and `deferred` make it.
    struct Key_s {
        explicit Key_s() = default;
    };

public:
    FieldStorage(Key_s, std::int32_t type, std::int64_t valueCount)
        : type_(type), valueCount_(valueCount) {}
    /// `valueCount` zeros of `type`; null, or std::bad_alloc, if there is no memory.
    static std::shared_ptr<FieldStorage> stored(std::int32_t type, std::int64_t valueCount);
    /// A field that is fetched when someone asks for it (FieldCache::fetch). `Promise` is the
    /// Deferral to make from `arguments`; it stands in one block with the storage.
    template <typename Promise, typename... Arguments>
    static std::shared_ptr<FieldStorage> deferred(std::int32_t type, std::int64_t valueCount,
                                                  Arguments&&... arguments) {
        return std::make_shared<Promised<Promise>>(type, valueCount,
                                                   std::forward<Arguments>(arguments)...);
    }
    ~FieldStorage();
    FieldStorage(const FieldStorage&) = delete;
    FieldStorage& operator=(const FieldStorage&) = delete;

    std::int32_t type() const { return type_; }
    std::int64_t valueCount() const { return valueCount_; }
    std::int64_t byteCount() const { return valueCount_ * valueWidth(type_); }
    bool isDeferred() const { return deferral_ != nullptr; }
    const Deferral* deferral() const { return deferral_; }
    /// Index order I fastest, then J, then K. Null for a deferred field that is not in memory.
    void* values() const { return block_.data(); }

private:
    friend class FieldCache;
    template <typename Promise>
    class Promised;
    void leaveCache();

    std::int32_t type_;
    bool loading_ = false;
    std::int64_t valueCount_;
    ValueBlock block_;
    Deferral* deferral_ = nullptr; // null if the values are stored
    FieldCache* cache_ = nullptr;  // set while fetched values are accounted there
    std::list<FieldStorage*>::iterator place_;
};

/// A storage with the promise of its values.
template <typename Promise>
class FieldStorage::Promised final : public FieldStorage {
public:
    template <typename... Arguments>
    Promised(std::int32_t type, std::int64_t valueCount, Arguments&&... arguments)
        : FieldStorage(Key_s(), type, valueCount), promise_(std::forward<Arguments>(arguments)...) {
        deferral_ = &promise_;
    }
    ~Promised() { leaveCache(); } // before the promise ends, which calls the guest
    Promised(const Promised&) = delete;
    Promised& operator=(const Promised&) = delete;

private:
    Promise promise_;
};

} // namespace quorvia::host
