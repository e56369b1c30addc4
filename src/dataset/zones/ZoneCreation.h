// The zones of a load at the host: their sizes, names, strands, parents, and how later time steps
// hang on the first.
#pragma once

#include <cstdint>

#include "dataset/variables/LoadShape.h"
#include "dataset/zones/StrandMap.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

constexpr std::int32_t maximumZoneNumber = 2147483646;

/// What stays the same over the file sets of one load, and the counts that run on from one to the
/// next.
struct Plot3DZoneStage_s {
    const Plot3DLoadOptions_s& options;
    const Plot3DFileHandler& firstHandler;
    const Plot3DLoadShape_s& shape;
    std::int32_t zoneBase; // zone of the load's first time step that later zones share with
    bool assignStrandIDs;
    bool replaceSolution;                 // the first file set rewrites zones that are there
    bool addVarsToGrid;                   // the same, and the zones get strands
    HostArray<std::int32_t>& varTypes;    // by variable, from 0
    QuorArgListHandle arguments;          // borrowed, for zone after zone
    QuorSetHandle zonesAdded;             // borrowed
    HostArray<std::int32_t>& parentZones; // by zone number minus 1
    Plot3DStrandMap_s strands;
    std::int32_t firstNewZone;         // zone of this file set's first selected grid
    std::int32_t runningGridCount = 1; // over all grids of all file sets
};

/// Deletes the zones beyond `zonesPerTimeStep` and gives the others the names of the first
/// handler's grids. Stores `zonesPerTimeStep` in `existingZoneCount`. False (not told): the
/// host refused a deletion or a name.
[[nodiscard]] bool adjustExistingZones(std::int32_t zonesPerTimeStep,
                                       const Plot3DFileHandler& firstHandler,
                                       const Plot3DLoadOptions_s& options,
                                       std::int32_t& existingZoneCount);

/// Adds the zones of one file set, counted from 0, and sets up their fields. False (told): too
/// many zones, no elements, or as setUpFileSet. False (not told): so, too, or the host refused a
/// zone.
[[nodiscard]] bool addZonesOfFileSet(Plot3DZoneStage_s& stage, Plot3DFileHandler& handler,
                                     std::int32_t fileSetIndex);

/// Whether a zone of this type (QuorZoneType_e) consists of elements that PLOT3D knows.
constexpr bool hasElements(std::int32_t zoneType) {
    return zoneType == QuorZoneType_Triangles || zoneType == QuorZoneType_Tetrahedra;
}

/// Whether a new zone of an unstructured solution, which knows no elements, could have those of
/// `zone`. False (told): it could not.
[[nodiscard]] bool checkElements(std::int32_t zone);

/// What one zone is made of beyond its grid.
struct Plot3DZoneRequest_s {
    std::int32_t baseZone; // zone of the same grid in the load's first time step
    bool shareNodeMap;     // with the base zone
    std::int32_t strand;   // from 1; noStrand for none
};

constexpr std::int32_t noStrand = -1;

/// Adds a zone behind the last one for a grid, counted from 0. False (told): there are
/// no elements for it. False (not told): the host refused it.
[[nodiscard]] bool addZoneForGrid(Plot3DZoneStage_s& stage, const Plot3DFileHandler& handler,
                                  std::int32_t gridIndex, const Plot3DZoneRequest_s& request);

} // namespace quorvia::quorutildataio
