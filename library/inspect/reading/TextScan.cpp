#include "inspect/reading/TextScan.h"

#include <algorithm>
#include <limits>

#include "plot3dfile/numbers/RealToken.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t pieceLength = 128 * 1024;
constexpr std::int64_t shortPieceLength = 4096;
constexpr std::size_t mostMarks = 65536;
constexpr std::size_t mostRuns = 1'000'000;

using Buffer = std::vector<char>;

/// Hands the file from `position` on to `taker(piece, position)` until that gives false.
template <typename Taker>
std::int64_t readPieces(ExaminedFile& file, std::int64_t position, std::int64_t length,
                        Taker taker) {
    Buffer buffer(static_cast<std::size_t>(length));
    while (true) {
        const std::int64_t got = file.readAt(position, buffer.data(), length);
        if (got <= 0)
            return position;
        if (!taker(std::string_view(buffer.data(), static_cast<std::size_t>(got)), position))
            return position;
        position += got;
    }
}

std::optional<double> valueOf(const Token_s& token) {
    io::RealTokenText text;
    for (const char character : token.text)
        if (!text.isFull())
            text.append(character);
    double value = 0.0;
    if (token.kind == TokenKind_e::Broken || !io::convertRealToken(text.view(), value))
        return std::nullopt;
    return value;
}

} // namespace

TextScan::TextScan(ExaminedFile& file) : file_(file) {
    TextTokens tokens;
    const auto taker = [this](const Token_s& token) { note(token); };
    const std::int64_t end =
        readPieces(file, 0, pieceLength, [&](std::string_view piece, std::int64_t position) {
            tokens.take(piece, position, taker);
            return true;
        });
    tokens.finish(end, taker);
}

void TextScan::note(const Token_s& token) {
    noteMark(token.position);
    const bool isFaulty = token.kind == TokenKind_e::Broken || token.kind == TokenKind_e::TooBig;
    const auto isSameKind = [&](const FaultyToken_s& fault) { return fault.kind == token.kind; };
    if (isFaulty && std::none_of(faults_.begin(), faults_.end(), isSameKind))
        faults_.push_back({token.kind, std::string(token.text), token.position, valueCount_});
    if (token.kind == TokenKind_e::Integer)
        noteInteger(token.valueCount);
    if (__builtin_add_overflow(valueCount_, token.valueCount, &valueCount_))
        valueCount_ = std::numeric_limits<std::int64_t>::max();
}

void TextScan::noteMark(std::int64_t position) {
    if (!marks_.empty() && valueCount_ - marks_.back().valueIndex < markStride_)
        return;
    marks_.push_back({valueCount_, position});
    if (marks_.size() < mostMarks)
        return;
    std::size_t kept = 0;
    for (std::size_t index = 0; index < marks_.size(); index += 2)
        marks_[kept++] = marks_[index];
    marks_.resize(kept);
    markStride_ *= 2;
}

void TextScan::noteInteger(std::int64_t count) {
    if (hasTooManyRuns_)
        return;
    if (!integerRuns_.empty() &&
        integerRuns_.back().first + integerRuns_.back().count == valueCount_)
        integerRuns_.back().count += count;
    else if (integerRuns_.size() < mostRuns)
        integerRuns_.push_back({valueCount_, count});
    else
        hasTooManyRuns_ = true;
}

bool TextScan::areIntegers(std::int64_t firstIndex, std::int64_t count) const {
    const auto behind =
        std::upper_bound(integerRuns_.begin(), integerRuns_.end(), firstIndex,
                         [](std::int64_t index, const Run_s& run) { return index < run.first; });
    const bool isInside =
        behind != integerRuns_.begin() && firstIndex + count <= behind[-1].first + behind[-1].count;
    return isInside || hasTooManyRuns_;
}

std::optional<TextScan::Found_s> TextScan::find(std::int64_t index) {
    if (index < 0 || index >= valueCount_)
        return std::nullopt;
    const auto behind = std::upper_bound(
        marks_.begin(), marks_.end(), index,
        [](std::int64_t wanted, const Mark_s& m) { return wanted < m.valueIndex; });
    const Mark_s mark = behind[-1]; // the first one is that of value 0
    std::int64_t ahead = mark.valueIndex;
    std::optional<Found_s> found;
    TextTokens tokens;
    const auto taker = [&](const Token_s& token) {
        if (found)
            return;
        if (index < ahead + token.valueCount)
            found = Found_s{token.position, valueOf(token)};
        ahead += token.valueCount;
    };
    const std::int64_t end = readPieces(file_, mark.position, shortPieceLength,
                                        [&](std::string_view piece, std::int64_t position) {
                                            tokens.take(piece, position, taker);
                                            return !found.has_value();
                                        });
    if (!found)
        tokens.finish(end, taker);
    return found;
}

std::optional<double> TextScan::valueAt(std::int64_t index) {
    const std::optional<Found_s> found = find(index);
    return found ? found->value : std::nullopt;
}

std::int64_t TextScan::positionOf(std::int64_t index) {
    const std::optional<Found_s> found = find(index);
    return found ? found->position : file_.size();
}

LineAndColumn_s TextScan::lineOf(std::int64_t wanted) {
    LineAndColumn_s place;
    std::int64_t lineStart = 0;
    readPieces(file_, 0, pieceLength, [&](std::string_view piece, std::int64_t position) {
        const auto length = static_cast<std::size_t>(std::max<std::int64_t>(wanted - position, 0));
        piece = piece.substr(0, length);
        place.line += std::count(piece.begin(), piece.end(), '\n');
        if (const auto last = piece.rfind('\n'); last != std::string_view::npos)
            lineStart = position + static_cast<std::int64_t>(last) + 1;
        return position + static_cast<std::int64_t>(piece.size()) < wanted;
    });
    place.column = wanted - lineStart + 1;
    return place;
}

} // namespace plot3dlib
