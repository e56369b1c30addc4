// The state of one load, local to the driver.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "dataset/variables/LoadShape.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "quorvia/HostHandles.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::quorutildataio {

struct Plot3DLoadContext_s {
    explicit Plot3DLoadContext_s(Plot3DLoadOptions_s& loadOptions, bool selection)
        : options(loadOptions), fromSelection(selection) {}

    Plot3DLoadOptions_s& options; // borrowed, changed by the load
    bool fromSelection;           // the user chose the files
    Plot3DFileList gridFiles;     // in the order of the options' lists of names
    Plot3DFileList solutionFiles;
    Plot3DFileList functionFiles;
    std::vector<Plot3DFileHandler> fileSets; // one for each time step; they borrow the records
    Plot3DLoadShape_s shape;
    Plot3DDataStructure_e dataStructure = Plot3DDataStructure_Unknown;
    std::int32_t zonesPerTimeStep = 0;
    std::int32_t existingZoneCount = 0;
    std::int32_t firstNewZone = 0; // from 1
    bool assignStrandIDs = false;
    HostArray<std::int32_t> parentZones; // by zone number minus 1
    bool undoStarted = false;
    std::unique_ptr<TaskProgress> mainTask;
};

/// Whether a solution is appended to a data set that holds a grid alone: it goes onto the zones
/// that are there, like one that replaces another.
bool joinsLoneGrid(const Plot3DLoadContext_s& context);

/// How many of the file set's grids `gridSet` selects.
std::int32_t countSelectedGrids(const Plot3DLoadOptions_s& options,
                                const Plot3DFileHandler& fileSet);

} // namespace quorvia::quorutildataio
