#include "inspect/reading/Search.h"

#include <memory>

#include "plot3dfile/detection/EncodingSniffer.h"
#include "plot3dfile/detection/StructureTrials.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::size_t fewGrids = 8;
constexpr std::size_t usualTrials = 40;
constexpr std::int64_t anySize = std::int64_t{1} << 62;

/// A record without a name, which nothing needs that is not told at the host.
std::unique_ptr<io::Plot3DFile_s> recordOf(ExaminedFile& file, io::DetectionObserver& observer) {
    auto record = std::make_unique<io::Plot3DFile_s>();
    record->stream = file.stream();
    record->fileSize = file.size();
    record->observer = &observer;
    record->gridDims.resize(fewGrids); // most files have no more, and need no long array
    return record;
}

class Stopper : public io::DetectionObserver {
public:
    explicit Stopper(ExaminedFile& file) : file_(file) {}
    bool takesTrial(const io::Plot3DFile_s&, bool fits) override { return fits; }
    bool goesOn() override {
        file_.goOn(0);
        return true;
    }

private:
    ExaminedFile& file_;
};

io::Plot3DFileStructure_s structureAlone(const io::Plot3DFile_s& record) {
    io::Plot3DFileStructure_s structure;
    structure.encoding = record.encoding;
    structure.byteSwap = record.byteSwap;
    structure.isDoublePrecision = record.isDoublePrecision;
    structure.markerSize = record.markerSize;
    structure.dataStructure = record.dataStructure;
    structure.isSolutionOrFunction = record.isSolutionOrFunction;
    structure.style = record.style;
    structure.hasIBlank = record.hasIBlank;
    structure.isMultiGrid = record.isMultiGrid;
    structure.numVars = record.numVars;
    structure.numScalars = record.numScalars;
    structure.relaxedChecks = record.relaxedChecks;
    return structure;
}

class TrialNotes final : public Stopper {
public:
    TrialNotes(ExaminedFile& file, const SearchRange_s& range) : Stopper(file), range_(range) {
        if (range.notesTrials)
            search_.trials.reserve(usualTrials);
    }

    bool takesTrial(const io::Plot3DFile_s& record, bool fits) override {
        if (range_.notesTrials && record.misfit.what != io::Plot3DMisfit_e::NotInLayout)
            search_.trials.push_back({structureAlone(record), record.misfit, fits});
        if (fits)
            search_.readings.push_back(readingOf(record));
        return fits && !range_.goesOn;
    }

    bool foundNone() const { return search_.readings.empty(); }
    Search_s take() { return std::move(search_); }

private:
    const SearchRange_s range_;
    Search_s search_;
};

/// Keeps readings whose header is good, and lets none be taken.
class NearMisses final : public Stopper {
public:
    explicit NearMisses(ExaminedFile& file) : Stopper(file), fileSize_(file.size()) {}

    bool takesTrial(const io::Plot3DFile_s& record, bool fits) override {
        const bool isNear = fits || record.misfit.what == io::Plot3DMisfit_e::DataSize ||
                            isCutInSegments(record.misfit);
        if (isNear && record.numVars > 0)
            readings_.push_back(readingOf(record));
        // The next trial does not begin inside the record that this one did not find the end of.
        judged_->inSegmentedRecord = false;
        return false;
    }
    /// To be called ahead of the trials.
    void judge(io::Plot3DFile_s& record) { judged_ = &record; }
    std::vector<Reading_s> take() { return std::move(readings_); }

private:
    /// The first grid's record is longer than a segment, and goes on behind the file's end.
    bool isCutInSegments(const io::Plot3DMisfit_s& misfit) const {
        return misfit.what == io::Plot3DMisfit_e::DataMissing &&
               misfit.expected > -io::fullSegmentMarker &&
               misfit.expected > fileSize_ - longestHeader;
    }

    const std::int64_t fileSize_;
    io::Plot3DFile_s* judged_ = nullptr;
    std::vector<Reading_s> readings_;
};

void begin(io::Plot3DFile_s& record, const io::Plot3DRecordForm_s& form, Kinds_e kinds) {
    static_cast<io::Plot3DRecordForm_s&>(record) = form;
    record.isDoublePrecision = false;
    record.isSolutionOrFunction = kinds == Kinds_e::SolutionOrFunction;
}

} // namespace

io::Plot3DRecordForm_s sniff(ExaminedFile& file) {
    Stopper stopper(file);
    const auto record = recordOf(file, stopper);
    io::sniffEncoding(*record);
    return *record;
}

Search_s searchFile(ExaminedFile& file, const io::Plot3DRecordForm_s& form,
                    const SearchRange_s& range) {
    TrialNotes notes(file, range);
    const auto record = recordOf(file, notes);
    begin(*record, form, range.kinds);
    const bool isTaken = io::searchStructure(*record);
    // Under relaxed checks much fits: it says something only where nothing else does.
    const bool triesAgain = notes.foundNone() || form.encoding == io::Plot3DEncoding_Binary;
    const bool isTakenThen = !isTaken && triesAgain && io::searchOnceMore(*record);
    static_cast<void>(isTakenThen); // the notes hold what fits
    return notes.take();
}

std::vector<Reading_s> searchAtAnySize(ExaminedFile& file, const io::Plot3DRecordForm_s& form,
                                       Kinds_e kinds) {
    NearMisses misses(file);
    const auto record = recordOf(file, misses);
    misses.judge(*record);
    begin(*record, form, kinds);
    record->fileSize = anySize;
    const bool isTaken =
        io::searchStructure(*record) ||
        (form.encoding == io::Plot3DEncoding_Binary && io::searchOnceMore(*record));
    static_cast<void>(isTaken); // none is
    return misses.take();
}

} // namespace plot3dlib
