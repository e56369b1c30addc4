// The tokens of a text: what each is, and that the pieces in which it comes do not matter.
#include "inspect/reading/TextTokens.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace plot3dlib {
namespace {

std::string kindName(TokenKind_e kind) {
    switch (kind) {
    case TokenKind_e::Integer:
        return "integer";
    case TokenKind_e::Real:
        return "real";
    case TokenKind_e::TooBig:
        return "too big";
    case TokenKind_e::Broken:
        break;
    }
    return "broken";
}

/// Each token as "kind text x count at begin-end".
std::vector<std::string> tokensOf(const std::vector<std::string>& pieces) {
    std::vector<std::string> found;
    TextTokens tokens;
    std::int64_t position = 0;
    const auto taker = [&](const Token_s& token) {
        found.push_back(kindName(token.kind) + " " + std::string(token.text) + " x " +
                        std::to_string(token.valueCount) + " at " + std::to_string(token.position) +
                        "-" + std::to_string(token.end));
    };
    for (const std::string& piece : pieces) {
        tokens.take(piece, position, taker);
        position += std::ssize(piece);
    }
    tokens.finish(position, taker);
    return found;
}

std::string kindOf(const std::string& text) {
    const std::vector<std::string> tokens = tokensOf({text});
    return tokens.size() == 1 ? tokens[0].substr(0, tokens[0].find(' ' + text.substr(0, 40)))
                              : "several";
}

TEST(TextTokens, TellsNumbers) {
    for (const char* integer :
         {"5", "-5", "+5", "0", "-0", "2147483647", "-2147483648", "0000000000007"})
        EXPECT_EQ(kindOf(integer), "integer") << integer;
    for (const char* real :
         {"5.", ".5", "-.5", "1e3", "1D3", "1.5D+03", "1.d-3", "3000000000.", "+1.5"})
        EXPECT_EQ(kindOf(real), "real") << real;
}

TEST(TextTokens, TellsWhatIsNoNumber) {
    for (const char* broken : {"0.57-104", "1-2", "****", "nan", "inf", ".", "-", "+-5.", "1.5x",
                               "1e", "1e+", "1.2.3", "1234567890.1234567890123456789012345678901"})
        EXPECT_EQ(kindOf(broken), "broken") << broken;
    for (const char* tooBig : {"2147483648", "3000000000", "-2147483649", "12345678901"})
        EXPECT_EQ(kindOf(tooBig), "too big") << tooBig;
}

TEST(TextTokens, CountsRepeats) {
    EXPECT_EQ(tokensOf({"3*7 2.999*0.5, 2*3*7\n0*5 3* 7"}),
              (std::vector<std::string>{"integer 7 x 3 at 0-3", "real 0.5 x 3 at 4-13",
                                        "integer 7 x 2 at 15-20", "integer 5 x 1 at 21-24",
                                        "integer 7 x 3 at 25-29"}));
    EXPECT_EQ(tokensOf({"3*"}), std::vector<std::string>{"broken  x 3 at 0-2"});
}

TEST(TextTokens, AreTheSameInAnyPieces) {
    const std::string text = "2 3,5\r\n 1.5D+03\t3*0.25 -7 x.y 2* 4 3000000000 *** 0.57-104\n.5";
    const std::vector<std::string> whole = tokensOf({text});
    EXPECT_EQ(whole.size(), 12U);
    for (std::size_t first = 0; first <= text.size(); ++first)
        for (std::size_t second = first; second <= text.size(); ++second)
            EXPECT_EQ(tokensOf({text.substr(0, first), text.substr(first, second - first),
                                text.substr(second)}),
                      whole)
                << first << ", " << second;
}

} // namespace
} // namespace plot3dlib
