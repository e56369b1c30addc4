#include "support/Json.h"

#include <algorithm>
#include <limits>
#include <ostream>
#include <stdexcept>

#include <nlohmann/json.hpp>

namespace quorvia::testsupport {

/// Between a value and the library's, which is JSON text in the order of its members.
class JsonText {
public:
    using Library = nlohmann::ordered_json;

    static Json read(const Library& from) {
        switch (from.type()) {
        case Library::value_t::boolean:
            return from.get<bool>();
        case Library::value_t::number_integer:
            return from.get<std::int64_t>();
        case Library::value_t::number_unsigned:
            return from.get<std::uint64_t>();
        case Library::value_t::number_float:
            return from.get<double>();
        case Library::value_t::string:
            return from.get_ref<const std::string&>();
        case Library::value_t::array:
            return readElements(from);
        case Library::value_t::object:
            return readMembers(from);
        default:
            return nullptr;
        }
    }

    static Library written(const Json& from) {
        switch (from.kind_) {
        case Json::Kind_e::Null:
            return nullptr;
        case Json::Kind_e::Truth:
            return from.integer_ != 0;
        case Json::Kind_e::Integer:
            return from.integer_;
        case Json::Kind_e::Real:
            return from.real_;
        case Json::Kind_e::Text:
            return from.text_;
        case Json::Kind_e::Array:
        case Json::Kind_e::Object:
            break;
        }
        return writtenStructure(from);
    }

private:
    static Json readElements(const Library& from) {
        Json result = Json::array();
        for (const Library& element : from)
            result.elements_.push_back(read(element));
        return result;
    }

    static Json readMembers(const Library& from) {
        Json result = Json::object();
        for (const auto& [name, value] : from.items()) {
            result.names_.push_back(name);
            result.elements_.push_back(read(value));
        }
        return result;
    }

    static Library writtenStructure(const Json& from) {
        Library result = from.isArray() ? Library::array() : Library::object();
        for (std::size_t index = 0; index < from.size(); ++index)
            if (from.isArray())
                result.push_back(written(from.elements_[index]));
            else
                result[from.names_[index]] = written(from.elements_[index]);
        return result;
    }
};

namespace {

bool isMember(const Json& element) {
    return element.isArray() && element.size() == 2 && element[0].isText();
}

} // namespace

Json::Json(std::initializer_list<Json> elements) {
    if (!std::all_of(elements.begin(), elements.end(), isMember)) {
        *this = array(elements);
        return;
    }
    kind_ = Kind_e::Object;
    for (const Json& member : elements)
        set(member[0].text_, member[1]);
}

Json Json::array(std::initializer_list<Json> elements) {
    Json result;
    result.kind_ = Kind_e::Array;
    result.elements_ = elements;
    return result;
}

Json Json::object() {
    Json result;
    result.kind_ = Kind_e::Object;
    return result;
}

Json Json::parse(std::string_view text) {
    try {
        return JsonText::read(JsonText::Library::parse(text));
    } catch (const JsonText::Library::exception& error) {
        throw std::runtime_error(std::string(error.what()) + ": " +
                                 std::string(text.substr(0, 200)));
    }
}

bool Json::isJson(std::string_view text) {
    return JsonText::Library::accept(text);
}

std::string Json::dump(int indent) const {
    return JsonText::written(*this).dump(indent, ' ', false,
                                         JsonText::Library::error_handler_t::replace);
}

void Json::failTooBig() {
    throw std::runtime_error("a number does not fit into 64 bits with a sign");
}

void Json::failAs(const char* wanted) const {
    throw std::runtime_error(dump().substr(0, 200) + " has no " + wanted);
}

void Json::expect(Kind_e kind, const char* wanted) const {
    if (kind_ != kind)
        failAs(wanted);
}

const std::vector<Json>& Json::structured() const {
    if (!isArray())
        expect(Kind_e::Object, "elements");
    return elements_;
}

std::vector<Json>::iterator Json::begin() {
    structured();
    return elements_.begin();
}

std::vector<Json>::iterator Json::end() {
    structured();
    return elements_.end();
}

const Json& Json::element(std::size_t index) const {
    expect(Kind_e::Array, "elements with a number");
    if (index >= elements_.size())
        failAs(("element " + std::to_string(index)).c_str());
    return elements_[index];
}

const std::vector<std::string>& Json::names() const {
    expect(Kind_e::Object, "members");
    return names_;
}

bool Json::contains(std::string_view name) const {
    return std::find(names().begin(), names().end(), name) != names().end();
}

const Json& Json::operator[](std::string_view name) const {
    const auto found = std::find(names().begin(), names().end(), name);
    if (found == names_.end())
        failAs(("member " + std::string(name)).c_str());
    return elements_[static_cast<std::size_t>(found - names_.begin())];
}

void Json::set(std::string_view name, Json value) {
    const auto found = std::find(names().begin(), names().end(), name);
    if (found == names_.end()) {
        names_.emplace_back(name);
        elements_.push_back(std::move(value));
    } else {
        elements_[static_cast<std::size_t>(found - names_.begin())] = std::move(value);
    }
}

bool Json::erase(std::string_view name) {
    const auto found = std::find(names().begin(), names().end(), name);
    if (found == names_.end())
        return false;
    elements_.erase(elements_.begin() + (found - names_.begin()));
    names_.erase(found);
    return true;
}

void Json::add(Json element) {
    expect(Kind_e::Array, "elements with a number");
    elements_.push_back(std::move(element));
}

template <>
bool Json::get() const {
    expect(Kind_e::Truth, "truth");
    return integer_ != 0;
}

template <>
std::int64_t Json::get() const {
    expect(Kind_e::Integer, "whole number");
    return integer_;
}

template <>
int Json::get() const {
    const auto value = get<std::int64_t>();
    if (!std::in_range<int>(value))
        failAs("number of 32 bits");
    return static_cast<int>(value);
}

template <>
double Json::get() const {
    if (kind_ == Kind_e::Integer)
        return static_cast<double>(integer_);
    expect(Kind_e::Real, "number");
    return real_;
}

template <>
std::string Json::get() const {
    expect(Kind_e::Text, "text");
    return text_;
}

template <>
std::vector<std::string> Json::get() const {
    expect(Kind_e::Array, "texts");
    std::vector<std::string> texts;
    for (const Json& element : elements_)
        texts.push_back(element.get<std::string>());
    return texts;
}

bool operator==(const Json& one, const Json& other) {
    const auto isNumber = [](const Json& value) {
        return value.kind_ == Json::Kind_e::Integer || value.kind_ == Json::Kind_e::Real;
    };
    if (one.kind_ != other.kind_)
        return isNumber(one) && isNumber(other) && one.get<double>() == other.get<double>();
    return one.integer_ == other.integer_ && one.real_ == other.real_ && one.text_ == other.text_ &&
           one.names_ == other.names_ && one.elements_ == other.elements_;
}

std::ostream& operator<<(std::ostream& out, const Json& value) {
    return out << value.dump();
}

} // namespace quorvia::testsupport
