#include "sessions/Generator.h"

#include <algorithm>
#include <random>

#include <fmt/core.h>

#include "sessions/PlainBinary.h"
#include "sessions/rules/SessionRules.h"

namespace quorvia::sessions {

namespace {

using plot3dwriter::ByteOrder_e;
using Places = std::vector<std::size_t>;
using Grids = std::vector<GridDims_s>;

// The standard fixes what the engine gives, and not what its distributions make of it.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}
    /// From `low` to `high`, both included.
    std::int32_t between(std::int32_t low, std::int32_t high) {
        const auto span = static_cast<std::uint64_t>(high - low + 1);
        return low + static_cast<std::int32_t>(engine_() % span);
    }
    bool chance(std::int32_t percent) { return between(1, 100) <= percent; }
    template <typename Item>
    Item oneOf(const std::vector<Item>& items) {
        return items[static_cast<std::size_t>(
            between(0, static_cast<std::int32_t>(items.size()) - 1))];
    }

private:
    std::mt19937_64 engine_;
};

/// What the files of a session have in common.
struct Shape_s {
    Layout_e layout = Layout_e::ThreeDWhole;
    bool isMultiGrid = true;
    Grids grids;
    bool hasIBlank = false;
    bool hasBoundaries = false;
    FileForm_s form;
    Precision_e textPrecision = Precision_e::Single; // one option of a load tells it for all files
    std::array<Range_s, 3> ranges;
    std::set<std::int32_t> gridSet;
};

class Maker {
public:
    explicit Maker(std::uint64_t seed) : dice_(seed) { session_.seed = seed; }

    Session_s make() {
        chooseShape();
        session_.fetchesOften = dice_.chance(60);
        const std::int32_t count = dice_.between(2, 6);
        while (static_cast<std::int32_t>(session_.commands.size()) < count) {
            session_.commands.push_back(next());
            if (apply(session_.commands.back(), session_.files, host_).ending ==
                Ending_e::RefusedAmidst)
                break; // what is there now is open
        }
        return std::move(session_);
    }

private:
    void chooseShape();
    FileForm_s chooseForm();
    GridDims_s chooseDims();
    std::vector<Boundary_s> chooseBoundaries(const Grids& grids);

    Command next();
    Load_s newLoad(bool append = false);
    Load_s onto();
    void addFunctionsAlone(Load_s& load);
    void chooseOptions(Load_s& load);
    void chooseFiles(Load_s& load, std::int32_t grids, std::int32_t solutions,
                     std::int32_t functions);
    void keepPromises(Load_s& load);
    void choosePart(Load_s& load);
    DeleteZones_s chooseDeletion();

    std::size_t addFile(FileKind_e kind, const char* extension, const FileForm_s& form,
                        const Grids& grids, bool hasIBlank, std::int32_t functionCount,
                        std::int32_t step, bool isNamedByTime);
    Places addList(FileKind_e kind, const char* extension, std::int32_t count,
                   const std::vector<Grids>& grids, const Load_s& load);

    bool takesPart() const {
        return !shape_.gridSet.empty() ||
               std::any_of(shape_.ranges.begin(), shape_.ranges.end(),
                           [](const Range_s& range) { return !range.isWhole(); });
    }
    /// Variables of the data set behind coordinates, I-blank and one solution.
    std::int32_t variablesLeft() const {
        const std::int32_t coordinates = coordinateCount(shape_.layout);
        return (host_.dataSet ? host_.dataSet->variableCount() : 0) - coordinates -
               (shape_.hasIBlank ? 1 : 0) - (coordinates + 2);
    }
    bool isFlat() const {
        return shape_.layout == Layout_e::OneD || shape_.layout == Layout_e::Unstructured;
    }
    const FileModel_s& file(std::size_t place) const { return session_.files[place]; }

