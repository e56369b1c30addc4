#include "plot3dfile/file/Plot3DFile.h"

#include <algorithm>
#include <new>
#include <utility>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

namespace {

void resetReadingState(Plot3DFile_s& file) {
    file.lookahead = ' ';
    file.repeatCount = 0;
    file.repeatValue = 0.0;
    file.recordLength = 0;
    file.nextRecordStart = 0;
}

/// Without what earlier trials left behind the last grid: it would cost each file of a long list as
/// much memory as all the rest of its record.
std::vector<Plot3DGridDims_s> gridsInUse(const Plot3DFile_s& file) {
    const auto length = std::clamp<std::int64_t>(file.numGrids, 0, std::ssize(file.gridDims));
    return {file.gridDims.begin(), file.gridDims.begin() + length};
}

void copyStructure(const Plot3DFile_s& source, Plot3DFile_s& copy) {
    static_cast<Plot3DFileStructure_s&>(copy) = source;
    copy.gridDims = gridsInUse(source);
}

} // namespace

std::string cannotOpenText(const std::string& fileName) {
    return "The file " + fileName + " could not be opened.";
}

Plot3DFilePtr makePlot3DFile(const std::string& fileName) {
    auto file = std::make_unique<Plot3DFile_s>();
    file->fileName = HostString::copyOf(fileName);
    return file->fileName ? std::move(file) : nullptr;
}

void destroyPlot3DFile(Plot3DFilePtr& file) {
    file.reset();
}

bool copyPlot3DFile(const Plot3DFile_s& source, Plot3DFilePtr& copy, const std::string& fileName) {
    copy = nullptr;
    try {
        Plot3DFilePtr made = makePlot3DFile(fileName);
        if (!made)
            return false;
        copyStructure(source, *made);
        copy = std::move(made);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool openPlot3DFile(Plot3DFile_s& file) {
    const std::string name = file.fileName.str();
    file.stream = FileStream::open(name);
    if (file.stream)
        return true;
    QuorUtilDialogErrMsg(cannotOpenText(name).c_str());
    return false;
}

bool closePlot3DFile(Plot3DFile_s& file) {
    file.stream.reset();
    resetReadingState(file);
    return true;
}

void rewindPlot3DFile(Plot3DFile_s& file) {
    static_cast<void>(file.stream->seek(0)); // fails for a negative position alone
    resetReadingState(file);
}

void reportFileError(const Plot3DFile_s& file, const std::string& text) {
    const std::string message = text + "\nFile: " + file.fileName.str();
    QuorUtilDialogErrMsg(message.c_str());
}

} // namespace quorvia::quorutildataio
