// The scene in a window: turned, moved and zoomed by mouse and keys, and pointed at.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QTimer>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkCallbackCommand.h>
#include <vtkNew.h>
#include <vtkRenderer.h>

#include "stage/Stage.h"

namespace quorvia::host {

class SceneWidget : public QVTKOpenGLNativeWidget {
public:
    /// Gets what was clicked at; nothing for the background.
    using Picked = std::function<void(const std::optional<plot3d::scene::Picked_s>& picked)>;

    SceneWidget(Picked picked, QWidget* parent);
    ~SceneWidget() override;

    void showContent(std::shared_ptr<const plot3d::scene::SceneContent_s> content);
    /// As the content's own view has it.
    void resetCamera();
    /// From "+x", "-x", ... "-z" or "iso", with all in sight. Plane data stay as they are seen.
    void lookFrom(const std::string& direction);
    /// Above 1: nearer.
    void zoom(double factor);
    /// Degrees to the side and upwards; plane data stay as they are.
    void turn(double aside, double upwards);
    void mark(const std::optional<plot3d::scene::Vector3>& position);
    const plot3d::scene::Stage& stage() const { return *stage_; }
    /// A picture that took longer to draw is drawn with less detail while it is turned, moved or
    /// zoomed.
    void setSlowFrame(std::chrono::duration<double> time) { slowFrame_ = time; }

private:
    using Clock = std::chrono::steady_clock;
    void watchFrames();
    void frameBegins();
    void frameEnds();
    void beginMoving();
    void endMoving();
    /// By a key: what other keys follow at once is one movement.
    void moveByKey();
    bool isFlat() const;
    void pickAt(int x, int y);
    void draw();

    Picked picked_;
    vtkNew<vtkRenderer> renderer_;
    std::unique_ptr<plot3d::scene::Stage> stage_;
    vtkNew<vtkCallbackCommand> frameWatch_;
    Clock::time_point frameBegan_;
    std::chrono::duration<double> lastFullFrame_ = {};
    std::chrono::duration<double> slowFrame_ = std::chrono::milliseconds(60);
    QTimer rest_; // since the last key, or the last click at a slow picture
};

} // namespace quorvia::host
