#include "PictureFixture.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPNGReader.h>

namespace plot3dtest {

namespace {

constexpr int blockSide = 8;
constexpr double tolerance = 20; // of 255

double meanDifference(const Pixels_s& one, const Pixels_s& other, int column, int row) {
    std::array<double, 3> sums = {};
    int count = 0;
    for (int y = row; y < std::min(row + blockSide, one.height); ++y)
        for (int x = column; x < std::min(column + blockSide, one.width); ++x, ++count)
            for (std::size_t part = 0; part < 3; ++part)
                sums[part] += one.at(x, y)[part] - other.at(x, y)[part];
    double most = 0;
    for (const double sum : sums)
        most = std::max(most, std::abs(sum) / count);
    return most;
}

std::string storedName(const std::string& name) {
    return PLOT3D_SOURCE_DIR "/docs/images/gallery/" + name + ".png";
}

} // namespace

Difference_s differenceOf(const Pixels_s& one, const Pixels_s& other) {
    Difference_s difference;
    if (one.width != other.width || one.height != other.height)
        return {1, 0, 0};
    for (int row = 0; row < one.height; row += blockSide)
        for (int column = 0; column < one.width; column += blockSide)
            if (meanDifference(one, other, column, row) > tolerance && difference.blocks++ == 0) {
                difference.firstColumn = column;
                difference.firstRow = row;
            }
    return difference;
}

Pixels_s readPicture(const std::string& file) {
    if (!std::filesystem::exists(file))
        return {};
    vtkNew<vtkPNGReader> reader;
    reader->SetFileName(file.c_str());
    reader->Update();
    vtkImageData& image = *reader->GetOutput();
    Pixels_s pixels{image.GetDimensions()[0], image.GetDimensions()[1], {}};
    for (int row = pixels.height - 1; row >= 0; --row)
        for (int column = 0; column < pixels.width; ++column)
            for (int part = 0; part < 3; ++part)
                pixels.rgb.push_back(static_cast<std::uint8_t>(
                    image.GetScalarComponentAsDouble(column, row, 0, part)));
    return pixels;
}

std::array<int, 2> PictureTest::pixelOf(const SceneContent_s& content, double x, double y,
                                        double z) {
    const auto [width, height] = content.view.size;
    const auto layout = plot3d::scene::layoutOf(content, width, height);
    const auto at =
        plot3d::scene::fitted(content, content.view.camera, layout.data).pixelOf({x, y, z});
    return {static_cast<int>(std::floor(at[0])), height - 1 - static_cast<int>(std::floor(at[1]))};
}

void PictureTest::expectAsStored(const std::string& name, const Pixels_s& pixels) {
    if (std::getenv("PLOT3D_UPDATE_GOLDEN") != nullptr) {
        const auto bytes = plot3d::scene::OffscreenPainter().png(pixels);
        std::ofstream(storedName(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        return;
    }
    const Difference_s difference = differenceOf(pixels, readPicture(storedName(name)));
    EXPECT_EQ(difference.blocks, 0) << name << " differs from the stored picture, first at column "
                                    << difference.firstColumn << ", row " << difference.firstRow;
}

View_s smallView() {
    View_s view;
    view.size = {480, 360};
    return view;
}

} // namespace plot3dtest
