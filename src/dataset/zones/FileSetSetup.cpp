#include "dataset/zones/FileSetSetup.h"

#include <algorithm>

#include "dataset/items/ItemContext.h"
#include "dataset/items/ItemDispatch.h"
#include "dataset/items/NotedOffsets.h"
#include "dataset/variables/VariableFit.h"
#include "dataset/zones/OffsetReuse.h"
#include "dataset/zones/ZoneFit.h"
#include "plot3dfile/file/OpenedFile.h"
#include "plot3dfile/layout/StyleRules.h"

namespace quorvia::quorutildataio {

namespace {

class FileSetSetup {
public:
    explicit FileSetSetup(const Plot3DFileSetRequest_s& request)
        : request_(request), options_(request.options), handler_(request.handler),
          context_(makeItemContext(request.options, request.firstZoneOfLoad, request.firstZone)) {}

    bool setUpGridFile() {
        if (!handler_.hasGridFile())
            return true;
        Plot3DFile_s& file = *handler_.gridFile;
        context_.firstVar = 1;
        if (!hasVariablesFor(file) || !allocateGridOffsets(file))
            return false;
        if (isPrimary() || !hasUniformGrids(options_))
            return scanGridFile(file);
        if (options_.gridFiles.size() == 1)
            return shareGrid();
        const Plot3DFile_s* primary = request_.firstHandler.gridFile;
        if (options_.solutionsShareStructure && primary != nullptr && canReuse(*primary))
            return fitsZones(*primary, request_) &&
                   reuseGridOffsets(*primary, options_, request_.firstZone, file);
        return scanGridFile(file);
    }

    bool setUpSolutionFile() {
        if (!handler_.hasSolutionFile())
            return true;
        Plot3DFile_s& file = *handler_.solutionFile;
        const OpenedFile opened(file);
        if (!opened)
            return false;
        if (takesGridFromEarlierZones() && !shareGrid())
            return false;
        context_.firstVar = request_.shape.gridVarCount() + 1;
        if (!hasVariablesFor(file) || !fitsZones(file, request_))
            return false;
        if (!isPrimary() && options_.solutionsShareStructure && canReuse(file))
            return takeOverOffsets(file) &&
                   reuseSolutionOffsets(file, options_, request_.firstZoneOfLoad,
                                        request_.firstZone, request_.shape.gridVarCount());
        return allocateSolutionOffsets(file) && scanFile(file, options_.gridSet, context_);
    }

    bool setUpFunctionFiles() {
        context_.firstVar = variablesAheadOfFunctions() + 1;
        for (Plot3DFile_s* file : handler_.functionFiles) {
            if (!hasVariablesFor(*file) || !scanFunctionFile(*file))
                return false;
            context_.firstVar += file->numVars;
        }
        return true;
    }

private:
    /// Whether this file set is the one that later ones take positions and grids from.
    bool isPrimary() const { return request_.isFirstFileSet; }

    /// The load was held against the variables of the data set before it began, but a host without
    /// memory may have added none.
    bool hasVariablesFor(const Plot3DFile_s& file) const {
        return checkVariablesFor(file, context_.firstVar, request_.shape.existingVarCount);
    }

    /// Positions stand for whole fields of a binary file; the rest has to be read through.
    bool canReuse(const Plot3DFile_s& file) const {
        return file.encoding != Plot3DEncoding_Ascii && !isSubsetTaken(file, options_);
    }

    /// On the first file set of a replaced solution the zones keep their own grid.
    bool takesGridFromEarlierZones() const {
        return !handler_.hasGridFile() && hasUniformGrids(options_) &&
               (!isPrimary() || options_.append || options_.hasGridFiles);
    }

    std::int32_t variablesAheadOfFunctions() const {
        return request_.shape.gridVarCount() +
               (handler_.hasSolutionFile() ? request_.shape.numSolutionVars : 0);
    }

    std::int64_t offsetCount(const Plot3DFile_s& file) const {
        return std::int64_t{file.numVars} * handler_.getNumGrids();
    }

    std::int64_t scalarCount(const Plot3DFileHandler& handler) const {
        if (QuorUtilSetIsEmpty(options_.gridSet))
            return handler.getNumGrids();
        // Members that name no grid have no scalars.
        return std::min<std::int64_t>(QuorUtilSetGetMemberCount(options_.gridSet),
                                      handler.getNumGrids());
    }

    /// A grid file that stands in several file sets has its arrays from the first.
    bool allocateGridOffsets(Plot3DFile_s& file) const {
        return (file.varOffsets ||
                allocateOffsets(file.varOffsets, offsetCount(file), "Primary Grid Offset Array")) &&
               (file.iBlankOffsets || allocateOffsets(file.iBlankOffsets, handler_.getNumGrids(),
                                                      "Primary IBlank Offset Array"));
    }

    bool allocateSolutionOffsets(Plot3DFile_s& file) const {
        return allocateOffsets(file.varOffsets, offsetCount(file),
                               "Primary Solution Offset Array") &&
               (!hasScalars(file) || allocateOffsets(file.auxDataOffsets, scalarCount(handler_),
                                                     "Primary Solution Aux Data Offset Array"));
    }

    bool takeOverOffsets(Plot3DFile_s& file) const {
        const Plot3DFile_s* primary = request_.firstHandler.solutionFile;
        if (primary == nullptr)
            return false;
        const std::int64_t fields =
            std::int64_t{handler_.getNumGrids()} * request_.shape.numSolutionVars;
        return copyOffsets(primary->varOffsets, file.varOffsets, fields,
                           "Subsequent Offset Array") &&
               (!primary->auxDataOffsets ||
                copyOffsets(primary->auxDataOffsets, file.auxDataOffsets,
                            scalarCount(request_.firstHandler), "Aux Data Offset Array"));
    }

    bool shareGrid() const {
        return shareGridVariables(options_, handler_, request_.shape.numSpatialVars,
                                  request_.firstZoneOfLoad, request_.firstZone,
                                  request_.shape.hasIBlank);
    }

    bool scanGridFile(Plot3DFile_s& file) { return openAndScan(file); }

    bool scanFunctionFile(Plot3DFile_s& file) {
        const OpenedFile opened(file);
        return opened && allocateFunctionOffsets(file, handler_.getNumGrids()) &&
               functionsFit(file) && scanFile(file, options_.gridSet, context_);
    }

    /// Told here if the load's own message names the solution or the grid file instead.
    bool functionsFit(const Plot3DFile_s& file) const {
        const bool fits = fitsZones(file, request_);
        if (!fits && (handler_.hasSolutionFile() || handler_.hasGridFile()))
            reportFileError(file, "The function file does not fit the grid.");
        return fits;
    }

    bool openAndScan(Plot3DFile_s& file) {
        const OpenedFile opened(file);
        return opened && fitsZones(file, request_) && scanFile(file, options_.gridSet, context_);
    }

    const Plot3DFileSetRequest_s& request_;
    const Plot3DLoadOptions_s& options_;
    Plot3DFileHandler& handler_;
    Plot3DItemContext_s context_;
};

} // namespace

bool setUpFileSet(const Plot3DFileSetRequest_s& request) {
    FileSetSetup setup(request);
    return setup.setUpGridFile() && setup.setUpSolutionFile() && setup.setUpFunctionFiles();
}

} // namespace quorvia::quorutildataio
