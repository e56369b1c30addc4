#include "render/RenderCommand.h"

#include <algorithm>
#include <filesystem>
#include <future>
#include <utility>

#include <plot3d/Error.h>

#include "console/options/OptionTable.h"
#include "content/Preparer.h"
#include "manners/ResultFile.h"
#include "manners/Talk.h"
#include "render/Animation.h"
#include "render/Studio.h"
#include "view/ViewJson.h"

namespace plot3d::program {

namespace {

using Content = std::shared_ptr<const scene::SceneContent_s>;

void writePicture(const std::string& name, bool overwrites, scene::Painter& painter,
                  const Content& content) {
    ResultFile result(name, overwrites);
    const std::vector<std::uint8_t> bytes = painter.png(painter.paint(content));
    result.stream().write(reinterpret_cast<const char*>(bytes.data()),
                          static_cast<std::streamsize>(bytes.size()));
    result.finish();
}

/// Work on another thread, which is stopped and waited for when this goes, whatever happened.
template <typename Result>
class Beside {
public:
    Beside(const std::stop_token& stop, std::function<Result(std::stop_token)> work)
        : forward_(stop, [this] { source_.request_stop(); }),
          result_(std::async(std::launch::async, std::move(work), source_.get_token())) {}
    ~Beside() {
        source_.request_stop();
        if (result_.valid())
            result_.wait();
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    Result get() { return result_.get(); }

private:
    std::stop_source source_;
    std::stop_callback<std::function<void()>> forward_;
    std::future<Result> result_;
};

void tell(const Content& content, const Surroundings_s& surroundings) {
    for (const std::string& note : content->notes)
        tellWarning(surroundings, note);
}

void showResult(const std::string& file, const Surroundings_s& surroundings) {
    if (std::filesystem::is_regular_file(file)) // on /dev/stdout it would stand in the result
        surroundings.out << file << '\n';
}

void widen(std::optional<scene::Range_s>& range, const scene::Range_s& other) {
    if (!range)
        range = other;
    range->least = std::min(range->least, other.least);
    range->most = std::max(range->most, other.most);
}

} // namespace

const char* RenderCommand::purpose() const {
    return "Draw a picture of a data set";
}

const char* RenderCommand::examples() const {
    return "  plot3d render wing.x wing.q -o wing.png\n"
           "      the outer surfaces, coloured by density\n"
           "  plot3d render wing.x wing.q -o wing.png --surface k=1 --color pressure --contours "
           "12\n"
           "      one plane with contour lines of a derived quantity\n"
           "  plot3d render wing.x wing_t*.q -o wing.png --all-times\n"
           "      a picture of each time step, and an animation\n";
}

const char* RenderCommand::failureMeans() const {
    return "refused or failed; no part of a picture is left";
}

void RenderCommand::declare(console::OptionTable& table) {
    data_.declare(table);
    table.output(output_, overwrites_, "The picture, a PNG file");
    view_.declare(table);
    table.under("How it looks")
        .text("--save-view", savedView_, "FILE",
              "Write the view as JSON, for --view-file; without -o no picture is drawn");
}

void RenderCommand::refuseOutputs() const {
    if (output_.empty() && savedView_.empty())
        throw Error(ErrorKind::Usage, "no picture is named: -o PICTURE.png");
    const std::string ending = std::filesystem::path(output_).extension().string();
    if (!ending.empty() && ending != ".png" && ending != ".PNG")
        throw Error(ErrorKind::Usage, "pictures are PNG files, and \"" + ending +
                                          "\" says something else: -o PICTURE.png");
    if (!savedView_.empty())
        refuseExisting(savedView_, overwrites_);
    if (output_.empty() || view_.wantsAllTimes())
        return;
    refuseExisting(output_, overwrites_);
}

void RenderCommand::saveView(const scene::View_s& view) const {
    ResultFile result(savedView_, overwrites_);
    result.stream() << scene::toJson(view);
    result.finish();
}

void RenderCommand::drawOne(const DataSet& data, const scene::View_s& view,
                            const Surroundings_s& surroundings) const {
    Studio studio;
    scene::Preparer preparer(data, view_.gas());
    ProgressWatch progress(surroundings);
    Beside<Content> content(surroundings.stop, [&](std::stop_token stop) {
        Watch watch = progress.watch();
        watch.stop = std::move(stop);
        return preparer.prepare(view, watch);
    });
    studio.open(view.size[0], view.size[1], surroundings.stop);
    const Content ready = content.get();
    progress.clear();
    writePicture(output_, overwrites_, studio.painter(), ready);
    tell(ready, surroundings);
    showResult(output_, surroundings);
}

void RenderCommand::drawAll(const DataSet& data, scene::View_s view,
                            const Surroundings_s& surroundings) const {
    const std::size_t count = data.timeSteps().size();
    for (std::size_t step = 0; step < count; ++step)
        refuseExisting(numberedName(output_, step, count), overwrites_);
    const bool makesFilm = canMakeFilm() && count > 1;
    if (makesFilm)
        refuseExisting(filmName(output_), overwrites_);
    Studio studio;
    studio.open(view.size[0], view.size[1], surroundings.stop);
    scene::Preparer preparer(data, view_.gas());
    ProgressWatch progress(surroundings);
    const auto prepared = [&](std::size_t step, double first, double last) {
        progress.setPart(first, last);
        view.time = data.timeSteps()[step].time;
        return preparer.prepare(view, progress.watch());
    };
    // One range for all, so that colours mean the same in all pictures.
    const bool looksAhead = !view.range && view.rangeOver == scene::RangeOver_e::Shown;
    const double share = 1.0 / static_cast<double>(count);
    std::optional<scene::Range_s> range;
    for (std::size_t step = 0; looksAhead && step < count; ++step) {
        const auto done = static_cast<double>(step);
        const Content content = prepared(step, 0.4 * done * share, 0.4 * (done + 1) * share);
        if (content->hasValues)
            widen(range, content->range);
    }
    if (range)
        view.range = range;
    for (std::size_t step = 0; step < count; ++step) {
        const double at = 0.4 + 0.6 * static_cast<double>(step) * share;
        const Content content = prepared(step, at, at + 0.3 * share);
        throwIfStopped(surroundings.stop);
        const std::string name = numberedName(output_, step, count);
        progress.clear();
        writePicture(name, overwrites_, studio.painter(), content);
        tell(content, surroundings);
        showResult(name, surroundings);
    }
    progress.clear();
    if (!makesFilm)
        return tellNote(surroundings, "no animation: ffmpeg is not installed");
    makeFilm(output_, count, overwrites_, surroundings.stop);
    showResult(filmName(output_), surroundings);
}

int RenderCommand::run(const Surroundings_s& surroundings) {
    refuseOutputs();
    const DataSet data = data_.open(surroundings);
    const scene::View_s view = view_.view(data);
    if (!savedView_.empty())
        saveView(view);
    if (output_.empty())
        return ExitCode_Done;
    if (view_.wantsAllTimes())
        drawAll(data, view, surroundings);
    else
        drawOne(data, view, surroundings);
    return ExitCode_Done;
}

} // namespace plot3d::program
