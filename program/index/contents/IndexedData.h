// The part of a data set that an index tells of, zone by zone and time by time. Indices are those
// of the data set, from 0.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/DataSet.h>

#include "analysis/fields/SelectedZone.h"

namespace plot3d::program {

struct IndexedVariable_s {
    std::size_t variable = 0;
    std::string name;
    std::optional<int> coordinate; // 0 for X, 1 for Y, 2 for Z; nothing for other variables
    bool isIBlank = false;
};

/// Zones that are one grid through time: one for each time step, or one that is seen at all times.
struct Series_s {
    std::vector<std::size_t> zones; // at least one
    bool isSeenAlways = true;
};

class IndexedData {
public:
    /// `data` is borrowed. Throws Error (Unsupported) for zones of which only some points are
    /// selected.
    IndexedData(const DataSet& data, const std::vector<std::size_t>& variables,
                const std::vector<analysis::SelectedZone_s>& zones);

    const DataSet& data() const { return data_; }
    const Zone& zone(std::size_t zone) const { return data_.zones()[zone]; }
    /// In the order of the data set. Coordinates and I-blank are always among them.
    const std::vector<IndexedVariable_s>& variables() const { return variables_; }
    /// The coordinates among them: none without a grid file.
    std::size_t coordinateCount() const { return coordinateCount_; }
    /// Ascending.
    const std::vector<std::size_t>& zones() const { return zones_; }
    /// In the order of time, each with the indexed zones that are seen then; at least one.
    const std::vector<TimeStep>& steps() const { return steps_; }
    /// All zones. If every grid is there at all times and in one size, one series for each grid;
    /// otherwise one for each zone.
    const std::vector<Series_s>& series() const { return series_; }
    /// Whether `series` came of grids that are not there at all times.
    bool isBroken() const { return isBroken_; }

    bool has(std::size_t zone, std::size_t variable) const;

    /// Throws Error (Unsupported) if some field is not in a file as it is: text, planes, subsets
    /// and boundaries, by their names.
    void refuseFieldsOutsideFiles() const;
    /// Throws Error (Unsupported) if there is a zone without coordinates.
    void refuseMissingCoordinates() const;
    /// Throws Error (Unsupported) if there are several times and one is infinite or no number:
    /// readers that want numbers take it for 0, or find no time at all.
    void refuseTimesThatAreNotFinite() const;

private:
    void addVariables(const std::vector<std::size_t>& selected);
    void addSteps();
    void addSeries();
    bool followStrands();

    const DataSet& data_;
    std::vector<IndexedVariable_s> variables_;
    std::size_t coordinateCount_ = 0;
    std::vector<std::size_t> zones_;
    std::vector<TimeStep> steps_;
    std::vector<Series_s> series_;
    bool isBroken_ = false;
};

} // namespace plot3d::program
