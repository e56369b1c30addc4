// What the model says the host holds: the data set, zone by zone and field by field, with every
// value.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvia::sessions {

/// As the host numbers them.
enum Type_e : std::int32_t { singleType = 1, doubleType = 2, integerType = 3 };
enum PlotType_e : std::int32_t { noPlot = 0, plot3D = 1, plot2D = 2, plotXY = 3 };

/// Fields that are shared hold the same contents.
struct Contents_s {
    bool isDeferred = false; ///< left in the file until somebody asks
    std::vector<double> values;
};

struct Field_s {
    std::int32_t type = singleType;
    std::shared_ptr<const Contents_s> contents; ///< null: the field is empty
};

struct Zone_s {
    std::int32_t id = 0; ///< stays when zones before it go
    std::string name;
    std::int32_t type = 0; ///< 0 ordered, 1 triangles, 3 tetrahedra
    std::int64_t i = 1, j = 1, k = 1;
    std::int32_t strand = 0; ///< 0: none
    double time = 0;
    std::int32_t parentId = 0;                              ///< 0: none
    std::string boundaryCondition;                          ///< empty: no boundary zone
    std::shared_ptr<const std::vector<std::int32_t>> nodes; ///< null: none were stored
    std::vector<Field_s> fields;

    std::int64_t pointCount() const { return type == 0 ? i * j * k : i; }
};

struct DataSet_s {
    std::vector<std::string> variables;
    std::vector<Zone_s> zones;

    std::int32_t zoneCount() const { return static_cast<std::int32_t>(zones.size()); }
    std::int32_t variableCount() const { return static_cast<std::int32_t>(variables.size()); }
    std::int32_t highestStrand() const;
    /// Numbers from 1; they must exist.
    Zone_s& zone(std::int64_t number) { return zones[static_cast<std::size_t>(number - 1)]; }
    Field_s& field(std::int64_t zoneNumber, std::int64_t variable) {
        return zone(zoneNumber).fields[static_cast<std::size_t>(variable - 1)];
    }
};

/// A copy shares the contents of fields, which never change.
struct ExpectedHost_s {
    std::optional<DataSet_s> dataSet;
    std::int32_t plotType = noPlot;
    bool isSharingAllowed = true;
    std::int32_t lastId = 0;
};

} // namespace quorvia::sessions
