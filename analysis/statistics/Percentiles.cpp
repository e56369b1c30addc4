#include "analysis/statistics/Percentiles.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <map>

namespace plot3d::analysis {
namespace {

constexpr int keyBits = 64;
constexpr int stepBits = 12; // sign and exponent are the first step
constexpr std::size_t stepCounts = std::size_t{1} << stepBits;

/// Ascends with the value; both zeros are the same.
std::uint64_t keyOf(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value == 0 ? 0.0 : value);
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    return (bits & sign) != 0 ? ~bits : bits | sign;
}

double valueOf(std::uint64_t key) {
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    return std::bit_cast<double>((key & sign) != 0 ? key & ~sign : ~key);
}

std::uint64_t firstBits(std::uint64_t key, int bits) {
    return bits == 0 ? 0 : key >> (keyBits - bits);
}

using Ranks = std::vector<std::int64_t>; // from 0, ascending

/// Values that share their first bits, and those of them that are wanted, by rank among all values.
struct Bucket_s {
    std::int64_t below = 0; // values in all buckets ahead of it
    std::int64_t count = 0;
    Ranks ranks;
};

/// By the first bits.
using Buckets = std::map<std::uint64_t, Bucket_s>;

class Search {
public:
    Search(std::int64_t count, Ranks ranks, std::size_t workers, const GoOverValues& goOver,
           const PercentileLimits_s& limits)
        : workers_(workers), goOver_(goOver), limits_(limits) {
        buckets_[0] = {0, count, std::move(ranks)};
    }

    /// The values by their ranks.
    std::map<std::int64_t, double> found() {
        while (heldIfTaken() > limits_.heldValues && bits_ < keyBits)
            refine();
        if (bits_ >= keyBits)
            takeWhatIsKnown();
        else
            takeHeld();
        return found_;
    }

private:
    std::int64_t heldIfTaken() const {
        std::int64_t count = 0;
        for (const auto& [bits, bucket] : buckets_)
            count += bucket.count;
        return count;
    }

    /// One pass that tells some more bits of what is wanted.
    void refine() {
        const int step = std::min(stepBits, keyBits - bits_);
        using Counts = std::map<std::uint64_t, std::vector<std::int64_t>>;
        Counts none;
        for (const auto& [bits, bucket] : buckets_)
            none[bits].resize(stepCounts);
        std::vector<Counts> countsOf(workers_, none);
        goOver_([&](std::span<const double> values, std::size_t worker) {
            for (const double value : values) {
                const std::uint64_t key = keyOf(value);
                const auto counts = countsOf[worker].find(firstBits(key, bits_));
                if (counts != countsOf[worker].end())
                    ++counts->second[firstBits(key, bits_ + step) & ((1U << step) - 1U)];
            }
        });
        Buckets refined;
        for (const auto& [bits, bucket] : buckets_) {
            std::vector<std::int64_t> counts(stepCounts);
            for (const Counts& ofWorker : countsOf)
                std::transform(counts.begin(), counts.end(), ofWorker.at(bits).begin(),
                               counts.begin(), std::plus<>());
            split(bits << step, bucket, counts, refined);
        }
        buckets_ = std::move(refined);
        bits_ += step;
    }

    static void split(std::uint64_t bits, const Bucket_s& bucket,
                      const std::vector<std::int64_t>& counts, Buckets& refined) {
        std::int64_t below = bucket.below;
        auto rank = bucket.ranks.begin();
        for (std::size_t part = 0; part < counts.size(); ++part) {
            Ranks ranks;
            while (rank != bucket.ranks.end() && *rank < below + counts[part])
                ranks.push_back(*rank++);
            if (!ranks.empty())
                refined[bits + part] = {below, counts[part], std::move(ranks)};
            below += counts[part];
        }
    }

    void takeWhatIsKnown() {
        for (const auto& [bits, bucket] : buckets_)
            for (const std::int64_t rank : bucket.ranks)
                found_[rank] = valueOf(bits);
    }

    void takeHeld() {
        using Held = std::map<std::uint64_t, std::vector<double>>;
        std::vector<Held> heldBy(workers_);
        goOver_([&](std::span<const double> values, std::size_t worker) {
            for (const double value : values) {
                const std::uint64_t bits = firstBits(keyOf(value), bits_);
                if (buckets_.contains(bits))
                    heldBy[worker][bits].push_back(value == 0 ? 0.0 : value);
            }
        });
        for (const auto& [bits, bucket] : buckets_) {
            std::vector<double> values;
            for (Held& held : heldBy)
                values.insert(values.end(), held[bits].begin(), held[bits].end());
            pick(values, bucket);
        }
    }

    void pick(std::vector<double>& values, const Bucket_s& bucket) {
        auto from = values.begin();
        for (const std::int64_t rank : bucket.ranks) {
            const auto wanted = values.begin() + (rank - bucket.below);
            if (wanted >= from)
                std::nth_element(from, wanted, values.end());
            found_[rank] = *wanted;
            from = wanted;
        }
    }

    std::size_t workers_;
    const GoOverValues& goOver_;
    PercentileLimits_s limits_;
    int bits_ = 0; // that are known of what is wanted
    Buckets buckets_;
    std::map<std::int64_t, double> found_;
};

/// Between two ranks, and how far from the lower to the upper one.
struct Spot_s {
    std::int64_t lower;
    std::int64_t upper;
    double share;
};

Spot_s spotOf(double percentile, std::int64_t count) {
    const double place = static_cast<double>(count - 1) * (percentile / 100);
    const auto lower = std::clamp<std::int64_t>(static_cast<std::int64_t>(place), 0, count - 1);
    return {lower, std::min(lower + 1, count - 1), place - static_cast<double>(lower)};
}

} // namespace

std::vector<double> percentilesOf(std::int64_t count, const std::vector<double>& percentiles,
                                  std::size_t workers, const GoOverValues& goOver,
                                  const PercentileLimits_s& limits) {
    if (count == 0)
        return std::vector<double>(percentiles.size(), std::numeric_limits<double>::quiet_NaN());
    Ranks ranks;
    for (const double percentile : percentiles) {
        const Spot_s spot = spotOf(percentile, count);
        ranks.insert(ranks.end(), {spot.lower, spot.upper});
    }
    std::sort(ranks.begin(), ranks.end());
    ranks.erase(std::unique(ranks.begin(), ranks.end()), ranks.end());
    const auto found = Search(count, ranks, workers, goOver, limits).found();
    std::vector<double> result;
    for (const double percentile : percentiles) {
        const Spot_s spot = spotOf(percentile, count);
        result.push_back(std::lerp(found.at(spot.lower), found.at(spot.upper), spot.share));
    }
    return result;
}

} // namespace plot3d::analysis
