#include "analysis/fields/DataSetFields.h"

#include <utility>

#include <plot3d/FieldReader.h>

namespace plot3d::analysis {
namespace {

class FieldOfFile final : public OpenField {
public:
    explicit FieldOfFile(FieldReader reader) : reader_(std::move(reader)) {}
    void read(const Box& box, void* destination, std::stop_token stop) const override {
        reader_.read(box, destination, std::move(stop));
    }

private:
    FieldReader reader_;
};

} // namespace

ValueType DataSetFields::type(std::size_t zone, std::size_t variable) const {
    return data_.type(zone, variable);
}

bool DataSetFields::isEmpty(std::size_t zone, std::size_t variable) const {
    return data_.kind(zone, variable) == FieldKind::Empty;
}

std::size_t DataSetFields::holder(std::size_t zone, std::size_t variable) const {
    return data_.holder(zone, variable);
}

std::unique_ptr<OpenField> DataSetFields::open(std::size_t zone, std::size_t variable) const {
    return std::make_unique<FieldOfFile>(data_.reader(zone, variable));
}

} // namespace plot3d::analysis
