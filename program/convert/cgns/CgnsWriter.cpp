#include "convert/cgns/CgnsWriter.h"

#include <algorithm>
#include <map>
#include <utility>

#include "convert/cgns/CgnsFile.h"
#include "convert/cgns/CgnsPlan.h"
#include "manners/ResultFile.h"
#include "names/CgnsNames.h"
#include "names/UniqueNames.h"

namespace plot3d::program {

namespace {

class ZoneWriter {
public:
    ZoneWriter(Contents& contents, const std::vector<std::string>& names,
               const CgnsZonePlan_s& plan, CgnsFile& file, const CgnsZone_s& zone)
        : contents_(contents), names_(names), plan_(plan), file_(file), zone_(zone),
          facts_(contents.zones()[plan.zones.front()]) {}

    void write() {
        if (facts_.kind != ZoneKind::Ordered)
            file_.addElements(zone_, facts_.kind, facts_.elementCount,
                              contents_.nodeMap(plan_.zones.front()));
        writeGrids();
        for (std::size_t step = 0; step < plan_.zones.size() && hasSolution(); ++step)
            writeSolution(plan_.zones[step], numbered("FlowSolution", step));
        if (plan_.zones.size() > 1)
            file_.putPointers(zone_, pointers());
    }

private:
    /// The first grid must have the standard's name; solutions go along.
    static std::string numbered(const std::string& name, std::size_t step) {
        return step == 0 ? name : name + std::to_string(step + 1);
    }

    bool hasSolution() const {
        return contents_.variables().size() > variablesOf(contents_, Role_e::Coordinate).size();
    }

    std::vector<std::size_t> coordinates(std::size_t zone) const {
        std::vector<std::size_t> found = variablesOf(contents_, Role_e::Coordinate);
        std::erase_if(found, [&](std::size_t variable) { return !contents_.type(zone, variable); });
        return found;
    }

    void writeGrids() {
        const std::size_t first = plan_.zones.front();
        file_.addGrid(zone_, "GridCoordinates");
        for (const std::size_t variable : coordinates(first))
            writeBlocks(first, variable, [&](const Box& box) {
                file_.putCoordinate(zone_, names_[variable], *contents_.type(first, variable), box,
                                    values_.data());
            });
        for (std::size_t step = 1; plan_.moves && step < plan_.zones.size(); ++step)
            writeLaterGrid(step);
    }

    /// libcgns takes coordinates of further grids only whole.
    void writeLaterGrid(std::size_t step) {
        const std::size_t zone = plan_.zones[step];
        file_.addGrid(zone_, numbered("GridCoordinates", step));
        for (const std::size_t variable : coordinates(zone)) {
            values_.resize(static_cast<std::size_t>(facts_.size.count()));
            contents_.read(zone, variable, Box::whole(facts_.size), values_.data());
            file_.putWholeCoordinate(zone_, static_cast<int>(step) + 1, names_[variable],
                                     *contents_.type(zone, variable), facts_.size, values_.data());
        }
    }

    void writeSolution(std::size_t zone, const std::string& name) {
        const int solution = file_.addSolution(zone_, name);
        for (std::size_t variable = 0; variable < names_.size(); ++variable) {
            const std::optional<ValueType> type = contents_.type(zone, variable);
            if (!type || contents_.variables()[variable].role == Role_e::Coordinate)
                continue;
            writeBlocks(zone, variable, [&](const Box& box) {
                file_.putField(zone_, solution, names_[variable], *type, box, values_.data());
            });
        }
    }

    void writeBlocks(std::size_t zone, std::size_t variable,
                     const std::function<void(const Box&)>& put) {
        forEachBlock(facts_.size, pointsPerBlock, [&](const Box& box, std::int64_t count) {
            values_.resize(static_cast<std::size_t>(count));
            contents_.read(zone, variable, box, values_.data());
            put(box);
        });
    }

