// The library's version, as a program that uses it was compiled and as it runs.
#pragma once

namespace plot3d {

/// "0.1.0": of the library that runs.
const char* version();

} // namespace plot3d
