// NumPy's archive of arrays: one for each field under the key "<zone number>/<variable>", of shape
// (k, j, i); "<zone number>/elements" of shape (elements, corners) with node indices from 0 for an
// unstructured zone; "times" with the time of each zone. Each array is a file of NumPy's format 1.0
// (numpy.lib.format) in a zip archive.
#pragma once

#include "convert/Writer.h"

namespace plot3d::program {

class NpzWriter final : public Writer {
public:
    Written_s write(Contents& contents, const Target_s& target) override;
};

} // namespace plot3d::program
