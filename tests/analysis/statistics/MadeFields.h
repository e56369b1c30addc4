// Fields without files, for engines on values: with reads that fail, and with zones that share.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "analysis/fields/Fields.h"
#include "analysis/statistics/FieldPlan.h"

namespace plot3d::analysis {

/// One variable for each function, in zones of one size. Reals of 64 bits, but for makeIntegers().
class MadeFields : public Fields {
public:
    using Value = std::function<double(std::size_t zone, std::int64_t place)>;

    MadeFields(const Extent& size, std::vector<Value> variables)
        : size_(size), variables_(std::move(variables)) {}

    /// Reads of the field then fail behind its first values.
    void spoil(std::size_t zone, std::size_t variable) { spoilt_.insert({zone, variable}); }
    /// All zones then have the variable of the first one.
    void share(std::size_t variable) { shared_.insert(variable); }

    /// The variable then has integers, as I-blank has.
    void makeIntegers(std::size_t variable) { integers_.insert(variable); }

    ValueType type(std::size_t, std::size_t variable) const override {
        return integers_.count(variable) > 0 ? ValueType::Int32 : ValueType::Float64;
    }
    bool isEmpty(std::size_t, std::size_t) const override { return false; }
    std::size_t holder(std::size_t zone, std::size_t variable) const override {
        return shared_.count(variable) > 0 ? 0 : zone;
    }
    std::unique_ptr<OpenField> open(std::size_t zone, std::size_t variable) const override;

    /// All variables and points of the first zones.
    StatsSelection_s all(std::size_t zoneCount) const;
    /// Fields that were opened so far.
    int opened() const { return opened_; }

private:
    Extent size_;
    std::vector<Value> variables_;
    std::set<std::pair<std::size_t, std::size_t>> spoilt_;
    std::set<std::size_t> shared_;
    std::set<std::size_t> integers_;
    mutable std::atomic<int> opened_ = 0;
};

} // namespace plot3d::analysis
