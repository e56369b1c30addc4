// Keeps a file open for a scope.
#pragma once

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Opens the file if it is closed; it is closed on every way out. Converts to false if it
/// does not open, which has been told.
class OpenedFile {
public:
    explicit OpenedFile(Plot3DFile_s& file)
        : file_(file), isOpen_(file.stream != nullptr || openPlot3DFile(file)) {}
    ~OpenedFile() { closePlot3DFile(file_); }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;
    explicit operator bool() const { return isOpen_; }

private:
    Plot3DFile_s& file_;
    const bool isOpen_;
};

} // namespace quorvia::quorutildataio
