// The fields of a data set of the library.
#pragma once

#include <plot3d/DataSet.h>

#include "analysis/fields/Fields.h"

namespace plot3d::analysis {

class DataSetFields final : public Fields {
public:
    /// The data set is borrowed.
    explicit DataSetFields(const DataSet& data) : data_(data) {}

    ValueType type(std::size_t zone, std::size_t variable) const override;
    bool isEmpty(std::size_t zone, std::size_t variable) const override;
    std::size_t holder(std::size_t zone, std::size_t variable) const override;
    std::unique_ptr<OpenField> open(std::size_t zone, std::size_t variable) const override;

private:
    const DataSet& data_;
};

} // namespace plot3d::analysis
