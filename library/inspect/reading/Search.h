// The search for a file's structure, as a load makes it, with each trial noted; and what comes near
// where nothing fits.
#pragma once

#include <cstdint>
#include <vector>

#include "inspect/reading/ExaminedFile.h"
#include "inspect/reading/Reading.h"

namespace plot3dlib {

/// Bytes that a file's counts and sizes hardly ever take.
inline constexpr std::int64_t longestHeader = std::int64_t{1} << 20;

struct TrialNote_s {
    io::Plot3DFileStructure_s structure; // as it was tried, without its segments
    io::Plot3DMisfit_s misfit;
    bool fits = false;
};

struct Search_s {
    std::vector<TrialNote_s> trials;
    std::vector<Reading_s> readings; // those that fit, in their order; a load takes the first
};

enum class Kinds_e : std::uint8_t { Grid, SolutionOrFunction };

struct SearchRange_s {
    Kinds_e kinds = Kinds_e::Grid;
    bool goesOn = false;      // behind the first reading that fits
    bool notesTrials = false; // otherwise only what fits is given
};

/// How the file stores its numbers, as a load finds out. Unknown: a read failed.
io::Plot3DRecordForm_s sniff(ExaminedFile& file);

/// Tries all readings of the file, of text those without I-blank.
Search_s searchFile(ExaminedFile& file, const io::Plot3DRecordForm_s& form,
                    const SearchRange_s& range);

/// Readings whose header is a good one if the file were as long as it should be, in the order of
/// trials: of plain binary those that have a size at all, of the others those that fit. `size` is
/// meaningless in them. `form` may be another one than what the file looks like.
std::vector<Reading_s> searchAtAnySize(ExaminedFile& file, const io::Plot3DRecordForm_s& form,
                                       Kinds_e kinds);

} // namespace plot3dlib
