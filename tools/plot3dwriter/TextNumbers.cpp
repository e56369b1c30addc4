#include "plot3dwriter/TextNumbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace quorvia::plot3dwriter {

namespace {

/// A repeat count is read as a real of its own, and must stay exact in 32 bits.
constexpr std::int32_t largestRepeatCount = 1000000;

template <class Real>
std::string formatReal(Real value, const TextOptions_s& options) {
    std::array<char, 64> buffer;
    char* const first = buffer.data();
    char* const last = first + buffer.size();
    const auto format =
        options.fortranExponents ? std::chars_format::scientific : std::chars_format::general;
    // Scientific form counts the digits behind the point, general form all of them.
    const int digits = options.significantDigits - (options.fortranExponents ? 1 : 0);
    std::to_chars_result result{};
    if (options.significantDigits > 0)
        result = std::to_chars(first, last, value, format, digits);
    else if (options.fortranExponents)
        result = std::to_chars(first, last, value, format);
    else
        result = std::to_chars(first, last, value);
    return std::string(first, result.ptr);
}

} // namespace

std::string realToken(double value, Precision_e precision, const TextOptions_s& options) {
    const bool isDouble = precision == Precision_e::Double;
    const float narrowed = static_cast<float>(value);
    if (!std::isfinite(isDouble ? value : static_cast<double>(narrowed)))
        throw WriteFault("a value that is not finite has no form in text");
    std::string token = isDouble ? formatReal(value, options) : formatReal(narrowed, options);
    if (token.find_first_of(".e") == std::string::npos)
        token += '.';
    if (options.fortranExponents)
        token[token.find('e')] = 'D';
    return token;
}

void TextNumbers::beginRun(Run_e run) {
    run_ = run;
}

void TextNumbers::endRun() {
    flushRepeated();
    if (tokensOnLine_ > 0)
        endLine();
}

void TextNumbers::putInteger(std::int32_t value) {
    putToken(std::to_string(value));
}

void TextNumbers::putReal(double value) {
    putToken(realToken(value, form_.precision, form_.text));
}

void TextNumbers::putToken(std::string token) {
    if (!form_.text.repeatCounts || run_ == Run_e::OneLine) {
        writeToken(token);
        return;
    }
    if (token == repeated_ && repeats_ < largestRepeatCount) {
        ++repeats_;
        return;
    }
    flushRepeated();
    repeated_ = std::move(token);
    repeats_ = 1;
}

void TextNumbers::flushRepeated() {
    if (repeats_ == 1)
        writeToken(repeated_);
    else if (repeats_ > 1)
        writeToken(std::to_string(repeats_) + '*' + repeated_);
    repeated_.clear();
    repeats_ = 0;
}

void TextNumbers::writeToken(std::string_view token) {
    if (run_ == Run_e::Block && tokensOnLine_ == form_.text.tokensPerLine)
        endLine();
    if (tokensOnLine_ > 0)
        sink_.write(form_.text.commas ? ", " : " ");
    sink_.write(token);
    ++tokensOnLine_;
}

void TextNumbers::endLine() {
    sink_.write(form_.text.carriageReturns ? "\r\n" : "\n");
    tokensOnLine_ = 0;
}

} // namespace quorvia::plot3dwriter
