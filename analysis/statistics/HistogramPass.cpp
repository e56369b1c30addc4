#include "analysis/statistics/HistogramPass.h"

#include <mutex>
#include <span>

namespace plot3d::analysis {

void fillHistograms(const Pass_s& pass, std::vector<std::optional<Histogram>>& histograms) {
    std::vector<Piece_s> pieces;
    for (std::size_t field = 0; field < histograms.size(); ++field)
        for (std::size_t stretch = 0; stretch < pass.plan.fields[field].stretches.size(); ++stretch)
            if (histograms[field])
                pieces.push_back({field, stretch});
    const std::vector<std::optional<Histogram>> empty = histograms;
    std::mutex lock;
    const auto fill = [&](std::size_t index, std::size_t worker) {
        const auto [field, stretch] = pieces[index];
        Histogram filled = *empty[field];
        pass.readers[worker].forEachCounting(
            pass.plan.fields[field], stretch,
            [&filled](std::span<const double> values) { filled.add(values); });
        const std::lock_guard held(lock);
        histograms[field]->add(filled);
    };
    inParallel(pieces.size(), pass.threads(), fill, pass.watch);
}

} // namespace plot3d::analysis
