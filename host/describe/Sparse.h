// An optional value that takes no more room than a pointer while it is absent, for the members that
// most fields of a large data set lack.
#pragma once

#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

namespace quorvia::host {

template <typename Value>
class Sparse {
public:
    Sparse() = default;
    Sparse(Value value) : value_(std::make_unique<Value>(std::move(value))) {}
    Sparse(const Sparse& other) : value_(other ? std::make_unique<Value>(*other) : nullptr) {}
    Sparse(Sparse&&) noexcept = default;
    Sparse& operator=(const Sparse& other) { return *this = Sparse(other); }
    Sparse& operator=(Sparse&&) noexcept = default;
    template <typename From = Value>
    requires(!std::same_as<std::remove_cvref_t<From>, Sparse> &&
             std::constructible_from<Value, From>) Sparse&
    operator=(From&& value) {
        value_ = std::make_unique<Value>(std::forward<From>(value));
        return *this;
    }

    bool has_value() const { return value_ != nullptr; }
    explicit operator bool() const { return value_ != nullptr; }
    const Value& operator*() const { return *value_; }
    const Value* operator->() const { return value_.get(); }
    void reset() { value_.reset(); }

    friend bool operator==(const Sparse& left, const Sparse& right) {
        return left && right ? *left == *right : !left && !right;
    }
    template <typename Other>
    friend bool operator==(const Sparse& left, const Other& right) {
        return left && *left == right;
    }

private:
    std::unique_ptr<Value> value_; // null while absent
};

} // namespace quorvia::host
