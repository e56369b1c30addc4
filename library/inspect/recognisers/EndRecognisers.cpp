// What is missing at the end of a file, or stands there beside what is taken.
#include <array>

#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"
#include "inspect/words/Words.h"

namespace plot3dlib {

namespace {

/// A record whose length is not what the header says.
FoundProblem recogniseShortRecord(Evidence_s& evidence) {
    const auto& shortfall = evidence.account->shortfall;
    if (!shortfall || shortfall->record == 0)
        return std::nullopt;
    plot3d::Misfit misfit;
    misfit.what = "Record " + grouped(shortfall->record) +
                  " is shorter than the header says: it ends " +
                  wordsOf(shortfall->place, *evidence.reading) + ".";
    misfit.byte = shortfall->position;
    misfit.expected = counted(shortfall->expected, "byte");
    misfit.found = counted(shortfall->found, "byte");
    return plot3d::FileProblem{misfit, whyCommand(evidence)};
}

FoundProblem recogniseTruncated(Evidence_s& evidence) {
    const auto& shortfall = evidence.account->shortfall;
    if (!shortfall)
        return std::nullopt;
    const plot3d::ByteAccount& bytes = evidence.account->bytes;
    plot3d::Misfit misfit;
    misfit.what =
        "The file is cut short: it ends " + wordsOf(shortfall->place, *evidence.reading) + ".";
    misfit.byte = bytes.size;
    misfit.expected =
        evidence.text ? counted(shortfall->expected, "number") : counted(bytes.used, "byte");
    misfit.found =
        evidence.text ? counted(shortfall->found, "number") : counted(bytes.size, "byte");
    return plot3d::FileProblem{misfit, {"ls", "-l", evidence.file.name()}};
}

/// A description by hand is no cure: it takes 32-bit reals first, for which the file is long
/// enough.
FoundProblem recogniseLongRealsWithRest(Evidence_s& evidence) {
    if (!evidence.isGuessed || evidence.form.encoding != io::Plot3DEncoding_Binary)
        return std::nullopt;
    const plot3d::ByteAccount& bytes = evidence.account->bytes;
    if (!evidence.reading->isDoublePrecision || bytes.surplus == 0 ||
        bytes.surplus > bytes.used / 2)
        return std::nullopt;
    FoundProblem problem = problemOf(
        grouped(bytes.surplus) + " of " + counted(bytes.size, "byte") +
            " stand behind 64-bit reals. Described by hand the file would be read as 32-bit reals.",
        counted(bytes.used, "byte"), counted(bytes.size, "byte"),
        copyBeginningCommand(evidence.file.name(), bytes.used));
    problem->misfit.byte = bytes.used;
    return problem;
}

/// Bytes that are no record make a Fortran file pass for plain binary.
FoundProblem recogniseRestOfRecords(Evidence_s& evidence) {
    const plot3d::ByteAccount& bytes = evidence.account->bytes;
    if (!evidence.isGuessed || bytes.surplus == 0 ||
        evidence.form.encoding != io::Plot3DEncoding_FortranUnformatted)
        return std::nullopt;
    FoundProblem problem = problemOf(grouped(bytes.surplus) + " of " + counted(bytes.size, "byte") +
                                         " stand behind the last record, and are none.",
                                     counted(bytes.used, "byte"), counted(bytes.size, "byte"),
                                     copyBeginningCommand(evidence.file.name(), bytes.used));
    problem->misfit.byte = bytes.used;
    return problem;
}

FoundProblem recogniseSurplus(Evidence_s& evidence) {
    const Account_s& account = *evidence.account;
    const plot3d::ByteAccount& bytes = account.bytes;
    if (bytes.surplus == 0)
        return std::nullopt;
    plot3d::Misfit misfit;
    misfit.what = grouped(bytes.surplus) + " of " + counted(bytes.size, "byte") +
                  " stand behind the last grid.";
    misfit.byte = account.endOfTaken;
    misfit.expected = counted(bytes.used, "byte");
    misfit.found = counted(bytes.size, "byte");
    if (account.longRecord) {
        misfit.what = grouped(bytes.surplus) + " of " + counted(bytes.size, "byte") +
                      " are not taken: record " + grouped(account.longRecord->record) +
                      " is longer than the header says.";
        misfit.byte = account.longRecord->position;
        misfit.expected = counted(account.longRecord->expected, "byte");
        misfit.found = counted(account.longRecord->found, "byte");
    } else if (account.recordsBehind > 0) {
        misfit.what.pop_back();
        misfit.what += ", in " + counted(account.recordsBehind, "record") + ".";
    } else if (account.numbersBehind > 0) {
        misfit.what.pop_back();
        misfit.what += ", " + counted(account.numbersBehind, "number") + ".";
    }
    return plot3d::FileProblem{misfit, evidence.isGuessed ? describedLoadCommand(evidence)
                                                          : whyCommand(evidence)};
}

constexpr std::array<Recogniser, 5> endTable = {recogniseShortRecord, recogniseTruncated,
                                                recogniseLongRealsWithRest, recogniseRestOfRecords,
                                                recogniseSurplus};

} // namespace

std::span<const Recogniser> endRecognisers() {
    return endTable;
}

} // namespace plot3dlib
