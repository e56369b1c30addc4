#include "inspect/reading/Account.h"

#include <algorithm>

#include "inspect/reading/Saturation.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t numberWidthInHeader = 4;
constexpr std::int64_t longestSegment = -io::fullSegmentMarker;

bool hasSpecies(const Reading_s& reading) {
    return io::styleRulesOf(reading).hasSpecies;
}

// ---- Plain binary

/// What a load wants behind the header beside the blocks themselves: see docs/format.md.
std::int64_t padding(const Reading_s& reading) {
    if (!hasSpecies(reading))
        return 0;
    const std::int64_t saving = byteWidths(reading).overflowSaving * std::ssize(reading.grids);
    return 2 * io::realWidth(reading) + saving;
}

void noteScalarPositions(const Reading_s& reading, std::int64_t header, Account_s& account) {
    if (reading.numScalars < 1)
        return;
    std::int64_t position = header;
    for (std::size_t grid = 0; grid < reading.grids.size(); ++grid) {
        const GridBlocks_s blocks = blocksOf(reading, grid);
        if (sum(position, scalarSize(blocks, byteWidths(reading))) > account.bytes.size)
            return;
        account.scalarPositions.push_back(position);
        position = sum(position, gridSize(blocks, byteWidths(reading)));
    }
}

Account_s accountOfBinary(const ExaminedFile& file, const Reading_s& reading) {
    Account_s account;
    const std::int64_t header = numberWidthInHeader * headerValues(reading);
    const std::int64_t data = dataSize(reading, byteWidths(reading));
    const std::int64_t used = sum(sum(header, data), padding(reading));
    account.bytes.size = file.size();
    account.bytes.used = used;
    account.bytes.missing = std::max<std::int64_t>(used - file.size(), 0);
    account.bytes.surplus = std::max<std::int64_t>(file.size() - used, 0);
    account.endOfTaken = std::min(used, file.size());
    if (account.bytes.missing > 0) {
        const std::int64_t offset = std::max<std::int64_t>(file.size() - header, 0);
        account.shortfall = {placeInData(reading, byteWidths(reading), offset), file.size(), used,
                             file.size(), 0};
    }
    noteScalarPositions(reading, header, account);
    return account;
}

// ---- Fortran

/// Walks over the records that the reading wants, and then over those behind them.
class RecordAccount {
public:
    RecordAccount(ExaminedFile& file, const Reading_s& reading)
        : file_(file), reading_(reading), widths_(byteWidths(reading)) {
        static_cast<io::Plot3DFileStructure_s&>(record_) = reading;
        record_.inSegmentedRecord = false;
        record_.stream = file.stream();
        io::rewindPlot3DFile(record_);
        account_.bytes.size = file.size();
    }

    Account_s run() {
        takeHeader();
        for (std::size_t grid = 0; grid < reading_.grids.size(); ++grid)
            takeGrid(static_cast<std::int32_t>(grid));
        account_.endOfTaken = std::min(end(), file_.size());
        account_.bytes.surplus += std::max<std::int64_t>(file_.size() - end(), 0);
        account_.bytes.used = account_.bytes.size + account_.bytes.missing - account_.bytes.surplus;
        while (enterRecord())
            ++account_.recordsBehind;
        return std::move(account_);
    }

private:
    std::int64_t end() const { return record_.nextRecordStart; }
    std::int64_t markers() const { return 2 * static_cast<std::int64_t>(record_.markerSize); }
    /// Of all segments of a record.
    std::int64_t markersOf(std::int64_t payload) const {
        const std::int64_t segments =
            record_.markerSize == 4 ? (payload + longestSegment - 1) / longestSegment : 1;
        return markers() * std::max<std::int64_t>(segments, 1);
    }
    /// Of the first bytes of a record what is no marker of a segment.
    std::int64_t payloadIn(std::int64_t bytes) const {
        if (record_.markerSize != 4)
            return std::max<std::int64_t>(bytes - record_.markerSize, 0);
        const std::int64_t whole = bytes / (longestSegment + markers());
        const std::int64_t begun = bytes % (longestSegment + markers());
        return whole * longestSegment +
               std::clamp<std::int64_t>(begun - record_.markerSize, 0, longestSegment);
    }

    /// Its payload may end behind the file.
    bool enterRecord() {
        if (end() < 0 || file_.size() - end() < record_.markerSize)
            return false;
        ++recordNumber_;
        return io::nextRecord(record_, false, nullptr);
    }

