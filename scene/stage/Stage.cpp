#include "stage/Stage.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <vtkActor.h>
#include <vtkCallbackCommand.h>
#include <vtkCamera.h>
#include <vtkContextActor.h>
#include <vtkContextScene.h>
#include <vtkLight.h>
#include <vtkLookupTable.h>
#include <vtkMapper.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>

#include "annotation/Annotation.h"
#include "annotation/Layout.h"
#include "annotation/LinePlot.h"
#include "annotation/MeshPick.h"
#include "colours/ColourMap.h"
#include "stage/CameraLink.h"
#include "stage/Overlay.h"
#include "stage/ZoneActors.h"

namespace plot3d::scene {

namespace {

double diagonalOf(const Bounds_s& bounds) {
    const double diagonal = bounds.isEmpty() ? 0
                                             : std::hypot(bounds.most[0] - bounds.least[0],
                                                          bounds.most[1] - bounds.least[1],
                                                          bounds.most[2] - bounds.least[2]);
    return diagonal > 0 ? diagonal : 1;
}

/// From beside the eye, so that surfaces look round, and a weaker one from the other side.
void addLights(vtkRenderer& renderer) {
    struct Light_s {
        Vector3 position;
        double intensity;
    };
    renderer.AutomaticLightCreationOff();
    for (const Light_s& one : {Light_s{{-0.4, 0.8, 1.2}, 0.8}, Light_s{{0.9, 0.1, 0.8}, 0.35}}) {
        vtkNew<vtkLight> light;
        light->SetLightTypeToCameraLight();
        light->SetPosition(one.position.data());
        light->SetFocalPoint(0, 0, 0);
        light->SetIntensity(one.intensity);
        renderer.AddLight(light);
    }
}

/// A cross that can be seen on light and on dark.
void addMark(const Pixel& at, const Layout_s& layout, Drawing_s& drawing) {
    const double arm = 9 * layout.unit;
    struct Stroke_s {
        double width;
        Rgb colour;
    };
    for (const Stroke_s& stroke :
         {Stroke_s{5, layout.inks.paper}, Stroke_s{2, layout.inks.strong}}) {
        const double width = stroke.width * layout.unit;
        drawing.lines.push_back(
            {{{at[0] - arm, at[1]}, {at[0] + arm, at[1]}}, width, stroke.colour});
        drawing.lines.push_back(
            {{{at[0], at[1] - arm}, {at[0], at[1] + arm}}, width, stroke.colour});
    }
}

Vector3 pointOf(const Mesh_s& mesh, std::int64_t point) {
    const double* at = &mesh.points[3 * static_cast<std::size_t>(point)];
    return {at[0], at[1], at[2]};
}

} // namespace

class Stage::Parts {
public:
    explicit Parts(vtkRenderer& renderer) : renderer_(renderer) {
        vtkMapper::SetResolveCoincidentTopologyToPolygonOffset();
        addLights(renderer_);
        overlayActor_->GetScene()->AddItem(overlay_);
        renderer_.AddActor(overlayActor_);
        layOutBefore_->SetClientData(this);
        layOutBefore_->SetCallback([](vtkObject*, unsigned long, void* parts, void*) {
            static_cast<Parts*>(parts)->layOut();
        });
        observer_ = renderer_.AddObserver("StartEvent", layOutBefore_);
    }

    ~Parts() {
        renderer_.RemoveObserver(observer_);
        renderer_.RemoveAllLights();
        renderer_.RemoveActor(overlayActor_);
    }

    void show(std::shared_ptr<const SceneContent_s> content) {
        const bool isNewPlot = !content_ || content_->view.plot != content->view.plot;
        content_ = std::move(content);
        refreshColours();
        showZones();
        const Inks_s inks = layout().inks;
        renderer_.SetBackground(inks.paper[0] / 255.0, inks.paper[1] / 255.0,
                                inks.paper[2] / 255.0);
        if (isNewPlot)
            setCamera(content_->view.camera);
    }

