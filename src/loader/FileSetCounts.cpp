#include "loader/FileSetCounts.h"

#include <cstddef>

namespace quorvia::quorutildataio {

namespace {

struct NameCounts_s {
    std::size_t g; // grid files
    std::size_t s; // solution files
    std::size_t f; // function files
    bool append;
    bool hasGridAndSolution; // both were asked for
};

using NameCounts = const NameCounts_s&;

/// The first rule that fits decides. A rule without a refusal lets the load pass.
struct CountRule_s {
    bool (*fits)(NameCounts n);
    const char* refusal;
};

constexpr const char* pass = nullptr;

constexpr CountRule_s rulesWithoutFunctions[] = {
    {[](NameCounts n) { return !n.hasGridAndSolution; }, pass},
    {[](NameCounts n) { return n.g < 2; }, pass},
    {[](NameCounts n) { return n.s == n.g; }, pass},
    {[](NameCounts) { return true; },
     "If you select more than one grid file, the number of grid files "
     "must match the number of solution files."},
};

// Two of the texts end in a blank, which is part of them.
constexpr CountRule_s rulesWithFunctions[] = {
    {[](NameCounts n) { return n.g > 1 && n.s > 0 && n.g == n.s && n.g == n.f; }, pass},
    {[](NameCounts n) { return n.g > 1 && n.s > 0; },
     "If you load function files, the number of function files must match the number of grid and "
     "solution files."},
    {[](NameCounts n) { return n.g > 1 && n.s == 0 && n.g == n.f; }, pass},
    {[](NameCounts n) { return n.g > 1 && n.s == 0; },
     "If you load function files, the number of function files must match the number of grid "
     "files."},
    {[](NameCounts n) { return n.g == 1 && (n.s <= 1 || n.s == n.f); }, pass},
    {[](NameCounts n) { return n.g == 1; },
     "If you load function files and more than one solution file, the number of function files "
     "must match the number of solution files."},
    {[](NameCounts n) { return n.g == 0 && n.s == 0 && n.append; }, pass},
    {[](NameCounts n) { return n.g == 0 && n.s > 0 && n.append; },
     "If you are appending function file variables, you cannot append solution files at the same "
     "time."},
    {[](NameCounts n) { return n.g == 0 && n.s == 0; },
     "You can not load function files or solution files only. You must load grid and solution "
     "files along with function files. "},
    {[](NameCounts n) { return n.g == 0 && n.s == n.f; }, pass},
    {[](NameCounts) { return true; },
     "If you load function files, the number of function files must match the number of grid and "
     "solution files. "},
};

/// The last rule of `rules` fits everything.
template <std::size_t ruleCount>
const char* firstRefusal(const CountRule_s (&rules)[ruleCount], NameCounts counts) {
    const CountRule_s* rule = rules;
    while (!rule->fits(counts))
        ++rule;
    return rule->refusal;
}

} // namespace

bool checkFileSetCounts(const Plot3DLoadOptions_s& options) {
    const NameCounts_s counts{.g = options.gridFiles.size(),
                              .s = options.solutionFiles.size(),
                              .f = options.functionFiles.size(),
                              .append = options.append,
                              .hasGridAndSolution =
                                  options.hasGridFiles && options.hasSolutionFiles};
    const char* refusal = counts.f == 0 ? firstRefusal(rulesWithoutFunctions, counts)
                                        : firstRefusal(rulesWithFunctions, counts);
    if (refusal == pass)
        return true;
    QuorUtilDialogErrMsg(refusal);
    return false;
}

} // namespace quorvia::quorutildataio
