#include "analysis/statistics/Statistics.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#include "analysis/statistics/HistogramPass.h"
#include "analysis/statistics/PercentilePass.h"

namespace plot3d::analysis {
namespace {

/// What is known of one planned field.
struct Known_s {
    FieldSummary_s summary;
    std::optional<Error> error;
};

class Engine {
public:
    Engine(const Fields& fields, const StatsSelection_s& selection, const StatsWishes_s& wishes,
           const WorkWatch_s& watch)
        : selection_(selection), wishes_(wishes), watch_(watch), plan_(planOf(fields, selection)),
          known_(plan_.fields.size()) {
        for (int worker = 0; worker < wishes.threads; ++worker)
            readers_.emplace_back(fields, watch.stop);
    }

    std::vector<VariableStatistics_s> statistics() {
        summarise();
        assemble();
        if (wishes_.bins > 0)
            addHistograms();
        if (!wishes_.percentiles.empty())
            addPercentiles();
        return std::move(result_);
    }

private:
    Pass_s nextPass() {
        const double passes =
            1 + (wishes_.bins > 0 ? 1 : 0) + (wishes_.percentiles.empty() ? 0 : 1);
        const double done = passesDone_++;
        const auto& progress = watch_.progress;
        Pass_s pass = {plan_, readers_, {{}, watch_.stop}};
        if (progress)
            pass.watch.progress = [=](double share) { progress((done + share) / passes); };
        return pass;
    }

    void summarise() {
        std::vector<std::vector<FieldSummary_s>> parts;
        for (const PlannedField_s& field : plan_.fields)
            parts.emplace_back(field.stretches.size());
        const auto doTask = [&](std::size_t task, std::size_t worker) {
            for (const Piece_s& piece : plan_.tasks[task])
                tryRead(piece.field,
                        [&] { parts[piece.field][piece.stretch] = summaryOfPiece(piece, worker); });
        };
        inParallel(plan_.tasks.size(), wishes_.threads, doTask, nextPass().watch);
        for (std::size_t field = 0; field < parts.size(); ++field)
            for (const FieldSummary_s& part : parts[field])
                known_[field].summary.add(part);
    }

    FieldSummary_s summaryOfPiece(const Piece_s& piece, std::size_t worker) {
        const PlannedField_s& field = plan_.fields[piece.field];
        FieldSummary_s summary;
        readers_[worker].forEachBlock(
            field, piece.stretch,
            [&](auto values, std::span<const std::int32_t> iBlank, const Box& box) {
                addBlock(values, iBlank, {field.zone, box}, wishes_.checksum, summary);
            });
        return summary;
    }

    /// Keeps why a field can't be read; a stop ends all. Of several pieces that can't, chance says
    /// which comes first: the one of the lowest byte is told.
    template <typename Read>
    void tryRead(std::size_t field, Read read) {
        try {
            read();
        } catch (const Error& error) {
            if (error.kind() == ErrorKind::Interrupted)
                throw;
            const std::lock_guard lock(errorLock_);
            auto& kept = known_[field].error;
            if (!kept || error.facts().byte < kept->facts().byte)
                kept = error;
        }
    }

    void assemble() {
        for (std::size_t place = 0; place < selection_.variables.size(); ++place) {
            VariableStatistics_s& variable = result_.emplace_back();
            variable.variable = selection_.variables[place];
            forEachZone(place, [&](std::size_t zone, std::size_t field) {
                addZone(variable, zone, field);
            });
        }
    }

    void addZone(VariableStatistics_s& variable, std::size_t zone, std::size_t field) {
        ZoneStatistics_s& added = variable.zones.emplace_back();
        added.zone = zone;
        added.error = known_[field].error;
        variable.type = plan_.fields[field].type;
        if (added.error)
            return;
        added.statistics.summary = known_[field].summary;
        added.statistics.summary.minAt.zone = zone;
        added.statistics.summary.maxAt.zone = zone;
        variable.whole.summary.add(added.statistics.summary);
    }

    /// Calls `work` with each zone (from 0) where the variable has values, and its planned field.
    template <typename Work>
    void forEachZone(std::size_t place, Work work) const {
        for (std::size_t zone = 0; zone < selection_.zones.size(); ++zone)
            if (const auto field = plan_.fieldOf[place][zone])
                work(selection_.zones[zone].zone, *field);
    }

    /// Calls `work` with the statistics of each zone whose field could be read, and that field.
    template <typename Work>
    void forEachReadZone(std::size_t place, Work work) {
        std::size_t next = 0;
        forEachZone(place, [&](std::size_t, std::size_t field) {
            ZoneStatistics_s& zone = result_[place].zones[next++];
            if (!zone.error)
                work(zone.statistics, field);
        });
    }

    void addHistograms() {
        std::vector<std::optional<Histogram>> ofFields(plan_.fields.size());
        for (std::size_t place = 0; place < result_.size(); ++place) {
            const FieldSummary_s& whole = result_[place].whole.summary;
            forEachReadZone(place, [&](Statistics_s&, std::size_t field) {
                if (whole.moments.count > 0)
                    ofFields[field].emplace(whole.min, whole.max, wishes_.bins);
            });
        }
        fillHistograms(nextPass(), ofFields);
        for (std::size_t place = 0; place < result_.size(); ++place) {
            std::vector<std::int64_t>& whole = result_[place].whole.histogram;
            forEachReadZone(place, [&](Statistics_s& zone, std::size_t field) {
                if (!ofFields[field])
                    return;
                zone.histogram = ofFields[field]->counts();
                whole.resize(wishes_.bins);
                std::transform(whole.begin(), whole.end(), zone.histogram.begin(), whole.begin(),
                               std::plus<>());
            });
        }
    }

    /// A job for each field, by its index, and behind them one for each variable.
    void addPercentiles() {
        std::vector<PercentileJob_s> jobs(plan_.fields.size() + result_.size());
        for (std::size_t place = 0; place < result_.size(); ++place) {
            PercentileJob_s& whole = jobs[plan_.fields.size() + place];
            forEachReadZone(place, [&](Statistics_s& zone, std::size_t field) {
                const std::int64_t count = zone.summary.moments.count;
                jobs[field] = {{{field, 1}}, count, {}};
                ++whole.shares[field];
                whole.count += count;
            });
            if (result_[place].zones.size() == 1) // the zone tells all
                whole = {};
        }
        findPercentiles(nextPass(), wishes_.percentiles, jobs);
        for (std::size_t place = 0; place < result_.size(); ++place) {
            VariableStatistics_s& variable = result_[place];
            variable.whole.percentiles = jobs[plan_.fields.size() + place].found;
            forEachReadZone(place, [&](Statistics_s& zone, std::size_t field) {
                zone.percentiles = jobs[field].found;
                if (variable.zones.size() == 1)
                    variable.whole.percentiles = zone.percentiles;
            });
        }
    }

    const StatsSelection_s& selection_;
    const StatsWishes_s& wishes_;
    const WorkWatch_s& watch_;
    FieldPlan_s plan_;
    std::vector<Known_s> known_;
    std::vector<PieceReader> readers_;
    std::mutex errorLock_;
    int passesDone_ = 0;
    std::vector<VariableStatistics_s> result_;
};

} // namespace

std::vector<VariableStatistics_s> statisticsOf(const Fields& fields,
                                               const StatsSelection_s& selection,
                                               const StatsWishes_s& wishes,
                                               const WorkWatch_s& watch) {
    return Engine(fields, selection, wishes, watch).statistics();
}

} // namespace plot3d::analysis
