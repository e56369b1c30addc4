#include "inspect/evidence/Guess.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "inspect/evidence/HeaderGuess.h"
#include "inspect/reading/Search.h"
#include "inspect/reading/TextAccount.h"
#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t sampleBytes = 512;
constexpr std::int64_t realsAheadOfInteger = 7; // among the scalars of Overflow
constexpr std::int64_t largestScalar = 8;       // bytes
constexpr std::int64_t fewIntegers = 8;
constexpr std::int32_t largestIBlank = 10'000;

struct Guess_s {
    Reading_s reading;
    Account_s account;
    int evidence = 0;            // what its bytes look like: the more, the likelier
    std::int64_t difference = 0; // bytes
};

/// Of magnitudes that solvers write; integers and halves of reals have others.
template <typename Real>
bool isLikely(Real value) {
    const double magnitude = std::fabs(static_cast<double>(value));
    return magnitude == 0.0 || (magnitude > 1e-20 && magnitude < 1e20);
}

/// The first numbers of the data, in both widths.
struct Sample_s {
    std::vector<float> narrow;
    std::vector<double> wide;
};

template <typename Real>
std::vector<Real> realsOf(const std::vector<char>& bytes, bool byteSwap) {
    std::vector<Real> reals(bytes.size() / sizeof(Real));
    if (reals.empty())
        return reals; // no memory, not even for no bytes, is there for memcpy
    std::memcpy(reals.data(), bytes.data(), reals.size() * sizeof(Real));
    if (byteSwap)
        io::reverseEach(reals.data(), sizeof(Real), std::ssize(reals));
    return reals;
}

/// Whether the lower halves of 64-bit reals would all be 0, as of few digits.
bool haveEmptyLowerHalves(const Sample_s& sample) {
    return std::all_of(sample.wide.begin(), sample.wide.end(), [](double value) {
        return (std::bit_cast<std::uint64_t>(value) & 0xffffffffU) == 0;
    });
}

/// Two 32-bit reals are a likely 64-bit one, but the lower half of a 64-bit real is no likely
/// number.
bool areReals(const Sample_s& sample, bool isDouble) {
    const bool areNarrow = std::all_of(sample.narrow.begin(), sample.narrow.end(), isLikely<float>);
    if (!isDouble)
        return areNarrow && !(sample.wide.size() > 1 && haveEmptyLowerHalves(sample));
    return std::all_of(sample.wide.begin(), sample.wide.end(), isLikely<double>) &&
           (!areNarrow || haveEmptyLowerHalves(sample));
}

/// Reals at the beginning of the data.
std::int64_t firstReals(const Reading_s& reading) {
    const GridBlocks_s blocks = blocksOf(reading, 0);
    if (byteWidths(reading).overflowSaving > 0 || blocks.scalars > realsAheadOfInteger)
        return realsAheadOfInteger;
    const std::int64_t values = std::max<std::int64_t>(blocks.planePoints, 1);
    return blocks.scalars +
           std::max<std::int64_t>(blocks.variables, 1) * std::min(values, sampleBytes);
}

/// Whether what stands at the beginning of the data can be reals of this width.
bool beginsWithReals(ExaminedFile& file, const Reading_s& reading) {
    const std::int64_t start = io::integerWidth * headerValues(reading);
    const std::int64_t present = std::clamp<std::int64_t>(file.size() - start, 0, sampleBytes);
    const std::int64_t reals = std::min(firstReals(reading), sampleBytes);
    std::vector<char> bytes(
        static_cast<std::size_t>(std::min(present, reals * io::realWidth(reading))));
    if (file.readAt(start, bytes.data(), std::ssize(bytes)) != std::ssize(bytes))
        return false;
    return areReals(
        {realsOf<float>(bytes, reading.byteSwap), realsOf<double>(bytes, reading.byteSwap)},
        reading.isDoublePrecision);
}

/// Whether small integers stand where the first grid's I-blank begins. Zeros alone could be reals.
bool holdsIBlank(ExaminedFile& file, const Reading_s& reading) {
    if (!reading.hasIBlank)
        return false;
    const GridBlocks_s blocks = blocksOf(reading, 0);
    const std::int64_t start = io::integerWidth * headerValues(reading) +
                               blocks.variables * io::realWidth(reading) * blocks.planePoints;
    const std::int64_t count = std::min(blocks.planePoints, fewIntegers);
    bool areZeros = true;
    for (std::int64_t index = 0; index < count; ++index) {
        const auto value = integerAt(file, start + index * io::integerWidth, reading.byteSwap);
        if (!value || *value < -largestIBlank || *value > largestIBlank)
            return false;
        areZeros = areZeros && *value == 0;
    }
    return !areZeros;
}

