// Files for sessions of several loads: grids of any sizes, and solutions and functions whose values
// tell one file from the next.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::testsupport {

/// Each operation writes one file and gives its name, folder included. A 1-D file has one grid, all
/// others are multi-grid.
class SessionFiles {
public:
    /// `folder` must exist.
    explicit SessionFiles(std::string folder) : folder_(std::move(folder)) {}

    plot3dwriter::FileForm_s form;
    plot3dwriter::Layout_e layout = plot3dwriter::Layout_e::ThreeDWhole;
    std::vector<plot3dwriter::GridDims_s> grids = {{2, 3, 5}, {3, 5, 2}};

    std::string grid(const std::string& name, bool hasIBlank = false) const;
    /// Classic style; every grid has the time. The values are placeValue() and `shift`.
    std::string solution(const std::string& name, double time, double shift = 0) const;
    std::string function(const std::string& name, std::int32_t variableCount,
                         double shift = 0) const;

private:
    std::string write(const std::string& name,
                      const plot3dwriter::FileDescription_s& description) const;

    std::string folder_;
};

/// Points that a load takes of a direction, from 1.
struct Range_s {
    std::int32_t start = 1;
    std::int32_t end = 0; // 0: the last
    std::int32_t skip = 1;
};

enum class FieldForm_e { Single, Double, IBlank };

/// What a field of `grid` should hold: the values of the file's `variable`, both from 0, at the
/// points of the three ranges. Of the form IBlank the variable does not matter.
struct FieldOfFile_s {
    plot3dwriter::GridDims_s dims;
    std::int32_t grid = 0;
    std::int32_t variable = 0;
    double shift = 0;
    Range_s i = {};
    Range_s j = {};
    Range_s k = {};
    FieldForm_e form = FieldForm_e::Single;
};

/// Whether the field of an outcome has as many values as expected, with their CRC-32.
bool holds(const nlohmann::ordered_json& field, const FieldOfFile_s& expected);

} // namespace quorvia::testsupport
