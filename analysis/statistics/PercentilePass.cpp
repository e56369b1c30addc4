#include "analysis/statistics/PercentilePass.h"

#include <span>

namespace plot3d::analysis {
namespace {

struct WeightedPiece_s {
    Piece_s piece;
    std::int64_t weight;
};

std::vector<WeightedPiece_s> piecesOf(const FieldPlan_s& plan, const PercentileJob_s& job) {
    std::vector<WeightedPiece_s> pieces;
    for (const auto& [field, weight] : job.shares)
        for (std::size_t stretch = 0; stretch < plan.fields[field].stretches.size(); ++stretch)
            pieces.push_back({{field, stretch}, weight});
    return pieces;
}

/// Hands on the values of a piece, as often as they count.
void goOverPiece(const Pass_s& pass, const WeightedPiece_s& weighted, std::size_t reader,
                 std::size_t worker, const TakeValues& take) {
    const auto [field, stretch] = weighted.piece;
    pass.readers[reader].forEachCounting(
        pass.plan.fields[field], stretch, [&](std::span<const double> values) {
            for (std::int64_t time = 0; time < weighted.weight; ++time)
                take(values, worker);
        });
}

void doAlone(const Pass_s& pass, const std::vector<double>& percentiles, PercentileJob_s& job,
             std::size_t reader, const PercentileLimits_s& limits) {
    constexpr std::size_t oneWorker = 1;
    const GoOverValues goOver = [&](const TakeValues& take) {
        for (const WeightedPiece_s& piece : piecesOf(pass.plan, job))
            goOverPiece(pass, piece, reader, 0, take);
    };
    job.found = percentilesOf(job.count, percentiles, oneWorker, goOver, limits);
}

void doTogether(const Pass_s& pass, const std::vector<double>& percentiles, PercentileJob_s& job,
                const PercentileLimits_s& limits) {
    const std::vector<WeightedPiece_s> pieces = piecesOf(pass.plan, job);
    const GoOverValues goOver = [&](const TakeValues& take) {
        inParallel(pieces.size(), pass.threads(),
                   [&](std::size_t index, std::size_t worker) {
                       goOverPiece(pass, pieces[index], worker, worker, take);
                   },
                   {{}, pass.watch.stop});
    };
    job.found = percentilesOf(job.count, percentiles, pass.readers.size(), goOver, limits);
}

} // namespace

void findPercentiles(const Pass_s& pass, const std::vector<double>& percentiles,
                     std::vector<PercentileJob_s>& jobs, const PercentileLimits_s& limits) {
    std::vector<std::size_t> small;
    std::vector<std::size_t> large;
    for (std::size_t job = 0; job < jobs.size(); ++job)
        (jobs[job].count <= limits.heldValues ? small : large).push_back(job);
    inParallel(small.size(), pass.threads(),
               [&](std::size_t index, std::size_t worker) {
                   doAlone(pass, percentiles, jobs[small[index]], worker, limits);
               },
               {{}, pass.watch.stop});
    for (std::size_t done = 0; done < large.size(); ++done) {
        if (pass.watch.progress)
            pass.watch.progress(static_cast<double>(done) / static_cast<double>(large.size()));
        doTogether(pass, percentiles, jobs[large[done]], limits);
    }
}

} // namespace plot3d::analysis
