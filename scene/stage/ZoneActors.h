// What is drawn of one zone.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include <vtkNew.h>
#include <vtkSmartPointer.h>

#include "content/SceneContent.h"
#include "stage/MeshData.h"

class vtkActor;
class vtkLookupTable;
class vtkPolyData;
class vtkPolyDataMapper;
class vtkRenderer;

namespace plot3d::scene {

/// What all zones of a content have in common.
struct Style_s {
    vtkLookupTable* colours = nullptr; // with the content's range
    bool isInSpace = true;
    double lineWidth = 1;   // pixels
    Vector3 ink = {};       // of lines and arrows
    double arrowLength = 1; // of an arrow of length 1 in the file, in coordinates
    bool isCoarse = false;
};

class ZoneActors {
public:
    /// The renderer is borrowed.
    explicit ZoneActors(vtkRenderer& renderer);
    ~ZoneActors();
    ZoneActors(const ZoneActors&) = delete;
    ZoneActors& operator=(const ZoneActors&) = delete;

    /// Makes anew what differs from the part before. `rank`: place of the zone among those shown,
    /// from 0, of `count`: where surfaces lie in one another the one of lower rank is in front.
    void show(const ZonePart_s& part, const SceneContent_s& content, const Style_s& style,
              std::size_t rank, std::size_t count);

private:
    /// All lines and arrows are made anew.
    void forgetLines();
    void showSurface(const ZonePart_s& part, const Style_s& style);
    void colourSurface(const ZonePart_s& part, const Style_s& style);
    void showGridLines(const ZonePart_s& part, const Style_s& style);
    void showContours(const ZonePart_s& part, const SceneContent_s& content, const Style_s& style);
    void showArrows(const ZonePart_s& part, const Style_s& style);
    void showOutline(const ZonePart_s& part, const Style_s& style);
    void setLines(vtkActor& actor, vtkPolyData* lines, const Style_s& style, double opacity);

    vtkRenderer& renderer_;
    ZonePart_s part_; // keeps alive what VTK borrows
    vtkSmartPointer<vtkPolyData> full_;
    vtkSmartPointer<vtkPolyData> coarse_; // null: the mesh has none
    vtkNew<vtkPolyDataMapper> mapper_;
    vtkNew<vtkActor> surface_;
    vtkNew<vtkActor> gridLines_;
    vtkNew<vtkActor> contours_;
    vtkNew<vtkActor> arrows_;
    vtkNew<vtkActor> outline_;
    Range_s contourRange_ = {0, 0};
    int contourCount_ = 0;
    Vector3 ink_ = {};
    double arrowLength_ = 0;
};

} // namespace plot3d::scene