    Dice dice_;
    Session_s session_;
    ExpectedHost_s host_;
    Shape_s shape_;
    bool wasAtDialog_ = false;
};

GridDims_s Maker::chooseDims() {
    switch (shape_.layout) {
    case Layout_e::OneD:
        return {dice_.between(7, 11), 1, 1};
    case Layout_e::TwoD:
        return {dice_.between(3, 7), dice_.between(3, 6), 1};
    case Layout_e::Unstructured:
        return dice_.chance(50) ? GridDims_s{dice_.between(7, 12), dice_.between(1, 6), 0}
                                : GridDims_s{dice_.between(7, 12), 0, dice_.between(1, 6)};
    case Layout_e::ThreeDPlanes: // a plane of 64-bit reals has the bytes of two of 32-bit ones
        return {dice_.between(2, 5), dice_.between(2, 5), dice_.between(3, 5)};
    default:
        return {dice_.between(2, 5), dice_.between(2, 5), dice_.between(2, 5)};
    }
}

FileForm_s Maker::chooseForm() {
    FileForm_s form;
    form.encoding = shape_.layout == Layout_e::ThreeDPlanes
                        ? Encoding_e::Fortran // nothing else tells planes
                        : dice_.oneOf<Encoding_e>({Encoding_e::Text, Encoding_e::Binary,
                                                   Encoding_e::Binary, Encoding_e::Fortran});
    form.byteOrder = dice_.chance(30) ? ByteOrder_e::Big : ByteOrder_e::Little;
    form.precision = dice_.chance(40) ? Precision_e::Double : Precision_e::Single;
    form.markerBytes = dice_.chance(30) ? 8 : 4;
    // A line with the count of grids alone is a whole 1-D header.
    if (shape_.layout == Layout_e::Unstructured && shape_.isMultiGrid &&
        form.encoding == Encoding_e::Text)
        form.encoding = Encoding_e::Fortran;
    if (form.encoding == Encoding_e::Text)
        form.precision = shape_.textPrecision;
    return form;
}

void Maker::chooseShape() {
    shape_.layout = dice_.oneOf<Layout_e>({Layout_e::ThreeDWhole, Layout_e::ThreeDWhole,
                                           Layout_e::ThreeDWhole, Layout_e::TwoD, Layout_e::TwoD,
                                           Layout_e::ThreeDPlanes, Layout_e::OneD,
                                           Layout_e::Unstructured});
    shape_.textPrecision = dice_.chance(30) ? Precision_e::Double : Precision_e::Single;
    const bool isSingle = shape_.layout == Layout_e::OneD || dice_.chance(25);
    shape_.isMultiGrid = !isSingle;
    // A count of one grid ahead of two dimensions looks like three dimensions.
    const std::int32_t fewest = shape_.layout == Layout_e::TwoD ? 2 : 1;
    const std::int32_t count = isSingle ? 1 : dice_.between(fewest, 3);
    for (std::int32_t grid = 0; grid < count; ++grid)
        shape_.grids.push_back(grid > 0 && dice_.chance(30) ? shape_.grids.front() : chooseDims());
    shape_.hasIBlank = !isFlat() && dice_.chance(40);
    shape_.hasBoundaries = shape_.layout != Layout_e::Unstructured &&
                           shape_.layout != Layout_e::ThreeDPlanes && dice_.chance(40);
    shape_.form = chooseForm();
    if (dice_.chance(25))
        for (Range_s& range : shape_.ranges)
            if (dice_.chance(50)) {
                range.start = dice_.between(1, 4);
                range.end = dice_.chance(50) ? 0 : range.start + dice_.between(0, 4);
                range.skip = dice_.between(1, 3);
            }
    if (count > 1 && dice_.chance(25)) {
        for (std::int32_t grid = 1; grid <= count; ++grid)
            if (dice_.chance(60))
                shape_.gridSet.insert(grid);
        if (shape_.gridSet.empty())
            shape_.gridSet.insert(dice_.between(1, count));
    }
}

std::vector<Boundary_s> Maker::chooseBoundaries(const Grids& grids) {
    std::vector<Boundary_s> boundaries;
    for (std::int32_t n = dice_.between(1, 3); n > 0; --n) {
        Boundary_s boundary;
        boundary.name = dice_.oneOf<std::string>({"wall", "inlet", "supersonic_outflow", "tail"});
        boundary.gridNumber = dice_.between(1, static_cast<std::int32_t>(grids.size()));
        const GridDims_s& dims = grids[static_cast<std::size_t>(boundary.gridNumber - 1)];
        const auto choose = [&](std::int32_t count, std::int32_t& first, std::int32_t& last) {
            first = dice_.between(1, count);
            last = dice_.between(first, count);
        };
        choose(dims.i, boundary.first.i, boundary.last.i);
        choose(dims.j, boundary.first.j, boundary.last.j);
        choose(dims.k, boundary.first.k, boundary.last.k);
        boundaries.push_back(boundary);
    }
    return boundaries;
}

std::size_t Maker::addFile(FileKind_e kind, const char* extension, const FileForm_s& form,
                           const Grids& grids, bool hasIBlank, std::int32_t functionCount,
                           std::int32_t step, bool isNamedByTime) {
    FileModel_s file;
    file.serial = static_cast<std::int32_t>(session_.files.size()) + 1;
    file.name = std::string(1, static_cast<char>('a' + file.serial / 26)) +
                static_cast<char>('a' + file.serial % 26);
    const double time = dice_.chance(90) ? step + 0.5 : 1.5;
    if (isNamedByTime)
        file.name += fmt::format("_t{}", dice_.chance(95) ? time + 100 : 101.5);
    file.name += extension;
    file.kind = kind;
    file.layout = shape_.layout;
    file.form = form;
    file.isMultiGrid = shape_.isMultiGrid;
    file.hasIBlank = kind == FileKind_e::Grid && hasIBlank;
    file.grids = grids;
    file.functionCount = kind == FileKind_e::Function ? functionCount : 0;
    file.time = time;
    if (kind == FileKind_e::Grid && shape_.hasBoundaries)
        file.boundaries = chooseBoundaries(grids);
    if (!isUnmistakable(file))
        file.form.encoding = Encoding_e::Fortran;
    session_.files.push_back(file);
    return session_.files.size() - 1;
}

Places Maker::addList(FileKind_e kind, const char* extension, std::int32_t count,
                      const std::vector<Grids>& grids, const Load_s& load) {
    FileForm_s form = dice_.chance(70) ? shape_.form : chooseForm();
    const Places& beside = load.solutions.empty() ? load.grids : load.solutions;
    if (kind == FileKind_e::Function && dice_.chance(93)) { // beside others precisions must agree
        const FileForm_s other = beside.empty() ? shape_.form : file(beside.front()).form;
        form.precision = other.precision;
        if (form.encoding == Encoding_e::Text && form.precision != shape_.textPrecision)
            form.encoding = Encoding_e::Fortran;
    }
    const bool isOneGridFile = load.grids.size() == 1 || (kind == FileKind_e::Grid && count == 1);
    const bool isUniform = load.isUniform || isOneGridFile;
    const bool mustBeAlike =
        isUniform && (kind == FileKind_e::Grid || load.sharesStructure);
    const bool isNamedByTime = dice_.chance(50);
    const std::int32_t functionCount = dice_.between(1, 3);
    const bool hasIBlank = shape_.hasIBlank != (!isFlat() && dice_.chance(5));
    const std::int32_t firstStep = dice_.between(0, 3);
    Places places;
    for (std::int32_t n = 0; n < count; ++n) {
        if (!mustBeAlike && kind != FileKind_e::Function && dice_.chance(20)) {
            const FileForm_s other = chooseForm();
            // A boundary zone has the types of its parent and the values of the first grid file.
            if (!shape_.hasBoundaries || other.precision == form.precision)
                form = other;
        }
        const Grids& of = grids[std::min(static_cast<std::size_t>(n), grids.size() - 1)];
        places.push_back(addFile(kind, extension, form, of, hasIBlank, functionCount,
                                 firstStep + n, isNamedByTime && !dice_.chance(3)));
    }
    return places;
}

// Grids of later steps may differ from the first where nobody has promised the contrary.
void Maker::chooseFiles(Load_s& load, std::int32_t grids, std::int32_t solutions,
                        std::int32_t functions) {
    std::vector<Grids> dims = {shape_.grids};
    // Boundaries are those of the first grid file, in every step.
    const bool mayDiffer =
        grids > 1 && !load.isUniform && shape_.isMultiGrid && !shape_.hasBoundaries;
    for (std::int32_t n = 1; n < std::max({grids, solutions, functions}); ++n) {
        Grids of = shape_.grids;
        if (mayDiffer && dice_.chance(50))
            std::rotate(of.begin(), of.begin() + 1, of.end());
        if (mayDiffer && of.size() > 2 && dice_.chance(30))
            of.pop_back();
        dims.push_back(of);
    }
    if (dice_.chance(4)) // nothing that fits what is there
        std::fill(dims.begin(), dims.end(), Grids(shape_.grids.size(), chooseDims()));
    if (grids > 0)
        load.grids = addList(FileKind_e::Grid, ".x", grids, dims, load);
    const bool isPromised = dims.size() > 1 && (load.isUniform || grids == 1);
    if (!(isPromised && load.sharesStructure) && dice_.chance(3)) // one that does not fit the grid
        dims.back() = Grids(shape_.grids.size(), chooseDims());
    const bool isSwift = shape_.layout != Layout_e::OneD &&
                         shape_.layout != Layout_e::Unstructured && dice_.chance(20);
    if (solutions > 0)
        load.solutions =
            addList(isSwift ? FileKind_e::SwiftSolution : FileKind_e::ClassicSolution, ".q",
                    solutions, dims, load);
    if (functions > 0 && solutions == 0 && dice_.chance(15))
        load.solutions = addList(FileKind_e::Function, ".q", functions, dims, load);
    else if (functions > 0)
        load.functions = addList(FileKind_e::Function, ".f", functions, dims, load);
}

void Maker::choosePart(Load_s& load) {
    const bool isMostly = dice_.chance(90);
    load.ranges = isMostly ? shape_.ranges : std::array<Range_s, 3>{};
    load.gridSet = isMostly ? shape_.gridSet : std::set<std::int32_t>{};
    if (!load.isUniform && !load.gridSet.empty())
        load.gridSet.insert(1); // later steps may have fewer grids
}

// Before the files are chosen: they keep what the options promise.
void Maker::chooseOptions(Load_s& load) {
    const std::int32_t road = dice_.between(1, 100);
    load.road = road <= 60 ? Road_e::Instructions : road <= 80 ? Road_e::Selection : Road_e::Dialog;
    if (takesPart() && load.road == Road_e::Selection && dice_.chance(85))
        load.road = Road_e::Instructions; // a selection takes whole grids, which would fit nothing
    if (load.road == Road_e::Dialog && wasAtDialog_)
        load.road = Road_e::Instructions; // the dialog remembers what was set before
    const bool needsTextOptions =
        shape_.textPrecision == Precision_e::Double || shape_.hasIBlank;
    if (needsTextOptions && load.road != Road_e::Instructions)
        load.road = Road_e::Instructions;
    if (load.road == Road_e::Selection)
        return;
    load.sharesStructure = shape_.layout != Layout_e::ThreeDPlanes && dice_.chance(65);
    load.isUniform = dice_.chance(70);
    load.assignsStrands = dice_.chance(75);
    choosePart(load);
    if (load.road == Road_e::Dialog) {
        wasAtDialog_ = true;
        if (dice_.chance(15)) {
            load.ranges = {};
            load.ranges[0] = {dice_.between(4, 10), dice_.between(1, 3), dice_.between(1, 7)};
        }
        load.ranges[2].end = 0; // typing there breaks the contract, which is kept so on purpose
        if (dice_.chance(50))
            load.sharesStructure = shape_.layout != Layout_e::ThreeDPlanes;
        return;
    }
    load.addsToStrands = dice_.chance(30);
    load.newStrandEachStep = dice_.chance(50);
    load.timesFromNames = dice_.chance(30);
    load.loadsBoundary = shape_.hasBoundaries ? dice_.chance(85) : dice_.chance(3);
    load.answersOk = dice_.chance(70);
}

// Behind the choice of files.
void Maker::keepPromises(Load_s& load) {
    Places all = load.grids;
    all.insert(all.end(), load.solutions.begin(), load.solutions.end());
    all.insert(all.end(), load.functions.begin(), load.functions.end());
    bool isAllFortran = true;
    bool isPlain = false;
    for (const std::size_t place : all) {
        isAllFortran &= file(place).form.encoding == Encoding_e::Fortran;
        isPlain |= file(place).form.encoding == Encoding_e::Binary;
        if (file(place).isText() && load.road != Road_e::Instructions &&
            (file(place).isDouble() || file(place).hasIBlank))
            load.road = Road_e::Instructions;
    }
    // A grid that is not loaded is passed over by the ends of the ranges.
    for (const Range_s& range : load.ranges)
        if (range.end != 0 && !isAllFortran)
            load.gridSet.clear();
    // A description is of one style, and later files that share the structure may fall to Classic.
    const bool isOfOneStyle = load.solutions.empty() || load.functions.empty();
    const bool isClassic =
        load.functions.empty() &&
        (load.solutions.empty() ||
         file(load.solutions.front()).kind == FileKind_e::ClassicSolution);
    const bool isDescribable = isClassic || load.solutions.size() + load.functions.size() == 1;
    load.isDescribed = load.road == Road_e::Instructions && isOfOneStyle && isDescribable &&
                       !isPlain && shape_.layout != Layout_e::OneD && dice_.chance(20);
    if (load.isDescribed && shape_.layout != Layout_e::ThreeDWhole)
        load.ranges[2] = {}; // the instructions take no K range then
    if (shape_.layout == Layout_e::ThreeDPlanes) { // whose later steps must not share structure
        load.sharesStructure = false;
        const bool isSeries = std::max({load.grids.size(), load.solutions.size(),
                                        load.functions.size()}) > 1;
        if (isSeries && load.road == Road_e::Selection)
            load.road = Road_e::Instructions;
    }
    if (load.road == Road_e::Dialog && load.grids.size() == 1)
        load.isUniform = true; // the toggle is greyed
}

Load_s Maker::newLoad(bool append) {
    Load_s load;
    load.append = append;
    chooseOptions(load);
    load.append &= load.road != Road_e::Dialog || host_.dataSet.has_value(); // greyed otherwise
    const std::int32_t n = dice_.between(2, 3);
    struct Counts_s {
        std::int32_t grids, solutions, functions;
    };
    std::vector<Counts_s> appended = {{1, 0, 0}, {n, 0, 0}};
    if (variablesLeft() >= 0)
        appended.insert(appended.end(), {{1, 1, 0}, {1, n, 0}, {n, n, 0}, {1, 0, 1}});
    if (variablesLeft() >= 1)
        appended.insert(appended.end(), {{1, 1, 1}, {1, n, n}, {n, n, n}});
    const Counts_s anyhow = dice_.oneOf<Counts_s>({{1, 0, 0},
                                                   {1, 1, 0},
                                                   {1, 1, 0},
                                                   {1, n, 0},
                                                   {1, n, 0},
                                                   {1, 0, 1},
                                                   {1, 0, n},
                                                   {1, 1, 1},
                                                   {1, 1, n},
                                                   {1, n, n},
                                                   {n, 0, 0},
                                                   {n, n, 0},
                                                   {n, n, n},
                                                   {n, 0, n},
                                                   {n, 1, 0}});
    const Counts_s counts = append && dice_.chance(85) ? dice_.oneOf(appended) : anyhow;
    chooseFiles(load, counts.grids, counts.solutions, counts.functions);
    keepPromises(load);
    return load;
}

void Maker::addFunctionsAlone(Load_s& load) {
    const std::int32_t zones = host_.dataSet ? host_.dataSet->zoneCount() : 1;
    const auto grids = static_cast<std::int32_t>(shape_.grids.size());
    const std::int32_t fitting = std::max(1, zones / grids);
    chooseFiles(load, 0, 0, dice_.chance(85) ? std::min(fitting, 4) : dice_.between(1, 3));
    keepPromises(load);
}

/// A load that brings no grid.
Load_s Maker::onto() {
    Load_s load;
    chooseOptions(load);
    const std::int32_t kind = dice_.between(1, 100);
    load.append = kind > 45 && (load.road != Road_e::Dialog || host_.dataSet.has_value());
    if (kind > 75 || kind <= 4) {
        addFunctionsAlone(load);
        return load;
    }
    // The number of variables must be that of the data set.
    const std::int32_t rest = variablesLeft();
    if (rest != 0 && load.append && dice_.chance(80)) {
        addFunctionsAlone(load);
        return load;
    }
    const std::int32_t steps = dice_.between(1, 3);
    chooseFiles(load, 0, steps, rest > 0 && !load.append ? steps : 0);
    if (rest >= 1 && rest <= 3 && dice_.chance(95))
        for (const std::size_t place : load.functions)
            session_.files[place].functionCount = rest;
    for (const std::size_t place : load.functions)
        if (!isUnmistakable(session_.files[place]))
            session_.files[place].form.encoding = Encoding_e::Fortran;
    keepPromises(load);
    return load;
}

DeleteZones_s Maker::chooseDeletion() {
    DeleteZones_s command;
    const std::int32_t count = host_.dataSet->zoneCount();
    const auto& zones = host_.dataSet->zones;
    const auto boundary = std::find_if(zones.begin(), zones.end(), [](const Zone_s& zone) {
        return !zone.boundaryCondition.empty();
    });
    if (boundary != zones.end() && dice_.chance(40)) {
        // Those of the first step, so that later ones have what was theirs.
        const auto first = static_cast<std::int64_t>(boundary - zones.begin()) + 1;
        for (std::int64_t number = first; number <= count; ++number)
            if (zones[static_cast<std::size_t>(number - 1)].time == boundary->time)
                command.zones.insert(number);
    } else {
        const std::int32_t first = dice_.between(1, count);
        const std::int32_t last = dice_.between(first, count);
        for (std::int32_t number = first; number <= last; ++number)
            if (dice_.chance(70))
                command.zones.insert(number);
    }
    if (static_cast<std::int32_t>(command.zones.size()) == count)
        command.zones.erase(std::prev(command.zones.end()));
    return command;
}

Command Maker::next() {
    if (!host_.dataSet && dice_.chance(94))
        return newLoad();
    const std::int32_t kind = dice_.between(1, 100);
    if (kind <= 10)
        return AllowSharing_s{!host_.isSharingAllowed};
    if (kind <= 15)
        return Unload_s{};
    if (kind <= 28 && host_.dataSet && host_.dataSet->zoneCount() > 1)
        return chooseDeletion();
    if (kind <= 38)
        return newLoad();
    if (kind <= 60) {
        constexpr bool append = true;
        return newLoad(append);
    }
    return onto();
}

} // namespace

Session_s makeSession(std::uint64_t seed) {
    return Maker(seed).make();
}

} // namespace quorvia::sessions
