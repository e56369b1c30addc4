#include "plot3dfile/detection/FileCreation.h"

#include "plot3dfile/detection/EncodingSniffer.h"

namespace quorvia::quorutildataio {

namespace {

/// False: the file can't be read.
bool measureAndSniff(Plot3DFile_s& file) {
    const std::int64_t size = file.stream->size();
    if (size < 0)
        return false;
    file.fileSize = size;
    sniffEncoding(file);
    return !file.stream->hadReadError();
}

} // namespace

Plot3DFilePtr createPlot3DFile(const std::string& fileName, bool deferOpen) {
    Plot3DFilePtr file = makePlot3DFile(fileName);
    if (file == nullptr || deferOpen || !openPlot3DFile(*file))
        return file;
    if (!measureAndSniff(*file))
        reportFileError(*file, unreadableText);
    closePlot3DFile(*file);
    return file;
}

} // namespace quorvia::quorutildataio
