#include "sessions/FileMaker.h"

#include <algorithm>

#include <fmt/core.h>

#include "sessions/PlainBinary.h"

namespace quorvia::sessions {

using plot3dwriter::ByteOrder_e;

GridDims_s FileMaker::chooseDims() {
    switch (shape_.layout) {
    case Layout_e::OneD:
        return {dice_.between(7, 11), 1, 1};
    case Layout_e::TwoD:
        return {dice_.between(3, 7), dice_.between(3, 6), 1};
    case Layout_e::Unstructured:
        return dice_.chance(50) ? GridDims_s{dice_.between(7, 12), dice_.between(1, 6), 0}
                                : GridDims_s{dice_.between(7, 12), 0, dice_.between(1, 6)};
    case Layout_e::ThreeDPlanes: // a plane of 64-bit reals has the bytes of two of 32-bit ones
        return {dice_.between(2, 5), dice_.between(2, 5), dice_.between(3, 5)};
    default:
        return {dice_.between(2, 5), dice_.between(2, 5), dice_.between(2, 5)};
    }
}

FileForm_s FileMaker::chooseForm() {
    FileForm_s form;
    form.encoding = shape_.layout == Layout_e::ThreeDPlanes
                        ? Encoding_e::Fortran // nothing else tells planes
                        : dice_.oneOf<Encoding_e>({Encoding_e::Text, Encoding_e::Binary,
                                                   Encoding_e::Binary, Encoding_e::Fortran});
    form.byteOrder = dice_.chance(30) ? ByteOrder_e::Big : ByteOrder_e::Little;
    form.precision = dice_.chance(40) ? Precision_e::Double : Precision_e::Single;
    form.markerBytes = dice_.chance(30) ? 8 : 4;
    // A line with the count of grids alone is a whole 1-D header.
    if (shape_.layout == Layout_e::Unstructured && shape_.isMultiGrid &&
        form.encoding == Encoding_e::Text)
        form.encoding = Encoding_e::Fortran;
    if (form.encoding == Encoding_e::Text)
        form.precision = shape_.textPrecision;
    return form;
}

void FileMaker::chooseShape() {
    shape_.layout = dice_.oneOf<Layout_e>(
        {Layout_e::ThreeDWhole, Layout_e::ThreeDWhole, Layout_e::ThreeDWhole, Layout_e::TwoD,
         Layout_e::TwoD, Layout_e::ThreeDPlanes, Layout_e::OneD, Layout_e::Unstructured});
    shape_.textPrecision = dice_.chance(30) ? Precision_e::Double : Precision_e::Single;
    const bool isSingle = shape_.layout == Layout_e::OneD || dice_.chance(25);
    shape_.isMultiGrid = !isSingle;
    // A count of one grid ahead of two dimensions looks like three dimensions.
    const std::int32_t fewest = shape_.layout == Layout_e::TwoD ? 2 : 1;
    const std::int32_t count = isSingle ? 1 : dice_.between(fewest, 3);
    for (std::int32_t grid = 0; grid < count; ++grid)
        shape_.grids.push_back(grid > 0 && dice_.chance(30) ? shape_.grids.front() : chooseDims());
    shape_.hasIBlank = !isFlat() && dice_.chance(40);
    shape_.hasBoundaries = shape_.layout != Layout_e::Unstructured &&
                           shape_.layout != Layout_e::ThreeDPlanes && dice_.chance(40);
    shape_.form = chooseForm();
    if (dice_.chance(25))
        for (Range_s& range : shape_.ranges)
            if (dice_.chance(50)) {
                range.start = dice_.between(1, 4);
                range.end = dice_.chance(50) ? 0 : range.start + dice_.between(0, 4);
                range.skip = dice_.between(1, 3);
            }
    if (count > 1 && dice_.chance(25)) {
        for (std::int32_t grid = 1; grid <= count; ++grid)
            if (dice_.chance(60))
                shape_.gridSet.insert(grid);
        if (shape_.gridSet.empty())
            shape_.gridSet.insert(dice_.between(1, count));
    }
}

std::vector<Boundary_s> FileMaker::chooseBoundaries(const Grids& grids) {
    std::vector<Boundary_s> boundaries;
    for (std::int32_t n = dice_.between(1, 3); n > 0; --n) {
        Boundary_s boundary;
        boundary.name = dice_.oneOf<std::string>({"wall", "inlet", "supersonic_outflow", "tail"});
        boundary.gridNumber = dice_.between(1, static_cast<std::int32_t>(grids.size()));
        const GridDims_s& dims = grids[static_cast<std::size_t>(boundary.gridNumber - 1)];
        const auto choose = [&](std::int32_t count, std::int32_t& first, std::int32_t& last) {
            first = dice_.between(1, count);
            last = dice_.between(first, count);
        };
        choose(dims.i, boundary.first.i, boundary.last.i);
        choose(dims.j, boundary.first.j, boundary.last.j);
        choose(dims.k, boundary.first.k, boundary.last.k);
        boundaries.push_back(boundary);
    }
    return boundaries;
}

std::size_t FileMaker::addFile(FileKind_e kind, const char* extension, const FileForm_s& form,
                               const Grids& grids, bool hasIBlank, std::int32_t functionCount,
                               std::int32_t step, bool isNamedByTime) {
    FileModel_s file;
    file.serial = static_cast<std::int32_t>(files_.size()) + 1;
    file.name = std::string(1, static_cast<char>('a' + file.serial / 26)) +
                static_cast<char>('a' + file.serial % 26);
    const double time = dice_.chance(90) ? step + 0.5 : 1.5;
    if (isNamedByTime)
        file.name += fmt::format("_t{}", dice_.chance(95) ? time + 100 : 101.5);
    file.name += extension;
    file.kind = kind;
    file.layout = shape_.layout;
    file.form = form;
    file.isMultiGrid = shape_.isMultiGrid;
    file.hasIBlank = kind == FileKind_e::Grid && hasIBlank;
    file.grids = grids;
    file.functionCount = kind == FileKind_e::Function ? functionCount : 0;
    file.time = time;
    if (kind == FileKind_e::Grid && shape_.hasBoundaries)
        file.boundaries = chooseBoundaries(grids);
    if (!isUnmistakable(file))
        file.form.encoding = Encoding_e::Fortran;
    files_.push_back(file);
    return files_.size() - 1;
}

Places FileMaker::addList(FileKind_e kind, const char* extension, std::int32_t count,
                          const std::vector<Grids>& grids, const Load_s& load) {
    FileForm_s form = dice_.chance(70) ? shape_.form : chooseForm();
    const Places& beside = load.solutions.empty() ? load.grids : load.solutions;
    if (kind == FileKind_e::Function && dice_.chance(93)) { // beside others precisions must agree
        const FileForm_s other = beside.empty() ? shape_.form : files_[beside.front()].form;
        form.precision = other.precision;
        if (form.encoding == Encoding_e::Text && form.precision != shape_.textPrecision)
            form.encoding = Encoding_e::Fortran;
    }
    const bool isOneGridFile = load.grids.size() == 1 || (kind == FileKind_e::Grid && count == 1);
    const bool isUniform = load.isUniform || isOneGridFile;
    const bool mustBeAlike = isUniform && (kind == FileKind_e::Grid || load.sharesStructure);
    const bool isNamedByTime = dice_.chance(50);
    const std::int32_t functionCount = dice_.between(1, 3);
    const bool hasIBlank = shape_.hasIBlank != (!isFlat() && dice_.chance(5));
    const std::int32_t firstStep = dice_.between(0, 3);
    Places places;
    for (std::int32_t n = 0; n < count; ++n) {
        if (!mustBeAlike && kind != FileKind_e::Function && dice_.chance(20)) {
            const FileForm_s other = chooseForm();
            // A boundary zone has the types of its parent and the values of the first grid file.
            if (!shape_.hasBoundaries || other.precision == form.precision)
                form = other;
        }
        const Grids& of = grids[std::min(static_cast<std::size_t>(n), grids.size() - 1)];
        places.push_back(addFile(kind, extension, form, of, hasIBlank, functionCount, firstStep + n,
                                 isNamedByTime && !dice_.chance(3)));
    }
    return places;
}

// Grids of later steps may differ from the first where nobody has promised the contrary.
void FileMaker::chooseFiles(Load_s& load, std::int32_t grids, std::int32_t solutions,
                            std::int32_t functions) {
    std::vector<Grids> dims = {shape_.grids};
    // Boundaries are those of the first grid file, in every step.
    const bool mayDiffer =
        grids > 1 && !load.isUniform && shape_.isMultiGrid && !shape_.hasBoundaries;
    for (std::int32_t n = 1; n < std::max({grids, solutions, functions}); ++n) {
        Grids of = shape_.grids;
        if (mayDiffer && dice_.chance(50))
            std::rotate(of.begin(), of.begin() + 1, of.end());
        if (mayDiffer && of.size() > 2 && dice_.chance(30))
            of.pop_back();
        dims.push_back(of);
    }
    if (dice_.chance(4)) // nothing that fits what is there
        std::fill(dims.begin(), dims.end(), Grids(shape_.grids.size(), chooseDims()));
    const auto isGrid = [](const FileModel_s& file) { return file.kind == FileKind_e::Grid; };
    const auto known = std::find_if(files_.begin(), files_.end(), isGrid);
    if (grids == 1 && known != files_.end() && dice_.chance(25)) { // once more
        load.grids = {static_cast<std::size_t>(known - files_.begin())};
        dims.assign(dims.size(), known->grids);
    } else if (grids > 0) {
        load.grids = addList(FileKind_e::Grid, ".x", grids, dims, load);
    }
    const bool isPromised = dims.size() > 1 && (load.isUniform || grids == 1);
    if (!(isPromised && load.sharesStructure) && dice_.chance(3)) // one that does not fit the grid
        dims.back() = Grids(shape_.grids.size(), chooseDims());
    std::vector<FileKind_e> kinds = {FileKind_e::ClassicSolution, FileKind_e::ClassicSolution};
    if (shape_.layout != Layout_e::OneD && shape_.layout != Layout_e::Unstructured)
        kinds.push_back(FileKind_e::SwiftSolution);
    if (coordinateCount(shape_.layout) == 3 && shape_.layout != Layout_e::Unstructured)
        kinds.push_back(FileKind_e::OverflowSolution);
    if (solutions > 0)
        load.solutions = addList(dice_.oneOf(kinds), ".q", solutions, dims, load);
    if (functions > 0 && solutions == 0 && dice_.chance(15))
        load.solutions = addList(FileKind_e::Function, ".q", functions, dims, load);
    else if (functions > 0)
        load.functions = addList(FileKind_e::Function, ".f", functions, dims, load);
}

bool FileMaker::takesPart() const {
    return !shape_.gridSet.empty() ||
           std::any_of(shape_.ranges.begin(), shape_.ranges.end(),
                       [](const Range_s& range) { return !range.isWhole(); });
}

void FileMaker::setFunctionCount(const Places& functions, std::int32_t count) {
    for (const std::size_t place : functions) {
        files_[place].functionCount = count;
        if (!isUnmistakable(files_[place]))
            files_[place].form.encoding = Encoding_e::Fortran;
    }
}

} // namespace quorvia::sessions
