#include "inspect/reading/TextTokens.h"

#include <algorithm>

#include "plot3dfile/numbers/RealToken.h"

namespace plot3dlib {

namespace io = quorvia::quorutildataio;

namespace {

constexpr std::size_t mostDigits = 10; // of an integer of 32 bits

bool passes32Bits(std::string_view integer) {
    const std::size_t first = integer.find_first_not_of("+-0");
    if (first == std::string_view::npos)
        return false;
    const std::string_view digits = integer.substr(first);
    const std::string_view limit = integer.front() == '-' ? "2147483648" : "2147483647";
    return digits.size() > mostDigits || (digits.size() == mostDigits && digits > limit);
}

} // namespace

constexpr TextTokens::Tables_s TextTokens::makeTables() {
    Tables_s made;
    for (std::size_t index = 0; index < made.classes.size(); ++index) {
        const int character = static_cast<int>(index);
        made.classes[index] = io::isSeparator(character)             ? Class_e::Separator
                              : io::isDigit(character)               ? Class_e::Digit
                              : io::isExponentLetter(character)      ? Class_e::Letter
                              : character == '+' || character == '-' ? Class_e::Sign
                              : character == '.'                     ? Class_e::Point
                              : character == '*'                     ? Class_e::Star
                                                                     : Class_e::Other;
    }
    for (auto& row : made.next)
        row.fill(State_e::Broken);
    const auto lead = [&](State_e from, Class_e character, State_e to) {
        made.next[static_cast<std::size_t>(from)][static_cast<std::size_t>(character)] = to;
    };
    lead(State_e::Between, Class_e::Digit, State_e::Digits);
    lead(State_e::Between, Class_e::Sign, State_e::Sign);
    lead(State_e::Between, Class_e::Point, State_e::Point);
    lead(State_e::Sign, Class_e::Digit, State_e::Digits);
    lead(State_e::Sign, Class_e::Point, State_e::Point);
    lead(State_e::Digits, Class_e::Digit, State_e::Digits);
    lead(State_e::Digits, Class_e::Point, State_e::Fraction);
    lead(State_e::Digits, Class_e::Letter, State_e::Letter);
    lead(State_e::Point, Class_e::Digit, State_e::Fraction);
    lead(State_e::Fraction, Class_e::Digit, State_e::Fraction);
    lead(State_e::Fraction, Class_e::Letter, State_e::Letter);
    lead(State_e::Letter, Class_e::Digit, State_e::Exponent);
    lead(State_e::Letter, Class_e::Sign, State_e::ExponentSign);
    lead(State_e::ExponentSign, Class_e::Digit, State_e::Exponent);
    lead(State_e::Exponent, Class_e::Digit, State_e::Exponent);
    return made;
}

constinit const TextTokens::Tables_s TextTokens::tables = TextTokens::makeTables();

bool TextTokens::isRepeatable(State_e state) {
    return state == State_e::Digits || state == State_e::Fraction || state == State_e::Exponent;
}

TokenKind_e TextTokens::kindOf(State_e state, std::string_view text) {
    if (!isRepeatable(state) || text.size() == longestText)
        return TokenKind_e::Broken;
    if (state != State_e::Digits)
        return TokenKind_e::Real;
    return passes32Bits(text) ? TokenKind_e::TooBig : TokenKind_e::Integer;
}

void TextTokens::beginRepeat() {
    if (!isRepeating_) { // of several counts the first one stands
        io::RealTokenText count;
        for (const char character : std::string_view(text_.data(), length_))
            if (!count.isFull())
                count.append(character);
        double value = 0.0;
        const bool isNumber = io::convertRealToken(count.view(), value);
        repeats_ =
            isNumber ? std::max<std::int64_t>(std::int64_t{io::furtherRepeats(value)} + 1, 1) : 1;
    }
    isRepeating_ = true;
    state_ = State_e::Between;
    length_ = 0;
}

} // namespace plot3dlib
