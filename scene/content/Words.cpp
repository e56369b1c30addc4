#include "content/Words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "view/ViewWords.h"

namespace plot3d::scene {

namespace {

void addName(std::string& names, const std::vector<std::string>& files) {
    if (files.empty())
        return;
    names += (names.empty() ? "" : ", ") + std::filesystem::path(files.front()).filename().string();
    if (files.size() > 1)
        names += " to " + std::filesystem::path(files.back()).filename().string();
}

/// The place of the step's files in their lists. Steps are in the order of their times, zones in
/// that of the files.
std::size_t placeOfFiles(const DataSet& data, std::size_t timeStep) {
    const std::vector<TimeStep>& steps = data.timeSteps();
    return static_cast<std::size_t>(
        std::count_if(steps.begin(), steps.end(),
                      [&](const TimeStep& other) { return other.zones < steps[timeStep].zones; }));
}

std::string fileNames(const DataSet& data, std::size_t timeStep) {
    std::string names;
    const FileLists& files = data.files();
    for (const auto* list : {&files.grid, &files.solution, &files.function}) {
        if (list->size() == data.timeSteps().size() && list->size() > 1)
            addName(names, {(*list)[placeOfFiles(data, timeStep)]});
        else
            addName(names, *list);
    }
    return names;
}

std::string surfacesText(const View_s& view) {
    if (view.surfaces == View_s().surfaces)
        return "outer surface";
    std::string text;
    for (const SurfaceWish_s& surface : view.surfaces)
        text += (text.empty() ? "surfaces " : " ") + textOf(surface);
    return text;
}

/// A direction of any length to a thousandth of it: one that was turned to by hand has many digits.
Camera_s rounded(Camera_s camera) {
    double longest = 0;
    for (const double part : camera.direction)
        longest = std::max(longest, std::abs(part));
    const double steps = std::pow(10, 3 - std::round(std::log10(longest)));
    for (double& part : camera.direction)
        part = std::round(part * steps) / steps + 0.0; // without the sign of a zero
    return camera;
}

std::string viewText(const View_s& view) {
    if (view.plot == PlotKind_e::Plane)
        return "seen from above";
    return "view " + textOfDirection(rounded(view.camera));
}

} // namespace

std::string shortNumber(double number) {
    std::array<char, 32> text = {};
    std::snprintf(text.data(), text.size(), "%.4g", number == 0 ? 0.0 : number);
    return text.data();
}

std::string titleOf(const DataSet& data, const SceneContent_s& content) {
    std::string title = content.view.titleText;
    if (title.empty())
        title = fileNames(data, content.timeStep);
    if (title.empty())
        title = data.title();
    if (data.timeSteps().size() > 1)
        title += (title.empty() ? "time " : ", time ") +
                 shortNumber(data.timeSteps()[content.timeStep].time);
    return title;
}

std::string summaryOf(const SceneContent_s& content) {
    const View_s& view = content.view;
    std::string text;
    if (content.hasValues)
        text = content.colourName + " " + shortNumber(content.range.least) + " to " +
               shortNumber(content.range.most);
    if (view.plot == PlotKind_e::Lines)
        return text;
    text += (text.empty() ? "" : ", map " + view.map + ", ") + surfacesText(view) + ", " +
            viewText(view);
    std::int64_t hidden = 0;
    for (const ZonePart_s& part : content.parts)
        hidden += part.mesh->hiddenCells;
    if (hidden > 0)
        text += ", " + std::to_string(hidden) + " blanked cells hidden";
    return text;
}

} // namespace plot3d::scene
