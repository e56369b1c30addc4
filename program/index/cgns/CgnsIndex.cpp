#include "index/cgns/CgnsIndex.h"

#include <algorithm>
#include <array>
#include <map>

#include <plot3d/Error.h>

#include "index/cgns/CgnsPointers.h"
#include "index/cgns/CgnsText.h"
#include "index/cgns/CgnsTree.h"
#include "index/cgns/CgnsZone.h"
#include "names/CgnsNames.h"
#include "names/UniqueNames.h"

namespace plot3d::program {

namespace {

const char* const marksNode = "Plot3dOriginals";

/// `names` as names of nodes, none of which is `taken`.
std::vector<std::string> freeNames(std::vector<std::string> names,
                                   const std::vector<std::string>& taken) {
    names.insert(names.begin(), taken.begin(), taken.end());
    names = nodeNames(names, cgnsNameLength);
    names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(taken.size()));
    return names;
}

class CgnsIndexWriter {
public:
    CgnsIndexWriter(const IndexedData& data, Originals& originals,
                    const std::filesystem::path& file, const Watch& watch)
        : data_(data), originals_(originals), watch_(watch), tree_(file) {
        nameNodes();
    }

    void write() {
        CgnsZone writer(data_, names_, originals_, tree_, shared_, watch_.stop);
        for (std::size_t place = 0; place < data_.series().size(); ++place) {
            const Series_s& series = data_.series()[place];
            const int dimension = cellDimensionOf(series.zones.front());
            writer.write(base(dimension), zoneNames_[place], series, dimension);
            tellProgress(place + 1);
        }
        const std::string marks = textOf(originals_.marks());
        tree_.addText(bases_.begin()->second, marksNode, "Descriptor_t", marks);
        bases_.clear(); // a file stays open as long as a node of it
        tree_.finish();
    }

private:
    void nameNodes() {
        std::vector<std::string> names;
        for (const IndexedVariable_s& variable : data_.variables())
            names.push_back(cgnsStandardName(variable.name));
        names_ = freeNames(names, {"GridLocation"});
        names.clear();
        for (const Series_s& series : data_.series())
            names.push_back(data_.zone(series.zones.front()).name);
        zoneNames_ = freeNames(names, {"BaseIterativeData", marksNode});
    }

    /// Zones whose cells have one dimension stand in one base.
    const CgnsNode& base(int cellDimension) {
        const auto [base, isNew] = bases_.try_emplace(cellDimension);
        if (isNew)
            base->second = newBase(cellDimension);
        return base->second;
    }

    CgnsNode newBase(int cellDimension) {
        constexpr std::array<hsize_t, 1> two = {2};
        const auto coordinates = static_cast<std::int32_t>(data_.coordinateCount());
        const std::array<std::int32_t, 2> dimensions = {cellDimension,
                                                        std::max(cellDimension, coordinates)};
        CgnsNode base =
            tree_.addIntegers(tree_.root(), "Base" + std::to_string(cellDimension) + "D",
                              "CGNSBase_t", two, dimensions);
        putTimes(base, cellDimension);
        return base;
    }

    void putTimes(const CgnsNode& base, int cellDimension) {
        constexpr std::array<hsize_t, 1> one = {1};
        const std::array<std::int32_t, 1> count = {static_cast<std::int32_t>(data_.steps().size())};
        const CgnsNode node =
            tree_.addIntegers(base, "BaseIterativeData", "BaseIterativeData_t", one, count);
        std::vector<double> times;
        for (const TimeStep& step : data_.steps())
            times.push_back(step.time);
        tree_.addReals(node, "TimeValues", "DataArray_t", times);
        if (data_.isBroken())
            putZoneLists(node, cellDimension);
    }

    /// Which zones are seen at which time.
    void putZoneLists(const CgnsNode& node, int cellDimension) {
        std::vector<std::vector<std::string>> lists;
        std::vector<std::int32_t> counts;
        std::size_t most = 0;
        for (const TimeStep& step : data_.steps()) {
            lists.push_back(namesSeen(step, cellDimension));
            counts.push_back(static_cast<std::int32_t>(lists.back().size()));
            most = std::max(most, lists.back().size());
        }
        std::string text;
        for (std::vector<std::string>& list : lists) {
            list.resize(most, "Null");
            text += pointerText(list);
        }
        const std::array<hsize_t, 1> steps = {counts.size()};
        const std::array<hsize_t, 3> sizes = {lists.size(), most, cgnsNameLength};
        tree_.addIntegers(node, "NumberOfZones", "DataArray_t", steps, counts);
        tree_.addText(node, "ZonePointers", "DataArray_t", sizes, text);
    }

    int cellDimensionOf(std::size_t zone) const {
        return cgnsCellDimension(data_.zone(zone).kind, data_.data().dimensions());
    }

    /// Each series is one zone here, in the order of the zones.
    std::vector<std::string> namesSeen(const TimeStep& step, int cellDimension) const {
        std::vector<std::string> names;
        const std::vector<std::size_t>& zones = data_.zones();
        for (const std::size_t zone : step.zones)
            if (cellDimensionOf(zone) == cellDimension) {
                const auto place = std::lower_bound(zones.begin(), zones.end(), zone);
                names.push_back(zoneNames_[static_cast<std::size_t>(place - zones.begin())]);
            }
        return names;
    }

    void tellProgress(std::size_t done) const {
        if (watch_.progress)
            watch_.progress({"writing the index", static_cast<double>(done) /
                                                      static_cast<double>(data_.series().size())});
    }

    const IndexedData& data_;
    Originals& originals_;
    const Watch& watch_;
    CgnsTree tree_;
    SharedNodes_s shared_;
    std::map<int, CgnsNode> bases_;
    std::vector<std::string> names_;     // of the variables
    std::vector<std::string> zoneNames_; // of the series
};

} // namespace

void CgnsIndex::write(const IndexedData& data, Originals& originals,
                      const std::filesystem::path& file, const Watch& watch) const {
    data.refuseFieldsOutsideFiles();
    data.refuseMissingCoordinates();
    CgnsIndexWriter(data, originals, file, watch).write();
}

std::vector<OriginalMark_s> CgnsIndex::readMarks(const std::filesystem::path& file) const {
    return marksOfText(readCgnsText(file, marksNode));
}

} // namespace plot3d::program
