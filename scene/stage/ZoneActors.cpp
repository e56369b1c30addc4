#include "stage/ZoneActors.h"

#include <algorithm>

#include <vtkActor.h>
#include <vtkArrowSource.h>
#include <vtkCellArray.h>
#include <vtkContourFilter.h>
#include <vtkDoubleArray.h>
#include <vtkGlyph3D.h>
#include <vtkLookupTable.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>

#include "annotation/Annotation.h"

namespace plot3d::scene {

namespace {

Vector3 shareOf(const Rgb& colour) {
    return {colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0};
}

/// Lighter than the curves of a plot, so that lines stand out.
Vector3 zoneColour(std::size_t zone) {
    Vector3 colour = shareOf(curveColour(zone));
    for (double& part : colour)
        part = 0.45 * part + 0.55;
    return colour;
}

void setPlain(vtkActor& actor, vtkPolyData* data) {
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputData(data);
    mapper->ScalarVisibilityOff();
    actor.SetMapper(mapper);
    actor.VisibilityOn();
}

} // namespace

ZoneActors::ZoneActors(vtkRenderer& renderer) : renderer_(renderer) {
    surface_->SetMapper(mapper_);
    renderer_.AddActor(surface_);
    for (vtkActor* actor : {gridLines_.Get(), contours_.Get(), arrows_.Get(), outline_.Get()}) {
        actor->VisibilityOff();
        actor->PickableOff();
        renderer_.AddActor(actor);
    }
}

ZoneActors::~ZoneActors() {
    for (vtkActor* actor :
         {surface_.Get(), gridLines_.Get(), contours_.Get(), arrows_.Get(), outline_.Get()})
        renderer_.RemoveActor(actor);
}

void ZoneActors::show(const ZonePart_s& part, const SceneContent_s& content, const Style_s& style,
                      std::size_t rank, std::size_t count) {
    if (style.ink != ink_ || style.arrowLength != arrowLength_)
        forgetLines();
    ink_ = style.ink;
    arrowLength_ = style.arrowLength;
    showSurface(part, style);
    colourSurface(part, style);
    constexpr double mostUnits = 8;
    const double units = std::min(0.5, mostUnits / static_cast<double>(count));
    mapper_->SetRelativeCoincidentTopologyPolygonOffsetParameters(0, units *
                                                                         static_cast<double>(rank));
    showGridLines(part, style);
    showContours(part, content, style);
    showArrows(part, style);
    showOutline(part, style);
    part_ = part;
}

void ZoneActors::forgetLines() {
    part_.gridLines = nullptr;
    part_.arrows = nullptr;
    part_.outline = nullptr;
    contourCount_ = 0;
}

void ZoneActors::showSurface(const ZonePart_s& part, const Style_s& style) {
    if (part.mesh != part_.mesh) {
        full_ = polyDataOf(*part.mesh, Cells_e::All);
        coarse_ =
            part.mesh->coarseQuads.empty() ? nullptr : polyDataOf(*part.mesh, Cells_e::Coarse);
        part_.values = nullptr;
        forgetLines();
    }
    mapper_->SetInputData(style.isCoarse && coarse_ ? coarse_ : full_);
    vtkProperty& property = *surface_->GetProperty();
    property.SetLighting(style.isInSpace);
    // Colours that mean values keep close to those of the legend.
    const double ambient = !style.isInSpace ? 1 : part.values ? 0.5 : 0.3;
    property.SetAmbient(ambient);
    property.SetDiffuse(style.isInSpace ? 1.15 - ambient : 0);
    property.SetSpecular(0);
    property.SetLineWidth(static_cast<float>(2 * style.lineWidth));
    const Vector3 plain = zoneColour(part.zone);
    property.SetColor(plain[0], plain[1], plain[2]);
}

void ZoneActors::colourSurface(const ZonePart_s& part, const Style_s& style) {
    mapper_->SetScalarVisibility(part.values != nullptr);
    if (!part.values)
        return;
    mapper_->SetLookupTable(style.colours);
    mapper_->UseLookupTableScalarRangeOn();
    mapper_->InterpolateScalarsBeforeMappingOn();
    mapper_->SetScalarModeToUsePointData();
    if (part.values == part_.values)
        return;
    const vtkSmartPointer<vtkDoubleArray> values = arrayOf(part.values->values, 1);
    full_->GetPointData()->SetScalars(values);
    if (coarse_)
        coarse_->GetPointData()->SetScalars(values);
}

void ZoneActors::setLines(vtkActor& actor, vtkPolyData* lines, const Style_s& style,
                          double opacity) {
    setPlain(actor, lines);
    actor.GetMapper()->SetRelativeCoincidentTopologyLineOffsetParameters(-1, -12);
    vtkProperty& property = *actor.GetProperty();
    property.SetLighting(false);
    property.SetColor(style.ink[0], style.ink[1], style.ink[2]);
    property.SetLineWidth(static_cast<float>(style.lineWidth));
    property.SetOpacity(opacity);
}

void ZoneActors::showGridLines(const ZonePart_s& part, const Style_s& style) {
    if (part.gridLines && part.gridLines != part_.gridLines)
        setLines(*gridLines_, linesOf(part.mesh->points, part.gridLines->lines), style, 0.4);
    gridLines_->SetVisibility(part.gridLines && !style.isCoarse);
}

void ZoneActors::showContours(const ZonePart_s& part, const SceneContent_s& content,
                              const Style_s& style) {
    const int count =
        part.values && content.view.plot != PlotKind_e::Lines ? content.view.contours : 0;
    contours_->SetVisibility(count > 0 && !style.isCoarse);
    const bool isThere =
        count == contourCount_ && content.range == contourRange_ && part.values == part_.values;
    if (count == 0 || isThere)
        return;
    vtkNew<vtkContourFilter> filter;
    filter->SetInputData(full_);
    filter->ComputeScalarsOff();
    filter->ComputeNormalsOff();
    // The ends of the range are left out: there is nothing on their other side.
    const double step = (content.range.most - content.range.least) / (count + 1);
    for (int index = 0; index < count; ++index)
        filter->SetValue(index, content.range.least + (index + 1) * step);
    filter->Update();
    setLines(*contours_, filter->GetOutput(), style, 1);
    contourCount_ = count;
    contourRange_ = content.range;
}

void ZoneActors::showArrows(const ZonePart_s& part, const Style_s& style) {
    arrows_->SetVisibility(part.arrows && !style.isCoarse);
    if (!part.arrows || part.arrows == part_.arrows)
        return;
    vtkNew<vtkPoints> points;
    points->SetData(arrayOf(part.arrows->points, 3));
    vtkNew<vtkPolyData> places;
    places->SetPoints(points);
    places->GetPointData()->SetVectors(arrayOf(part.arrows->directions, 3));
    vtkNew<vtkArrowSource> arrow;
    arrow->SetTipResolution(12);
    arrow->SetShaftResolution(8);
    arrow->SetShaftRadius(0.025);
    arrow->SetTipRadius(0.09);
    arrow->SetTipLength(0.3);
    vtkNew<vtkGlyph3D> glyphs;
    glyphs->SetInputData(places);
    glyphs->SetSourceConnection(arrow->GetOutputPort());
    glyphs->SetVectorModeToUseVector();
    glyphs->SetScaleModeToScaleByVector();
    glyphs->SetScaleFactor(style.arrowLength);
    glyphs->Update();
    setPlain(*arrows_, glyphs->GetOutput());
    arrows_->GetProperty()->SetColor(style.ink[0], style.ink[1], style.ink[2]);
    arrows_->GetProperty()->SetLighting(style.isInSpace);
}

void ZoneActors::showOutline(const ZonePart_s& part, const Style_s& style) {
    outline_->SetVisibility(part.outline != nullptr);
    if (!part.outline || part.outline == part_.outline)
        return;
    vtkNew<vtkPoints> points;
    points->SetData(arrayOf(part.outline->points, 3));
    vtkNew<vtkCellArray> lines;
    for (const std::vector<int>& polyline : part.outline->polylines) {
        lines->InsertNextCell(static_cast<int>(polyline.size()));
        for (const int point : polyline)
            lines->InsertCellPoint(point);
    }
    vtkNew<vtkPolyData> data;
    data->SetPoints(points);
    data->SetLines(lines);
    setLines(*outline_, data, style, 1);
}

} // namespace plot3d::scene
