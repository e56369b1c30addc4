// Flat marks drawn over the renderer's scene.
#pragma once

#include <utility>

#include <vtkContextItem.h>

#include "annotation/Drawing.h"

namespace plot3d::scene {

class Overlay : public vtkContextItem {
public:
    static Overlay* New();
    void set(Drawing_s drawing) { drawing_ = std::move(drawing); }
    bool Paint(vtkContext2D* painter) override;

private:
    Drawing_s drawing_;
};

} // namespace plot3d::scene
