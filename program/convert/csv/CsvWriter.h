// Comma-separated values: a line of names, then one line for each point of each zone: the zone's
// number and time, the point's indices from 1 in the data set, the values. A field that a zone
// lacks leaves its places empty. docs/convert.md tells it to users.
#pragma once

#include "convert/Writer.h"

namespace plot3d::program {

class CsvWriter final : public Writer {
public:
    Written_s write(Contents& contents, const Target_s& target) override;
};

} // namespace plot3d::program
