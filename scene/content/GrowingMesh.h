// The mesh of a zone on its way: coordinates and I-blank read, cells made, in pieces for all cores.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Watch.h>

#include "content/Choices.h"
#include "surfaces/ElementFaces.h"
#include "surfaces/Mesh.h"
#include "surfaces/PatchReads.h"

namespace plot3d::scene {

/// A mesh on its way: first its reads run, then build().
class GrowingMesh {
public:
    struct Wish_s {
        std::size_t zone = 0; // index from 0
        std::vector<SurfaceWish_s> surfaces;
        bool hidesBlanked = true;
        bool isInSpace = true; // has normals
    };

    /// The data set is borrowed.
    GrowingMesh(const DataSet& data, Wish_s wish);
    /// The object must stay where it is until they have run.
    void addReads(Pieces& pieces);
    /// Cells and normals, once the reads have run.
    void addBuilding(Pieces& pieces);
    /// Its patches and nodes are known, its cells are not.
    const Mesh_s& unfinished() const { return *mesh_; }
    /// The mesh, once the building has run; this is empty then.
    std::shared_ptr<const Mesh_s> take();

private:
    struct PatchWork_s;

    void buildElements();
    void joinPatches();

    const DataSet& data_;
    Wish_s wish_;
    std::shared_ptr<Mesh_s> mesh_;
    std::vector<double> blank_; // of each point; empty: none
    std::vector<std::shared_ptr<PatchWork_s>> patchWork_;
    Faces_s faces_;
};

} // namespace plot3d::scene
