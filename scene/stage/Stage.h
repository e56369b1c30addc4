// A scene in a renderer of VTK: fills it with what a SceneContent_s holds, and changes no more than
// what differs from the one before. Belongs to the thread that draws. The same for a picture and
// for a window.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "content/SceneContent.h"
#include "view/View.h"

class vtkRenderer;

namespace plot3d::scene {

/// What is under a pixel.
struct Picked_s {
    std::size_t zone = 0;        // index from 0
    Place_s place;               // the nearest point of the zone's grid, from 0
    Vector3 position = {};       // coordinates of that point; of a plot of lines where it stands
                                 // in the plot: abscissa and ordinate
    std::optional<double> value; // of what is coloured, there
};

enum class Detail_e : unsigned char {
    Full,
    Coarse // fewer cells, no lines and no arrows: for a view that is being turned
};

class Stage {
public:
    /// The renderer is borrowed and must outlive this; it should have no actors of others.
    explicit Stage(vtkRenderer& renderer);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// The camera stays as it is, but for the first content and for one of another kind of plot.
    void show(std::shared_ptr<const SceneContent_s> content);
    const SceneContent_s* content() const;

    /// To that direction, so that all fits (zoom 1), for the renderer's present size.
    void setCamera(const Camera_s& camera);
    /// What setCamera would need to come back here, also after a user has turned the view.
    Camera_s camera() const;

    void setDetail(Detail_e detail);

    /// To be called before each drawing where window or camera may have changed: sets legend, axes
    /// and title to them. (Stage does so itself at the renderer's StartEvent.)
    void layOut();

    /// Pixels of the window from its lower left corner. Nothing if there is no surface,
    /// of a plot of lines if no point of a curve is near.
    std::optional<Picked_s> pick(double x, double y);
    /// A cross at that point, or none.
    void mark(const std::optional<Vector3>& position);

private:
    class Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace plot3d::scene
