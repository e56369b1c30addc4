#include <plot3d/FieldReader.h>

#include <utility>

#include "read/BoxStrides.h"
#include "read/FieldValues.h"
#include "read/SourceValues.h"

namespace plot3d {

FieldReader::FieldReader(const Source& source, const Extent& size)
    : values_(std::make_unique<plot3dlib::SourceValues>(source, size)) {}

FieldReader::FieldReader(std::unique_ptr<Values> values) : values_(std::move(values)) {}

FieldReader::FieldReader(FieldReader&&) noexcept = default;
FieldReader& FieldReader::operator=(FieldReader&&) noexcept = default;
FieldReader::~FieldReader() = default;

ValueType FieldReader::type() const {
    return values_->type();
}

const Extent& FieldReader::size() const {
    return values_->size();
}

void FieldReader::read(const Box& box, void* destination, std::stop_token stop) const {
    plot3dlib::requireInside(box, size());
    if (box.count() > 0)
        values_->read(box, destination, stop);
}

void FieldReader::read(void* destination, std::stop_token stop) const {
    read(Box::whole(size()), destination, std::move(stop));
}

void FieldReader::readAsDouble(const Box& box, double* destination, std::stop_token stop) const {
    plot3dlib::requireInside(box, size());
    if (box.count() > 0)
        values_->readAsDouble(box, destination, stop);
}

std::int64_t FieldReader::bytesRead() const {
    return values_->bytesRead();
}

std::int64_t FieldReader::readCount() const {
    return values_->readCount();
}

} // namespace plot3d
