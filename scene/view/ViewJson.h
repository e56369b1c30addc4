// The description of a view as JSON and back: schema "plot3d.view/1", told in docs/render.md.
#pragma once

#include <string>
#include <string_view>

#include "view/View.h"

namespace plot3d::scene {

/// Ends with a line end. What is as by default is left out, apart from the schema; read back it is
/// the same view.
std::string toJson(const View_s& view);

/// Throws Error (Refused) for what is no such description: with the byte where it is no JSON, or
/// else naming the member ("camera.zoom"), what is expected there and what was found. Members that
/// nobody knows are refused, with the name that may have been meant.
View_s viewFromJson(std::string_view text);

} // namespace plot3d::scene
