#include "diff/FieldComparison.h"

#include <map>
#include <mutex>
#include <tuple>

#include "analysis/fields/BlockSplit.h"
#include "analysis/fields/ValueTypes.h"

namespace plot3d::program {
namespace {

constexpr std::int64_t pointsOfBlock = std::int64_t{1} << 16;

/// Part of a pair that one core compares in one go.
struct Stretch_s {
    std::size_t pair = 0;
    Box box;
    Difference_s difference;
};

/// Room of one core.
struct Rooms_s {
    analysis::BlockRoom first;
    analysis::BlockRoom second;
};

class Comparison {
public:
    Comparison(const analysis::Fields& first, const analysis::Fields& second,
               const std::vector<FieldPair_s>& pairs, const Tolerance_s& tolerance,
               std::stop_token stop)
        : first_(first), second_(second), pairs_(pairs), tolerance_(tolerance),
          stop_(std::move(stop)), result_(pairs.size()), sameAs_(pairs.size()) {
        planStretches();
    }

    std::vector<FieldDifference_s> compareAll(int threads, const analysis::WorkWatch_s& watch) {
        std::vector<Rooms_s> rooms(static_cast<std::size_t>(threads));
        const auto compareOne = [&](std::size_t index, std::size_t worker) {
            tryCompare(stretches_[index], rooms[worker]);
        };
        analysis::inParallel(stretches_.size(), threads, compareOne, watch);
        for (const Stretch_s& stretch : stretches_)
            result_[stretch.pair].difference.add(stretch.difference);
        for (std::size_t pair = 0; pair < result_.size(); ++pair)
            finish(pair);
        return std::move(result_);
    }

private:
    /// Zones have sizes of their own, but those that share both fields have one.
    void planStretches() {
        using Key = std::tuple<std::size_t, std::size_t, std::size_t, std::size_t>;
        std::map<Key, std::size_t> known;
        for (std::size_t index = 0; index < pairs_.size(); ++index) {
            const FieldPair_s& pair = pairs_[index];
            const Key key = {first_.holder(pair.zone, pair.firstVariable), pair.firstVariable,
                             second_.holder(pair.zone, pair.secondVariable), pair.secondVariable};
            sameAs_[index] = known.try_emplace(key, index).first->second;
            if (sameAs_[index] == index)
                for (const Box& box : analysis::blocksOf(pair.box, analysis::pointsOfStretch))
                    stretches_.push_back({index, box, {}});
        }
    }

    void tryCompare(Stretch_s& stretch, Rooms_s& rooms) {
        try {
            compareStretch(stretch, rooms);
        } catch (const Error& error) {
            if (error.kind() == ErrorKind::Interrupted)
                throw;
            const std::lock_guard lock(errorLock_);
            auto& kept = result_[stretch.pair].error;
            if (!kept || error.facts().byte < kept->facts().byte)
                kept = error;
        }
    }

    void compareStretch(Stretch_s& stretch, Rooms_s& rooms) {
        const FieldPair_s& pair = pairs_[stretch.pair];
        const auto first = first_.open(pair.zone, pair.firstVariable);
        const auto second = second_.open(pair.zone, pair.secondVariable);
        for (const Box& box : analysis::blocksOf(stretch.box, pointsOfBlock)) {
            analysis::withValueOf(
                first_.type(pair.zone, pair.firstVariable), [&]<typename First>(First) {
                    analysis::withValueOf(
                        second_.type(pair.zone, pair.secondVariable), [&]<typename Second>(Second) {
                            const std::span<First> ours = rooms.first.of<First>(box.count());
                            const std::span<Second> theirs = rooms.second.of<Second>(box.count());
                            first->read(box, ours.data(), stop_);
                            second->read(box, theirs.data(), stop_);
                            stretch.difference.add(differenceOf<First, Second>(
                                ours, theirs, tolerance_, pair.zone, box));
                        });
                });
        }
    }

    void finish(std::size_t pair) {
        FieldDifference_s& result = result_[pair];
        if (sameAs_[pair] != pair)
            result = result_[sameAs_[pair]];
        if (result.error)
            result.difference = {};
        for (Pair_s* at : {&result.difference.absoluteAt, &result.difference.relativeAt,
                           &result.difference.unlikeAt})
            at->zone = pairs_[pair].zone;
    }

    const analysis::Fields& first_;
    const analysis::Fields& second_;
    const std::vector<FieldPair_s>& pairs_;
    const Tolerance_s& tolerance_;
    std::stop_token stop_;
    std::vector<FieldDifference_s> result_;
    std::vector<std::size_t> sameAs_; // for each pair the first one of the same fields
    std::vector<Stretch_s> stretches_;
    std::mutex errorLock_;
};

} // namespace

std::vector<FieldDifference_s> compare(const analysis::Fields& first,
                                       const analysis::Fields& second,
                                       const std::vector<FieldPair_s>& pairs,
                                       const Tolerance_s& tolerance, int threads,
                                       const analysis::WorkWatch_s& watch) {
    return Comparison(first, second, pairs, tolerance, watch.stop).compareAll(threads, watch);
}

} // namespace plot3d::program
