// Texts for the parts of a view, as they are typed and saved.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "view/View.h"

namespace plot3d::scene {

/// All below throw Error (Usage) for a text that is none, naming what is expected.

/// "outer", "i=1,-1", "j=3", "k=2,5", "boundary" (all of them) or "boundary=wing*"; several,
/// separated by blanks or semicolons.
std::vector<SurfaceWish_s> surfacesFromText(std::string_view text);
std::string textOf(const SurfaceWish_s& surface);

/// "iso", "+x", "-x", ... "-z", or "X,Y,Z": from the data towards the eye.
Camera_s cameraFromText(std::string_view text);
/// "iso", "+x" and so on if it is one of them, otherwise its three numbers.
std::string textOfDirection(const Camera_s& camera);

/// "LEAST:MOST" or "LEAST,MOST", in this order and not equal.
Range_s rangeFromText(std::string_view text);

/// "j=3,k=1": the line along I there.
std::array<std::int64_t, 3> lineFromText(std::string_view text);

/// "1280x960": each from 64 to 16,384.
std::array<int, 2> sizeFromText(std::string_view text);

/// Red, green and blue from 0 to 1 of "white", "black", "grey" or "#RRGGBB".
Vector3 colourFromText(std::string_view text);

std::string_view wordOf(PlotKind_e plot);   // "auto", "3d", "2d", "xy"
std::string_view wordOf(BlankWish_e blank); // "hide", "show", "color"
std::optional<PlotKind_e> plotFromWord(std::string_view word);
std::optional<BlankWish_e> blankFromWord(std::string_view word);

/// "shown", "time", "all-times" or "zone=3": what the view's range is taken from where it is not
/// given.
std::string textOfRangeOver(const View_s& view);
/// Sets that, in place of a range that was given. Nothing happens to a text that is none of these.
bool takesRangeOver(View_s& view, std::string_view text);

} // namespace plot3d::scene
