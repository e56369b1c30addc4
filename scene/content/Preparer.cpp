#include "content/Preparer.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include <plot3d/Error.h>
#include <plot3d/FieldReader.h>

#include "analysis/fields/IBlank.h"
#include "analysis/fields/ParallelWork.h"
#include "colours/ColourMap.h"
#include "content/Additions.h"
#include "content/Choices.h"
#include "content/Curves.h"
#include "content/GrowingMesh.h"
#include "content/WholeRange.h"
#include "content/Words.h"
#include "view/ViewWords.h"

namespace plot3d::scene {

namespace {

template <typename Thing>
using Kept = std::map<std::string, std::shared_ptr<const Thing>>;

constexpr std::int64_t arrowsInAll = 500;

template <typename Thing>
std::shared_ptr<const Thing> foundIn(const Kept<Thing>& kept, const std::string& key) {
    const auto found = kept.find(key);
    return found == kept.end() ? nullptr : found->second;
}

/// A little room where all values are the same, so that colours mean something.
Range_s spreadOut(const Range_s& range) {
    if (range.least < range.most)
        return range;
    const double room = range.least == 0 ? 1 : std::abs(range.least) * 1e-3;
    return {range.least - room, range.least + room};
}

std::shared_ptr<PointValues_s> roomForValues(const Mesh_s& mesh) {
    auto room = std::make_shared<PointValues_s>();
    room->values.resize(static_cast<std::size_t>(mesh.pointCount()));
    return room;
}

void findRange(PointValues_s& values, const Mesh_s& mesh) {
    const std::vector<char> drawn = drawnPoints(mesh);
    for (std::size_t point = 0; point < values.values.size(); ++point)
        if (drawn.empty() || drawn[point] != 0)
            widen(values.range, values.values[point]);
}

} // namespace

/// What the content before was made of, by what it was made from.
class Preparer::Cache {
public:
    Kept<Mesh_s> meshes;
    Kept<PointValues_s> values;
    Kept<GridLines_s> gridLines;
    Kept<Arrows_s> arrows;
    Kept<Outline_s> outlines;
    std::map<std::string, Range_s> ranges;
};

/// One preparation.
class Preparer::Work {
public:
    Work(const Preparer& preparer, const View_s& view, const Watch& watch)
        : preparer_(preparer), data_(preparer.data_), before_(*preparer.cache_), watch_(watch),
          content_(std::make_shared<SceneContent_s>()) {
        content_->view = view;
    }

    std::shared_ptr<const SceneContent_s> run();
    Cache takeCache() { return std::move(now_); }

private:
    struct Shown_s {
        ShownZone_s what;
        std::string meshKey;
        std::unique_ptr<GrowingMesh> growing;  // null: the mesh is there
        std::shared_ptr<PointValues_s> values; // on their way; null: there, or none
        std::string valuesKey;
    };

    void choose();
    void prepareSurfaces();
    void makeMeshes();
    void addAdditions();
    void settleRange();
    void settleWords();
    std::string meshKeyOf(const ShownZone_s& shown) const;
    std::string valuesKeyOf(const Shown_s& shown) const;
    bool hasQuantity(std::size_t zone) const;
    void addValueReads(Shown_s& shown, const Mesh_s& mesh, Pieces& pieces);
    std::vector<std::size_t> zonesOfRange();
    std::optional<Range_s> rangeOverZones();
    void runPieces(const Pieces& pieces, double first, double last, const char* text);
    int threads() const {
        return preparer_.threads_ > 0 ? preparer_.threads_ : analysis::coreCount();
    }
    View_s& view() { return content_->view; }

