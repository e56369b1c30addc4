#include "analysis/statistics/MadeFields.h"

#include <plot3d/Error.h>

namespace plot3d::analysis {
namespace {

class MadeField : public OpenField {
public:
    MadeField(const Extent& size, ValueType type, std::function<double(std::int64_t)> value,
              bool isSpoilt)
        : size_(size), type_(type), value_(std::move(value)), isSpoilt_(isSpoilt) {}

    void read(const Box& box, void* destination, std::stop_token) const override {
        if (isSpoilt_)
            throw Error(ErrorKind::Unreadable, "the disk is broken",
                        {.file = "made", .byte = 8 * placeOf(box, 0)});
        if (type_ == ValueType::Int32)
            fill(box, static_cast<std::int32_t*>(destination));
        else
            fill(box, static_cast<double*>(destination));
    }

private:
    template <typename Value>
    void fill(const Box& box, Value* values) const {
        for (std::int64_t place = 0; place < box.count(); ++place)
            values[place] = static_cast<Value>(value_(placeOf(box, place)));
    }

    std::int64_t placeOf(const Box& box, std::int64_t place) const {
        const std::int64_t row = place / box.i.count();
        const std::int64_t i = box.i.first + place % box.i.count() * box.i.step;
        const std::int64_t j = box.j.first + row % box.j.count() * box.j.step;
        const std::int64_t k = box.k.first + row / box.j.count() * box.k.step;
        return i + size_.i * (j + size_.j * k);
    }

    Extent size_;
    ValueType type_;
    std::function<double(std::int64_t)> value_;
    bool isSpoilt_;
};

} // namespace

std::unique_ptr<OpenField> MadeFields::open(std::size_t zone, std::size_t variable) const {
    ++opened_;
    const Value& value = variables_[variable];
    return std::make_unique<MadeField>(
        size_, type(zone, variable),
        [value, zone](std::int64_t place) { return value(zone, place); },
        spoilt_.count({zone, variable}) > 0);
}

StatsSelection_s MadeFields::all(std::size_t zoneCount) const {
    StatsSelection_s selection;
    for (std::size_t variable = 0; variable < variables_.size(); ++variable)
        selection.variables.push_back(variable);
    for (std::size_t zone = 0; zone < zoneCount; ++zone)
        selection.zones.push_back({zone, Box::whole(size_)});
    return selection;
}

} // namespace plot3d::analysis
