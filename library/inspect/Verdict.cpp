#include "inspect/Verdict.h"

#include <utility>

#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Words.h"

namespace plot3dlib {

namespace {

using Problem = plot3d::FileProblem;

std::span<const Recogniser> recognisersOfForm(const io::Plot3DRecordForm_s& form) {
    switch (form.encoding) {
    case io::Plot3DEncoding_Ascii:
        return textRecognisers();
    case io::Plot3DEncoding_FortranUnformatted:
        return fortranRecognisers();
    case io::Plot3DEncoding_Binary:
    case io::Plot3DEncoding_Unknown:
        break;
    }
    return binaryRecognisers();
}

/// What knows a file that no reading takes, or of which one does not take all.
std::optional<Problem> recogniseOdd(Evidence_s& evidence) {
    const bool isCutRecord =
        evidence.isGuessed && evidence.form.encoding == io::Plot3DEncoding_FortranUnformatted;
    if (isCutRecord)
        return recognise(endRecognisers(), evidence);
    for (const auto table : {recognisersOfForm(evidence.form), kindRecognisers(),
                             chainRecognisers(), headerRecognisers(), lineRecognisers()})
        if (auto problem = recognise(table, evidence))
            return problem;
    return evidence.reading ? recognise(endRecognisers(), evidence) : std::nullopt;
}

Problem fitsNothing(const Evidence_s& evidence) {
    const plot3d::FileKind kind = evidence.expectedKind.value_or(plot3d::FileKind::Grid);
    const std::string what = evidence.expectedKind ? std::string("No reading fits the file as a ") +
                                                         wordOf(kind) + " file."
                                                   : "No reading fits the file.";
    return {misfitOf(what), whyCommand(evidence)};
}

/// A faulty number among those that are taken.
std::optional<Problem> findFaultyToken(Evidence_s& evidence) {
    if (!evidence.text)
        return std::nullopt;
    for (const FaultyToken_s& fault : evidence.text->faults()) {
        if (fault.position >= evidence.account->endOfTaken)
            continue;
        return faultyTokenProblem(evidence, fault);
    }
    return std::nullopt;
}

/// A load takes the file for something else than it is.
std::optional<Problem> findOtherLoad(const Evidence_s& evidence) {
    const Reading_s& loaded = *evidence.loaded;
    const Reading_s& reading = *evidence.reading;
    const bool isSame = loaded.dataStructure == reading.dataStructure &&
                        loaded.style == reading.style &&
                        loaded.isMultiGrid == reading.isMultiGrid &&
                        loaded.isDoublePrecision == reading.isDoublePrecision;
    if (isSame && loaded.hasIBlank == reading.hasIBlank)
        return std::nullopt;
    plot3d::Misfit misfit;
    misfit.expected = wordsOf(reading);
    misfit.found = wordsOf(loaded);
    if (isSame) {
        misfit.what = "The file holds I-blank, which text does not declare: unless it is told, "
                      "numbers come in wrong or are left out.";
        return Problem{misfit, loadCommand(evidence)};
    }
    misfit.what = "Unless it is described by hand, the file is taken for something else.";
    return Problem{misfit, describedLoadCommand(evidence)};
}

void judgeReading(Evidence_s& evidence, plot3d::FileInfo& info) {
    if (auto other = findOtherLoad(evidence))
        info.warnings.push_back(std::move(*other));
    info.problem = findFaultyToken(evidence);
    const plot3d::ByteAccount& bytes = evidence.account->bytes;
    if (info.problem || (bytes.missing == 0 && bytes.surplus == 0)) {
        info.ok = !info.problem;
        return;
    }
    std::optional<Problem> odd = recogniseOdd(evidence);
    info.ok = bytes.missing == 0;
    if (!odd)
        return;
    if (info.ok)
        info.warnings.push_back(std::move(*odd));
    else
        info.problem = std::move(odd);
}

} // namespace

std::optional<Problem> recognise(std::span<const Recogniser> recognisers, Evidence_s& evidence) {
    for (const Recogniser recogniser : recognisers)
        if (auto problem = recogniser(evidence))
            return problem;
    return std::nullopt;
}

void judge(Evidence_s& evidence, plot3d::FileInfo& info) {
    if (evidence.reading && !evidence.isGuessed) {
        judgeReading(evidence, info);
        return;
    }
    info.ok = false;
    info.problem = recogniseOdd(evidence);
    if (!info.problem)
        info.problem = fitsNothing(evidence);
}

bool tellStranger(Evidence_s& evidence, plot3d::FileInfo& info) {
    info.problem = recognise(strangerRecognisers(), evidence);
    return info.problem.has_value();
}

void tellUnopened(const std::string& name, plot3d::FileInfo& info) {
    info.problem = Problem{misfitOf("The file can't be opened: it is not there, may not be read, "
                                    "or is no regular file."),
                           {"ls", "-ld", name}};
}

void tellUnreadable(const ExaminedFile& file, plot3d::FileInfo& info) {
    info.bytes.size = file.size();
    info.problem = Problem{misfitOf("The file could not be read: the disk failed."),
                           {"dd", "if=" + file.name(), "of=/dev/null"}};
}

} // namespace plot3dlib
