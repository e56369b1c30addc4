// Which files go together, and into which time steps. docs/time-series.md
#include <algorithm>

#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

using Files = std::vector<const FileModel_s*>;

bool haveSameSizes(const FileModel_s& a, const FileModel_s& b) {
    const bool isLine = a.layout == Layout_e::Unstructured;
    for (std::int32_t grid = 0; grid < a.gridCount(); ++grid) {
        if (grid >= b.gridCount())
            return false;
        const GridDims_s& left = a.grids[static_cast<std::size_t>(grid)];
        const GridDims_s& right = b.grids[static_cast<std::size_t>(grid)];
        if (left.i != right.i || (!isLine && (left.j != right.j || left.k != right.k)))
            return false;
    }
    return true;
}

// Each further file of a list against the first.
void checkList(const Files& files, const LoadRun_s& load) {
    for (const FileModel_s* file : files) {
        const FileModel_s& first = *files.front();
        require(file->isFunction() == first.isFunction(), "solutions mixed with functions");
        require(layoutAsRead(*file, load) == layoutAsRead(first, load), "unlike layouts");
        if (load.isUniform())
            require(file->gridCount() == first.gridCount() && haveSameSizes(first, *file),
                    "unlike grids in a uniform list");
        require(file->variableCount() == first.variableCount(), "unlike numbers of variables");
        if (file->isFunction())
            require(file->isDouble() == first.isDouble(), "function files of unlike precision");
    }
}

} // namespace

bool FileSet_s::isDouble(std::int32_t index) const {
    if (grid == nullptr)
        return solution->isDouble();
    if (solution == nullptr)
        return grid->isDouble();
    return index >= grid->variableCount() + (grid->hasIBlank ? 1 : 0) ? solution->isDouble()
                                                                      : grid->isDouble();
}

std::int32_t LoadRun_s::selectedGrids(const FileModel_s& file) const {
    std::int32_t count = 0;
    for (std::int32_t grid = 0; grid < file.gridCount(); ++grid)
        count += selects(grid) ? 1 : 0;
    return count;
}

Layout_e layoutAsRead(const FileModel_s& file, const LoadRun_s& load) {
    const bool isBesideGrid = file.kind != FileKind_e::Grid;
    return file.layout == Layout_e::Unstructured && isBesideGrid && !load.options.isDescribed
               ? Layout_e::ThreeDWhole
               : file.layout;
}

void checkCounts(const LoadRun_s& load) {
    const std::size_t g = load.grids.size();
    const std::size_t s = load.solutions.size();
    const std::size_t f = load.functions.size();
    if (f == 0)
        require(g == 0 || s == 0 || g < 2 || s == g, "grids and solutions in unlike numbers");
    else if (g > 1)
        require(g == f && (s == 0 || s == g), "functions, grids and solutions in unlike numbers");
    else if (g == 1)
        require(s <= 1 || s == f, "functions and solutions in unlike numbers");
    else if (load.options.append)
        require(s == 0, "functions and solutions can't be appended together");
    else
        require(s == f, "functions without grids or solutions");
}

// Function files that came as solutions are function files, if no others were named.
void examineFiles(LoadRun_s& load) {
    checkList(load.grids, load);
    checkList(load.solutions, load);
    checkList(load.functions, load);
    if (load.functions.empty() && !load.solutions.empty() && load.solutions.front()->isFunction()) {
        std::swap(load.functions, load.solutions);
        require(!load.grids.empty() || load.options.append,
                "functions alone, named as solutions, onto a data set");
    }
    const Files* lists[] = {&load.grids, &load.solutions, &load.functions};
    for (const Files* files : lists)
        for (const FileModel_s* file : *files)
            if (file->isText() || !load.isUniform())
                load.options.sharesStructure = false;
}

void checkGridCounts(const LoadRun_s& load) {
    const Files* lists[] = {&load.grids, &load.solutions, &load.functions};
    const FileModel_s* reference = nullptr;
    for (const Files* files : lists) {
        if (files->empty())
            continue;
        if (reference == nullptr)
            reference = files->front();
        require(files->front()->gridCount() == reference->gridCount(),
                "lists with unlike numbers of grids");
        for (const FileModel_s* file : *files)
            require(!load.options.isUniform || file->gridCount() == reference->gridCount(),
                    "a file with more or fewer grids than the first of a uniform load");
    }
}

void pairFiles(LoadRun_s& load) {
    for (const FileModel_s* file : load.solutions)
        require(!file->isFunction(), "no solution file");
    for (const FileModel_s* file : load.functions)
        require(file->isFunction(), "no function file");
    const Files& grids = load.grids;
    const Files& solutions = load.solutions;
    const Files& functions = load.functions;
    const bool isOneStep = grids.size() + solutions.size() > 0 && grids.size() <= 1 &&
                           (solutions.size() == 1 ||
                            (solutions.empty() && load.namedTimes.empty() && !functions.empty()));
    if (isOneStep) {
        load.sets = {{grids.empty() ? nullptr : grids.front(),
                      solutions.empty() ? nullptr : solutions.front(), functions}};
        return;
    }
    const std::size_t steps = std::max({grids.size(), solutions.size(), functions.size()});
    for (std::size_t step = 0; step < steps; ++step) {
        FileSet_s set;
        if (!grids.empty())
            set.grid = grids.size() == 1 ? grids.front() : grids[step];
        if (!solutions.empty())
            set.solution = solutions[step];
        if (!functions.empty())
            set.functions = {functions[step]};
        load.sets.push_back(set);
    }
}

// Of a uniform load the first time step stands for all.
void checkDimensions(const LoadRun_s& load) {
    for (const FileSet_s& set : load.sets) {
        if (set.grid != nullptr && set.solution != nullptr)
            require(haveSameSizes(*set.grid, *set.solution), "grid and solution of unlike sizes");
        else if (set.grid != nullptr || set.solution != nullptr)
            for (const FileModel_s* file : set.functions)
                require(haveSameSizes(set.grid != nullptr ? *set.grid : *set.solution, *file),
                        "functions of unlike sizes");
        if (load.options.isUniform)
            return;
    }
}

} // namespace quorvia::sessions
