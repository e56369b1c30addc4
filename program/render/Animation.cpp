#include "render/Animation.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>

#include <plot3d/Error.h>

#include "manners/ProgressWatch.h"
#include "manners/ResultFile.h"
#include "render/ChildProcess.h"

namespace plot3d::program {

namespace {

namespace fs = std::filesystem;

std::size_t digitsFor(std::size_t count) {
    return std::max<std::size_t>(4, std::to_string(count).size());
}

std::string withoutExtension(const std::string& picture) {
    const fs::path path = picture;
    return (path.parent_path() / path.stem()).string();
}

/// A percent sign in a name is none of ffmpeg's.
std::string quotedForPattern(const std::string& name) {
    std::string quoted;
    for (const char letter : name)
        quoted += letter == '%' ? "%%" : std::string(1, letter);
    return quoted;
}

} // namespace

std::string numberedName(const std::string& picture, std::size_t index, std::size_t count) {
    std::string number = std::to_string(index + 1);
    number.insert(0, digitsFor(count) - number.size(), '0');
    return withoutExtension(picture) + "_" + number + fs::path(picture).extension().string();
}

std::string filmName(const std::string& picture) {
    return withoutExtension(picture) + ".mp4";
}

bool canMakeFilm() {
    return !programInPath("ffmpeg").empty();
}

void makeFilm(const std::string& picture, std::size_t count, bool overwrites,
              const std::stop_token& stop) {
    ResultFile film(filmName(picture), overwrites);
    const std::string pictures = quotedForPattern(withoutExtension(picture)) + "_%0" +
                                 std::to_string(digitsFor(count)) + "d" +
                                 fs::path(picture).extension().string();
    // Sides of an even number of pixels, which players need.
    ChildProcess ffmpeg(programInPath("ffmpeg"),
                        {"-y", "-loglevel", "error", "-framerate", "10", "-i", "file:" + pictures,
                         "-vf", "pad=ceil(iw/2)*2:ceil(ih/2)*2:color=white", "-pix_fmt", "yuv420p",
                         "-f", "mp4", "file:" + film.growingPath().string()});
    while (!ffmpeg.ended()) {
        throwIfStopped(stop);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    if (*ffmpeg.ended() != 0)
        throw Error(ErrorKind::Refused, "ffmpeg could not make the animation",
                    {.file = filmName(picture)});
    film.finish();
}

} // namespace plot3d::program
