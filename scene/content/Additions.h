// What is drawn beside the surfaces of a zone: its grid lines, arrows of a vector, its edges.
#pragma once

#include <cstddef>
#include <memory>
#include <stop_token>

#include <plot3d/DataSet.h>

#include "content/Choices.h"
#include "content/SceneContent.h"

namespace plot3d::scene {

std::shared_ptr<const GridLines_s> gridLinesOf(const Mesh_s& mesh);

/// Arrows at evenly chosen points of the mesh's patches, about `most` of them; only their values
/// are read. Null if the zone has no values of the vector. Unstructured zones have theirs at nodes
/// of their surface. Throws Error.
std::shared_ptr<const Arrows_s> arrowsOn(const DataSet& data, std::size_t zone, const Mesh_s& mesh,
                                         const VectorQuantity_s& vector, const Gas& gas,
                                         std::int64_t most, const std::stop_token& stop);

/// The edges of an ordered zone; null for another. Throws Error.
std::shared_ptr<const Outline_s> outlineOf(const DataSet& data, std::size_t zone,
                                           const std::stop_token& stop);

} // namespace plot3d::scene
