// What writes one format. Each format has a folder with a Writer of its own, all alike from here.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "convert/contents/Contents.h"
#include "convert/contents/FileForm.h"
#include "convert/output/Format.h"

namespace plot3d::program {

struct Target_s {
    std::string path; // what -o names
    bool overwrites = false;
    FormWishes_s form; // of PLOT3D files
};

struct Written_s {
    std::vector<std::string> files; // what the user goes on with, the first one first
    std::vector<std::string> notes; // what the format could not keep, one line each
};

class Writer {
public:
    virtual ~Writer() = default;
    /// Writes all contents. What the format can't hold is refused before anything is written. The
    /// result appears whole or not at all. Throws Error.
    virtual Written_s write(Contents& contents, const Target_s& target) = 0;
};

std::unique_ptr<Writer> makeWriter(Format_e format);

} // namespace plot3d::program
