// A value of JSON, for tests of what programs write as JSON and of what they are given as such.
// Json.cpp alone includes the library that reads and writes the text: it takes seconds to compile.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvia::testsupport {

/// Members of an object keep their order, and two objects are equal only in the same one. Numbers
/// are equal by value, 2 and 2.0 too. What a value doesn't have, or isn't, ends in a
/// std::runtime_error that says so.
class Json {
public:
    /// Null.
    Json(std::nullptr_t = nullptr) {}
    /// True, false, or a number.
    template <std::integral Value>
    Json(Value value)
        : kind_(std::same_as<Value, bool> ? Kind_e::Truth : Kind_e::Integer),
          integer_(checkedInteger(value)) {}
    template <std::floating_point Value>
    Json(Value value) : kind_(Kind_e::Real), real_(static_cast<double>(value)) {}
    template <std::convertible_to<std::string_view> Text>
    Json(const Text& text) : kind_(Kind_e::Text), text_(std::string_view(text)) {}
    template <typename Element>
    Json(const std::vector<Element>& elements)
        : kind_(Kind_e::Array), elements_(elements.begin(), elements.end()) {}
    template <typename Element, std::size_t count>
    Json(const std::array<Element, count>& elements)
        : kind_(Kind_e::Array), elements_(elements.begin(), elements.end()) {}
    /// An object if each element is a pair that begins with a text, else an array: {{"i", 2}}, {1,
    /// 2}.
    Json(std::initializer_list<Json> elements);
    static Json array(std::initializer_list<Json> elements = {});
    static Json object();

    /// Throws a std::runtime_error where the text is no JSON.
    static Json parse(std::string_view text);
    static bool isJson(std::string_view text);

    bool isNull() const { return kind_ == Kind_e::Null; }
    bool isText() const { return kind_ == Kind_e::Text; }
    bool isObject() const { return kind_ == Kind_e::Object; }
    bool isArray() const { return kind_ == Kind_e::Array; }

    /// Of objects: the member, the names in their order, and whether there is such a member.
    const Json& operator[](std::string_view name) const;
    const std::vector<std::string>& names() const;
    bool contains(std::string_view name) const;
    /// Of arrays: the element, from 0.
    template <std::integral Index>
    const Json& operator[](Index index) const {
        return element(static_cast<std::size_t>(index));
    }

    /// Of arrays and objects: elements, or the values of members.
    std::size_t size() const { return structured().size(); }
    bool empty() const { return size() == 0; }
    std::vector<Json>::const_iterator begin() const { return structured().begin(); }
    std::vector<Json>::const_iterator end() const { return structured().end(); }
    std::vector<Json>::iterator begin();
    std::vector<Json>::iterator end();

    /// bool, int, std::int64_t, double, std::string, or a std::vector of std::string.
    template <typename Value>
    Value get() const;

    /// Changes the member or adds it.
    void set(std::string_view name, Json value);
    /// Whether it was there.
    bool erase(std::string_view name);
    void add(Json element);

    /// In one line, or `indent` blanks for each level. Bytes that are no UTF-8 are replaced.
    std::string dump(int indent = -1) const;

    friend bool operator==(const Json& one, const Json& other);

private:
    enum class Kind_e : char { Null, Truth, Integer, Real, Text, Array, Object };
    friend class JsonText; // to and from text

    /// A number past 64 bits with a sign is not taken for a negative one.
    template <typename Value>
    static std::int64_t checkedInteger(Value value) {
        const auto integer = static_cast<std::int64_t>(value);
        if (value > Value{} && integer < 0)
            failTooBig();
        return integer;
    }
    [[noreturn]] static void failTooBig();
    [[noreturn]] void failAs(const char* wanted) const;
    void expect(Kind_e kind, const char* wanted) const;
    const std::vector<Json>& structured() const;
    const Json& element(std::size_t index) const;

    Kind_e kind_ = Kind_e::Null;
    std::int64_t integer_ = 0;
    double real_ = 0;
    std::string text_;
    std::vector<Json> elements_;     // of an array, or the values of an object
    std::vector<std::string> names_; // of an object, as many
};

template <>
bool Json::get() const;
template <>
int Json::get() const;
template <>
std::int64_t Json::get() const;
template <>
double Json::get() const;
template <>
std::string Json::get() const;
template <>
std::vector<std::string> Json::get() const;

std::ostream& operator<<(std::ostream& out, const Json& value);

} // namespace quorvia::testsupport
