// A sample case: from the user's options to the files that make up a data set.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plot3dsample/SampleOptions.h"

namespace quorvia::plot3dsample {

/// A file to be written: a PLOT3D file, or text as it stands (a name or boundary file) if `text`
/// isn't empty.
struct SampleFile_s {
    std::string name; ///< without a directory, such that an import menu sorts it by its ending
    plot3dwriter::FileDescription_s description;
    std::string text;
};

/// A case refuses options that make no sense for it with UsageError.
struct SampleCase_s {
    std::string_view name;
    std::string_view summary; ///< for the help text
    std::vector<SampleFile_s> (*files)(const SampleOptions_s& options);
};

std::vector<SampleFile_s> cylinderFiles(const SampleOptions_s& options);
std::vector<SampleFile_s> vortexFiles(const SampleOptions_s& options);
std::vector<SampleFile_s> shockTubeFiles(const SampleOptions_s& options);
std::vector<SampleFile_s> ballFiles(const SampleOptions_s& options);
std::vector<SampleFile_s> mixingLayerFiles(const SampleOptions_s& options);
std::vector<SampleFile_s> functionFiles(const SampleOptions_s& options);

/// All cases, in the order of the help text.
const std::vector<SampleCase_s>& sampleCases();

/// Throws UsageError if there is no such case.
const SampleCase_s& sampleCaseNamed(std::string_view name);

} // namespace quorvia::plot3dsample
