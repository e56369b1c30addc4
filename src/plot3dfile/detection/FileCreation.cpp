#include "plot3dfile/detection/FileCreation.h"

#include "plot3dfile/detection/EncodingSniffer.h"

namespace quorvia::quorutildataio {

namespace {

void measureAndSniff(Plot3DFile_s& file) {
    const std::int64_t size = file.stream->size();
    if (size >= 0)
        file.fileSize = size;
    rewindPlot3DFile(file);
    sniffEncoding(file);
}

} // namespace

Plot3DFilePtr createPlot3DFile(const std::string& fileName, bool deferOpen) {
    Plot3DFilePtr file = makePlot3DFile(fileName);
    if (file == nullptr || deferOpen || !openPlot3DFile(*file))
        return file;
    measureAndSniff(*file);
    closePlot3DFile(*file);
    return file;
}

} // namespace quorvia::quorutildataio
