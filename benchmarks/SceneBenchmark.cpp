// From files to the polygons of the outer surfaces with a variable's values, against VTK's own
// PLOT3D reader with its geometry filter: a curvilinear grid and a solution of 256 MB in the page
// cache; the next step of a series; whole pictures, by processes of their own; and memory.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vtkActor.h>
#include <vtkGeometryFilter.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkMultiBlockPLOT3DReader.h>
#include <vtkNew.h>
#include <vtkObject.h>
#include <vtkPNGWriter.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkWindowToImageFilter.h>

#include <plot3d/DataSet.h>

#include "content/Preparer.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "support/RatioReport.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

constexpr std::int32_t points = 203;     // in each direction: eight variables of 33 MB
constexpr std::int32_t manyPoints = 404; // of 264 MB
constexpr std::int32_t stepPoints = 64;  // of the series
constexpr std::size_t stepCount = 50;

void write(const std::string& path, plot3dwriter::FileKind_e kind, std::int32_t size, double time) {
    plot3dwriter::FileDescription_s contents;
    contents.kind = kind;
    contents.grids = {{size, size, size}};
    if (kind == plot3dwriter::FileKind_e::Grid) {
        // A bent block with volume.
        contents.value = [](std::int32_t, std::int32_t axis, std::int32_t i, std::int32_t j,
                            std::int32_t k) {
            return axis == 0   ? i + 5 * std::sin(0.02 * j)
                   : axis == 1 ? j + 5 * std::sin(0.02 * k)
                               : k + 5 * std::sin(0.02 * i);
        };
    } else {
        contents.scalars = {{0.5, 0, 1e6, time}};
        contents.value = [time](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                                std::int32_t k) {
            return 1 + variable + time + 0.01 * ((i * 31 + j * 17 + k * 7) % 1009);
        };
    }
    const auto outcome = plot3dwriter::writePlot3DFile(path, contents, {});
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
}

class Flow {
public:
    Flow() {
        write(grid(), plot3dwriter::FileKind_e::Grid, points, 0);
        write(solution(), plot3dwriter::FileKind_e::ClassicSolution, points, 0);
        write(stepGrid(), plot3dwriter::FileKind_e::Grid, stepPoints, 0);
        for (std::size_t step = 0; step < stepCount; ++step)
            write(stepSolution(step), plot3dwriter::FileKind_e::ClassicSolution, stepPoints,
                  static_cast<double>(step));
    }
    std::string grid() const { return directory_.file("flow.x"); }
    std::string solution() const { return directory_.file("flow.q"); }
    std::string stepGrid() const { return directory_.file("steps.x"); }
    std::string stepSolution(std::size_t step) const {
        return directory_.file("steps_" + std::to_string(step) + ".q");
    }
    std::string file(const std::string& name) const { return directory_.file(name); }

private:
    testsupport::TemporaryDirectory directory_;
};

const Flow& flow() {
    static const Flow written;
    return written;
}

constexpr std::size_t surfaceCells(std::size_t size) {
    return 6 * (size - 1) * (size - 1);
}

std::size_t oursFromFiles(const std::string& grid, const std::string& solution) {
    const auto data = plot3d::DataSet::open({grid, solution});
    const auto content = plot3d::scene::Preparer(data).prepare({});
    return content->parts.at(0).mesh->quads.size() / 4;
}

/// VTK's reader for density alone, and its filter for outer surfaces.
class VtkSurface {
public:
    explicit VtkSurface(const std::string& grid) {
        reader_->SetXYZFileName(grid.c_str());
        reader_->SetBinaryFile(true);
        reader_->SetMultiGrid(false);
        reader_->SetHasByteCount(false);
        reader_->SetByteOrderToLittleEndian();
        reader_->RemoveAllFunctions();
        constexpr int density = 100;
        reader_->SetScalarFunctionNumber(density);
        reader_->SetVectorFunctionNumber(-1);
    }
    vtkPolyData& of(const std::string& solution) {
        reader_->SetQFileName(solution.c_str());
        reader_->Update();
        filter_->SetInputData(reader_->GetOutput()->GetBlock(0));
        filter_->Update();
        return *filter_->GetOutput();
    }

private:
    vtkNew<vtkMultiBlockPLOT3DReader> reader_;
    vtkNew<vtkGeometryFilter> filter_;
};

void expectCells(benchmark::State& state, std::size_t cells, std::size_t size) {
    if (cells != surfaceCells(size))
        state.SkipWithError("the surface has not the cells that it should have");
}

void polygonsByUs(benchmark::State& state) {
    for (auto _ : state)
        expectCells(state, oursFromFiles(flow().grid(), flow().solution()), points);
}

void polygonsByVtk(benchmark::State& state) {
    for (auto _ : state) {
        VtkSurface surface(flow().grid());
        expectCells(state,
                    static_cast<std::size_t>(surface.of(flow().solution()).GetNumberOfPolys()),
                    points);
    }
}

void nextStepByUs(benchmark::State& state) {
    std::vector<std::string> files = {flow().stepGrid()};
    for (std::size_t step = 0; step < stepCount; ++step)
        files.push_back(flow().stepSolution(step));
    const auto data = plot3d::DataSet::open(files);
    plot3d::scene::Preparer preparer(data);
    plot3d::scene::View_s view;
    std::size_t step = 0;
    preparer.prepare(view);
    for (auto _ : state) {
        view.time = data.timeSteps()[++step % stepCount].time;
        expectCells(state, preparer.prepare(view)->parts.at(0).mesh->quads.size() / 4, stepPoints);
    }
}

