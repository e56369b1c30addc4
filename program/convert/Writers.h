// The Writer of each format.
#pragma once

#include <memory>

#include "convert/output/Format.h"
#include "convert/output/Writer.h"

namespace plot3d::program {

std::unique_ptr<Writer> makeWriter(Format_e format);

} // namespace plot3d::program
