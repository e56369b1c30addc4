#include "desktop/view/ViewPanel.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QGridLayout>
#include <QImage>
#include <QShortcut>
#include <QSurfaceFormat>
#include <QVBoxLayout>

#include <vtkRenderWindow.h>

#include <plot3d/Error.h>

#include "content/Choices.h"
#include "desktop/parts/Texts.h"
#include "view/ViewJson.h"

namespace quorvia::host {

using plot3d::DataSet;
using plot3d::scene::Picked_s;
using plot3d::scene::SceneContent_s;
using plot3d::scene::View_s;

namespace {

constexpr int millisecondsBetweenLooks = 50;

plot3d::Extent largestOf(const DataSet& data) {
    plot3d::Extent largest;
    for (const plot3d::Zone& zone : data.zones()) {
        largest.i = std::max(largest.i, zone.size.i);
        largest.j = std::max(largest.j, zone.size.j);
        largest.k = std::max(largest.k, zone.size.k);
    }
    return largest;
}

/// "Zone 2  vortex_t0.25.q:1", and the point's indices from 1.
QString placeText(const DataSet& data, const Picked_s& picked) {
    return QStringLiteral("Zone %1  %2\ni %3  j %4  k %5")
        .arg(picked.zone + 1)
        .arg(shown(data.zones()[picked.zone].name))
        .arg(picked.place.i + 1)
        .arg(picked.place.j + 1)
        .arg(picked.place.k + 1);
}

/// "X = 1.5", of all variables that the zone has there.
QString valuesText(const DataSet& data, const Picked_s& picked) {
    const auto& [i, j, k] = picked.place;
    const plot3d::Box point = {{i, i, 1}, {j, j, 1}, {k, k, 1}};
    QStringList parts;
    for (std::size_t variable = 0; variable < data.variables().size(); ++variable)
        if (data.kind(picked.zone, variable) != plot3d::FieldKind::Empty)
            parts.append(QStringLiteral("%1 = %2").arg(
                shown(data.variables()[variable].name).trimmed(),
                shownNumber(data.values(picked.zone, variable, point).front())));
    return parts.join(QStringLiteral("   "));
}

} // namespace

void prepareViews() {
    QSurfaceFormat::setDefaultFormat(QVTKOpenGLNativeWidget::defaultFormat());
}

DataSetView* DataSetView::make(Events_s events, QWidget* parent) {
    return new ViewPanel(std::move(events), parent);
}

ViewPanel::ViewPanel(Events_s events, QWidget* parent)
    : DataSetView(parent), told_(std::move(events)),
      prepare_([this](const std::optional<std::string>& failure) { stayAsBefore(failure); }),
      read_([this](const std::optional<std::string>& failure) {
          values_->setText(shown(failure.value_or("")));
      }) {
    setObjectName(QStringLiteral("view"));
    addParts();
    addKeys();
    connect(&stateTimer_, &QTimer::timeout, this, [this] { showState(); });
    showDataSet(nullptr, {});
}

// ---- The parts ----------------------------------------------------------------------------------

ViewBar* ViewPanel::makeBar() {
    ViewBar::Events_s events;
    events.coloured = [this](const std::string& variable) { colourBy(variable); };
    events.cut = [this](const plot3d::scene::SurfaceWish_s& surfaces) {
        View_s view = wanted_;
        view.surfaces = {surfaces};
        want(std::move(view));
    };
    events.lookedFrom = [this](const std::string& direction) { scene_->lookFrom(direction); };
    return new ViewBar(std::move(events), this);
}

RangeBar* ViewPanel::makeRangeBar() {
    RangeBar::Events_s events;
    events.chosen = [this](const RangeBar::Choice_s& choice) {
        View_s view = wanted_;
        view.range = choice.kept;
        if (!choice.kept) { // else what it was taken from comes back with another variable
            view.rangeOver = choice.over;
            view.rangeZone = choice.zone;
        }
        want(std::move(view));
    };
    events.refused = [this](const QString& reason) { values_->setText(reason); };
    return new RangeBar(std::move(events), this);
}

void ViewPanel::addParts() {
    bar_ = makeBar();
    range_ = makeRangeBar();
    scene_ = new SceneWidget([this](const std::optional<Picked_s>& picked) { showPicked(picked); },
                             this);
    message_ = new QLabel(this);
    message_->setObjectName(QStringLiteral("viewMessage"));
    message_->setAlignment(Qt::AlignCenter);
    message_->setWordWrap(true);
    pages_ = new QStackedWidget(this);
    pages_->addWidget(message_);
    pages_->addWidget(scene_);
    times_ = new TimeBar([this](int step) { chooseStep(step); }, this);
    auto* layout = new QVBoxLayout(this);
    constexpr int margin = 6;
    layout->setContentsMargins(margin, margin, margin, 0);
    layout->addWidget(bar_);
    layout->addWidget(range_);
    layout->addWidget(pages_, 1);
    layout->addWidget(times_);
    layout->addWidget(makeFoot());
}

QWidget* ViewPanel::makeFoot() {
    values_ = new QLabel(this);
    values_->setObjectName(QStringLiteral("pointValues"));
    values_->setTextFormat(Qt::PlainText);
    values_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    values_->setWordWrap(true);
    values_->setAlignment(Qt::AlignTop);
    constexpr int linesOfValues = 3;
    values_->setMinimumHeight(linesOfValues * values_->fontMetrics().lineSpacing());
    auto* foot = new QWidget(this);
    auto* layout = new QGridLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(values_, 0, 0);
    progressRow_ = new WorkRow(prepare_, "cancelView", this);
    constexpr int progressWidth = 340;
    progressRow_->setFixedWidth(progressWidth);
    progressRow_->setAutoFillBackground(true); // over a long name
    // Beside the first lines, which are short: a click is answered also while something is
    // prepared.
    layout->addWidget(progressRow_, 0, 0, Qt::AlignTop | Qt::AlignRight);
    return foot;
}

void ViewPanel::addKeys() {
    const auto on = [this](const char* keys, auto act) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), scene_);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    constexpr double step = 10; // degrees
    constexpr double nearer = 1.25;
    on("Home", [this] { scene_->resetCamera(); });
    on("I", [this] { scene_->lookFrom("iso"); });
    for (const char* axis : {"x", "y", "z"}) {
        on(axis, [this, axis] { scene_->lookFrom(std::string("+") + axis); });
        on((std::string("Shift+") + axis).c_str(),
           [this, axis] { scene_->lookFrom(std::string("-") + axis); });
    }
    on("+", [this] { scene_->zoom(nearer); });
    on("=", [this] { scene_->zoom(nearer); }); // the same key without Shift
    on("-", [this] { scene_->zoom(1 / nearer); });
    on("Left", [this] { scene_->turn(step, 0); });
    on("Right", [this] { scene_->turn(-step, 0); });
    on("Up", [this] { scene_->turn(0, -step); });
    on("Down", [this] { scene_->turn(0, step); });
    on("PgDown", [this] { times_->goBy(1); });
    on("PgUp", [this] { times_->goBy(-1); });
    on("Space", [this] { times_->play(!times_->isPlaying()); });
}

