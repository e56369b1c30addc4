// What the cases have in common: grids with a flow on them become a grid file and a file of values.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "plot3dsample/FlowState.h"
#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

/// Indices of a point, from 0.
struct PointIndex_s {
    std::int32_t grid = 0;
    std::int32_t i = 0;
    std::int32_t j = 0;
    std::int32_t k = 0;
};

struct Mesh_s {
    std::vector<plot3dwriter::GridDims_s> grids;
    std::function<Point_t(const PointIndex_s&)> point;
    std::function<std::int32_t(const PointIndex_s&)> iblank; ///< empty: 1 everywhere
    plot3dwriter::CornerFunction corner;                     ///< unstructured only
};

using FlowField = std::function<FlowState_s(const PointIndex_s&)>;

/// Equidistant points from `first` to `last`, of which there are `count`; `first` if only one.
double along(double first, double last, std::int32_t index, std::int32_t count);

/// The layout asked for, or the first of `accepted` if none is. Throws UsageError if the case does
/// not have it.
Layout_e chooseLayout(const SampleOptions_s& options, const std::vector<Layout_e>& accepted);

/// The same for the kind of the files beside the grid file.
FileKind_e chooseStyle(const SampleOptions_s& options, const std::vector<FileKind_e>& accepted);

/// All structured styles that exist in the layout, Classic first.
std::vector<FileKind_e> stylesOf(Layout_e layout);

/// The size asked for, what is not given taken from `usual`, and 1 where the layout has no such
/// direction. Throws UsageError if a direction that exists has fewer than 2 points.
plot3dwriter::GridDims_s chooseSize(const SampleOptions_s& options, Layout_e layout,
                                    const plot3dwriter::GridDims_s& usual);

/// Throw UsageError for an option that the case can't follow.
void refuseSteps(const SampleOptions_s& options);
void refuseIBlank(const SampleOptions_s& options);
void refuseSurface(const SampleOptions_s& options);
void refuseBoundaries(const SampleOptions_s& options);

/// The grid file `stem`.x.
SampleFile_s gridFile(const SampleOptions_s& options, std::string_view stem, Layout_e layout,
                      const Mesh_s& mesh);

/// The solution `stem`.q, or for FileKind_e::Function the same variables in `stem`.fun.
SampleFile_s flowFile(const SampleOptions_s& options, std::string_view stem, FileKind_e style,
                      Layout_e layout, const Mesh_s& mesh, const FlowField& flow,
                      const Reference_s& reference);

/// A name file for the variables of a flow in a function file.
SampleFile_s flowNameFile(std::string_view stem, Layout_e layout);

/// `stem`_t0.25 for a time; `lastTime` decides how wide, so that names sort as times do.
std::string stemAtTime(std::string_view stem, double time, double lastTime);

} // namespace quorvia::plot3dsample
