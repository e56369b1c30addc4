// Small PLOT3D files for tests, described and written by plot3dwriter, which shares no code with
// the reader. Every value names its place. Golden bytes stay with the tests that spell them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::testsupport {

using plot3dwriter::ByteOrder_e;
using plot3dwriter::Encoding_e;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;
using plot3dwriter::Precision_e;
using GridList = std::vector<GridDims_s>;
using Numbers = std::vector<double>;

// ---- What there is

/// A test holds them against the styles (plot3dfile/structure/StyleRulesTest.cpp).
inline constexpr FileKind_e everyKind[] = {FileKind_e::Grid, FileKind_e::ClassicSolution,
                                           FileKind_e::SwiftSolution, FileKind_e::OverflowSolution,
                                           FileKind_e::Function};
inline constexpr Layout_e everyDimension[] = {Layout_e::OneD, Layout_e::TwoD, Layout_e::ThreeDWhole,
                                              Layout_e::ThreeDPlanes, Layout_e::Unstructured};

// ---- What stands at a place: grid, variable and indices from 0

/// Exact in 32 bits, and different at each place as long as no direction has over ten points.
double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k);
/// I-blank of a point; negative in the second grid.
std::int32_t placeIBlank(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k);

// ---- Descriptions: of several grids where there are more than one

/// Values, I-blank and corners (element + corner + 1, from 0: a grid needs as many nodes) are told;
/// scalars and counts of variables are not.
FileDescription_s describe(FileKind_e kind, const GridList& grids,
                           Layout_e layout = Layout_e::ThreeDWhole,
                           plot3dwriter::ValueFunction value = placeValue);
/// As many scalars as a file of its kind has, the same for each grid: of `first`, then zeros.
void setScalars(FileDescription_s& description, const Numbers& first);
FileDescription_s describeGrid(const GridList& grids, Layout_e layout = Layout_e::ThreeDWhole);
/// Each grid has the scalars Mach 0.25 + its number from 1, alpha 2, Reynolds 3E6, and the time.
FileDescription_s describeSolution(const GridList& grids, double time,
                                   Layout_e layout = Layout_e::ThreeDWhole,
                                   FileKind_e kind = FileKind_e::ClassicSolution);
FileDescription_s describeFunction(const GridList& grids, std::int32_t varCount,
                                   Layout_e layout = Layout_e::ThreeDWhole);

/// The values of a whole field, I fastest.
Numbers fieldOf(const FileDescription_s& description, std::int32_t grid, std::int32_t variable);
Numbers iblankOf(const FileDescription_s& description, std::int32_t grid);

// ---- Forms

FileForm_s formOf(Encoding_e encoding, ByteOrder_e byteOrder = ByteOrder_e::Little,
                  Precision_e precision = Precision_e::Single, std::int32_t markerBytes = 4);
FileForm_s binary(ByteOrder_e byteOrder = ByteOrder_e::Little,
                  Precision_e precision = Precision_e::Single);
FileForm_s fortran(ByteOrder_e byteOrder = ByteOrder_e::Little,
                   Precision_e precision = Precision_e::Single);
FileForm_s text();
/// Text, plain binary and Fortran records of both widths, the binary ones in both byte orders.
std::vector<FileForm_s> everyEncoding(Precision_e precision = Precision_e::Single);
/// Every encoding of 32-bit reals, then of 64-bit ones: 14 in all.
std::vector<FileForm_s> everyForm();

// ---- Writing. Throws std::runtime_error with the writer's problem, which fails the test.

/// Gives where the blocks stand.
plot3dwriter::WriteOutcome_s writeFile(const std::string& path,
                                       const FileDescription_s& description,
                                       const FileForm_s& form = {});
std::string bytesOf(const FileDescription_s& description, const FileForm_s& form = {});

/// Files of one folder on the same grids. Each operation writes one file and gives its name, folder
/// included. A 1-D file has one grid, all others are multi-grid; values are placeValue() and
/// `shift`.
class SmallFiles {
public:
    /// `folder` must exist; empty for the working directory.
    explicit SmallFiles(const std::string& folder);

    FileForm_s form;
    Layout_e layout = Layout_e::ThreeDWhole; // of all but the surfaces
    GridList grids = {{2, 3, 5}, {3, 5, 2}};

    std::string grid(const std::string& name, bool hasIBlank = false, double shift = 0) const;
    /// Classic style; every grid has the time, Mach 0.5, alpha 2 and Reynolds 1000.
    std::string solution(const std::string& name, double time, double shift = 0) const;
    std::string function(const std::string& name, std::int32_t variableCount,
                         double shift = 0) const;
    /// A grid of 7 nodes and 5 triangles, and a solution on it.
    std::string surface(const std::string& name) const;
    std::string surfaceSolution(const std::string& name, double time) const;

private:
    std::string write(const std::string& name, FileDescription_s description, double shift) const;

    std::string folder_;
};

} // namespace quorvia::testsupport
