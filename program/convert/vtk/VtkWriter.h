// VTK's XML formats: a .vtm with the zones of one time, or a .pvd with a .vtm for each time; the
// zones stand in a folder beside it. A single zone also goes into a .vts or .vtu alone.
#pragma once

#include "convert/Writer.h"

namespace plot3d::program {

class VtkWriter final : public Writer {
public:
    Written_s write(Contents& contents, const Target_s& target) override;
};

} // namespace plot3d::program