// ---- What is shown ------------------------------------------------------------------------------

std::vector<std::string> ViewPanel::colourNames() const {
    const auto coordinates = plot3d::scene::coordinatesOf(*data_);
    std::vector<std::string> names;
    for (std::size_t variable = 0; variable < data_->variables().size(); ++variable)
        if (std::find(coordinates.begin(), coordinates.end(), variable) == coordinates.end())
            names.push_back(data_->variables()[variable].name);
    for (const std::optional<std::size_t>& coordinate : coordinates)
        if (coordinate)
            names.push_back(data_->variables()[*coordinate].name);
    return names;
}

void ViewPanel::showDataSet(std::shared_ptr<const DataSet> data, const std::string& whyNot) {
    data_ = std::move(data);
    preparer_ = data_ ? std::make_shared<plot3d::scene::Preparer>(*data_) : nullptr;
    isNew_ = true;
    hasNoZone_ = isOpening_ = false;
    wanted_ = taken_ = {};
    fixedRanges_.clear();
    values_->clear();
    bar_->setEnabled(data_ != nullptr);
    range_->setEnabled(data_ != nullptr);
    range_->setHasTimes(data_ && data_->timeSteps().size() > 1);
    range_->offerZone(1);
    range_->showChoice({}, {});
    std::vector<double> times;
    if (data_) {
        bar_->setChoices(colourNames(), largestOf(*data_));
        for (const plot3d::TimeStep& step : data_->timeSteps())
            times.push_back(step.time);
    }
    times_->setTimes(std::move(times));
    say(data_ ? std::string() : whyNot);
    want({});
}

void ViewPanel::colourBy(const std::string& variable) {
    View_s view = wanted_;
    view.colour = variable;
    view.range.reset();
    const auto fixed = fixedRanges_.find(shown(variable).trimmed().toStdString());
    if (fixed != fixedRanges_.end())
        view.range = fixed->second;
    want(std::move(view));
}

std::string ViewPanel::colour() const {
    return hasPicture() ? content()->colourName : std::string();
}

void ViewPanel::showZones(ZoneChoice zones) {
    hasNoZone_ = zones && zones->empty();
    View_s view = wanted_;
    view.zones = std::move(zones).value_or(std::vector<std::size_t>());
    want(std::move(view));
}

// The frame's alpha is a left-over of drawing, and means nothing.
bool ViewPanel::savePicture(const QString& file) {
    if (!hasPicture())
        return false;
    QImage picture = scene_->grabFramebuffer();
    picture.reinterpretAsFormat(QImage::Format_RGB32);
    return picture.save(file, "PNG");
}

std::string ViewPanel::viewText() const {
    if (!hasPicture())
        return {};
    View_s view = taken_;
    view.camera = scene_->stage().camera();
    const int* pixels = scene_->renderWindow()->GetSize();
    view.size = {pixels[0], pixels[1]};
    return plot3d::scene::toJson(view);
}

