// PLOT3D files, in any encoding, precision, byte order and layout that can hold the contents.
#pragma once

#include "convert/Writer.h"

namespace plot3d::program {

class Plot3DWriter final : public Writer {
public:
    Written_s write(Contents& contents, const Target_s& target) override;
};

} // namespace plot3d::program
