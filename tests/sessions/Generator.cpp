#include "sessions/Generator.h"

#include <algorithm>

#include "sessions/FileMaker.h"
#include "sessions/rules/SessionRules.h"

namespace quorvia::sessions {

namespace {

class Maker {
public:
    explicit Maker(std::uint64_t seed) : dice_(seed), maker_(dice_, session_.files) {
        session_.seed = seed;
        session_.fetchesOften = dice_.chance(60);
    }

    Session_s make() {
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
    Command next();
    Load_s newLoad(bool append = false);
    Load_s onto();
    void addFunctionsAlone(Load_s& load);
    void chooseOptions(Load_s& load);
    void keepPromises(Load_s& load);
    void choosePart(Load_s& load);
    DeleteZones_s chooseDeletion();

    /// Variables of the data set behind coordinates, I-blank and one solution.
    std::int32_t variablesLeft() const {
        const std::int32_t coordinates = coordinateCount(shape_.layout);
        return (host_.dataSet ? host_.dataSet->variableCount() : 0) - coordinates -
               (shape_.hasIBlank ? 1 : 0) - (coordinates + 2);
    }
    const FileModel_s& file(std::size_t place) const { return session_.files[place]; }

    Session_s session_;
    Dice dice_;
    FileMaker maker_;
    const Shape_s& shape_ = maker_.shape();
    ExpectedHost_s host_;
    bool wasAtDialog_ = false;
};

void Maker::choosePart(Load_s& load) {
    const bool isMostly = dice_.chance(90);
    load.ranges = isMostly ? shape_.ranges : std::array<Range_s, 3>{};
    load.gridSet = isMostly ? shape_.gridSet : std::set<std::int32_t>{};
    if (!load.isUniform && !load.gridSet.empty())
        load.gridSet.insert(1); // later steps may have fewer grids
    if (dice_.chance(2))
        load.gridSet = {dice_.between(4, 9)}; // none of the files' grids
}

// Before the files are chosen: they keep what the options promise.
void Maker::chooseOptions(Load_s& load) {
    const std::int32_t road = dice_.between(1, 100);
    load.road = road <= 60 ? Road_e::Instructions : road <= 80 ? Road_e::Selection : Road_e::Dialog;
    if (maker_.takesPart() && load.road == Road_e::Selection && dice_.chance(85))
        load.road = Road_e::Instructions; // a selection takes whole grids, which would fit nothing
    if (load.road == Road_e::Dialog && wasAtDialog_)
        load.road = Road_e::Instructions; // the dialog remembers what was set before
    const bool needsTextOptions = shape_.textPrecision == Precision_e::Double || shape_.hasIBlank;
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
    const bool isClassic = load.functions.empty() &&
                           (load.solutions.empty() ||
                            file(load.solutions.front()).kind == FileKind_e::ClassicSolution);
    const bool isDescribable = isClassic || load.solutions.size() + load.functions.size() == 1;
    load.isDescribed = load.road == Road_e::Instructions && isOfOneStyle && isDescribable &&
                       !isPlain && shape_.layout != Layout_e::OneD && dice_.chance(20);
    if (load.isDescribed && shape_.layout != Layout_e::ThreeDWhole)
        load.ranges[2] = {};                       // the instructions take no K range then
    if (shape_.layout == Layout_e::ThreeDPlanes) { // whose later steps must not share structure
        load.sharesStructure = false;
        const bool isSeries =
            std::max({load.grids.size(), load.solutions.size(), load.functions.size()}) > 1;
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
    maker_.chooseFiles(load, counts.grids, counts.solutions, counts.functions);
    keepPromises(load);
    return load;
}

void Maker::addFunctionsAlone(Load_s& load) {
    const std::int32_t zones = host_.dataSet ? host_.dataSet->zoneCount() : 1;
    const auto grids = static_cast<std::int32_t>(shape_.grids.size());
    const std::int32_t fitting = std::max(1, zones / grids);
    maker_.chooseFiles(load, 0, 0, dice_.chance(85) ? std::min(fitting, 4) : dice_.between(1, 3));
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
    maker_.chooseFiles(load, 0, steps, rest > 0 && !load.append ? steps : 0);
    if (rest >= 1 && rest <= 3 && dice_.chance(95))
        maker_.setFunctionCount(load.functions, rest);
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
    if (command.zones.empty())
        command.zones.insert(count);
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