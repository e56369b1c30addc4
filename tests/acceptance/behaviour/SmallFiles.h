// Files of a few points, for loads that are made hundreds of times or written down call by call.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::testsupport {

/// Each operation writes one file and gives its name, folder included. All structured files are
/// multi-grid and 3-D Whole, on the same grids; values are placeValue().
class SmallFiles {
public:
    /// `folder` must exist; empty for the working directory.
    explicit SmallFiles(const std::string& folder);

    plot3dwriter::FileForm_s form;
    std::vector<plot3dwriter::GridDims_s> grids = {{2, 3, 5}, {3, 5, 2}};

    std::string grid(const std::string& name, bool hasIBlank = false) const;
    /// Classic style; every grid has the time.
    std::string solution(const std::string& name, double time) const;
    std::string function(const std::string& name, std::int32_t variableCount) const;
    /// A grid of 7 nodes and 5 triangles, and a solution on it.
    std::string surface(const std::string& name) const;
    std::string surfaceSolution(const std::string& name, double time) const;

private:
    std::string write(const std::string& name,
                      const plot3dwriter::FileDescription_s& description) const;

    std::string folder_;
};

/// A value that names its place by indices from 0; exact in 32 bits.
double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k);

} // namespace quorvia::testsupport
