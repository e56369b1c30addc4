// Plain arrays as VTK's data, borrowed and not copied: they must live as long as the data.
#pragma once

#include <cstdint>
#include <vector>

#include <vtkSmartPointer.h>

#include "surfaces/Mesh.h"

class vtkDoubleArray;
class vtkPolyData;

namespace plot3d::scene {

enum class Cells_e : unsigned char { All, Coarse };

/// Points, normals and cells of the mesh.
vtkSmartPointer<vtkPolyData> polyDataOf(const Mesh_s& mesh, Cells_e cells);

/// Lines between points of the mesh, two each.
vtkSmartPointer<vtkPolyData> linesOf(const std::vector<double>& points,
                                     const std::vector<std::int32_t>& lines);

/// Values with `componentCount` components each.
vtkSmartPointer<vtkDoubleArray> arrayOf(const std::vector<double>& values, int componentCount);

} // namespace plot3d::scene
