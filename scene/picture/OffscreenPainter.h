// Pictures by VTK in a window that is never shown.
#pragma once

#include <memory>
#include <optional>

#include <vtkNew.h>
#include <vtkSmartPointer.h>

#include "picture/Display.h"
#include "picture/Painter.h"

class vtkRenderWindow;
class vtkRenderer;

namespace plot3d::scene {

class Stage;

class OffscreenPainter final : public Painter {
public:
    OffscreenPainter();
    ~OffscreenPainter() override;

    std::string displayProblem() override;
    void warmUp(int width, int height) override;
    Pixels_s paint(const std::shared_ptr<const SceneContent_s>& content) override;
    std::vector<std::uint8_t> png(const Pixels_s& pixels) const override;

private:
    void makeWindow(int width, int height);

    std::unique_ptr<DisplayLink> display_; // outlives the window
    vtkSmartPointer<vtkRenderer> renderer_;
    vtkSmartPointer<vtkRenderWindow> window_;
    std::unique_ptr<Stage> stage_;
};

} // namespace plot3d::scene