void nextStepByVtk(benchmark::State& state) {
    VtkSurface surface(flow().stepGrid());
    surface.of(flow().stepSolution(0));
    std::size_t step = 0;
    for (auto _ : state)
        expectCells(state,
                    static_cast<std::size_t>(
                        surface.of(flow().stepSolution(++step % stepCount)).GetNumberOfPolys()),
                    stepPoints);
}

/// What this program does as --vtk-picture GRID SOLUTION PICTURE.
int drawByVtk(char** arguments) {
    VtkSurface surface(arguments[0]);
    vtkPolyData& polygons = surface.of(arguments[1]);
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputData(&polygons);
    double range[2];
    polygons.GetPointData()->GetScalars()->GetRange(range);
    mapper->SetScalarRange(range);
    vtkNew<vtkActor> actor;
    actor->SetMapper(mapper);
    vtkNew<vtkRenderer> renderer;
    renderer->AddActor(actor);
    renderer->ResetCamera();
    vtkNew<vtkRenderWindow> window;
    window->OffScreenRenderingOn();
    window->SetSize(1280, 960);
    window->AddRenderer(renderer);
    window->Render();
    vtkNew<vtkWindowToImageFilter> image;
    image->SetInput(window);
    image->ReadFrontBufferOff();
    vtkNew<vtkPNGWriter> writer;
    writer->SetInputConnection(image->GetOutputPort());
    writer->SetFileName(arguments[2]);
    writer->Write();
    return 0;
}

/// A process, and what it cost.
struct Cost_s {
    int code = -1;
    std::int64_t peakKilobytes = 0;
};

Cost_s costOf(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, usage.ru_maxrss};
}

void become(std::vector<std::string> words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execv(pointers.front(), pointers.data());
    _exit(127);
}

void pictureBy(benchmark::State& state, const std::vector<std::string>& words) {
    for (auto _ : state)
        if (costOf([&] { become(words); }).code != 0)
            state.SkipWithError("no picture was drawn");
}

std::vector<std::string> ourPicture() {
    return {PLOT3D_PROGRAM,          "render",      flow().grid(), flow().solution(), "-o",
            flow().file("ours.png"), "--overwrite", "--quiet"};
}

std::vector<std::string> vtkPicture() {
    return {"/proc/self/exe", "--vtk-picture", flow().grid(), flow().solution(),
            flow().file("vtk.png")};
}

/// Percent that the polygons take of what VTK's pipeline takes for them, by the work alone: what a
/// process that does nothing has is taken off.
double memoryBesideVtk(const std::string& grid, const std::string& solution) {
    const std::int64_t nothing = costOf([] {}).peakKilobytes;
    const std::int64_t ours =
        costOf([&] { oursFromFiles(grid, solution); }).peakKilobytes - nothing;
    const std::int64_t vtk = costOf([&] { VtkSurface(grid).of(solution); }).peakKilobytes - nothing;
    return 100.0 * static_cast<double>(ours) / static_cast<double>(vtk);
}

void compareMemory() {
    benchmarks::printCount("Memory for the polygons of 256 MB, of what VTK's pipeline takes",
                           memoryBesideVtk(flow().grid(), flow().solution()), 60, "%");
    if (std::getenv("PLOT3D_BENCHMARK_LONG") == nullptr)
        return;
    const testsupport::TemporaryDirectory directory;
    write(directory.file("big.x"), plot3dwriter::FileKind_e::Grid, manyPoints, 0);
    write(directory.file("big.q"), plot3dwriter::FileKind_e::ClassicSolution, manyPoints, 0);
    benchmarks::printCount("Memory for the polygons of 2 GB, of what VTK's pipeline takes",
                           memoryBesideVtk(directory.file("big.x"), directory.file("big.q")), 25,
                           "%");
}

} // namespace

int main(int argc, char** argv) {
    using benchmarks::Ratio_e;
    constexpr int ownArguments = 5;
    if (argc == ownArguments && std::string_view(argv[1]) == "--vtk-picture")
        return drawByVtk(argv + 2);
    vtkObject::GlobalWarningDisplayOff(); // its reader warns of each file's momentum
    compareMemory();                      // ahead of all threads
    const auto add = [](const char* name, auto work, auto... arguments) {
        return benchmark::RegisterBenchmark(name, work, arguments...)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    add("PolygonsByUs", polygonsByUs);
    add("PolygonsByVtk", polygonsByVtk);
    add("NextStepByUs", nextStepByUs);
    add("NextStepByVtk", nextStepByVtk);
    std::vector<benchmarks::RatioClaim_s> claims = {
        {"From files of 256 MB to the polygons of the outer surfaces with values, to VTK",
         "PolygonsByUs", "PolygonsByVtk", Ratio_e::SpeedAtLeast, 8},
        {"The next of 50 time steps without drawing, to VTK", "NextStepByUs", "NextStepByVtk",
         Ratio_e::SpeedAtLeast, 5}};
    if (std::getenv("DISPLAY") != nullptr) { // without one both would measure how one is started
        add("PictureByUs", pictureBy, ourPicture());
        add("PictureByVtk", pictureBy, vtkPicture());
        claims.push_back({"The whole picture of 256 MB, process and drawing included, to VTK",
                          "PictureByUs", "PictureByVtk", Ratio_e::SpeedAtLeast, 1.6});
    }
    return benchmarks::runAndCompare(argc, argv, claims);
}
