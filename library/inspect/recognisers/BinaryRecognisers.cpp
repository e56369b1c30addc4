// Plain binary files that fit nothing.
#include <array>
#include <bit>

#include "inspect/evidence/HeaderGuess.h"
#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

/// No real, which is a greater integer unless it is tiny.
bool isSize(std::int32_t word) {
    return word > 0 && word < 100'000'000;
}

FoundProblem recogniseLongIntegers(Evidence_s& evidence) {
    for (const bool byteSwap : {false, true}) {
        const std::size_t high = byteSwap == (std::endian::native == std::endian::little) ? 0 : 1;
        std::array<std::int32_t, 4> words{};
        bool isRead = true;
        for (std::size_t index = 0; index < words.size(); ++index) {
            const auto word =
                integerAt(evidence.file, static_cast<std::int64_t>(index) * 4, byteSwap);
            isRead = isRead && word.has_value();
            words[index] = word.value_or(0);
        }
        const std::size_t low = 1 - high;
        if (isRead && words[high] == 0 && words[high + 2] == 0 && isSize(words[low]) &&
            isSize(words[low + 2]))
            return problemOf(
                "The file seems to be written with integers of 8 bytes, which are not "
                "read.",
                "integers of 4 bytes",
                grouped(words[low]) + ", " + grouped(words[low + 2]) + " in 8 bytes each",
                {"od", "-A", "d", "-t", "d8", high == 0 ? "--endian=big" : "--endian=little", "-N",
                 "24", evidence.file.name()});
    }
    return std::nullopt;
}

constexpr std::array<Recogniser, 1> binaryTable = {recogniseLongIntegers};

} // namespace

std::span<const Recogniser> binaryRecognisers() {
    return binaryTable;
}

} // namespace plot3dlib
