// What is missing at the end of a file, or stands there beside what is taken.
#include <array>

#include "inspect/Recognisers.h"
#include "inspect/Words.h"

namespace plot3dlib {

namespace {

using Problem = std::optional<plot3d::FileProblem>;

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

constexpr std::array<Recogniser, 3> table = {recogniseShortRecord, recogniseTruncated,
                                             recogniseSurplus};

} // namespace

std::span<const Recogniser> endRecognisers() {
    return table;
}

} // namespace plot3dlib
