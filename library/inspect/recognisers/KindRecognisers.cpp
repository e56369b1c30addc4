// Files that are given as another kind than they are.
#include <algorithm>
#include <array>

#include "inspect/evidence/Choice.h"
#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

FoundProblem recogniseOtherKind(Evidence_s& evidence) {
    if (!evidence.expectedKind)
        return std::nullopt; // all kinds were tried
    const bool isGrid = evidence.expectedKind == plot3d::FileKind::Grid;
    const std::vector<Reading_s> readings =
        searchFile(evidence.file, evidence.form,
                   {.kinds = isGrid ? Kinds_e::SolutionOrFunction : Kinds_e::Grid,
                    .goesOn = true,
                    .notesTrials = false})
            .readings;
    const auto exact = std::find_if(readings.begin(), readings.end(),
                                    [&](const auto& r) { return isExact(evidence, r); });
    if (exact == readings.end())
        return std::nullopt;
    const char* kind = wordOf(kindOf(*exact));
    return problemOf(std::string("As a ") + kind + " file all its bytes are used.",
                     wordOf(*evidence.expectedKind), kind,
                     loadCommand(kindOf(*exact), evidence.file.name()));
}

/// Anything with a long enough second record passes for a 1-D grid of as many points as its first
/// integer says.
FoundProblem recogniseHardlyALine(Evidence_s& evidence) {
    if (!evidence.reading || evidence.isGuessed)
        return std::nullopt;
    const plot3d::ByteAccount& bytes = evidence.account->bytes;
    if (evidence.reading->dataStructure != io::Plot3DDataStructure_1D ||
        bytes.surplus <= bytes.used)
        return std::nullopt;
    return problemOf("Nothing but a 1-D grid of " + counted(evidence.reading->grids[0].i, "point") +
                         " fits, which takes " + grouped(bytes.used) + " of " +
                         counted(bytes.size, "byte") + ": the file is hardly a grid file.",
                     counted(bytes.used, "byte"), counted(bytes.size, "byte"),
                     whyCommand(evidence));
}

constexpr std::array<Recogniser, 1> kindTable = {recogniseOtherKind};
constexpr std::array<Recogniser, 1> lineTable = {recogniseHardlyALine};

} // namespace

std::span<const Recogniser> kindRecognisers() {
    return kindTable;
}

std::span<const Recogniser> lineRecognisers() {
    return lineTable;
}

} // namespace plot3dlib