    const Preparer& preparer_;
    const DataSet& data_;
    const Cache& before_;
    Cache now_;
    const Watch& watch_;
    std::shared_ptr<SceneContent_s> content_;
    Quantity_s quantity_;
    std::vector<Shown_s> shown_;
};

void Preparer::Work::runPieces(const Pieces& pieces, double first, double last, const char* text) {
    analysis::WorkWatch_s watch;
    watch.stop = watch_.stop;
    if (watch_.progress)
        watch.progress = [&](double fraction) {
            watch_.progress({text, first + fraction * (last - first), -1});
        };
    analysis::inParallel(
        pieces.size(), threads(),
        [&](std::size_t index, std::size_t) { pieces[index](watch_.stop); }, watch);
}

void Preparer::Work::choose() {
    ColourMap::named(view().map);
    colourFromText(view().background);
    content_->timeStep = timeStepOf(data_, view());
    view().plot = plotOf(data_, view());
    quantity_ = colourOf(data_, view());
    view().colour = quantity_.isNothing() ? "none" : quantity_.name;
    if (quantity_.isNothing() && preparer_.isGridAlone()) // which is its lines
        view().gridLines = true;
    content_->colourName = quantity_.name;
    if (quantity_.derived != nullptr && quantity_.derived->components.size() == 3)
        content_->colourName += " magnitude";
    if (!data_.timeSteps().empty())
        view().time = data_.timeSteps()[content_->timeStep].time;
}

std::string Preparer::Work::meshKeyOf(const ShownZone_s& shown) const {
    std::string key = content_->view.plot == PlotKind_e::Space ? "space" : "plane";
    for (const auto& variable : coordinatesOf(data_))
        if (variable)
            key += " " + std::to_string(data_.holder(shown.zone, *variable));
    if (!coordinatesOf(data_)[0])
        key += " zone " + std::to_string(shown.zone);
    if (content_->view.blank == BlankWish_e::Hide)
        if (const auto iBlank = analysis::iBlankVariable(data_))
            key += " hides " + std::to_string(data_.holder(shown.zone, *iBlank));
    for (const SurfaceWish_s& surface : shown.surfaces)
        key += " " + textOf(surface);
    return key;
}

std::string Preparer::Work::valuesKeyOf(const Shown_s& shown) const {
    if (quantity_.variable)
        return shown.meshKey + " | " + std::to_string(*quantity_.variable) + " of " +
               std::to_string(data_.holder(shown.what.zone, *quantity_.variable));
    return shown.meshKey + " | " + quantity_.name + " of " + std::to_string(shown.what.zone);
}

bool Preparer::Work::hasQuantity(std::size_t zone) const {
    std::string reason;
    if (quantity_.derived != nullptr)
        return canDerive(data_, zone, *quantity_.derived, reason);
    return quantity_.variable && data_.kind(zone, *quantity_.variable) != FieldKind::Empty;
}

void Preparer::Work::addValueReads(Shown_s& shown, const Mesh_s& mesh, Pieces& pieces) {
    const Destination_s destination{shown.values->values.data(), 1};
    const std::size_t zone = shown.what.zone;
    if (!mesh.nodes.empty())
        pieces.push_back([this, zone, &mesh, destination](const std::stop_token& stop) {
            const Box whole = Box::whole(data_.zones()[zone].size);
            std::vector<double> all(static_cast<std::size_t>(whole.count()));
            if (quantity_.derived != nullptr)
                all = lengthsOf(derive(data_, zone, *quantity_.derived, preparer_.gas_, stop));
            else
                data_.reader(zone, *quantity_.variable).readAsDouble(whole, all.data(), stop);
            for (std::size_t point = 0; point < mesh.nodes.size(); ++point)
                destination.values[point] = all[static_cast<std::size_t>(mesh.nodes[point])];
        });
    else if (quantity_.derived != nullptr)
        addDerivedReads(pieces, data_, zone, *quantity_.derived, preparer_.gas_, mesh.patches,
                        destination);
    else
        addFieldReads(pieces, data_, zone, *quantity_.variable, mesh.patches, destination);
}

void Preparer::Work::prepareSurfaces() {
    for (ShownZone_s& what : shownZones(data_, view(), content_->timeStep)) {
        Shown_s shown;
        shown.meshKey = meshKeyOf(what);
        shown.what = std::move(what);
        shown_.push_back(std::move(shown));
    }
    makeMeshes();
    addAdditions();
}

/// Coordinates and values are read in one go, so that all cores are busy to the end.
void Preparer::Work::makeMeshes() {
    Pieces reads;
    for (Shown_s& shown : shown_) {
        ZonePart_s part;
        part.zone = shown.what.zone;
        part.mesh = foundIn(before_.meshes, shown.meshKey);
        if (!part.mesh)
            part.mesh = foundIn(now_.meshes, shown.meshKey);
        if (!part.mesh) {
            shown.growing = std::make_unique<GrowingMesh>(
                data_, GrowingMesh::Wish_s{part.zone, shown.what.surfaces,
                                           view().blank == BlankWish_e::Hide,
                                           view().plot == PlotKind_e::Space});
            shown.growing->addReads(reads);
        }
        const Mesh_s& mesh = part.mesh ? *part.mesh : shown.growing->unfinished();
        if (hasQuantity(part.zone)) {
            shown.valuesKey = valuesKeyOf(shown);
            part.values = foundIn(before_.values, shown.valuesKey);
            if (!part.values) {
                shown.values = roomForValues(mesh);
                addValueReads(shown, mesh, reads);
            }
        }
        content_->parts.push_back(std::move(part));
    }
    runPieces(reads, 0, 0.8, "Reading surfaces");
    Pieces building;
    for (Shown_s& shown : shown_)
        if (shown.growing)
            shown.growing->addBuilding(building);
    runPieces(building, 0.8, 0.9, "Making cells");
    Pieces ending;
    for (std::size_t index = 0; index < shown_.size(); ++index)
        ending.push_back([this, index](const std::stop_token&) {
            Shown_s& shown = shown_[index];
            ZonePart_s& part = content_->parts[index];
            if (shown.growing)
                part.mesh = shown.growing->take();
            if (shown.values) {
                findRange(*shown.values, *part.mesh);
                part.values = shown.values;
            }
        });
    runPieces(ending, 0.9, 0.95, "Making cells");
    for (std::size_t index = 0; index < shown_.size(); ++index) {
        now_.meshes[shown_[index].meshKey] = content_->parts[index].mesh;
        if (content_->parts[index].values)
            now_.values[shown_[index].valuesKey] = content_->parts[index].values;
    }
}

void Preparer::Work::addAdditions() {
    const std::optional<VectorQuantity_s> vector = vectorsOf(data_, view());
    std::int64_t points = 1;
    for (const ZonePart_s& part : content_->parts)
        points += part.mesh->pointCount();
    Pieces pieces;
    for (std::size_t index = 0; index < shown_.size(); ++index) {
        ZonePart_s& part = content_->parts[index];
        const std::string key = shown_[index].meshKey + " of " + std::to_string(part.zone);
        if (vector) {
            part.arrows = foundIn(before_.arrows, key + " " + vector->name);
            if (!part.arrows)
                pieces.push_back([&, points](const std::stop_token& stop) {
                    const std::int64_t most =
                        std::max<std::int64_t>(1, arrowsInAll * part.mesh->pointCount() / points);
                    part.arrows =
                        arrowsOn(data_, part.zone, *part.mesh, *vector, preparer_.gas_, most, stop);
                });
        }
        if (view().gridLines) {
            part.gridLines = foundIn(before_.gridLines, shown_[index].meshKey);
            if (!part.gridLines)
                pieces.push_back(
                    [&](const std::stop_token&) { part.gridLines = gridLinesOf(*part.mesh); });
        }
        if (view().outlines) {
            part.outline = foundIn(before_.outlines, key);
            if (!part.outline)
                pieces.push_back([&](const std::stop_token& stop) {
                    part.outline = outlineOf(data_, part.zone, stop);
                });
        }
    }
    runPieces(pieces, 0.95, 1, "Reading vectors and outlines");
    for (std::size_t index = 0; index < shown_.size(); ++index) {
        const ZonePart_s& part = content_->parts[index];
        const std::string key = shown_[index].meshKey + " of " + std::to_string(part.zone);
        if (part.gridLines)
            now_.gridLines[shown_[index].meshKey] = part.gridLines;
        if (part.arrows)
            now_.arrows[key + " " + vector->name] = part.arrows;
        if (part.outline)
            now_.outlines[key] = part.outline;
    }
}

std::vector<std::size_t> Preparer::Work::zonesOfRange() {
    if (view().rangeOver == RangeOver_e::Zone)
        return {view().rangeZone - 1};
    std::vector<std::size_t> zones;
    const bool isAll = view().rangeOver == RangeOver_e::AllTimes;
    for (std::size_t step = 0; step < data_.timeSteps().size(); ++step)
        if (isAll || step == content_->timeStep)
            for (const ShownZone_s& shown : shownZones(data_, view(), step))
                zones.push_back(shown.zone);
    return zones;
}

std::optional<Range_s> Preparer::Work::rangeOverZones() {
    const std::vector<std::size_t> zones = zonesOfRange();
    std::string key = quantity_.name + (view().blank == BlankWish_e::Hide ? " hides" : "");
    for (const std::size_t zone : zones)
        key += " " + std::to_string(zone);
    const auto before = before_.ranges.find(key);
    if (before != before_.ranges.end()) {
        now_.ranges.insert(*before);
        return before->second;
    }
    WholeRange whole(data_, quantity_, preparer_.gas_, view().blank == BlankWish_e::Hide);
    Pieces pieces;
    whole.addReads(pieces, zones);
    runPieces(pieces, 0, 1, "Finding the range");
    if (whole.range())
        now_.ranges[key] = *whole.range();
    else if (view().rangeOver == RangeOver_e::Zone)
        throw Error(ErrorKind::Usage, "zone " + std::to_string(view().rangeZone) +
                                          " has no values of " + quantity_.name +
                                          " that a range could be taken from");
    return whole.range();
}

void Preparer::Work::settleRange() {
    std::optional<Range_s> shown;
    for (const ZonePart_s& part : content_->parts)
        if (part.values)
            widen(shown, part.values->range);
    for (const Curve_s& curve : content_->curves)
        for (const double value : curve.ordinates)
            widen(shown, value);
    content_->hasValues = shown.has_value();
    std::optional<Range_s> range = view().range;
    if (!range && !quantity_.isNothing() && view().rangeOver != RangeOver_e::Shown)
        range = rangeOverZones();
    if (!range)
        range = shown;
    content_->range = range ? spreadOut(*range) : Range_s();
}

void Preparer::Work::settleWords() {
    for (const ZonePart_s& part : content_->parts) {
        content_->bounds.add(part.mesh->bounds);
        if (!quantity_.isNothing() && !part.values)
            content_->notes.push_back("zone " + std::to_string(part.zone + 1) +
                                      " has no values of " + quantity_.name);
    }
    content_->title = titleOf(data_, *content_);
    content_->summary = summaryOf(*content_);
}

std::shared_ptr<const SceneContent_s> Preparer::Work::run() {
    choose();
    if (view().plot == PlotKind_e::Lines)
        addCurves(data_, preparer_.gas_, quantity_, watch_.stop, *content_);
    else
        prepareSurfaces();
    settleRange();
    settleWords();
    if (watch_.stop.stop_requested())
        throw Error(ErrorKind::Interrupted, "stopped");
    return content_;
}

bool Preparer::isGridAlone() const {
    return colourOf(data_, View_s()).isNothing();
}

Preparer::Preparer(const DataSet& data, const Gas& gas, int threads)
    : data_(data), gas_(gas), threads_(threads), cache_(std::make_unique<Cache>()) {}

Preparer::~Preparer() = default;

std::shared_ptr<const SceneContent_s> Preparer::prepare(const View_s& view, const Watch& watch) {
    Work work(*this, view, watch);
    std::shared_ptr<const SceneContent_s> content = work.run();
    *cache_ = work.takeCache();
    return content;
}

} // namespace plot3d::scene
