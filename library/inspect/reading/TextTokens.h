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
        const char* const begin = piece.data();
        const char* const end = begin + piece.size();
        for (const char* next = begin; next < end;) {
            if (isBetweenTokens())
                next = takeWholeTokens(next, end, position + (next - begin), taker);
            if (next < end) {
                step(*next, position + (next - begin), taker);
                ++next;
            }
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
    enum class Class_e : std::uint8_t { Separator, Digit, Sign, Point, Letter, Star, Other };
    static constexpr std::size_t longestText = 41; // one more than a token may have

    struct Tables_s {
        std::array<Class_e, 256> classes{};
        std::array<std::array<State_e, 7>, 9> next{};
    };
    static constexpr Tables_s makeTables();
    static const Tables_s tables;

    static Class_e classOf(char character) {
        return tables.classes[static_cast<unsigned char>(character)];
    }
    static State_e next(State_e state, Class_e character) {
        return tables.next[static_cast<std::size_t>(state)][static_cast<std::size_t>(character)];
    }
    static bool isRepeatable(State_e state);
    static TokenKind_e kindOf(State_e state, std::string_view text);
    void beginRepeat();

    bool isBetweenTokens() const { return state_ == State_e::Between && !isRepeating_; }

    /// Gives where a token begins that has a repeat count or goes on behind the end.
    template <typename Taker>
    const char* takeWholeTokens(const char* begin, const char* end, std::int64_t position,
                                Taker taker) {
        const char* token = begin;
        while (true) {
            while (token < end && classOf(*token) == Class_e::Separator)
                ++token;
            State_e state = State_e::Between;
            const char* behind = token;
            Class_e character = Class_e::Other;
            for (; behind < end; ++behind) {
                character = classOf(*behind);
                if (character == Class_e::Separator || character == Class_e::Star)
                    break;
                state = next(state, character);
            }
            if (behind == end || character == Class_e::Star)
                return token;
            const auto length = static_cast<std::size_t>(behind - token);
            const std::string_view text(token, length < longestText ? length : longestText);
            taker(Token_s{kindOf(state, text), position + (token - begin),
                          position + (behind - begin), 1, text});
            token = behind;
        }
    }

    template <typename Taker>
    void step(char character, std::int64_t position, Taker taker) {
        const Class_e kind = classOf(character);
        if (kind == Class_e::Separator) {
            if (state_ != State_e::Between)
                endToken(position, taker);
            return;
        }
        if (state_ == State_e::Between && !isRepeating_)
            start_ = position;
        if (kind == Class_e::Star && isRepeatable(state_)) {
            beginRepeat();
            return;
        }
        state_ = next(state_, kind);
        if (length_ < longestText)
            text_[length_++] = character;
    }

    template <typename Taker>
    void endToken(std::int64_t position, Taker taker) {
        giveToken(kindOf(state_, std::string_view(text_.data(), length_)), position, taker);
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
