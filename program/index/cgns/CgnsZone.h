// One zone of a CGNS index: what it is, its grids, its solutions, and which of them belongs to
// which time.
#pragma once

#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

#include "index/cgns/CgnsTree.h"
#include "index/contents/IndexedData.h"
#include "index/contents/Originals.h"

namespace plot3d::program {

/// What zones of one file share: nodes that are alike stand there once and have many names.
struct SharedNodes_s {
    std::optional<CgnsPlace> gridLocation;
    std::optional<CgnsPlace> structured;
    /// Of coordinates and I-blank, by the zone that holds the field and the variable.
    std::map<std::pair<std::size_t, std::size_t>, CgnsPlace> fields;
};

class CgnsZone {
public:
    /// All is borrowed. `names` are those of data.variables(). A stop is an Error (Interrupted).
    CgnsZone(const IndexedData& data, const std::vector<std::string>& names, Originals& originals,
             CgnsTree& tree, SharedNodes_s& shared, std::stop_token stop);

    void write(const CgnsNode& base, const std::string& name, const Series_s& series,
               int cellDimension);

private:
    CgnsNode writeZone(const CgnsNode& base, const std::string& name) const;
    void writeElements(const CgnsNode& zone) const;
    std::vector<std::string> writeGrids(const CgnsNode& zone);
    std::vector<std::string> writeSolutions(const CgnsNode& zone);
    void writeGrid(const CgnsNode& zone, const std::string& name, std::size_t index);
    void writeSolution(const CgnsNode& zone, const std::string& name, std::size_t index);
    void writeField(const CgnsNode& parent, std::size_t place, std::size_t index);
    void putPointers(const CgnsNode& parent, const std::string& name,
                     const std::vector<std::string>& nodes);
    std::vector<std::size_t> holdersOfGrid(std::size_t index) const;
    std::vector<hsize_t> sizes() const;

    const IndexedData& data_;
    const std::vector<std::string>& names_;
    Originals& originals_;
    CgnsTree& tree_;
    SharedNodes_s& shared_;
    std::stop_token stop_;
    const Series_s* series_ = nullptr; // of the zone that is being written
    int cellDimension_ = 3;
};

} // namespace plot3d::program
