#include "render/Studio.h"

#include <cstdlib>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace {

bool namesDisplay() {
    const char* const name = std::getenv("DISPLAY");
    return name != nullptr && *name != '\0';
}

[[noreturn]] void refuse(const std::string& problem) {
    ErrorFacts facts;
    facts.next = "install Xvfb (Debian: xvfb), which is then used by itself, or set DISPLAY";
    throw Error(ErrorKind::Unsupported, "no picture can be drawn: " + problem, std::move(facts));
}

} // namespace

Studio::Studio() {
    // Ahead of the library, which is loaded while it comes up.
    if (!namesDisplay() && VirtualDisplay::canBeStarted())
        display_.emplace();
    painter_ = loadedPainter();
}

void Studio::open(int width, int height, const std::stop_token& stop) {
    if (!display_) {
        const std::string problem = painter_->displayProblem();
        if (!problem.empty() && !VirtualDisplay::canBeStarted())
            refuse(problem);
        if (!problem.empty())
            display_.emplace();
    }
    if (display_)
        display_->use(stop);
    painter_->warmUp(width, height);
}

} // namespace plot3d::program
