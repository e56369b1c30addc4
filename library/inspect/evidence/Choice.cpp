#include "inspect/evidence/Choice.h"

#include <algorithm>
#include <optional>

#include "inspect/reading/TextAccount.h"

namespace plot3dlib {

namespace {

using Readings = std::vector<Reading_s>;

bool isText(const Evidence_s& evidence) {
    return evidence.form.encoding == io::Plot3DEncoding_Ascii;
}

Account_s accountFor(Evidence_s& evidence, const Reading_s& reading) {
    return evidence.text ? accountOfText(evidence.file, *evidence.text, reading)
                         : accountOf(evidence.file, reading);
}

bool mayHaveIBlank(const Reading_s& reading) {
    return !reading.isSolutionOrFunction && reading.dataStructure != io::Plot3DDataStructure_1D &&
           reading.dataStructure != io::Plot3DDataStructure_Unstructured;
}

/// Text does not tell whether it holds I-blank.
void addReadingsWithIBlank(Readings& readings) {
    const std::size_t count = readings.size();
    for (std::size_t index = 0; index < count; ++index)
        if (mayHaveIBlank(readings[index])) {
            readings.push_back(readings[index]);
            readings.back().hasIBlank = true;
        }
}

class Chooser {
public:
    Chooser(Evidence_s& evidence, const plot3d::InspectOptions& options)
        : evidence_(evidence), options_(options) {}

    Choice_s run() {
        for (const Kinds_e kinds : kindsToTry())
            tryKinds(kinds);
        if (isText(evidence_))
            evidence_.text = std::make_unique<TextScan>(evidence_.file);
        choose();
        return std::move(choice_);
    }

private:
    std::vector<Kinds_e> kindsToTry() const {
        const bool isGrid =
            evidence_.expectedKind.value_or(plot3d::FileKind::Grid) == plot3d::FileKind::Grid;
        const Kinds_e first = isGrid ? Kinds_e::Grid : Kinds_e::SolutionOrFunction;
        const Kinds_e second = isGrid ? Kinds_e::SolutionOrFunction : Kinds_e::Grid;
        if (evidence_.expectedKind && !options_.allReadings)
            return {first};
        return {first, second};
    }

    void tryKinds(Kinds_e kinds) {
        Search_s search = searchFile(
            evidence_.file, evidence_.form,
            {.kinds = kinds, .goesOn = options_.allReadings, .notesTrials = options_.trials});
        choice_.trials.insert(choice_.trials.end(), search.trials.begin(), search.trials.end());
        if (search.readings.empty())
            return;
        firstOfKinds_.push_back(search.readings.front());
        triedKinds_.push_back(kinds);
    }

    void choose() {
        for (std::size_t index = 0; index < firstOfKinds_.size(); ++index)
            if (isExact(evidence_, firstOfKinds_[index])) {
                takeExact(index);
                noteFurtherKinds();
                return;
            }
        for (std::size_t index = 0; index < firstOfKinds_.size(); ++index)
            if (takeExactOf(index, std::nullopt)) {
                noteFurtherKinds();
                return;
            }
        if (firstOfKinds_.empty())
            return;
        take(firstOfKinds_.front(), firstOfKinds_.front());
        if (isShortLineOfText())
            takeUnstructured();
    }

    /// The count of several unstructured grids passes for the size of a 1-D grid.
    bool isShortLineOfText() const {
        const plot3d::ByteAccount& bytes = evidence_.account->bytes;
        return evidence_.text && evidence_.reading->dataStructure == io::Plot3DDataStructure_1D &&
               bytes.surplus > bytes.used;
    }

    void takeUnstructured() {
        const Search_s search =
            searchFile(evidence_.file, evidence_.form,
                       {.kinds = triedKinds_.front(), .goesOn = true, .notesTrials = false});
        for (const Reading_s& reading : search.readings)
            if (reading.dataStructure == io::Plot3DDataStructure_Unstructured)
                return take(firstOfKinds_.front(), reading);
    }

    /// The reading that a load takes accounts for every byte. It may still be of another kind than
    /// the file is said to be: of a few sizes a function file passes for a solution.
    void takeExact(std::size_t index) {
        const Reading_s& first = firstOfKinds_[index];
        const bool isOtherKind = triedKinds_[index] == Kinds_e::SolutionOrFunction &&
                                 evidence_.expectedKind.value_or(kindOf(first)) != kindOf(first);
        if (!isOtherKind || !takeExactOf(index, evidence_.expectedKind))
            take(first, first);
    }

    /// Goes on behind the reading that a load takes, to one of that kind, if one is asked for.
    bool takeExactOf(std::size_t index, std::optional<plot3d::FileKind> kind) {
        Readings readings =
            searchFile(evidence_.file, evidence_.form,
                       {.kinds = triedKinds_[index], .goesOn = true, .notesTrials = false})
                .readings;
        if (isText(evidence_))
            addReadingsWithIBlank(readings);
        const auto exact = std::find_if(readings.begin(), readings.end(), [&](const auto& r) {
            return kind.value_or(kindOf(r)) == kindOf(r) && isExact(evidence_, r);
        });
        if (exact == readings.end())
            return false;
        take(firstOfKinds_[index], *exact);
        return true;
    }

    void take(const Reading_s& loaded, const Reading_s& reading) {
        evidence_.loaded = loaded;
        evidence_.reading = reading;
        evidence_.account = accountFor(evidence_, reading);
    }

    void noteFurtherKinds() {
        for (const Reading_s& first : firstOfKinds_) {
            const plot3d::FileKind kind = kindOf(first);
            if (kind != kindOf(*evidence_.reading) && isExact(evidence_, first))
                choice_.alsoFits.push_back(kind);
        }
    }

    Evidence_s& evidence_;
    const plot3d::InspectOptions& options_;
    Choice_s choice_;
    Readings firstOfKinds_;
    std::vector<Kinds_e> triedKinds_;
};

} // namespace

bool isExact(Evidence_s& evidence, const Reading_s& reading) {
    return evidence.text ? fitsExactly(*evidence.text, reading)
                         : accountOf(evidence.file, reading).isExact();
}

Choice_s chooseReading(Evidence_s& evidence, const plot3d::InspectOptions& options) {
    return Chooser(evidence, options).run();
}

} // namespace plot3dlib
