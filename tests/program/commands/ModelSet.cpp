#include "program/commands/ModelSet.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace plot3d::program {

using writer::Encoding_e;
using writer::FileDescription_s;
using writer::FileKind_e;
using writer::GridDims_s;
using writer::Layout_e;

namespace {

std::vector<std::string> conservativeNames(Layout_e layout) {
    switch (layout) {
    case Layout_e::OneD:
        return {"V2", "V3", "V4"};
    case Layout_e::TwoD:
        return {"RHO", "RHO-U", "RHO-V", "E"};
    default:
        return {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"};
    }
}

const std::array<std::string, 3> coordinateNames = {"X", "Y", "Z"};

int dimensionsOf(Layout_e layout) {
    return layout == Layout_e::OneD ? 1 : layout == Layout_e::TwoD ? 2 : 3;
}

} // namespace

bool isEarlier(double one, double other) {
    return std::isnan(one) ? false : std::isnan(other) || one < other;
}

ModelSet::ModelSet(std::uint64_t seed, std::uint64_t formSeed) : seed_(seed) {
    Dice draw(seed);
    Dice form(formSeed);
    layout_ =
        draw.oneOf<Layout_e>({Layout_e::ThreeDWhole, Layout_e::ThreeDWhole, Layout_e::TwoD,
                              Layout_e::ThreeDPlanes, Layout_e::OneD, Layout_e::Unstructured});
    drawSizes(draw);
    drawParts(draw);
    drawForms(form);
    drawStyle(draw);
    drawNames(draw);
    addVariables();
    addZones(draw);
    addFiles(form);
}

void ModelSet::drawSizes(Dice& draw) {
    const bool isOne = layout_ == Layout_e::OneD || draw.chance(33);
    for (std::int32_t left = isOne ? 1 : draw.between(1, 3); left > 0; --left)
        switch (layout_) {
        case Layout_e::OneD:
            sizes_.push_back({draw.between(2, 30), 1, 1});
            break;
        case Layout_e::TwoD:
            sizes_.push_back({draw.between(2, 9), draw.between(2, 8), 1});
            break;
        case Layout_e::Unstructured:
            sizes_.push_back(draw.chance(50)
                                 ? GridDims_s{draw.between(4, 20), 0, draw.between(1, 9)}
                                 : GridDims_s{draw.between(4, 20), draw.between(1, 9), 0});
            break;
        default:
            sizes_.push_back({draw.between(1, 8), draw.between(2, 6), draw.between(1, 5)});
        }
    hasIBlank_ = dimensionsOf(layout_) > 1 && !isUnstructured() && draw.chance(50);
}

/// Which files there are: the numbers of them that make time steps (docs/time-series.md).
void ModelSet::drawParts(Dice& draw) {
    hasSolution_ = draw.chance(50);
    steps_ = draw.chance(50) ? draw.between(2, 3) : 1;
    if (steps_ == 1)
        functionFiles_ = draw.between(0, 2);
    else
        functionFiles_ = hasSolution_ ? draw.between(0, 1) : 1;
    moves_ = steps_ > 1 && hasSolution_ && draw.chance(33);
    functionVariables_ = draw.between(1, 3);
    hasSpoiltValues_ = draw.chance(33);
}

/// Planes are told from whole fields by their records alone; I-blank and precision of text are
/// words of the load, and so those of all text files.
void ModelSet::drawForms(Dice& form) {
    isKnownByNames_ = !form.chance(25);
    hasText_ = !hasSpoiltValues_ && layout_ != Layout_e::ThreeDPlanes &&
               !(isUnstructured() && sizes_.size() > 1) && form.chance(33);
    isDouble_[0] = form.chance(50);
    isDouble_[1] = hasText_ || !hasSolution_ ? isDouble_[0] : form.chance(50);
}

/// docs/variables.md tells which names the variables of each style have.
void ModelSet::drawStyle(Dice& draw) {
    solutionNames_ = conservativeNames(layout_);
    std::vector<FileKind_e> kinds = {FileKind_e::ClassicSolution, FileKind_e::ClassicSolution};
    if (!isUnstructured())
        kinds.push_back(FileKind_e::SwiftSolution);
    if (layout_ == Layout_e::ThreeDWhole || layout_ == Layout_e::ThreeDPlanes)
        kinds.push_back(FileKind_e::OverflowSolution);
    solutionKind_ = draw.oneOf(kinds);
    if (solutionKind_ != FileKind_e::OverflowSolution || draw.chance(20))
        return;
    species_ = draw.between(0, 3);
    solutionNames_.push_back("GAMMA");
    for (std::int32_t species = 1; species <= species_; ++species)
        solutionNames_.push_back("RHO-C" + std::to_string(species));
    const std::vector<std::vector<std::string>> turbulence = {
        {}, {"RET"}, {"K", "EPSILON"}, {"V2", "V3", "V4"}};
    const std::vector<std::string> rest = draw.oneOf(turbulence);
    solutionNames_.insert(solutionNames_.end(), rest.begin(), rest.end());
}

/// Names of no other variable, among them those that mean something in other data sets. A name file
/// calls solution and functions the same, so that there is none for both.
void ModelSet::drawNames(Dice& draw) {
    if (hasSolution_ == (functionFiles_ > 0) || draw.chance(50))
        return;
    std::vector<std::string> names = {"mach", "A b", "a1.2", "T-wall"};
    if (!hasIBlank_)
        names.push_back("IBlank");
    for (int axis = dimensionsOf(layout_); axis < 3; ++axis)
        names.push_back(coordinateNames[static_cast<std::size_t>(axis)]);
    for (std::int32_t left = draw.between(1, 4); left > 0; --left) {
        nameLines_.push_back(draw.oneOf(names));
        std::erase(names, nameLines_.back());
    }
}

void ModelSet::addVariables() {
    for (std::int32_t place = 0; place < dimensionsOf(layout_); ++place)
        variables_.push_back({coordinateNames[static_cast<std::size_t>(place)], Part_Grid, place});
    if (hasIBlank_)
        variables_.push_back({"IBlank", Part_Grid, dimensionsOf(layout_), true});
    const auto renamed = [this](std::int32_t place, const std::string& name) {
        const auto line = static_cast<std::size_t>(place);
        return line < nameLines_.size() ? nameLines_[line] : name;
    };
    std::int32_t place = 0;
    if (hasSolution_)
        for (const std::string& name : solutionNames_) {
            variables_.push_back({renamed(place, name), Part_Solution, place});
            ++place;
        }
    for (int file = 0; file < functionFiles_; ++file)
        for (std::int32_t number = 0; number < functionVariables_; ++number) {
            const std::string name =
                "F" + std::to_string(file + 1) + "V" + std::to_string(number + 1);
            variables_.push_back(
                {file == 0 ? renamed(number, name) : name, Part_Functions + file, number});
        }
}

/// Files need not be in the order of their times, unless these stand in their names.
void ModelSet::addZones(Dice& draw) {
    for (int step = 0; step < steps_; ++step)
        stepTimes_.push_back(0.25 * (step + 1));
    if (hasSolution_ && draw.chance(33))
        std::swap(stepTimes_.front(), stepTimes_.back());
    if (hasSolution_ && hasSpoiltValues_) {
        using Limits = std::numeric_limits<double>;
        stepTimes_[static_cast<std::size_t>(draw.between(1, steps_)) - 1] =
            draw.oneOf<double>({Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()});
    }
    for (int step = 0; step < steps_; ++step)
        for (std::int32_t grid = 0; grid < static_cast<std::int32_t>(sizes_.size()); ++grid) {
            const GridDims_s& dims = sizes_[static_cast<std::size_t>(grid)];
            ModelZone_s zone = {grid, step, {dims.i, dims.j, dims.k}, 0};
            if (isUnstructured())
                zone.size = {dims.i, 1, 1};
            if (hasSolution_ || steps_ > 1)
                zone.time = stepTimes_[static_cast<std::size_t>(step)];
            zones_.push_back(zone);
        }
    if (steps_ > 1)
        times_ = stepTimes_;
    std::sort(times_.begin(), times_.end(), isEarlier);
}

void ModelSet::addFiles(Dice& form) {
    const auto numbered = [](int step) { return "a_" + std::to_string(step + 9); };
    for (int step = 0; step < (moves_ ? steps_ : 1); ++step)
        addFile(Part_Grid, step, numbered(step) + ".x", form);
    for (int step = 0; step < steps_; ++step) {
        if (hasSolution_)
            addFile(Part_Solution, step, numbered(step) + ".q", form);
        for (int file = 0; file < functionFiles_; ++file)
            addFile(Part_Functions + file, step, functionName(step, file) + ".f", form);
    }
}

/// Without a solution a number in the name would be the time.
std::string ModelSet::functionName(int step, int file) const {
    if (hasSolution_)
        return "a_" + std::to_string(step + 9) + static_cast<char>('a' + file);
    return steps_ == 1 ? std::string("a_") + static_cast<char>('a' + file)
                       : "a_" + std::to_string(stepTimes_[static_cast<std::size_t>(step)]);
}

void ModelSet::addFile(int part, int step, const std::string& name, Dice& form) {
    std::vector<std::int32_t> grids(sizes_.size());
    std::iota(grids.begin(), grids.end(), 0);
    ModelFile_s file = {isKnownByNames_ ? name : name + ".bin", part, step,
                        description(part, grids), drawForm(form, part)};
    file.contents.isMultiGrid = sizes_.size() > 1 || (layout_ != Layout_e::OneD && form.chance(50));
    file.contents.value = [this, part, step](std::int32_t grid, std::int32_t variable,
                                             std::int32_t i, std::int32_t j, std::int32_t k) {
        return rawValue(part, step, grid, variable, i, j, k);
    };
    if (part == Part_Solution)
        file.contents.scalars.assign(sizes_.size(), scalars(step));
    files_.push_back(file);
}

writer::FileForm_s ModelSet::drawForm(Dice& draw, int part) const {
    writer::FileForm_s form =
        binary(draw.chance(50) ? writer::ByteOrder_e::Little : writer::ByteOrder_e::Big,
               isDouble(part) ? writer::Precision_e::Double : writer::Precision_e::Single);
    form.markerBytes = draw.chance(50) ? 4 : 8;
    if (hasText_ && draw.chance(50))
        form.encoding = Encoding_e::Text;
    else if (layout_ == Layout_e::ThreeDPlanes || draw.chance(50))
        form.encoding = Encoding_e::Fortran;
    return form;
}

std::vector<double> ModelSet::scalars(int step) const {
    std::vector<double> scalars = {0.5 + step, 2.25, 1500000.0,
                                   stepTimes_[static_cast<std::size_t>(step)]};
    const int further = layout_ == Layout_e::OneD                       ? 0
                        : solutionKind_ == FileKind_e::SwiftSolution    ? 1
                        : solutionKind_ == FileKind_e::OverflowSolution ? 7 + std::max(species_, 2)
                                                                        : 0;
    for (int place = 0; place < further; ++place)
        scalars.push_back(3 + place); // one of Overflow's is an integer
    return scalars;
}

FileKind_e ModelSet::kindOf(int part) const {
    if (part == Part_Grid)
        return FileKind_e::Grid;
    return part == Part_Solution ? solutionKind_ : FileKind_e::Function;
}

FileDescription_s ModelSet::description(int part, const std::vector<std::int32_t>& grids) const {
    Sizes sizes;
    for (const std::int32_t grid : grids)
        sizes.push_back(sizes_[static_cast<std::size_t>(grid)]);
    FileDescription_s contents = quorvia::testsupport::describe(kindOf(part), sizes, layout_);
    if (part >= Part_Functions)
        contents.numVars = functionVariables_;
    if (part == Part_Solution && solutionKind_ == FileKind_e::OverflowSolution) {
        contents.numVars = static_cast<std::int32_t>(solutionNames_.size());
        contents.numSpecies = species_;
    }
    if (part == Part_Grid && hasIBlank_) {
        contents.hasIBlank = true;
        contents.iblank = [this, grids](std::int32_t grid, std::int32_t i, std::int32_t j,
                                        std::int32_t k) {
            return iBlank({grids[static_cast<std::size_t>(grid)], 0, {}, 0}, i, j, k);
        };
    }
    if (part == Part_Grid && isUnstructured())
        contents.corner = [this, grids](std::int32_t grid, std::int64_t element,
                                        std::int32_t corner) {
            const std::int32_t of = grids[static_cast<std::size_t>(grid)];
            const auto nodes = static_cast<std::uint32_t>(sizes_[static_cast<std::size_t>(of)].i);
            return 1 + static_cast<std::int32_t>(dice(seed_ + 3, of, element, corner) % nodes);
        };
    return contents;
}

std::vector<std::pair<std::string, std::string>> ModelSet::instructions() const {
    if (!hasText_)
        return {};
    return {{"ASCIIISDOUBLE", isDouble_[0] ? "Yes" : "No"},
            {"ASCIIHASIBLANK", hasIBlank_ ? "Yes" : "No"}};
}

double ModelSet::rawValue(int part, int step, std::int32_t grid, std::int32_t variable,
                          std::int64_t i, std::int64_t j, std::int64_t k) const {
    const std::int64_t place = i + 100 * j + 10000 * k;
    const std::int64_t file = 10 * step + part;
    const std::uint32_t luck = dice(seed_ + 1, file, grid, variable, place);
    if (part != Part_Grid && hasSpoiltValues_ && luck % 40 < 3)
        return luck % 40 == 0   ? std::numeric_limits<double>::quiet_NaN()
               : luck % 40 == 1 ? HUGE_VAL
                                : -HUGE_VAL;
    const bool isChanged =
        part != Part_Grid &&
        static_cast<int>(dice(seed_ + 2, file, grid, variable, place) % 100) < changedShare;
    const std::uint32_t bits = dice(isChanged ? seed_ + 4 : seed_, file, grid, variable, place);
    return (static_cast<double>(bits) - 2147483648.0) / 3.0;
}

double ModelSet::value(const ModelZone_s& zone, const ModelVariable_s& variable, std::int64_t i,
                       std::int64_t j, std::int64_t k) const {
    if (variable.isIBlank)
        return iBlank(zone, i, j, k);
    const int step = variable.part == Part_Grid && !moves_ ? 0 : zone.step;
    const double value = rawValue(variable.part, step, zone.grid, variable.place, i, j, k);
    return isDouble(variable.part) ? value : static_cast<double>(static_cast<float>(value));
}

std::int32_t ModelSet::iBlank(const ModelZone_s& zone, std::int64_t i, std::int64_t j,
                              std::int64_t k) const {
    return static_cast<std::int32_t>(dice(seed_ + 5, zone.grid, i, j, k) % 5) - 1;
}

} // namespace plot3d::program