    const SceneContent_s* content() const { return content_.get(); }

    void setCamera(const Camera_s& camera) {
        if (!content_)
            return;
        const auto [width, height] = size();
        scene::setCamera(*renderer_.GetActiveCamera(), fitted(*content_, camera, layout().data),
                         width, height, depth());
    }

    Camera_s camera() const {
        Camera_s camera;
        if (!content_)
            return camera;
        const Projection_s now = projection();
        camera.direction = now.towards;
        camera.up = now.up;
        const Projection_s whole = fitted(*content_, camera, layout().data);
        camera.zoom = now.scale / whole.scale;
        camera.focus = now.centre;
        return camera;
    }

    void setDetail(Detail_e detail) {
        if (detail == detail_)
            return;
        detail_ = detail;
        if (content_)
            showZones();
    }

    Detail_e detail() const { return detail_; }
    void setPixelRatio(double ratio) { pixelRatio_ = ratio; }

    void layOut() {
        if (!content_)
            return;
        const auto [width, height] = size();
        // The data stay in the middle of their area when the window changes.
        Projection_s now = projection();
        now.at = layout().data.middle();
        scene::setCamera(*renderer_.GetActiveCamera(), now, width, height, depth());
        renderer_.ResetCameraClippingRange();
        Drawing_s drawing = annotationOf(*content_, layout(), now);
        if (const auto at = markedPixel(now))
            addMark(*at, layout(), drawing);
        overlay_->set(std::move(drawing));
        overlayActor_->GetScene()->SetDirty(true);
    }

    std::optional<Picked_s> pick(double x, double y);
    void mark(const std::optional<Vector3>& position) { mark_ = position; }

private:
    std::array<int, 2> size() const {
        const int* pixels = renderer_.GetSize();
        if (pixels[0] > 0 && pixels[1] > 0)
            return {pixels[0], pixels[1]};
        return content_ ? content_->view.size : View_s().size;
    }

    Layout_s layout() const {
        const auto [width, height] = size();
        return layoutOf(*content_, width, height, pixelRatio_);
    }

    Projection_s projection() const {
        const auto [width, height] = size();
        return projectionOf(*renderer_.GetActiveCamera(), width, height);
    }

    double depth() const { return 2 * diagonalOf(content_->bounds); }

    void refreshColours() {
        const auto table = ColourMap::named(content_->view.map).table();
        colours_->SetNumberOfTableValues(static_cast<vtkIdType>(table.size()));
        for (std::size_t index = 0; index < table.size(); ++index)
            colours_->SetTableValue(static_cast<vtkIdType>(index), table[index][0] / 255.0,
                                    table[index][1] / 255.0, table[index][2] / 255.0);
        colours_->SetNanColor(noValueColour[0] / 255.0, noValueColour[1] / 255.0,
                              noValueColour[2] / 255.0, 1);
        colours_->SetTableRange(content_->range.least, content_->range.most);
    }

    Style_s style() const {
        Style_s style;
        style.colours = colours_;
        style.isInSpace = content_->view.plot == PlotKind_e::Space;
        const Layout_s now = layout();
        style.lineWidth = std::max(1.0, now.unit);
        for (std::size_t part = 0; part < 3; ++part)
            style.ink[part] = now.inks.strong[part] / 255.0;
        style.isCoarse = detail_ == Detail_e::Coarse;
        double longest = 0;
        for (const ZonePart_s& part : content_->parts)
            if (part.arrows)
                longest = std::max(longest, part.arrows->longest);
        constexpr double shareOfDiagonal = 0.04;
        if (longest > 0)
            style.arrowLength = shareOfDiagonal * diagonalOf(content_->bounds) / longest;
        return style;
    }

    void showZones() {
        const std::vector<ZonePart_s>& parts = content_->parts;
        zones_.resize(std::min(zones_.size(), parts.size()));
        while (zones_.size() < parts.size())
            zones_.push_back(std::make_unique<ZoneActors>(renderer_));
        const Style_s common = style();
        for (std::size_t index = 0; index < parts.size(); ++index)
            zones_[index]->show(parts[index], *content_, common, index, parts.size());
    }

