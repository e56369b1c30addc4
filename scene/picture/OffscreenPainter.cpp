#include "picture/OffscreenPainter.h"

#include <algorithm>

#include <plot3d/Error.h>
#include <vtkImageData.h>
#include <vtkPNGWriter.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkUnsignedCharArray.h>

#include "stage/Stage.h"

namespace plot3d::scene {

OffscreenPainter::OffscreenPainter() = default;

OffscreenPainter::~OffscreenPainter() {
    stage_.reset(); // ahead of the renderer that it is in
}

std::string OffscreenPainter::displayProblem() {
    if (!window_)
        display_ = std::make_unique<DisplayLink>();
    return display_->problem();
}

void OffscreenPainter::makeWindow(int width, int height) {
    if (!window_) {
        const std::string problem = displayProblem();
        if (!problem.empty())
            throw Error(ErrorKind::Refused, "no picture can be drawn: " + problem);
        window_ = vtkSmartPointer<vtkRenderWindow>::New();
        renderer_ = vtkSmartPointer<vtkRenderer>::New();
        window_->OffScreenRenderingOn();
        // Samples leave surfaces jagged in software, and don't go with what smooths edges.
        window_->SetMultiSamples(0);
        renderer_->UseFXAAOn();
        window_->SetDPI(72);
        window_->AddRenderer(renderer_);
        stage_ = std::make_unique<Stage>(*renderer_);
    }
    window_->SetSize(width, height);
}

void OffscreenPainter::warmUp(int width, int height) {
    makeWindow(width, height);
    window_->Render();
}

Pixels_s OffscreenPainter::paint(const std::shared_ptr<const SceneContent_s>& content) {
    const auto [width, height] = content->view.size;
    makeWindow(width, height);
    stage_->show(content);
    stage_->setCamera(content->view.camera);
    window_->Render();
    vtkNew<vtkUnsignedCharArray> colours;
    constexpr int ofBackBuffer = 0;
    window_->GetPixelData(0, 0, width - 1, height - 1, ofBackBuffer, colours);
    Pixels_s pixels{width, height, {}};
    const std::size_t rowBytes = 3 * static_cast<std::size_t>(width);
    pixels.rgb.resize(rowBytes * static_cast<std::size_t>(height));
    for (std::size_t row = 0; row < static_cast<std::size_t>(height); ++row) {
        const std::uint8_t* from =
            colours->GetPointer(0) + (static_cast<std::size_t>(height) - 1 - row) * rowBytes;
        std::copy(from, from + rowBytes, pixels.rgb.data() + row * rowBytes);
    }
    return pixels;
}

std::vector<std::uint8_t> OffscreenPainter::png(const Pixels_s& pixels) const {
    vtkNew<vtkImageData> image;
    image->SetDimensions(pixels.width, pixels.height, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 3);
    const std::size_t rowBytes = 3 * static_cast<std::size_t>(pixels.width);
    auto* const to = static_cast<std::uint8_t*>(image->GetScalarPointer());
    for (std::size_t row = 0; row < static_cast<std::size_t>(pixels.height); ++row)
        std::copy_n(pixels.rgb.data() + row * rowBytes, rowBytes,
                    to + (static_cast<std::size_t>(pixels.height) - 1 - row) * rowBytes);
    vtkNew<vtkPNGWriter> writer;
    writer->SetInputData(image);
    writer->WriteToMemoryOn();
    writer->Write();
    const vtkUnsignedCharArray& bytes = *writer->GetResult();
    auto& result = const_cast<vtkUnsignedCharArray&>(bytes);
    return {result.GetPointer(0), result.GetPointer(0) + result.GetNumberOfValues()};
}

} // namespace plot3d::scene
