// What one pass over a text file tells: how many values it holds, where each stands, which are
// spelled as integers, and which tokens are no numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "inspect/reading/ExaminedFile.h"
#include "inspect/reading/TextTokens.h"

namespace plot3dlib {

/// A token that no reader should take as it stands.
struct FaultyToken_s {
    TokenKind_e kind = TokenKind_e::Broken;
    std::string text;
    std::int64_t position = 0;   // in bytes
    std::int64_t valueIndex = 0; // values ahead of it, the header's included
};

struct LineAndColumn_s {
    std::int64_t line = 1;
    std::int64_t column = 1;
};

class TextScan {
public:
    /// Reads the file once. Broken tokens count as one value each.
    explicit TextScan(ExaminedFile& file);

    /// Values of the file; repeated ones count one by one.
    std::int64_t valueCount() const { return valueCount_; }
    /// The first faulty token of each kind, in file order.
    const std::vector<FaultyToken_s>& faults() const { return faults_; }
    /// Whether these values are spelled as integers; true if that is not known any more.
    bool areIntegers(std::int64_t firstIndex, std::int64_t count) const;

    /// The value with this index from 0, read anew; empty if there is none, or if it is broken.
    std::optional<double> valueAt(std::int64_t index);
    /// Where the token of that value begins; the file's end if there is none.
    std::int64_t positionOf(std::int64_t index);
    /// Reads the file up to there once more.
    LineAndColumn_s lineOf(std::int64_t position);

private:
    struct Mark_s {
        std::int64_t valueIndex;
        std::int64_t position;
    };
    struct Run_s {
        std::int64_t first;
        std::int64_t count;
    };
    struct Found_s {
        std::int64_t position = 0;
        std::optional<double> value;
    };

    void note(const Token_s& token);
    void noteMark(std::int64_t position);
    void noteInteger(std::int64_t count);
    std::optional<Found_s> find(std::int64_t index);

    ExaminedFile& file_;
    std::int64_t valueCount_ = 0;
    std::vector<FaultyToken_s> faults_;
    std::vector<Mark_s> marks_; // thinned out as they grow in number
    std::int64_t markStride_ = 64;
    std::vector<Run_s> integerRuns_;
    bool hasTooManyRuns_ = false;
};

} // namespace plot3dlib
