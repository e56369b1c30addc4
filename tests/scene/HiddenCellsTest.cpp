// Cells that I-blank hides in a picture are those that a converted plane hides, as VTK reads it.
#include <array>
#include <cstdlib>
#include <set>
#include <string>

#include <vtkCell.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkStructuredGrid.h>
#include <vtkXMLMultiBlockDataReader.h>

#include "SceneFixture.h"

namespace plot3dtest {
namespace {

using plot3d::Extent;

constexpr Extent size{7, 6, 5};

std::vector<Extent> scatteredPoints() {
    std::vector<Extent> points;
    for (std::int64_t k = 0; k < size.k; ++k)
        for (std::int64_t j = 0; j < size.j; ++j)
            for (std::int64_t i = 0; i < size.i; ++i)
                if ((7 * i + 5 * j + 3 * k) % 13 == 0)
                    points.push_back({i, j, k});
    return points;
}

/// The sum of a cell's corners, which are multiples of 1/8: exact, and no two cells have the same.
using Corners = std::array<double, 3>;

template <class PointAt>
Corners sumOf(int count, const PointAt& pointAt) {
    Corners sum = {};
    for (int corner = 0; corner < count; ++corner)
        for (std::size_t axis = 0; axis < 3; ++axis)
            sum[axis] += pointAt(corner)[axis];
    return sum;
}

std::set<Corners> drawnCells(const plot3d::scene::Mesh_s& mesh) {
    std::set<Corners> cells;
    for (std::size_t first = 0; first < mesh.quads.size(); first += 4)
        cells.insert(sumOf(4, [&](int corner) {
            const auto point = mesh.quads[first + static_cast<std::size_t>(corner)];
            return &mesh.points[3 * static_cast<std::size_t>(point)];
        }));
    return cells;
}

std::set<Corners> visibleCells(const std::string& file) {
    vtkNew<vtkXMLMultiBlockDataReader> reader;
    reader->SetFileName(file.c_str());
    reader->Update();
    auto* const all = vtkMultiBlockDataSet::SafeDownCast(reader->GetOutput());
    auto* const grid = vtkStructuredGrid::SafeDownCast(all->GetBlock(0));
    std::set<Corners> cells;
    for (vtkIdType index = 0; index < grid->GetNumberOfCells(); ++index)
        if (grid->IsCellVisible(index) != 0)
            cells.insert(sumOf(4, [points = grid->GetCell(index)->GetPoints()](int corner) {
                return points->GetPoint(corner);
            }));
    return cells;
}

class HiddenCells : public SceneTest {
protected:
    HiddenCells() : data_(numbered(size, scatteredPoints())) {}

    std::string converted(const std::string& selection) const {
        const std::string result = folder_.file("plane.vtm");
        const std::string command = std::string(PLOT3D_PROGRAM) + " convert --quiet --overwrite " +
                                    folder_.file("numbered.x") + " " + selection + " -o " + result +
                                    " > /dev/null";
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        return result;
    }

    DataSet data_;
};

TEST_F(HiddenCells, AreThoseOfTheConvertedPlane) {
    for (const char* direction : {"i", "j", "k"})
        for (const char* index : {"1", "2", "4", "-1"}) {
            SCOPED_TRACE(std::string(direction) + " " + index);
            const auto content = prepared(data_, viewOf(std::string(direction) + "=" + index));
            const auto drawn = drawnCells(*content->parts.at(0).mesh);
            EXPECT_GT(content->parts[0].mesh->hiddenCells, 0);
            EXPECT_FALSE(drawn.empty());
            EXPECT_EQ(drawn, visibleCells(converted("--" + std::string(direction) + " " + index)));
        }
}

} // namespace
} // namespace plot3dtest
