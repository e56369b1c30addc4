#include "model/FieldCache.h"

#include <new>
#include <utility>

namespace quorvia::host {

namespace {

/// Of a field among those in memory; empty if there is no memory.
std::list<FieldStorage*> newPlace(FieldStorage& storage) noexcept {
    try {
        return {&storage};
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

FieldCache::~FieldCache() {
    for (FieldStorage* storage : recent_)
        storage->cache_ = nullptr;
}

bool FieldCache::fetch(FieldStorage& storage) {
    if (!storage.isDeferred())
        return true;
    if (storage.cache_ != nullptr) {
        auto& recent = storage.cache_->recent_; // another one may have fetched it
        recent.splice(recent.end(), recent, storage.place_);
        return true;
    }
    if (storage.loading_)
        return false;

    // The guest may delete the zone while it loads the field.
    const std::shared_ptr<FieldStorage> alive = storage.shared_from_this();
    std::list<FieldStorage*> place = newPlace(storage);
    if (place.empty())
        return false;
    makeRoomFor(storage.byteCount());
    storage.block_ = takeBlock(storage.byteCount());
    if (!storage.block_)
        return false;
    storage.loading_ = true;
    const bool loaded = storage.deferral_->load(storage);
    storage.loading_ = false;
    if (!loaded) {
        spare_ = std::move(storage.block_);
        return false;
    }
    storage.cache_ = this;
    storage.place_ = place.begin();
    recent_.splice(recent_.end(), place);
    bytesInMemory_ += storage.byteCount();
    return true;
}

bool FieldCache::drop(FieldStorage& storage) {
    if (storage.cache_ == nullptr || !storage.deferral_->mayUnload(storage))
        return false;
    forget(storage);
    spare_ = std::move(storage.block_);
    return true;
}

void FieldCache::dropAll() {
    for (auto next = recent_.begin(); next != recent_.end();)
        drop(**next++);
    spare_.reset();
}

void FieldCache::makeRoomFor(std::int64_t byteCount) {
    if (byteLimit_ == 0)
        return;
    for (auto next = recent_.begin();
         next != recent_.end() && bytesInMemory_ > byteLimit_ - byteCount;)
        drop(**next++);
}

// A field often takes the place of one of the same size, whose pages need not be made again.
ValueBlock FieldCache::takeBlock(std::int64_t byteCount) {
    ValueBlock block = std::move(spare_);
    if (block && block.byteCount() == byteCount)
        return block;
    block.reset();
    return ValueBlock::uninitialised(byteCount);
}

void FieldCache::forget(FieldStorage& storage) {
    recent_.erase(storage.place_);
    bytesInMemory_ -= storage.byteCount();
    storage.cache_ = nullptr;
}

} // namespace quorvia::host
