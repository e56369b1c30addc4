// One input of the fuzz target: how a load is told to read, and the bytes of its files. Any bytes
// are an input, so that a fuzzer may do with them as it likes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include "instructions/InstructionWords.h"

namespace quorvia::testsupport {

struct FuzzInput_s {
    std::uint8_t fileChoice = 0;    // 0: the grid alone, 1: a solution too, 2: a function file too
    std::uint8_t readingChoice = 0; // which of readingChoiceCount ways to read them
    std::string grid;
    std::string other;
};

/// Found by trial, whole or in part; and each structure and style described by hand.
constexpr int readingChoiceCount =
    4 + static_cast<int>(std::size(quorutildataio::dataStructureWords) *
                         std::size(quorutildataio::styleWords) * 2);

/// Two bytes of choices, two of the grid's length, then the files.
std::string toBytes(const FuzzInput_s& input);
FuzzInput_s fromBytes(const std::uint8_t* data, std::size_t size);

/// Loads the input through the add-on, fetches every field and discards the data set. Ends the
/// program if the add-on broke the contract with the host. Whether the load succeeded.
bool loadInput(const FuzzInput_s& input);

} // namespace quorvia::testsupport

/// The same from bytes, under the name and form that fuzzers look for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
