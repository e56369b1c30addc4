// What is missing at the end of a file, or stands there beside what is taken.
#include <array>

#include "inspect/Problems.h"
#include "inspect/Recognisers.h"
#include "inspect/Words.h"

namespace plot3dlib {

namespace {

using Problem = FoundProblem;

/// A record whose length is not what the header says.
Problem recogniseShortRecord(Evidence_s& evidence) {
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

Problem recogniseTruncated(Evidence_s& evidence) {
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
Problem recogniseLongRealsWithRest(Evidence_s& evidence) {
    if (!evidence.isGuessed || evidence.form.encoding != io::Plot3DEncoding_Binary)
        return std::nullopt;
    const plot3d::ByteAccount& bytes = evidence.account->bytes;
    if (!evidence.reading->isDoublePrecision || bytes.surplus == 0 ||
        bytes.surplus > bytes.used / 2)
        return std::nullopt;
    Problem problem = problemOf(
        counted(bytes.surplus, "byte") + " of " + grouped(bytes.size) +
            " stand behind 64-bit reals. Described by hand the file would be read as 32-bit reals.",
        counted(bytes.used, "byte"), counted(bytes.size, "byte"),
        copyBeginningCommand(evidence.file.name(), bytes.used));
    problem->misfit.byte = bytes.used;
    return problem;
}

Problem recogniseSurplus(Evidence_s& evidence) {
    const Account_s& account = *evidence.account;
    const plot3d::ByteAccount& bytes = account.bytes;
    if (bytes.surplus == 0)
        return std::nullopt;
    plot3d::Misfit misfit;
    misfit.what = counted(bytes.surplus, "byte") + " of " + grouped(bytes.size) +
                  " stand behind the last grid.";
    misfit.byte = account.endOfTaken;
    misfit.expected = counted(bytes.used, "byte");
    misfit.found = counted(bytes.size, "byte");
    if (account.longRecord) {
        misfit.what = counted(bytes.surplus, "byte") + " of " + grouped(bytes.size) +
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

constexpr std::array<Recogniser, 4> table = {recogniseShortRecord, recogniseTruncated,
                                             recogniseLongRealsWithRest, recogniseSurplus};

} // namespace

std::span<const Recogniser> endRecognisers() {
    return table;
}

} // namespace plot3dlib
