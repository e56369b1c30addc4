// Numbered pictures, and a film of them.
#pragma once

#include <cstddef>
#include <stop_token>
#include <string>

namespace plot3d::program {

/// "out/wing_0007.png" of "out/wing.png" for the step of index 6; more digits where `count` needs
/// them.
std::string numberedName(const std::string& picture, std::size_t index, std::size_t count);

/// "out/wing.mp4" of "out/wing.png".
std::string filmName(const std::string& picture);

/// Whether ffmpeg is installed.
bool canMakeFilm();

/// Makes the film of the numbered pictures by ffmpeg, ten a second. On the main thread. Throws
/// plot3d::Error: Refused, Interrupted.
void makeFilm(const std::string& picture, std::size_t count, bool overwrites,
              const std::stop_token& stop);

} // namespace plot3d::program
