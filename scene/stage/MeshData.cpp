#include "stage/MeshData.h"

#include <vtkCellArray.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkTypeInt32Array.h>

namespace plot3d::scene {

namespace {

/// VTK asks for arrays that it could change; it does not change these, and does not free them.
template <typename Array, typename Value>
vtkSmartPointer<Array> borrowed(const std::vector<Value>& values, int componentCount) {
    constexpr int isNotToBeFreed = 1;
    const auto array = vtkSmartPointer<Array>::New();
    array->SetNumberOfComponents(componentCount);
    array->SetArray(const_cast<Value*>(values.data()), static_cast<vtkIdType>(values.size()),
                    isNotToBeFreed);
    return array;
}

vtkSmartPointer<vtkTypeInt32Array> offsetsOf(std::size_t cellCount, std::int32_t cornerCount) {
    const auto offsets = vtkSmartPointer<vtkTypeInt32Array>::New();
    offsets->SetNumberOfValues(static_cast<vtkIdType>(cellCount) + 1);
    for (std::size_t cell = 0; cell <= cellCount; ++cell)
        offsets->SetValue(static_cast<vtkIdType>(cell),
                          static_cast<std::int32_t>(cell) * cornerCount);
    return offsets;
}

vtkSmartPointer<vtkCellArray> cellsOf(const std::vector<std::int32_t>& corners,
                                      std::int32_t cornerCount) {
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    cells->SetData(offsetsOf(corners.size() / static_cast<std::size_t>(cornerCount), cornerCount),
                   borrowed<vtkTypeInt32Array>(corners, 1));
    return cells;
}

vtkSmartPointer<vtkPolyData> withPoints(const std::vector<double>& points) {
    vtkNew<vtkPoints> shared;
    shared->SetData(arrayOf(points, 3));
    const auto data = vtkSmartPointer<vtkPolyData>::New();
    data->SetPoints(shared);
    return data;
}

} // namespace

vtkSmartPointer<vtkDoubleArray> arrayOf(const std::vector<double>& values, int componentCount) {
    return borrowed<vtkDoubleArray>(values, componentCount);
}

vtkSmartPointer<vtkPolyData> polyDataOf(const Mesh_s& mesh, Cells_e cells) {
    const vtkSmartPointer<vtkPolyData> data = withPoints(mesh.points);
    if (!mesh.normals.empty())
        data->GetPointData()->SetNormals(borrowed<vtkFloatArray>(mesh.normals, 3));
    if (!mesh.lines.empty())
        data->SetLines(cellsOf(mesh.lines, 2));
    if (!mesh.triangles.empty())
        data->SetPolys(cellsOf(mesh.triangles, 3));
    else
        data->SetPolys(cellsOf(cells == Cells_e::Coarse ? mesh.coarseQuads : mesh.quads, 4));
    return data;
}

vtkSmartPointer<vtkPolyData> linesOf(const std::vector<double>& points,
                                     const std::vector<std::int32_t>& lines) {
    const vtkSmartPointer<vtkPolyData> data = withPoints(points);
    data->SetLines(cellsOf(lines, 2));
    return data;
}

} // namespace plot3d::scene
