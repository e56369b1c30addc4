#include "plot3dfile/detection/StructureDetection.h"

#include <memory>
#include <new>
#include <utility>

#include "plot3dfile/detection/FileCreation.h"
#include "plot3dfile/detection/StructureTrials.h"
#include "plot3dfile/detection/StructureValidators.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

namespace {

const char* const describeByHandText =
    "Please manually describe the file on the File Structure tab "
    "of the advanced load dialog.";

void reportUndetected(const Plot3DFile_s& file) {
    // The two forms differ on purpose: users search for these texts as they are.
    const std::string kind =
        file.isSolutionOrFunction ? "solution/function file structure.\n" : "grid ";
    reportFileError(file, "Auto Detect cannot determine the Plot 3D " + kind + describeByHandText);
}

void reportOutOfMemory(const std::string& fileName) {
    try {
        QuorUtilDialogErrMsg(("Out of memory.\nFile: " + fileName).c_str());
    } catch (const std::bad_alloc&) {
        QuorUtilDialogErrMsg("Out of memory."); // there is none for the file's name either
    }
}

void reportMisdescribed(const Plot3DFile_s& file) {
    const std::string kind = file.isSolutionOrFunction ? "solution/function " : "grid ";
    reportFileError(file, "Plot3D " + kind +
                              "file format is inconsistent with manually supplied description.");
}

bool searchInBothWays(Plot3DFile_s& file) {
    return searchStructure(file) || (!file.stream->hadReadError() && searchOnceMore(file));
}

bool fitsDescription(Plot3DFile_s& file, const Plot3DLoadOptions_s& options) {
    file.relaxedChecks = true;
    file.isMultiGrid = options.isMultiGrid;
    file.style = options.style;
    file.dataStructure = options.dataStructure;
    if (tryPrecisions(file))
        return true;
    if (file.encoding != Plot3DEncoding_Binary)
        return false;
    file.byteSwap = true;
    return tryPrecisions(file);
}

/// Reuse needs a uniform load, and the structure of a text file is cheap to find but not to trust.
void settleSharedStructure(Plot3DLoadOptions_s& options, Plot3DFile_s& file) {
    if (file.encoding == Plot3DEncoding_Ascii || !hasUniformGrids(options))
        options.solutionsShareStructure = false;
    file.solutionsShareStructure = options.solutionsShareStructure;
}

bool detectOpenFile(Plot3DFile_s& file, Plot3DLoadOptions_s& options, bool isSolutionOrFunction) {
    settleSharedStructure(options, file);
    file.isSolutionOrFunction = isSolutionOrFunction;
    file.hasIBlank = !isSolutionOrFunction && options.asciiHasIBlank;
    file.isDoublePrecision = options.asciiIsDouble;
    const auto reportMisfit = options.autoDetect ? reportUndetected : reportMisdescribed;
    if (options.autoDetect ? searchInBothWays(file) : fitsDescription(file, options))
        return true;
    if (file.stream->hadReadError())
        reportFileError(file, unreadableText);
    else
        reportMisfit(file);
    return false;
}

bool openForDetection(Plot3DFile_s& file, const std::string& fileName) {
    if (!openPlot3DFile(file))
        return false;
    if (file.stream != nullptr)
        return true;
    QuorUtilDialogErrMsg(("Cannot open " + fileName + ".").c_str());
    return false;
}

bool isReusable(const Plot3DFileBuilder& builder, bool isSolutionOrFunction) {
    return builder.firstFile != nullptr && hasUniformGrids(builder.options) &&
           (!isSolutionOrFunction || builder.options.solutionsShareStructure);
}

/// Whether the file fits is not looked at: the options promise that the files are alike.
Plot3DFilePtr buildFromFirstFile(const Plot3DFile_s& firstFile, const std::string& fileName) {
    Plot3DFilePtr file;
    if (!copyPlot3DFile(firstFile, file, fileName))
        throw std::bad_alloc(); // it fails for nothing else
    if (!openPlot3DFile(*file))
        return nullptr;
    searchInBothWays(*file);
    const bool isRead = !file->stream->hadReadError();
    if (!isRead)
        reportFileError(*file, unreadableText);
    closePlot3DFile(*file);
    return isRead ? std::move(file) : nullptr;
}

/// Whether the first file of this list is the one that tells the load's style. Function files come
/// as a list of their own after the solution files, and speak only if there are no solution files.
bool tellsStyle(const Plot3DLoadOptions_s& options, const std::string& fileName,
                bool isSolutionOrFunction) {
    return isSolutionOrFunction &&
           (options.solutionFiles.empty() || options.solutionFiles.front() == fileName);
}

void noteDetectedStructure(Plot3DLoadOptions_s& options, const Plot3DFile_s& firstFile,
                           const std::string& fileName) {
    const bool isStyleTold = tellsStyle(options, fileName, firstFile.isSolutionOrFunction);
    if (isStyleTold)
        options.style = firstFile.style;
    if (!firstFile.isSolutionOrFunction || (isStyleTold && options.gridFiles.empty())) {
        options.dataStructure = firstFile.dataStructure;
        options.isMultiGrid = firstFile.isMultiGrid;
    }
}

Plot3DFilePtr buildRecord(Plot3DFileBuilder& builder, const std::string& fileName,
                          bool isSolutionOrFunction) {
    if (isReusable(builder, isSolutionOrFunction))
        return buildFromFirstFile(*builder.firstFile, fileName);
    Plot3DFilePtr file;
    if (!detectStructure(builder, file, fileName, isSolutionOrFunction))
        return nullptr;
    if (builder.firstFile == nullptr) {
        builder.firstFile = file.get();
        if (builder.options.autoDetect)
            noteDetectedStructure(builder.options, *file, fileName);
        return file;
    }
    return validateAgainstFirstFile(builder, *file, isSolutionOrFunction) ? std::move(file)
                                                                          : nullptr;
}

} // namespace

bool detectStructure(Plot3DFileBuilder& builder, Plot3DFilePtr& file, const std::string& fileName,
                     bool isSolutionOrFunction) {
    file = createPlot3DFile(fileName, false);
    if (file == nullptr)
        throw std::bad_alloc();
    const bool isDetected = openForDetection(*file, fileName) &&
                            file->encoding != Plot3DEncoding_Unknown && // told, or interrupted
                            detectOpenFile(*file, builder.options, isSolutionOrFunction);
    closePlot3DFile(*file);
    return isDetected;
}

bool validateAgainstFirstFile(Plot3DFileBuilder& builder, Plot3DFile_s& file,
                              bool isSolutionOrFunction) {
    std::unique_ptr<Plot3DFileStructureValidatorInterface> validator;
    if (isSolutionOrFunction)
        validator = std::make_unique<Plot3DNonGridFileStructureValidator>(*builder.firstFile,
                                                                          builder.options);
    else
        validator =
            std::make_unique<Plot3DGridFileStructureValidator>(*builder.firstFile, builder.options);
    return validator->validate(file);
}

Plot3DFilePtr buildPlot3DFile(Plot3DFileBuilder& builder, const std::string& fileName,
                              bool isSolutionOrFunction) {
    try {
        return buildRecord(builder, fileName, isSolutionOrFunction);
    } catch (const std::bad_alloc&) {
        reportOutOfMemory(fileName);
        return nullptr;
    }
}

} // namespace quorvia::quorutildataio
