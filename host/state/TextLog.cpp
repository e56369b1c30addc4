#include "state/TextLog.h"

#include <algorithm>

namespace quorvia::host {
namespace {

constexpr unsigned bits = 7; // of a number in each byte; the eighth says that more follow

void putNumber(std::string& packed, std::size_t number) {
    constexpr std::size_t more = std::size_t{1} << bits;
    for (; number >= more; number >>= bits)
        packed += static_cast<char>(number % more + more);
    packed += static_cast<char>(number);
}

std::size_t takeNumber(const std::string& packed, std::size_t& place) {
    constexpr unsigned more = 1U << bits;
    std::size_t number = 0;
    for (unsigned shift = 0;; shift += bits) {
        const auto byte = static_cast<unsigned char>(packed[place++]);
        number += static_cast<std::size_t>(byte % more) << shift;
        if (byte < more)
            return number;
    }
}

} // namespace

void TextLog::add(std::string_view text) {
    const auto shortest = static_cast<std::ptrdiff_t>(std::min(text.size(), last_.size()));
    const auto differs = std::mismatch(text.begin(), text.begin() + shortest, last_.begin());
    const auto head = static_cast<std::size_t>(differs.first - text.begin());
    const auto isEnd =
        std::mismatch(text.rbegin(), text.rbegin() + shortest - static_cast<std::ptrdiff_t>(head),
                      last_.rbegin());
    const auto tail = static_cast<std::size_t>(isEnd.first - text.rbegin());

    makeRoomFor(text);
    putNumber(packed_, head);
    putNumber(packed_, tail);
    putNumber(packed_, text.size() - head - tail);
    packed_ += text.substr(head, text.size() - head - tail);
    last_ = text;
    ++count_;
}

void TextLog::makeRoomFor(std::string_view text) {
    constexpr std::size_t leastCapacity = 32 * 1024;
    constexpr std::size_t mostBytesOfNumbers = 3 * (64 / bits + 1);
    const std::size_t needed = packed_.size() + mostBytesOfNumbers + text.size();
    if (packed_.capacity() < needed)
        packed_.reserve(std::max({needed, 2 * packed_.capacity(), leastCapacity}));
    last_.reserve(text.size());
}

std::vector<std::string> TextLog::texts() const {
    std::vector<std::string> all;
    all.reserve(count());
    forEach([&all](std::string_view text) { all.emplace_back(text); });
    return all;
}

/// `text` comes in as the text before.
void TextLog::unpack(std::size_t& place, std::string& text) const {
    const std::size_t head = takeNumber(packed_, place);
    const std::size_t tail = takeNumber(packed_, place);
    const std::size_t own = takeNumber(packed_, place);
    text.replace(head, text.size() - head - tail, packed_, place, own);
    place += own;
}

} // namespace quorvia::host
