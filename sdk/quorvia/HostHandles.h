// Small owning types for what the host hands out, so that an early return can't leak a string,
// list, set, argument list or array. Each holds one handle or null, is movable and not copyable,
// and gives the handle back through the host when it ends.
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "quorvia/QuorUtil.h"

namespace quorvia {

/// Owns one host handle. `giveBack` is the host's operation that takes the handle by reference.
template <typename Handle, void (*giveBack)(Handle*)>
class HostOwned {
public:
    HostOwned() = default;
    explicit HostOwned(Handle handle) : handle_(handle) {}
    HostOwned(HostOwned&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    HostOwned& operator=(HostOwned&& other) noexcept {
        if (this != &other) {
            reset();
            handle_ = std::exchange(other.handle_, nullptr);
        }
        return *this;
    }
    ~HostOwned() { reset(); }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

    void reset() {
        if (handle_ != nullptr)
            giveBack(&handle_);
        handle_ = nullptr;
    }
    /// Gives up the handle: the caller owns it now.
    Handle release() { return std::exchange(handle_, nullptr); }
    /// For host operations that store a new handle in an out argument; what was held is given back.
    Handle* outArgument() {
        reset();
        return &handle_;
    }

private:
    Handle handle_ = nullptr;
};

using HostStringList = HostOwned<QuorStringListHandle, QuorUtilStringListDealloc>;
using HostArgList = HostOwned<QuorArgListHandle, QuorUtilArgListDealloc>;
using HostSet = HostOwned<QuorSetHandle, QuorUtilSetDealloc>;

/// A zero-terminated string in the host's memory, or null.
class HostString : public HostOwned<char*, QuorUtilStringDealloc> {
public:
    using HostOwned::HostOwned;

    /// A copy of `text`; null if the host has no memory. The label of every such string is the
    /// same.
    static HostString copyOf(std::string_view text) {
        HostString copy(
            QuorUtilStringAlloc(static_cast<std::int64_t>(text.size()) + 1, "new string"));
        if (copy) {
            std::memcpy(copy.get(), text.data(), text.size());
            copy.get()[text.size()] = '\0';
        }
        return copy;
    }

    /// The text; empty for null. Valid as long as the string is held.
    std::string_view view() const { return get() != nullptr ? std::string_view(get()) : ""; }
    std::string str() const { return std::string(view()); }
};

/// An array of `Number` in the host's memory, or empty. The contents are undefined at first.
template <typename Number>
class HostArray {
public:
    HostArray() = default;
    HostArray(HostArray&& other) noexcept
        : block_(std::move(other.block_)), count_(std::exchange(other.count_, 0)) {}
    HostArray& operator=(HostArray&& other) noexcept {
        block_ = std::move(other.block_);
        count_ = std::exchange(other.count_, 0);
        return *this;
    }

    /// An array of `count` numbers, accounted under `label`; empty if `count` is negative, if the
    /// size passes 64 bits, or if the host has no memory.
    static HostArray allocate(std::int64_t count, const char* label) {
        constexpr std::int64_t width = sizeof(Number);
        HostArray array;
        if (count < 0 || count > std::numeric_limits<std::int64_t>::max() / width)
            return array;
        array.block_ =
            HostOwned<char*, QuorUtilStringDealloc>(QuorUtilStringAlloc(count * width, label));
        array.count_ = array.block_ ? count : 0;
        return array;
    }

    explicit operator bool() const { return static_cast<bool>(block_); }
    std::int64_t count() const { return count_; }
    Number* data() const { return static_cast<Number*>(static_cast<void*>(block_.get())); }
    Number& operator[](std::int64_t index) const { return data()[index]; }
    Number* begin() const { return data(); }
    Number* end() const { return data() + count_; }
    void reset() { *this = HostArray(); }

private:
    HostOwned<char*, QuorUtilStringDealloc> block_;
    std::int64_t count_ = 0;
};

/// Holds the host's lock for the life of a scope.
class HostLock {
public:
    explicit HostLock(QuorAddOnHandle addOn) : addOn_(addOn) { QuorUtilLockStart(addOn_); }
    ~HostLock() { QuorUtilLockFinish(addOn_); }
    HostLock(const HostLock&) = delete;
    HostLock& operator=(const HostLock&) = delete;

private:
    QuorAddOnHandle addOn_;
};

} // namespace quorvia
