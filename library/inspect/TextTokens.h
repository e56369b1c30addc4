// The tokens of a text file, one after the other, by the rules of docs/format.md, without their
// values: what each is, where it stands and how many values it stands for.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace plot3dlib {

enum class TokenKind_e : std::uint8_t {
    Integer,
    Real,
    TooBig, // an integer of more than 32 bits, which wraps round
    Broken  // no number, or one of which a part would be dropped
};

struct Token_s {
    TokenKind_e kind = TokenKind_e::Broken;
    std::int64_t position = 0;   // of the first character, a repeat count included
    std::int64_t end = 0;        // behind the last character
    std::int64_t valueCount = 1; // at least 1
    std::string_view text;       // of the value, at most 41 characters; valid for the call
};

/// Takes a file's characters piece by piece, and hands out each token as it ends.
class TextTokens {
public:
    /// `taker(const Token_s&)`.
    template <typename Taker>
    void take(std::string_view piece, std::int64_t position, Taker taker) {
        for (const char character : piece) {
            step(character, position, taker);
            ++position;
        }
    }
    /// The end of the file, at this position.
    template <typename Taker>
    void finish(std::int64_t position, Taker taker) {
        if (state_ != State_e::Between)
            endToken(position, taker);
        else if (isRepeating_)
            giveToken(TokenKind_e::Broken, position, taker);
    }

private:
    enum class State_e : std::uint8_t {
        Between,
        Sign,
        Digits,
        Point, // without a digit so far
        Fraction,
        Letter,
        ExponentSign,
        Exponent,
        Broken
    };
    static constexpr std::size_t longestText = 41; // one more than a token may have

    static State_e next(State_e state, char character);
    static bool isRepeatable(State_e state);
    TokenKind_e kindOfText() const;
    void beginRepeat();

    template <typename Taker>
    void step(char character, std::int64_t position, Taker taker) {
        const bool separates = character == ' ' || character == '\n' || character == '\r' ||
                               character == '\t' || character == ',';
        if (separates) {
            if (state_ != State_e::Between)
                endToken(position, taker);
            return;
        }
        if (state_ == State_e::Between && !isRepeating_)
            start_ = position;
        if (character == '*' && isRepeatable(state_)) {
            beginRepeat();
            return;
        }
        state_ = next(state_, character);
        if (length_ < longestText)
            text_[length_++] = character;
    }

    template <typename Taker>
    void endToken(std::int64_t position, Taker taker) {
        giveToken(kindOfText(), position, taker);
    }

    template <typename Taker>
    void giveToken(TokenKind_e kind, std::int64_t position, Taker taker) {
        taker(Token_s{kind, start_, position, isRepeating_ ? repeats_ : 1,
                      std::string_view(text_.data(), length_)});
        state_ = State_e::Between;
        isRepeating_ = false;
        length_ = 0;
    }

    State_e state_ = State_e::Between;
    bool isRepeating_ = false;
    std::int64_t repeats_ = 1;
    std::int64_t start_ = 0;
    std::array<char, longestText> text_{};
    std::size_t length_ = 0;
};

} // namespace plot3dlib
