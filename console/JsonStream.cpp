#include "console/JsonStream.h"

#include <array>
#include <charconv>
#include <ostream>

#include "console/JsonText.h"

namespace console {

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
    literal(jsonNumber(number));
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
        text_.append(depth_ * indentWidth_, ' ');
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
    text_.append(depth_ * indentWidth_, ' ');
}

void JsonStream::putText(std::string_view text) {
    text_ += jsonText(text);
}

void JsonStream::flushIfLarge() {
    constexpr std::size_t block = std::size_t{1} << 16;
    if (text_.size() < block)
        return;
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
}

} // namespace console
