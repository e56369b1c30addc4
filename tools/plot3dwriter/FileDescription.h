// What a PLOT3D file holds: its kind, its layout, its grids, and where the values come from.
// How the numbers stand on disk is told by FileForm.h. Grid, variable, point and element indices
// count from 0 here; node numbers inside a connectivity count from 1, as they stand in the file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "plot3dwriter/FileForm.h"

namespace quorvia::plot3dwriter {

/// A solution is told by its style, since the style decides its variables and scalars.
enum class FileKind_e { Grid, ClassicSolution, SwiftSolution, OverflowSolution, Function };

enum class Layout_e { OneD, TwoD, ThreeDWhole, ThreeDPlanes, Unstructured };

/// Points of a grid in each direction, 1 where the layout has no such direction. In an unstructured
/// file `i` is the count of nodes, `j` of triangles and `k` of tetrahedra, of which one is 0;
/// a solution or function file stores its nodes only, whatever stands in `j` and `k`.
struct GridDims_s {
    std::int32_t i = 1;
    std::int32_t j = 1;
    std::int32_t k = 1;
};

/// Value of a variable at a point. Each value of a block is asked for exactly once, I fastest, then
/// J, then K; the variables of a grid come one after the other (in 3-D Planes, of a plane).
/// In an unstructured file `i` is the node's index, `j` and `k` are 0.
using ValueFunction = std::function<double(std::int32_t grid, std::int32_t variable, std::int32_t i,
                                           std::int32_t j, std::int32_t k)>;

using IBlankFunction =
    std::function<std::int32_t(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k)>;

/// Node number, from 1, of a corner (0 to 2 in a triangle, 0 to 3 in a tetrahedron).
using CornerFunction =
    std::function<std::int32_t(std::int32_t grid, std::int64_t element, std::int32_t corner)>;

/// The integer that a triangle carries besides its corners; readers ignore it.
using TriangleTagFunction = std::function<std::int32_t(std::int32_t grid, std::int64_t triangle)>;

/// Whether a K plane of a variable is left unwritten. It reads as zeros and takes no space on a
/// disk that knows sparse files. The I-blank block has the index numVars of the file. In an
/// unstructured or 1-D or 2-D file `k` is 0, and stands for the whole block.
using HoleFunction = std::function<bool(std::int32_t grid, std::int32_t variable, std::int32_t k)>;

/// The one scalar of an Overflow solution that is an integer, counted from 0.
inline constexpr std::size_t overflowIntegerIndex = 7;

struct FileDescription_s {
    FileKind_e kind = FileKind_e::Grid;
    Layout_e layout = Layout_e::ThreeDWhole;
    bool isMultiGrid = false; ///< the file begins with the count of grids; never in 1-D
    bool hasIBlank = false;   ///< grid files only, neither 1-D nor unstructured

    std::vector<GridDims_s> grids; ///< in file order; at least one, exactly one unless isMultiGrid

    std::int32_t numVars = 0;    ///< Overflow and function files only; the others know their count
    std::int32_t numSpecies = 0; ///< Overflow only

    /// Per grid the scalars ahead of its variables, as many as scalarCount() says. An Overflow file
    /// in Fortran records may have more: readers take a longer record, and skip what they don't
    /// know. Place 8 of Overflow is an integer, and must hold a whole number.
    std::vector<std::vector<double>> scalars;

    ValueFunction value;
    IBlankFunction iblank;           ///< needed if hasIBlank
    CornerFunction corner;           ///< needed for an unstructured grid file
    TriangleTagFunction triangleTag; ///< empty: 0 for every triangle
    HoleFunction isHole;             ///< empty: no holes; not for text
};

/// Whether the number of variables stands in the header, behind the dimensions of each grid.
bool isCountOfEachGrid(FileKind_e kind);

/// Real variables per grid, I-blank not counted: the coordinates of a grid file, the variables of a
/// solution by its layout, otherwise FileDescription_s::numVars.
std::int32_t variableCount(const FileDescription_s& description);

/// Scalars ahead of each grid's variables: 0 for a grid or function file; 4 for any solution in
/// 1-D; otherwise 4, 5 for Swift, 11 and the greater of numSpecies and 2 for Overflow.
std::int32_t scalarCount(const FileDescription_s& description);

/// Values in one variable of a grid. Needs a description without fault.
std::int64_t pointCount(const FileDescription_s& description, const GridDims_s& grid);

/// What is wrong with the description or with writing it in this form, in one line without a full
/// stop; empty if it can be written.
std::string findFault(const FileDescription_s& description, const FileForm_s& form);

} // namespace quorvia::plot3dwriter