std::string ViewPanel::showView(const std::string& text) {
    if (!data_)
        return "there is no data set";
    try {
        View_s view = plot3d::scene::viewFromJson(text);
        isOpening_ = true;
        hasNoZone_ = false;
        want(std::move(view));
        return {};
    } catch (const plot3d::Error& refused) {
        return refused.message();
    }
}

void ViewPanel::chooseStep(int step) {
    View_s view = wanted_;
    view.time = data_->timeSteps()[static_cast<std::size_t>(step)].time;
    want(std::move(view));
}

void ViewPanel::want(View_s view) {
    wanted_ = std::move(view);
    if (!data_ || hasNoZone_) {
        prepare_.start([](const plot3d::Watch&) { return LatestWork::Finish([] {}); });
        if (data_)
            say("No zone is ticked in the tree.");
        return;
    }
    // The work keeps what it reads, also when the data set is replaced meanwhile.
    prepare_.start([this, data = data_, preparer = preparer_, wish = wanted_,
                    shown = themed(wanted_)](const plot3d::Watch& watch) -> LatestWork::Finish {
        auto content = preparer->prepare(shown, watch);
        return [this, content = std::move(content), wish] { take(content, wish); };
    });
    times_->setBusy(true);
    stateTimer_.start(millisecondsBetweenLooks);
}

/// White, as by default, stands for the paper of the desktop's theme.
View_s ViewPanel::themed(View_s view) const {
    const QColor paper = palette().color(QPalette::Base);
    constexpr int middle = 128; // of 255
    if (view.background == View_s().background && qGray(paper.rgb()) < middle)
        view.background = paper.name().toStdString();
    return view;
}

void ViewPanel::changeEvent(QEvent* event) {
    DataSetView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && data_)
        want(wanted_);
}

void ViewPanel::take(std::shared_ptr<const SceneContent_s> content, const View_s& view) {
    taken_ = view;
    scene_->mark(std::nullopt);
    scene_->showContent(std::move(content));
    const bool isOpened = std::exchange(isOpening_, false);
    if (std::exchange(isNew_, false) || isOpened)
        scene_->resetCamera();
    if (taken_.range)
        fixedRanges_[this->content()->colourName] = *taken_.range;
    else
        fixedRanges_.erase(this->content()->colourName);
    turnTo(scene_);
    if (isOpened)
        told_.opened(view.zones);
    showChoices();
    showState();
}

void ViewPanel::stayAsBefore(const std::optional<std::string>& failure) {
    times_->play(false);
    View_s first; // as new data are shown at first
    first.zones = wanted_.zones;
    if (isNew_ && failure && std::exchange(isOpening_, false) && wanted_ != first)
        return want(std::move(first));
    wanted_ = taken_;
    isOpening_ = false;
    hasNoZone_ = !isNew_ && !hasPicture();
    if (isNew_)
        say(failure.value_or("Cancelled."));
    else if (failure)
        values_->setText(shown(*failure));
    showChoices();
    showState();
}

void ViewPanel::showChoices() {
    if (content() == nullptr || isNew_)
        return;
    bar_->showChoice(content()->colourName, wanted_.surfaces.front());
    bar_->showDirections(content()->view.plot == plot3d::scene::PlotKind_e::Space);
    if (wanted_.range)
        range_->showChoice({.kept = wanted_.range}, content()->range);
    else
        range_->showChoice({wanted_.rangeOver, wanted_.rangeZone, {}}, content()->range);
    times_->showStep(static_cast<int>(content()->timeStep));
}

void ViewPanel::say(const std::string& text) {
    message_->setText(shown(text));
    turnTo(message_);
}

void ViewPanel::turnTo(QWidget* page) {
    const bool isNew = pages_->currentWidget() != page;
    pages_->setCurrentWidget(page);
    if (isNew)
        told_.changed();
}

void ViewPanel::showState() {
    const bool isRunning = prepare_.isRunning();
    times_->setBusy(isRunning);
    progressRow_->setVisible(isRunning);
    if (!isRunning) {
        stateTimer_.stop();
        return;
    }
    progressRow_->showState();
}

// ---- What is clicked at -------------------------------------------------------------------------

void ViewPanel::showPicked(const std::optional<Picked_s>& picked) {
    values_->clear();
    scene_->mark(picked ? std::optional(picked->position) : std::nullopt);
    if (!picked)
        return;
    told_.picked(picked->zone);
    readValues(*picked);
}

void ViewPanel::readValues(const Picked_s& picked) {
    values_->setText(placeText(*data_, picked));
    read_.start([this, data = data_, picked](const plot3d::Watch&) -> LatestWork::Finish {
        const QString text =
            placeText(*data, picked) + QLatin1Char('\n') + valuesText(*data, picked);
        return [this, text] { values_->setText(text); };
    });
}

} // namespace quorvia::host
