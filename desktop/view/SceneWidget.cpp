#include "desktop/view/SceneWidget.h"

#include <array>
#include <cstdlib>
#include <utility>

#include <vtkCallbackCommand.h>
#include <vtkCamera.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkInteractorStyleTrackballCamera.h>
#include <vtkObjectFactory.h>
#include <vtkRenderWindowInteractor.h>

#include "view/ViewWords.h"

namespace quorvia::host {

using plot3d::scene::Camera_s;
using plot3d::scene::Detail_e;
using plot3d::scene::PlotKind_e;

namespace {

constexpr int millisecondsOfRest = 250;

/// Turns what stands in space, moves what is plane, and tells a click from a drag.
class Hands : public vtkInteractorStyleTrackballCamera {
public:
    static Hands* New();
    vtkTypeMacro(Hands, vtkInteractorStyleTrackballCamera) Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;

    std::function<bool()> isFlat = [] { return false; };
    std::function<void(int x, int y)> clicked = [](int, int) {};
    std::function<void()> begins = [] {};
    std::function<void()> ends = [] {};
    std::function<double()> pixelRatio = [] { return 1.0; };

    void OnLeftButtonDown() override {
        const int* at = Interactor->GetEventPosition();
        pressedAt_ = {at[0], at[1]};
        isPressed_ = true;
    }
    /// What has begun is drawn anew when it ends, which a click has no time for: nothing begins
    /// before the hand has moved.
    void OnMouseMove() override {
        if (isPressed_ && !isAtPress())
            startDrag();
        vtkInteractorStyleTrackballCamera::OnMouseMove();
    }
    void OnLeftButtonUp() override {
        const int* at = Interactor->GetEventPosition();
        if (!std::exchange(isPressed_, false))
            vtkInteractorStyleTrackballCamera::OnLeftButtonUp();
        if (isAtPress())
            clicked(at[0], at[1]);
    }
    void StartState(int state) override {
        begins();
        vtkInteractorStyleTrackballCamera::StartState(state);
    }
    void StopState() override {
        ends();
        vtkInteractorStyleTrackballCamera::StopState();
    }
    void OnChar() override {} // the keys are the window's

protected:
    Hands() = default;

private:
    bool isAtPress() const {
        const int* at = Interactor->GetEventPosition();
        const double trembling = 3 * pixelRatio(); // pixels
        return std::abs(at[0] - pressedAt_[0]) <= trembling &&
               std::abs(at[1] - pressedAt_[1]) <= trembling;
    }
    void startDrag() {
        isPressed_ = false;
        if (!isFlat()) {
            vtkInteractorStyleTrackballCamera::OnLeftButtonDown();
            return;
        }
        FindPokedRenderer(pressedAt_[0], pressedAt_[1]);
        GrabFocus(EventCallbackCommand);
        StartPan();
    }

    std::array<int, 2> pressedAt_ = {};
    bool isPressed_ = false; // and nothing has begun yet
};
vtkStandardNewMacro(Hands);

} // namespace

SceneWidget::SceneWidget(Picked picked, QWidget* parent)
    : QVTKOpenGLNativeWidget(parent), picked_(std::move(picked)) {
    setObjectName(QStringLiteral("scene"));
    setFocusPolicy(Qt::StrongFocus);
    setEnableHiDPI(false); // the stage knows the screen; letters would be scaled twice
    setRenderWindow(vtkNew<vtkGenericOpenGLRenderWindow>().Get());
    renderWindow()->AddRenderer(renderer_);
    stage_ = std::make_unique<plot3d::scene::Stage>(*renderer_);
    const vtkNew<Hands> hands;
    hands->isFlat = [this] { return isFlat(); };
    hands->clicked = [this](int x, int y) { pickAt(x, y); };
    hands->begins = [this] { beginMoving(); };
    hands->ends = [this] { endMoving(); };
    hands->pixelRatio = [this] { return devicePixelRatioF(); };
    watchFrames();
    rest_.setSingleShot(true);
    rest_.setInterval(millisecondsOfRest);
    connect(&rest_, &QTimer::timeout, this, [this] {
        endMoving();
        draw();
    });
    interactor()->SetInteractorStyle(hands);
}

SceneWidget::~SceneWidget() {
    renderer_->RemoveObserver(frameWatch_);
}

// ---- Less detail rather than waiting ------------------------------------------------------------

void SceneWidget::watchFrames() {
    frameWatch_->SetClientData(this);
    frameWatch_->SetCallback([](vtkObject*, unsigned long event, void* widget, void*) {
        auto* self = static_cast<SceneWidget*>(widget);
        event == vtkCommand::StartEvent ? self->frameBegins() : self->frameEnds();
    });
    constexpr float aheadOfTheStage = 1;
    renderer_->AddObserver(vtkCommand::StartEvent, frameWatch_, aheadOfTheStage);
    renderer_->AddObserver(vtkCommand::EndEvent, frameWatch_);
}

void SceneWidget::frameBegins() {
    frameBegan_ = Clock::now();
    stage_->setPixelRatio(devicePixelRatioF()); // of the screen that the window is on now
}

void SceneWidget::frameEnds() {
    if (stage_->detail() != Detail_e::Full)
        return;
    renderWindow()->WaitForCompletion(); // drivers go on beside this thread
    lastFullFrame_ = Clock::now() - frameBegan_;
}

void SceneWidget::beginMoving() {
    if (lastFullFrame_ > slowFrame_)
        stage_->setDetail(Detail_e::Coarse);
}

void SceneWidget::endMoving() {
    stage_->setDetail(Detail_e::Full);
}

void SceneWidget::moveByKey() {
    beginMoving();
    rest_.start();
}

bool SceneWidget::isFlat() const {
    return stage_->content() != nullptr && stage_->content()->view.plot != PlotKind_e::Space;
}

void SceneWidget::showContent(std::shared_ptr<const plot3d::scene::SceneContent_s> content) {
    stage_->show(std::move(content));
    draw();
}

void SceneWidget::resetCamera() {
    if (stage_->content() == nullptr)
        return;
    stage_->setCamera(stage_->content()->view.camera);
    draw();
}

void SceneWidget::lookFrom(const std::string& direction) {
    if (isFlat())
        return;
    stage_->setCamera(plot3d::scene::cameraFromText(direction));
    draw();
}

void SceneWidget::zoom(double factor) {
    moveByKey();
    renderer_->GetActiveCamera()->Zoom(factor);
    draw();
}

void SceneWidget::turn(double aside, double upwards) {
    vtkCamera& camera = *renderer_->GetActiveCamera();
    if (isFlat())
        return;
    moveByKey();
    camera.Azimuth(aside);
    camera.Elevation(upwards);
    camera.OrthogonalizeViewUp();
    draw();
}

void SceneWidget::mark(const std::optional<plot3d::scene::Vector3>& position) {
    stage_->mark(position);
    if (lastFullFrame_ > slowFrame_)
        rest_.start(); // what was clicked at is told first
    else
        draw();
}

void SceneWidget::pickAt(int x, int y) {
    picked_(stage_->pick(x, y));
}

void SceneWidget::draw() {
    renderWindow()->Render();
}

} // namespace quorvia::host