    /// Of a header that was judged; under relaxed checks its records may be longer.
    void takeHeader() {
        std::int64_t left = headerValues(reading_);
        for (std::int32_t count = headerRecords(reading_); count > 0; --count) {
            const std::int64_t numbers = count > 1 ? 1 : left;
            const std::int64_t start = end();
            if (enterRecord())
                compareLength(start, io::integerWidth * numbers, record_.recordLength, false,
                              [](std::int64_t) { return Place_s{}; });
            left -= numbers;
        }
    }

    void takeGrid(std::int32_t grid) {
        const GridBlocks_s blocks = blocksOf(reading_, static_cast<std::size_t>(grid));
        if (blocks.scalars > 0)
            takeRecord(scalarSize(blocks, widths_), hasSpecies(reading_), [&](std::int64_t) {
                return Place_s{Part_e::Scalars, grid, 0, -1};
            });
        const bool hasPlanes = reading_.dataStructure == io::Plot3DDataStructure_3DPlanes;
        for (std::int64_t plane = 0; plane < blocks.planes; ++plane) {
            const auto placeAt = [&](std::int64_t offset) {
                Place_s place = placeInPlane(blocks, widths_, offset);
                place.grid = grid;
                place.plane = hasPlanes ? plane : -1;
                return place;
            };
            if (!takeRecord(planeSize(blocks, widths_), false, placeAt)) {
                miss(blocks.planes - plane - 1, planeSize(blocks, widths_));
                return;
            }
        }
    }

    /// False: the file ended ahead of it.
    template <typename PlaceAt>
    bool takeRecord(std::int64_t expected, bool mayBeLonger, PlaceAt placeAt) {
        const std::int64_t start = end();
        if (isEnded_ || !enterRecord()) {
            const std::int64_t begun =
                isEnded_ ? 0 : std::max<std::int64_t>(file_.size() - start, 0);
            noteShortfall({placeAt(std::min(payloadIn(begun), expected)), file_.size(), 0, 0, 0});
            isEnded_ = true;
            record_.nextRecordStart = std::max(start, file_.size());
            account_.bytes.missing =
                sum(account_.bytes.missing, sum(expected, markersOf(expected)) - begun);
            return false;
        }
        const std::int64_t length = record_.recordLength;
        if (placeAt(0).part == Part_e::Scalars && end() <= file_.size())
            account_.scalarPositions.push_back(start + record_.markerSize);
        compareLength(start, expected, length, mayBeLonger, placeAt);
        if (end() > file_.size()) {
            const std::int64_t inFile = payloadIn(std::max<std::int64_t>(file_.size() - start, 0));
            noteShortfall({placeAt(std::min(inFile, expected)), file_.size(), expected, inFile, 0});
            account_.bytes.missing = sum(account_.bytes.missing, end() - file_.size());
            isEnded_ = true;
        }
        return true;
    }

    template <typename PlaceAt>
    void compareLength(std::int64_t start, std::int64_t expected, std::int64_t length,
                       bool mayBeLonger, PlaceAt placeAt) {
        if (length < expected) {
            noteShortfall({placeAt(length), start, expected, length, recordNumber_});
            account_.bytes.missing = sum(account_.bytes.missing, expected - length);
        } else if (length > expected && !mayBeLonger) {
            if (!account_.longRecord)
                account_.longRecord = LongRecord_s{recordNumber_, start, expected, length};
            account_.bytes.surplus = sum(account_.bytes.surplus, length - expected);
        }
    }

    void miss(std::int64_t records, std::int64_t bytes) {
        std::int64_t all = 0;
        if (__builtin_mul_overflow(records, sum(bytes, markersOf(bytes)), &all))
            all = largest;
        account_.bytes.missing = sum(account_.bytes.missing, all);
    }

    void noteShortfall(const Shortfall_s& shortfall) {
        if (!account_.shortfall)
            account_.shortfall = shortfall;
    }

    ExaminedFile& file_;
    const Reading_s& reading_;
    const Widths_s widths_;
    io::Plot3DFile_s record_;
    Account_s account_;
    std::int64_t recordNumber_ = 0;
    bool isEnded_ = false;
};

} // namespace

Account_s accountOf(ExaminedFile& file, const Reading_s& reading) {
    return reading.encoding == io::Plot3DEncoding_FortranUnformatted
               ? RecordAccount(file, reading).run()
               : accountOfBinary(file, reading);
}

} // namespace plot3dlib
