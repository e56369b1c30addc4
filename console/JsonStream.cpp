#include "console/JsonStream.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ostream>

#include <nlohmann/json.hpp>

namespace console {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t indentWidth = 2;

/// Whether every byte stands for itself between the quotes. Most texts do, so this is the inner
/// loop.
bool isPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) {
        return byte >= ' ' && byte <= '~' && byte != '"' && byte != '\\';
    });
}

/// As the library writes a single value.
std::string dumped(const Json& value) {
    constexpr int onOneLine = -1;
    return value.dump(onOneLine, ' ', false, Json::error_handler_t::replace);
}

} // namespace

void JsonStream::key(std::string_view name) {
    startLine();
    putText(name);
    text_ += ": ";
    hasKey_ = true;
}

void JsonStream::value(std::string_view text) {
    startValue();
    putText(text);
    flushIfLarge();
}

void JsonStream::value(double number) {
    if (std::isnan(number))
        return value("NaN");
    if (std::isinf(number))
        return value(number > 0 ? "Infinity" : "-Infinity");
    literal(dumped(number));
}

void JsonStream::finish() {
    text_ += '\n';
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
}

void JsonStream::begin(char bracket) {
    startValue();
    text_ += bracket;
    ++depth_;
    isFirst_ = true;
}

void JsonStream::end(char bracket) {
    --depth_;
    if (!isFirst_) {
        text_ += '\n';
        text_.append(depth_ * indentWidth, ' ');
    }
    text_ += bracket;
    isFirst_ = false;
    flushIfLarge();
}

void JsonStream::integer(std::int64_t number) {
    std::array<char, 24> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), number); // always fits
    static_cast<void>(error);
    literal({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

void JsonStream::literal(std::string_view text) {
    startValue();
    text_ += text;
}

void JsonStream::startValue() {
    if (!hasKey_)
        startLine();
    hasKey_ = false;
}

void JsonStream::startLine() {
    if (depth_ == 0)
        return;
    if (!isFirst_)
        text_ += ',';
    isFirst_ = false;
    text_ += '\n';
    text_.append(depth_ * indentWidth, ' ');
}

void JsonStream::putText(std::string_view text) {
    if (!isPlain(text)) {
        text_ += dumped(text);
        return;
    }
    text_ += '"';
    text_ += text;
    text_ += '"';
}

void JsonStream::flushIfLarge() {
    constexpr std::size_t block = std::size_t{1} << 16;
    if (text_.size() < block)
        return;
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
}

} // namespace console