std::vector<Kinds_e> kindsOf(const Evidence_s& evidence) {
    if (!evidence.expectedKind)
        return {Kinds_e::Grid, Kinds_e::SolutionOrFunction};
    return {evidence.expectedKind == plot3d::FileKind::Grid ? Kinds_e::Grid
                                                            : Kinds_e::SolutionOrFunction};
}

std::vector<Reading_s> readingsAtAnySize(Evidence_s& evidence, const io::Plot3DRecordForm_s& form) {
    std::vector<Reading_s> readings;
    for (const Kinds_e kinds : kindsOf(evidence))
        for (Reading_s& reading : searchAtAnySize(evidence.file, form, kinds))
            if (!reading.grids.empty())
                readings.push_back(std::move(reading));
    return readings;
}

void take(Evidence_s& evidence, Guess_s guess) {
    evidence.reading = std::move(guess.reading);
    evidence.account = std::move(guess.account);
    evidence.isGuessed = true;
}

/// The first of those that come about as near as the nearest.
std::optional<Guess_s> best(std::vector<Guess_s> guesses) {
    if (guesses.empty())
        return std::nullopt;
    const auto strongest = std::max_element(
        guesses.begin(), guesses.end(), [](auto& a, auto& b) { return a.evidence < b.evidence; });
    std::erase_if(guesses,
                  [most = strongest->evidence](const auto& g) { return g.evidence < most; });
    const auto nearest = std::min_element(guesses.begin(), guesses.end(), [](auto& a, auto& b) {
        return a.difference < b.difference;
    });
    // Styles differ by a scalar for each grid.
    const std::int64_t tolerance =
        nearest->difference + largestScalar * std::ssize(nearest->reading.grids);
    return *std::find_if(guesses.begin(), guesses.end(),
                         [&](const auto& g) { return g.difference <= tolerance; });
}

void guessBinary(Evidence_s& evidence) {
    std::vector<Guess_s> guesses;
    for (Reading_s& reading : readingsAtAnySize(evidence, evidence.form)) {
        Guess_s guess{std::move(reading), {}, 0, 0};
        guess.account = accountOf(evidence.file, guess.reading);
        guess.difference = guess.account.bytes.missing + guess.account.bytes.surplus;
        guess.evidence = (beginsWithReals(evidence.file, guess.reading) ? 2 : 0) +
                         (holdsIBlank(evidence.file, guess.reading) ? 1 : 0);
        guesses.push_back(std::move(guess));
    }
    if (auto guess = best(std::move(guesses)))
        take(evidence, std::move(*guess));
}

/// Whether the file's first record, of a header that is not too long, ends as it begins.
bool beginsWithRecord(ExaminedFile& file, const io::Plot3DRecordForm_s& form) {
    io::Plot3DFile_s record;
    static_cast<io::Plot3DRecordForm_s&>(record) = form;
    record.stream = file.stream();
    io::rewindPlot3DFile(record);
    std::int64_t length = 0;
    std::int64_t trailing = -1;
    return io::readRecordMarker(record, length) && length >= io::integerWidth &&
           length <= longestHeader && record.stream->skip(length) &&
           io::readRecordMarker(record, trailing) && trailing == length;
}

void guessText(Evidence_s& evidence) {
    std::vector<Reading_s> readings = readingsAtAnySize(evidence, evidence.form);
    if (readings.empty())
        return;
    Account_s account = accountOfText(evidence.file, *evidence.text, readings.front());
    take(evidence, {std::move(readings.front()), std::move(account), 0, 0});
}

} // namespace

bool guessCutRecords(Evidence_s& evidence) {
    if (evidence.form.encoding != io::Plot3DEncoding_Binary)
        return false;
    for (const std::uint32_t markerSize : {4U, 8U})
        for (const bool byteSwap : {false, true}) {
            io::Plot3DRecordForm_s form;
            form.encoding = io::Plot3DEncoding_FortranUnformatted;
            form.markerSize = markerSize;
            form.byteSwap = byteSwap;
            if (!beginsWithRecord(evidence.file, form))
                continue;
            std::vector<Reading_s> readings = readingsAtAnySize(evidence, form);
            if (readings.empty())
                continue;
            evidence.form = form;
            Account_s account = accountOf(evidence.file, readings.front());
            take(evidence, {std::move(readings.front()), std::move(account), 0, 0});
            return true;
        }
    return false;
}

void guessReading(Evidence_s& evidence) {
    switch (evidence.form.encoding) {
    case io::Plot3DEncoding_Ascii:
        guessText(evidence);
        return;
    case io::Plot3DEncoding_Binary:
        guessBinary(evidence);
        return;
    case io::Plot3DEncoding_FortranUnformatted:
    case io::Plot3DEncoding_Unknown:
        break;
    }
}

} // namespace plot3dlib
