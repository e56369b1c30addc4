// What is written into a picture about it: title, summary, notes.
#pragma once

#include <string>

#include <plot3d/DataSet.h>

#include "content/SceneContent.h"

namespace plot3d::scene {

/// Four digits at most: "0.7968", "1.5e-05".
std::string shortNumber(double number);

/// The view's own, or the names of the files; the time behind it where there are several.
std::string titleOf(const DataSet& data, const SceneContent_s& content);

/// "RHO 0.7 to 1.2, map viridis, outer surface, view iso".
std::string summaryOf(const SceneContent_s& content);

} // namespace plot3d::scene
