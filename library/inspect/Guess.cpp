#include "inspect/Guess.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "inspect/TextAccount.h"
#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t sampleBytes = 512;
constexpr std::int64_t longestHeader = 1024 * 1024;

struct Guess_s {
    Reading_s reading;
    Account_s account;
    bool looksReal = false;
    std::int64_t difference = 0; // bytes
};

/// Magnitudes that no solver writes, but that integers and halves of reals have.
template <typename Real>
bool isLikely(Real value) {
    const double magnitude = std::fabs(static_cast<double>(value));
    return magnitude == 0.0 || (magnitude > 1e-20 && magnitude < 1e20);
}

template <typename Real>
bool areLikely(const std::vector<char>& bytes, bool byteSwap) {
    std::vector<Real> values(bytes.size() / sizeof(Real));
    std::copy_n(bytes.begin(), values.size() * sizeof(Real),
                reinterpret_cast<char*>(values.data()));
    if (byteSwap)
        io::reverseEach(values.data(), sizeof(Real), std::ssize(values));
    return std::all_of(values.begin(), values.end(), isLikely<Real>);
}

/// Whether what stands at the beginning of the data can be reals of this width.
bool beginsWithReals(ExaminedFile& file, const Reading_s& reading) {
    const std::int64_t start = io::integerWidth * headerValues(reading);
    const std::int64_t present = std::clamp<std::int64_t>(file.size() - start, 0, sampleBytes);
    const GridBlocks_s blocks = blocksOf(reading, 0);
    const std::int64_t reals =
        scalarSize(blocks, byteWidths(reading)) + planeSize(blocks, byteWidths(reading));
    std::vector<char> bytes(static_cast<std::size_t>(std::min(present, reals)));
    if (file.readAt(start, bytes.data(), std::ssize(bytes)) != std::ssize(bytes))
        return false;
    return reading.isDoublePrecision ? areLikely<double>(bytes, reading.byteSwap)
                                     : areLikely<float>(bytes, reading.byteSwap);
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
    const bool anyLooksReal =
        std::any_of(guesses.begin(), guesses.end(), [](const auto& g) { return g.looksReal; });
    std::erase_if(guesses, [&](const auto& g) { return anyLooksReal && !g.looksReal; });
    const auto nearest = std::min_element(guesses.begin(), guesses.end(), [](auto& a, auto& b) {
        return a.difference < b.difference;
    });
    const std::int64_t tolerance = nearest->difference + nearest->difference / 4 + 64;
    return *std::find_if(guesses.begin(), guesses.end(),
                         [&](const auto& g) { return g.difference <= tolerance; });
}

void guessBinary(Evidence_s& evidence) {
    std::vector<Guess_s> guesses;
    for (Reading_s& reading : readingsAtAnySize(evidence, evidence.form)) {
        Guess_s guess{std::move(reading), {}, false, 0};
        guess.account = accountOf(evidence.file, guess.reading);
        guess.difference = guess.account.bytes.missing + guess.account.bytes.surplus;
        guess.looksReal = beginsWithReals(evidence.file, guess.reading);
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
    take(evidence, {std::move(readings.front()), std::move(account), true, 0});
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
            take(evidence, {std::move(readings.front()), std::move(account), true, 0});
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
