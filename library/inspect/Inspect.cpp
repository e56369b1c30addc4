#include <plot3d/FileInfo.h>

#include <new>

#include <plot3d/Error.h>

#include "inspect/KindOfName.h"
#include "inspect/ListFiles.h"
#include "inspect/Verdict.h"
#include "inspect/evidence/Choice.h"
#include "inspect/evidence/Evidence.h"
#include "inspect/evidence/GridScalars.h"
#include "inspect/evidence/Guess.h"
#include "inspect/words/MisfitWords.h"

namespace plot3dlib {

namespace {

void tellForm(const io::Plot3DFileStructure_s& structure, plot3d::FileInfo& info) {
    switch (structure.encoding) {
    case io::Plot3DEncoding_Ascii:
        info.encoding = plot3d::Encoding::Text;
        return;
    case io::Plot3DEncoding_FortranUnformatted:
        info.encoding = plot3d::Encoding::Fortran;
        info.markerBytes = static_cast<int>(structure.markerSize);
        break;
    case io::Plot3DEncoding_Binary:
        info.encoding = plot3d::Encoding::Binary;
        break;
    case io::Plot3DEncoding_Unknown:
        return;
    }
    info.byteOrder = byteOrderOf(structure);
}

void tellReading(Evidence_s& evidence, plot3d::FileInfo& info) {
    const Reading_s& reading = *evidence.reading;
    const plot3d::Candidate candidate = candidateOf(reading);
    tellForm(reading, info);
    info.kind = candidate.kind;
    info.layout = candidate.layout;
    info.style = candidate.style;
    info.multiGrid = candidate.multiGrid;
    info.iBlank = candidate.iBlank;
    if (reading.encoding != io::Plot3DEncoding_Ascii)
        info.precision = candidate.precision;
    for (const io::Plot3DGridDims_s& dims : reading.grids)
        info.grids.push_back({dims.i, dims.j, dims.k});
    info.variables = reading.numVars;
    info.scalars = scalarsOf(evidence);
    info.bytes = evidence.account->bytes;
}

void tellTrials(const Choice_s& choice, ExaminedFile& file, plot3d::FileInfo& info) {
    info.trials.reserve(choice.trials.size());
    for (const TrialNote_s& note : choice.trials)
        info.trials.push_back(trialOf(note, file));
}

void inspectData(Evidence_s& evidence, const plot3d::InspectOptions& options,
                 plot3d::FileInfo& info) {
    evidence.form = sniff(evidence.file);
    if (evidence.form.encoding == io::Plot3DEncoding_Unknown)
        return; // a read has failed, which is told at the end
    Choice_s choice = chooseReading(evidence, options);
    if (!guessCutRecords(evidence) && !evidence.reading)
        guessReading(evidence);
    if (evidence.reading)
        tellReading(evidence, info);
    info.alsoFits = std::move(choice.alsoFits);
    if (!info.kind)
        info.kind = evidence.expectedKind;
    if (!info.encoding)
        tellForm({evidence.form}, info);
    judge(evidence, info);
    if (options.trials)
        tellTrials(choice, evidence.file, info);
}

bool isListFile(ExaminedFile& file, std::optional<plot3d::FileKind> kind, plot3d::FileInfo& info) {
    if (kind == plot3d::FileKind::Name) {
        inspectNameFile(file, info);
        return true;
    }
    if (kind != plot3d::FileKind::Boundary && (kind || !beginsAsBoundaryFile(file)))
        return false;
    inspectBoundaryFile(file, info);
    return true;
}

void inspectOpened(ExaminedFile& file, const plot3d::InspectOptions& options,
                   plot3d::FileInfo& info) {
    info.bytes = {file.size(), 0, 0, file.size()};
    Evidence_s evidence(file);
    evidence.expectedKind = options.as ? options.as : kindOfName(file.name());
    if (isListFile(file, evidence.expectedKind, info) || tellStranger(evidence, info))
        return;
    inspectData(evidence, options, info);
}

plot3d::FileInfo inspectFile(const std::string& name, const plot3d::InspectOptions& options,
                             const plot3d::Watch& watch) {
    plot3d::FileInfo info;
    info.file = name;
    ExaminedFile file(name, watch);
    if (!file.isOpen()) {
        tellUnopened(name, info);
        return info;
    }
    file.goOn(0);
    inspectOpened(file, options, info);
    if (file.hadReadError()) {
        info = {};
        info.file = name;
        tellUnreadable(file, info);
    }
    return info;
}

} // namespace

} // namespace plot3dlib

namespace plot3d {

FileInfo inspect(const std::string& file, const InspectOptions& options, const Watch& watch) {
    try {
        return plot3dlib::inspectFile(file, options, watch);
    } catch (const std::bad_alloc&) {
        throw Error(ErrorKind::NoMemory, "Out of memory.", {file, {}, {}, {}, {}});
    }
}

} // namespace plot3d
