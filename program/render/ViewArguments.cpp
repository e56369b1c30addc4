#include "render/ViewArguments.h"

#include <fstream>
#include <iterator>

#include <plot3d/Error.h>

#include "colours/ColourMap.h"
#include "console/options/OptionTable.h"
#include "selection/GasOptions.h"
#include "selection/NumberChecks.h"
#include "selection/NumberList.h"
#include "selection/TimeRange.h"
#include "view/ViewJson.h"
#include "view/ViewWords.h"

namespace plot3d::program {

namespace {

std::string mapWords() {
    std::string words;
    for (const std::string_view name : scene::ColourMap::names())
        words += (words.empty() ? "" : ", ") + std::string(name);
    return words;
}

void checkRange(const std::string& text) {
    scene::View_s view;
    if (!scene::takesRangeOver(view, text))
        scene::rangeFromText(text);
}

std::string aboveNothing(const std::string& text) {
    const std::string problem = notNegative(text);
    return problem.empty() && *realNumber(text) == 0 ? "a number above 0 is needed" : problem;
}

} // namespace

void ViewArguments::declare(console::OptionTable& table) {
    declareContents(table.under("What is shown"));
    declareLook(table.under("How it looks"));
}

void ViewArguments::declareContents(const console::OptionTable& options) {
    options.text("--color", colour_, "NAME",
                 "Variable, or derived quantity by word or number; none for plain surfaces "
                 "(default: the first variable of the solution)");
    options
        .text("--range", range_, "RANGE",
              "LEAST:MOST, values at the ends of the colours; or what they are taken from: the "
              "points shown (default), all points at that time (time), at all times "
              "(all-times), or of one zone (zone=NUMBER)")
        .check(parsedBy(checkRange));
    options.text("--time", time_, "TIME", "Solution time: the step at it, or first or last");
    options.flag("--all-times", allTimes_,
                 "A picture of each time step, numbered, with one range for all; and an animation "
                 "(.mp4) where ffmpeg is installed");
    options.text("--zones,--zone", zones_, "LIST", "Zones by number from 1, such as 1,3-5");
    options
        .list("--surface", surfaces_, "SURFACE",
              "outer; planes of indices such as k=1,-1 (-1 is the last); boundary=NAME of the "
              "boundary file, with * and ?; may come several times")
        .check(parsedBy(scene::surfacesFromText));
    options
        .text("--line", line_, "INDICES",
              "Plot values along one grid line of each zone: j=3,k=1 for that along I")
        .check(parsedBy(scene::lineFromText));
    options.text("--blank", blank_, "hide|show|color",
                 "What becomes of cells with a corner whose I-blank is 0 (default: hide); color "
                 "shows I-blank itself");
    options.flag("--lines", gridLines_, "Grid lines");
    options.number("--contours", contours_, "N", "Contour lines, spread evenly over the range")
        .check([](const std::string& text) { return wholeNumberBetween(text, 0, 1000); });
    options.text("--vectors", vectors_, "NAME",
                 "Arrows of velocity, another derived vector, or of variables A,B,C");
    options.flag("--outlines", outlines_, "Edges of the zones");
    declareGas(options, gas_, " for derived quantities");
}

void ViewArguments::declareLook(const console::OptionTable& options) {
    options
        .text("--map", map_, "NAME",
              "Colours: " + mapWords() + " (default: viridis); viridis-r turns them round")
        .check(parsedBy(scene::ColourMap::named));
    options
        .text("--view", direction_, "DIRECTION",
              "From where it is seen: iso (default), +x, -x, +y, -y, +z, -z, or X,Y,Z from the "
              "data towards the eye")
        .check(parsedBy(scene::cameraFromText));
    options.number("--zoom", zoom_, "FACTOR", "2 is twice as large as all that fits (default: 1)")
        .check(aboveNothing);
    options.text("--plot", plot_, "auto|3d|2d|xy",
                 "Surfaces in space, in their plane, or lines over a coordinate (default: auto, "
                 "by the dimensions of the grid)");
    options.text("--size", size_, "WIDTHxHEIGHT", "Pixels (default: 1280x960)")
        .check(parsedBy(scene::sizeFromText));
    options
        .text("--background", background_, "COLOR",
              "white (default), lightgrey, grey, dark, black or #RRGGBB")
        .check(parsedBy(scene::colourFromText));
    options.text("--title", title_, "TEXT", "Instead of the names of the files");
    options.flag("--no-axes", hidesAxes_, "Leave out the axes");
    options.flag("--no-legend", hidesLegend_, "Leave out the legend");
    options.flag("--no-title", hidesTitle_, "Leave out the title and the line below it");
    options.text("--view-file", viewFile_, "FILE",
                 "Begin with the view that --save-view wrote; options change it");
}

scene::View_s ViewArguments::startingView() const {
    if (viewFile_.empty())
        return {};
    std::ifstream in(viewFile_, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (!in)
        throw Error(ErrorKind::NotFound, "can't be read", {.file = viewFile_});
    try {
        return scene::viewFromJson(text);
    } catch (const Error& error) {
        ErrorFacts facts = error.facts();
        facts.file = viewFile_;
        throw Error(error.kind(), error.message(), std::move(facts));
    }
}

void ViewArguments::takeContents(scene::View_s& view, const DataSet& data) const {
    if (!colour_.empty())
        view.colour = colour_;
    if (!range_.empty() && !scene::takesRangeOver(view, range_))
        view.range = scene::rangeFromText(range_);
    if (!time_.empty()) {
        std::vector<double> times;
        for (const TimeStep& step : data.timeSteps())
            times.push_back(step.time);
        view.time = times[parseTimes(time_, times).front()];
    }
    if (!zones_.empty()) {
        view.zones = parseNumberList(zones_, data.zones().size(), "zone");
        for (std::size_t& zone : view.zones)
            ++zone;
    }
    if (!surfaces_.empty())
        view.surfaces.clear();
    for (const std::string& text : surfaces_)
        for (scene::SurfaceWish_s& surface : scene::surfacesFromText(text))
            view.surfaces.push_back(std::move(surface));
    if (!line_.empty())
        view.line = scene::lineFromText(line_);
    if (!blank_.empty())
        view.blank = *scene::blankFromWord(blank_);
    if (!vectors_.empty())
        view.vectors = vectors_;
    if (contours_ >= 0)
        view.contours = contours_;
    view.gridLines = view.gridLines || gridLines_;
    view.outlines = view.outlines || outlines_;
}

void ViewArguments::takeLook(scene::View_s& view) const {
    if (!map_.empty())
        view.map = map_;
    if (!direction_.empty()) {
        const scene::Camera_s camera = scene::cameraFromText(direction_);
        view.camera.direction = camera.direction;
        view.camera.up = camera.up;
        view.camera.focus.reset();
    }
    if (zoom_ > 0)
        view.camera.zoom = zoom_;
    if (!plot_.empty())
        view.plot = *scene::plotFromWord(plot_);
    if (!size_.empty())
        view.size = scene::sizeFromText(size_);
    if (!background_.empty())
        view.background = background_;
    if (!title_.empty())
        view.titleText = title_;
    view.axes = view.axes && !hidesAxes_;
    view.legend = view.legend && !hidesLegend_;
    view.title = view.title && !hidesTitle_;
}

scene::View_s ViewArguments::view(const DataSet& data) const {
    scene::View_s view = startingView();
    takeContents(view, data);
    takeLook(view);
    return view;
}

} // namespace plot3d::program
