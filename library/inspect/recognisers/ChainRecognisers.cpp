// Several grids, each with its header ahead of it.
#include <array>

#include "inspect/evidence/Chain.h"
#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

/// A load of text or Fortran takes the first one, of plain binary none.
FoundProblem recogniseChain(Evidence_s& evidence) {
    const std::optional<Chain_s> chain = findChain(evidence, false);
    if (!chain)
        return std::nullopt;
    const bool isTaken = evidence.reading && !evidence.isGuessed;
    const std::int64_t size = evidence.file.size();
    std::string what = grouped(size - chain->secondAt) + " of " + counted(size, "byte") +
                       " stand behind the first grid: " + grouped(chain->grids) +
                       " grids without a count ahead of them";
    what += isTaken ? ", of which the first alone is taken." : ".";
    FoundProblem problem = problemOf(std::move(what), "a count of grids", "none",
                                     copyRestCommand(evidence.file.name(), chain->secondAt));
    problem->misfit.byte = chain->secondAt;
    return problem;
}

FoundProblem recogniseScatteredHeaders(Evidence_s& evidence) {
    const std::optional<Chain_s> chain = findChain(evidence, true);
    if (!chain)
        return std::nullopt;
    FoundProblem problem = problemOf(
        "The dimensions of each grid stand ahead of its own block, and not all ahead of the first.",
        "the dimensions of " + counted(chain->grids, "grid"), "those of one",
        copyRestCommand(evidence.file.name(), chain->firstAt));
    problem->misfit.byte = chain->firstAt;
    return problem;
}

constexpr std::array<Recogniser, 2> chainTable = {recogniseChain, recogniseScatteredHeaders};

} // namespace

std::span<const Recogniser> chainRecognisers() {
    return chainTable;
}

} // namespace plot3dlib
