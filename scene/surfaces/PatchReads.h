// Box reads for the values of patches, cut into pieces of work for all cores.
#pragma once

#include <cstddef>
#include <functional>
#include <stop_token>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "surfaces/Mesh.h"

namespace plot3d::scene {

/// Where values go: that of point n of a mesh to values[n * stride].
struct Destination_s {
    double* values = nullptr;
    std::size_t stride = 1;
};

/// Pieces of work that know nothing of one another. What they read and fill must outlive them.
using Pieces = std::vector<std::function<void(const std::stop_token& stop)>>;

/// The field at the points of the patches. Planes of one direction come in one read, since planes
/// of constant I touch every row of the file.
void addFieldReads(Pieces& pieces, const DataSet& data, std::size_t zone, std::size_t variable,
                   const std::vector<Patch_s>& patches, Destination_s destination);

/// The same for a derived quantity; of a vector its length.
void addDerivedReads(Pieces& pieces, const DataSet& data, std::size_t zone,
                     const DerivedQuantity& quantity, const Gas& gas,
                     const std::vector<Patch_s>& patches, Destination_s destination);

/// The components of a vector become its lengths; one component alone stays as it is.
std::vector<double> lengthsOf(std::vector<std::vector<double>> components);

} // namespace plot3d::scene