    std::vector<std::pair<std::string, std::vector<std::string>>> pointers() const {
        std::vector<std::string> solutions;
        std::vector<std::string> grids;
        for (std::size_t step = 0; step < plan_.zones.size(); ++step) {
            solutions.push_back(numbered("FlowSolution", step));
            grids.push_back(numbered("GridCoordinates", plan_.moves ? step : 0));
        }
        if (!hasSolution())
            return {{"GridCoordinatesPointers", grids}};
        return {{"FlowSolutionPointers", solutions}, {"GridCoordinatesPointers", grids}};
    }

    Contents& contents_;
    const std::vector<std::string>& names_;
    const CgnsZonePlan_s& plan_;
    CgnsFile& file_;
    CgnsZone_s zone_;
    const ContentZone_s& facts_;
    std::vector<std::uint64_t> values_;
};

std::vector<std::string> variableNames(const Contents& contents) {
    std::vector<std::string> names = namesOf(contents);
    std::transform(names.begin(), names.end(), names.begin(), cgnsStandardName);
    return nodeNames(std::move(names), cgnsNameLength);
}

std::vector<std::string> zoneNames(const Contents& contents) {
    std::vector<std::string> names;
    for (const ContentZone_s& zone : contents.zones())
        names.push_back(zone.name);
    return nodeNames(std::move(names), cgnsNameLength);
}

class BaseWriter {
public:
    BaseWriter(Contents& contents, const std::vector<CgnsZonePlan_s>& plans, CgnsFile& file)
        : contents_(contents), plans_(plans), file_(file), names_(variableNames(contents)),
          zoneNames_(zoneNames(contents)) {}

    void write() {
        for (const CgnsZonePlan_s& plan : plans_) {
            const std::size_t zone = plan.zones.front();
            const ContentZone_s& facts = contents_.zones()[zone];
            const CgnsZone_s node =
                file_.addZone(baseFor(plan.cellDimension), zoneNames_[zone], facts.kind, facts.size,
                              facts.elementCount, plan.cellDimension);
            ZoneWriter(contents_, names_, plan, file_, node).write();
        }
    }

private:
    int baseFor(int cellDimension) {
        const auto [base, isNew] = bases_.try_emplace(cellDimension, 0);
        if (isNew)
            base->second = newBase(cellDimension);
        return base->second;
    }

    int newBase(int cellDimension) {
        const auto coordinates = variablesOf(contents_, Role_e::Coordinate).size();
        const int base = file_.addBase("Base" + std::to_string(cellDimension) + "D", cellDimension,
                                       std::max(cellDimension, static_cast<int>(coordinates)));
        std::vector<double> times;
        for (const TimeStep& step : contents_.steps())
            times.push_back(step.time);
        file_.putTimes(base, times);
        if (needsZoneLists(contents_, plans_))
            file_.putZoneLists(base, zoneLists(cellDimension));
        return base;
    }

    std::vector<std::vector<std::string>> zoneLists(int cellDimension) const {
        std::vector<std::vector<std::string>> lists;
        for (const TimeStep& step : contents_.steps()) {
            lists.emplace_back();
            for (const CgnsZonePlan_s& plan : plans_)
                if (plan.cellDimension == cellDimension && isSeen(plan, step))
                    lists.back().push_back(zoneNames_[plan.zones.front()]);
        }
        return lists;
    }

    static bool isSeen(const CgnsZonePlan_s& plan, const TimeStep& step) {
        return std::any_of(plan.zones.begin(), plan.zones.end(), [&](std::size_t zone) {
            return std::binary_search(step.zones.begin(), step.zones.end(), zone);
        });
    }

    Contents& contents_;
    const std::vector<CgnsZonePlan_s>& plans_;
    CgnsFile& file_;
    std::vector<std::string> names_;
    std::vector<std::string> zoneNames_;
    std::map<int, int> bases_; // by the dimension of their cells
};

} // namespace

Written_s CgnsWriter::write(Contents& contents, const Target_s& target) {
    const std::vector<CgnsZonePlan_s> plans = planCgnsZones(contents);
    ResultFile result(target.path, target.overwrites);
    CgnsFile file(result.growingPath(), target.path);
    BaseWriter(contents, plans, file).write();
    file.finish();
    result.finish();
    return {{target.path}, {}};
}

} // namespace plot3d::program
