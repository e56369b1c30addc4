#include "dataset/zones/AppendedFunctions.h"

#include "dataset/items/ItemContext.h"
#include "dataset/items/ItemDispatch.h"
#include "dataset/items/NotedOffsets.h"
#include "dataset/zones/ZoneFit.h"
#include "plot3dfile/file/OpenedFile.h"

namespace quorvia::quorutildataio {

namespace {

bool hasKnownStructure(const Plot3DFile_s& file) {
    return file.dataStructure >= Plot3DDataStructure_1D &&
           file.dataStructure <= Plot3DDataStructure_Unstructured;
}

/// The zones were made by other loads, of other files.
bool fits(const Plot3DFile_s& file, const Plot3DAppendedFunctions_s& request,
          std::int32_t firstZone) {
    if (file.numVars <= request.lastVar - request.firstVar + 1 &&
        fitsExistingZones(file, request.options, firstZone, request.zoneCount))
        return true;
    reportFileError(file, "The function file does not fit the zones that are there.");
    return false;
}

bool setUpFile(const Plot3DAppendedFunctions_s& request, const Plot3DFileHandler& handler,
               Plot3DItemContext_s& context) {
    Plot3DFile_s& file = *handler.functionFiles.front();
    const OpenedFile opened(file);
    if (!opened)
        return false;
    if (!allocateFunctionOffsets(file, handler.getNumGrids())) {
        reportFileError(file, "Out of memory.");
        return false;
    }
    if (!hasKnownStructure(file))
        return true; // there is nothing that could be scanned
    if (!fits(file, request, context.firstZone))
        return false;
    if (scanFile(file, request.options.gridSet, context))
        return true;
    if (file.stream->hadReadError()) // in the header, which is read in silence
        reportFileError(file, "The file could not be read.");
    return false;
}

} // namespace

bool setUpAppendedFunctions(const Plot3DAppendedFunctions_s& request,
                            std::vector<Plot3DFileHandler>& handlers) {
    constexpr std::int32_t firstZone = 1;
    Plot3DItemContext_s context = makeItemContext(request.options, firstZone, firstZone);
    context.firstVar = request.firstVar;
    for (const Plot3DFileHandler& handler : handlers) {
        if (context.firstZone > request.zoneCount)
            break;
        if (!setUpFile(request, handler, context))
            return false;
        const std::int32_t grids = handler.functionFiles.front()->numGrids;
        if (grids > request.zoneCount) // the next zone may not be a number any more
            break;
        context.firstZone += grids;
    }
    return true;
}

} // namespace quorvia::quorutildataio
