#include "analysis/statistics/PieceReader.h"

namespace plot3d::analysis {

std::span<const std::int32_t> PieceReader::iBlankOf(const PlannedField_s& field, const Box& box) {
    if (!field.iBlank)
        return {};
    if (iBlank_.empty() || iBlankZone_ != field.zone || iBlankBox_ != box) {
        iBlank_.clear(); // a read that fails leaves none
        std::vector<std::int32_t> values(static_cast<std::size_t>(box.count()));
        fields_->open(field.zone, *field.iBlank)->read(box, values.data(), stop_);
        iBlank_ = std::move(values);
        iBlankZone_ = field.zone;
        iBlankBox_ = box;
    }
    return iBlank_;
}

} // namespace plot3d::analysis
