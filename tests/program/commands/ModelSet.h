// A data set made up at random: the files that the independent writer makes of it, and what anybody
// who reads them should find. Uses nothing of library and program.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "program/values/ValueFiles.h"
#include "sessions/Dice.h"

namespace plot3d::program {

using quorvia::sessions::Dice;

/// What a file is among those of a time: its grid, its solution, or one of its function files,
/// which count from the place of the first.
enum Part_e : int { Part_Grid, Part_Solution, Part_Functions };

struct ModelVariable_s {
    std::string name; // as it is shown, without the blanks at the end
    int part = Part_Grid;
    std::int32_t place = 0; // in its file, from 0
    bool isIBlank = false;
};

struct ModelZone_s {
    std::int32_t grid = 0; // in its files, from 0
    int step = 0;          // from 0, in the order of the files
    std::array<std::int64_t, 3> size = {1, 1, 1};
    double time = 0;
};
/// What is no number stands behind all others.
bool isEarlier(double one, double other);

struct ModelFile_s {
    std::string name;
    int part = Part_Grid;
    int step = 0;
    writer::FileDescription_s contents;
    writer::FileForm_s form;
};

class ModelSet {
public:
    /// Two sets of one seed hold the same; the other seed decides how it is written.
    ModelSet(std::uint64_t seed, std::uint64_t formSeed);
    ModelSet(const ModelSet&) = delete; // the files' functions look into it
    ModelSet& operator=(const ModelSet&) = delete;

    std::uint64_t seed() const { return seed_; }
    const std::vector<ModelFile_s>& files() const { return files_; }
    const std::vector<ModelVariable_s>& variables() const { return variables_; }
    const std::vector<ModelZone_s>& zones() const { return zones_; }
    /// Lines of a name file; none: the data set has no such file.
    const std::vector<std::string>& nameLines() const { return nameLines_; }
    /// Each once, the earliest first; empty where the zones are seen at all times.
    const std::vector<double>& times() const { return times_; }
    writer::Layout_e layout() const { return layout_; }
    bool isUnstructured() const { return layout_ == writer::Layout_e::Unstructured; }
    bool hasIBlank() const { return hasIBlank_; }
    bool moves() const { return moves_; }
    /// At one time.
    int functionFileCount() const { return functionFiles_; }
    bool isDouble(int part) const { return isDouble_[part == Part_Grid ? 0 : 1]; }

    bool isKnownByNames() const { return isKnownByNames_; }
    bool hasText() const { return hasText_; }
    bool hasSpoiltValues() const { return hasSpoiltValues_; }

    /// The load instructions that the files need beside them.
    std::vector<std::pair<std::string, std::string>> instructions() const;

    /// As it stands in the file: narrowed if that has 32 bits. Indices from 0.
    double value(const ModelZone_s& zone, const ModelVariable_s& variable, std::int64_t i,
                 std::int64_t j, std::int64_t k) const;
    std::int32_t iBlank(const ModelZone_s& zone, std::int64_t i, std::int64_t j,
                        std::int64_t k) const;
    /// With all that an unstructured grid has to say of its elements; without values.
    writer::FileDescription_s description(int part, const std::vector<std::int32_t>& grids) const;
    writer::FileKind_e solutionKind() const { return solutionKind_; }
    std::int32_t speciesCount() const { return species_; }
    /// The scalars of a solution at that step.
    std::vector<double> scalars(int step) const;

    /// Values of parts behind the grid differ in that many of a hundred places from those of a set
    /// of the same seed whose share is 0.
    int changedShare = 0;

private:
    void drawSizes(Dice& draw);
    void drawParts(Dice& draw);
    void drawForms(Dice& form);
    void drawStyle(Dice& draw);
    void drawNames(Dice& draw);
    void addVariables();
    void addZones(Dice& draw);
    void addFiles(Dice& form);
    void addFile(int part, int step, const std::string& name, Dice& form);
    writer::FileKind_e kindOf(int part) const;
    std::string functionName(int step, int file) const;
    writer::FileForm_s drawForm(Dice& draw, int part) const;
    double rawValue(int part, int step, std::int32_t grid, std::int32_t variable, std::int64_t i,
                    std::int64_t j, std::int64_t k) const;

    std::uint64_t seed_;
    writer::Layout_e layout_ = writer::Layout_e::ThreeDWhole;
    std::vector<writer::GridDims_s> sizes_;
    bool hasIBlank_ = false;
    bool hasSolution_ = false;
    bool moves_ = false;
    bool isKnownByNames_ = false;
    bool hasText_ = false;
    bool hasSpoiltValues_ = false;
    int steps_ = 1;
    int functionFiles_ = 0; // at one time
    std::int32_t functionVariables_ = 0;
    writer::FileKind_e solutionKind_ = writer::FileKind_e::ClassicSolution;
    std::int32_t species_ = 0;
    std::vector<std::string> solutionNames_;
    std::array<bool, 2> isDouble_ = {}; // of grids; of what stands on them
    std::vector<std::string> nameLines_;
    std::vector<double> stepTimes_;
    std::vector<double> times_;
    std::vector<ModelVariable_s> variables_;
    std::vector<ModelZone_s> zones_;
    std::vector<ModelFile_s> files_;
};

} // namespace plot3d::program
