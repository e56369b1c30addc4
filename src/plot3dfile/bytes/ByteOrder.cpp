#include "plot3dfile/bytes/ByteOrder.h"

#include <algorithm>
#include <cstring>

namespace quorvia::quorutildataio {

namespace {

std::uint16_t reversed(std::uint16_t word) {
    return __builtin_bswap16(word);
}

std::uint32_t reversed(std::uint32_t word) {
    return __builtin_bswap32(word);
}

std::uint64_t reversed(std::uint64_t word) {
    return __builtin_bswap64(word);
}

template <typename Word>
void reverseWord(char* bytes) {
    Word word;
    std::memcpy(&word, bytes, sizeof(Word));
    word = reversed(word);
    std::memcpy(bytes, &word, sizeof(Word));
}

template <typename Word>
void reverseWords(char* bytes, std::int64_t wordCount) {
    for (std::int64_t index = 0; index < wordCount; ++index)
        reverseWord<Word>(bytes + index * static_cast<std::int64_t>(sizeof(Word)));
}

using Lanes [[gnu::vector_size(16)]] = std::uint8_t;
constexpr std::int64_t laneBytes = sizeof(Lanes);

#if defined(__x86_64__)
// The x86-64 baseline reverses one register at a time, which costs more than reading the bytes from
// the page cache. Nearly every processor in use can reorder 16 bytes with one instruction.
bool canShuffle() {
    return __builtin_cpu_supports("ssse3") != 0;
}

template <typename Word>
[[gnu::target("ssse3")]] void shuffleLanes(char* bytes, std::int64_t laneCount) {
    for (std::int64_t index = 0; index < laneCount; ++index) {
        Lanes lanes;
        std::memcpy(&lanes, bytes + index * laneBytes, sizeof(Lanes));
        if constexpr (sizeof(Word) == 4)
            lanes = __builtin_shufflevector(lanes, lanes, 3, 2, 1, 0, 7, 6, 5, 4, 11, 10, 9, 8, 15,
                                            14, 13, 12);
        else
            lanes = __builtin_shufflevector(lanes, lanes, 7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12,
                                            11, 10, 9, 8);
        std::memcpy(bytes + index * laneBytes, &lanes, sizeof(Lanes));
    }
}
#else
bool canShuffle() {
    return false;
}

template <typename Word>
void shuffleLanes(char*, std::int64_t) {}
#endif

template <typename Word>
void reverseBlock(char* bytes, std::int64_t wordCount) {
    constexpr std::int64_t width = sizeof(Word);
    const std::int64_t laneCount = canShuffle() ? wordCount * width / laneBytes : 0;
    shuffleLanes<Word>(bytes, laneCount);
    const std::int64_t shuffledBytes = laneCount * laneBytes;
    reverseWords<Word>(bytes + shuffledBytes, wordCount - shuffledBytes / width);
}

} // namespace

void reverseBytes(void* value, std::int64_t width) {
    char* bytes = static_cast<char*>(value);
    switch (width) {
    case 2:
        return reverseWord<std::uint16_t>(bytes);
    case 4:
        return reverseWord<std::uint32_t>(bytes);
    case 8:
        return reverseWord<std::uint64_t>(bytes);
    default:
        std::reverse(bytes, bytes + width);
    }
}

void reverseEach(void* values, std::int64_t width, std::int64_t valueCount) {
    char* bytes = static_cast<char*>(values);
    switch (width) {
    case 4:
        return reverseBlock<std::uint32_t>(bytes, valueCount);
    case 8:
        return reverseBlock<std::uint64_t>(bytes, valueCount);
    default:
        for (std::int64_t index = 0; index < valueCount; ++index)
            reverseBytes(bytes + index * width, width);
    }
}

} // namespace quorvia::quorutildataio
