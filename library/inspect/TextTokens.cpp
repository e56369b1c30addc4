#include "inspect/TextTokens.h"

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

TextTokens::State_e TextTokens::next(State_e state, char character) {
    const bool isDigit = io::isDigit(character);
    const bool isLetter = io::isExponentLetter(character);
    const bool isSign = character == '+' || character == '-';
    switch (state) {
    case State_e::Between:
        return isDigit            ? State_e::Digits
               : isSign           ? State_e::Sign
               : character == '.' ? State_e::Point
                                  : State_e::Broken;
    case State_e::Sign:
        return isDigit ? State_e::Digits : character == '.' ? State_e::Point : State_e::Broken;
    case State_e::Digits:
        return isDigit            ? State_e::Digits
               : character == '.' ? State_e::Fraction
               : isLetter         ? State_e::Letter
                                  : State_e::Broken;
    case State_e::Point:
        return isDigit ? State_e::Fraction : State_e::Broken;
    case State_e::Fraction:
        return isDigit ? State_e::Fraction : isLetter ? State_e::Letter : State_e::Broken;
    case State_e::Letter:
        return isDigit ? State_e::Exponent : isSign ? State_e::ExponentSign : State_e::Broken;
    case State_e::ExponentSign:
    case State_e::Exponent:
        return isDigit ? State_e::Exponent : State_e::Broken;
    case State_e::Broken:
        break;
    }
    return State_e::Broken;
}

bool TextTokens::isRepeatable(State_e state) {
    return state == State_e::Digits || state == State_e::Fraction || state == State_e::Exponent;
}

TokenKind_e TextTokens::kindOfText() const {
    const std::string_view text(text_.data(), length_);
    if (!isRepeatable(state_) || text.size() == longestText)
        return TokenKind_e::Broken;
    if (state_ != State_e::Digits)
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