    std::optional<Pixel> markedPixel(const Projection_s& now) const {
        if (!mark_)
            return std::nullopt;
        if (content_->view.plot == PlotKind_e::Lines)
            return LinePlot(*content_, layout()).pixelOf((*mark_)[0], (*mark_)[1]);
        return now.pixelOf(*mark_);
    }

    std::optional<Picked_s> pickOnCurve(const Pixel& pixel) const;
    std::optional<Picked_s> pickOnSurfaces(const Pixel& pixel) const;

    vtkRenderer& renderer_;
    std::shared_ptr<const SceneContent_s> content_;
    Detail_e detail_ = Detail_e::Full;
    double pixelRatio_ = 1;
    std::vector<std::unique_ptr<ZoneActors>> zones_;
    vtkNew<vtkLookupTable> colours_;
    vtkNew<Overlay> overlay_;
    vtkNew<vtkContextActor> overlayActor_;
    vtkNew<vtkCallbackCommand> layOutBefore_;
    unsigned long observer_ = 0;
    std::optional<Vector3> mark_;
};

std::optional<Picked_s> Stage::Parts::pickOnCurve(const Pixel& pixel) const {
    const Layout_s now = layout();
    const auto found = LinePlot(*content_, now).nearest(pixel, /*reach=*/12 * now.unit);
    if (!found)
        return std::nullopt;
    const Curve_s& curve = content_->curves[found->curve];
    const double ordinate = curve.ordinates[found->point];
    return Picked_s{curve.zone,
                    placeOf(curve, found->point),
                    {curve.abscissas[found->point], ordinate, 0},
                    ordinate};
}

std::optional<Picked_s> Stage::Parts::pick(double x, double y) {
    if (!content_)
        return std::nullopt;
    if (content_->view.plot == PlotKind_e::Lines)
        return pickOnCurve({x, y});
    return pickOnSurfaces({x, y});
}

/// Where surfaces lie in one another, that of the first zone is in front, as it is drawn.
std::optional<Picked_s> Stage::Parts::pickOnSurfaces(const Pixel& pixel) const {
    const Projection_s now = projection();
    const double together = 1e-6 * diagonalOf(content_->bounds);
    std::optional<double> front;
    std::optional<Picked_s> picked;
    for (const ZonePart_s& part : content_->parts) {
        const auto hit = hitOf(*part.mesh, now, pixel, /*reach=*/4 * layout().unit);
        if (!hit || (front && hit->depth <= *front + together))
            continue;
        front = hit->depth;
        picked = Picked_s{part.zone, part.mesh->placeOf(hit->point),
                          pointOf(*part.mesh, hit->point), std::nullopt};
        if (part.values)
            picked->value = part.values->values[static_cast<std::size_t>(hit->point)];
    }
    return picked;
}

Stage::Stage(vtkRenderer& renderer) : parts_(std::make_unique<Parts>(renderer)) {}
Stage::~Stage() = default;

void Stage::show(std::shared_ptr<const SceneContent_s> content) {
    parts_->show(std::move(content));
}
const SceneContent_s* Stage::content() const {
    return parts_->content();
}
void Stage::setCamera(const Camera_s& camera) {
    parts_->setCamera(camera);
}
Camera_s Stage::camera() const {
    return parts_->camera();
}
void Stage::setDetail(Detail_e detail) {
    parts_->setDetail(detail);
}
Detail_e Stage::detail() const {
    return parts_->detail();
}
void Stage::setPixelRatio(double ratio) {
    parts_->setPixelRatio(ratio);
}
void Stage::layOut() {
    parts_->layOut();
}
std::optional<Picked_s> Stage::pick(double x, double y) {
    return parts_->pick(x, y);
}
void Stage::mark(const std::optional<Vector3>& position) {
    parts_->mark(position);
}

} // namespace plot3d::scene
