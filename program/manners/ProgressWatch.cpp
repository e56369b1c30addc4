#include "manners/ProgressWatch.h"

#include <algorithm>

#include <plot3d/Error.h>

namespace plot3d::program {
namespace {

constexpr auto aMoment = std::chrono::milliseconds(200);

} // namespace

int progressColumns(const Surroundings_s& surroundings) {
    constexpr int usualColumns = 80;
    switch (surroundings.progress) {
    case ProgressWish_e::Never:
        return 0;
    case ProgressWish_e::Always:
        return surroundings.errColumns > 0 ? surroundings.errColumns : usualColumns;
    case ProgressWish_e::Auto:
        break;
    }
    return surroundings.quiet ? 0 : surroundings.errColumns;
}

ProgressWatch::ProgressWatch(const Surroundings_s& surroundings)
    : line_(surroundings.err, progressColumns(surroundings)),
      firstShown_(Clock::now() + (surroundings.progress == ProgressWish_e::Always
                                      ? std::chrono::milliseconds(0)
                                      : aMoment)),
      stop_(surroundings.stop) {}

Watch ProgressWatch::watch() {
    return {[this](const Progress& progress) {
                show(first_ + (last_ - first_) * std::clamp(progress.fraction, 0.0, 1.0),
                     std::string(progress.text), progress.bytes);
            },
            stop_};
}

void ProgressWatch::setPart(double first, double last) {
    first_ = first;
    last_ = last;
}

void ProgressWatch::show(double fraction, const std::string& text, std::int64_t bytes) {
    if (Clock::now() >= firstShown_)
        line_.show(fraction, text, bytes);
}

void throwIfStopped(const std::stop_token& stop) {
    if (stop.stop_requested())
        throw Error(ErrorKind::Interrupted, "stopped");
}

} // namespace plot3d::program
