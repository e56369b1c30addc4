// The field that lies in a file as it is.
#pragma once

#include "read/FieldValues.h"
#include "read/PieceBytes.h"

namespace plot3dlib {

class SourceValues final : public plot3d::FieldReader::Values {
public:
    /// See FieldReader.
    SourceValues(const plot3d::Source& source, const plot3d::Extent& size);

    void read(const plot3d::Box& box, void* destination,
              const std::stop_token& stop) const override;
    void readAsDouble(const plot3d::Box& box, double* destination,
                      const std::stop_token& stop) const override;
    std::int64_t bytesRead() const override { return bytes_.bytesRead(); }
    std::int64_t readCount() const override { return bytes_.readCount(); }

private:
    enum class Form_e : std::uint8_t { AsItIs, Reals64 };
    void readAs(Form_e form, const plot3d::Box& box, void* destination,
                const std::stop_token& stop) const;

    PieceBytes bytes_;
    bool isSwapped_; // against the machine's byte order
};

} // namespace plot3dlib
