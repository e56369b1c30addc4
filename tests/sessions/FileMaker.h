// The files of a random session: what they have in common, and lists of them for its loads.
#pragma once

#include "sessions/Command.h"
#include "sessions/Dice.h"

namespace quorvia::sessions {

using Places = std::vector<std::size_t>; ///< in the session's list of files
using Grids = std::vector<GridDims_s>;

/// What the files of a session have in common.
struct Shape_s {
    Layout_e layout = Layout_e::ThreeDWhole;
    bool isMultiGrid = true;
    Grids grids;
    bool hasIBlank = false;
    bool hasBoundaries = false;
    FileForm_s form;
    Precision_e textPrecision = Precision_e::Single; // one option of a load tells it for all files
    std::array<Range_s, 3> ranges;
    std::set<std::int32_t> gridSet;
};

class FileMaker {
public:
    /// Both must live on. Chooses what the files will have in common.
    FileMaker(Dice& dice, std::vector<FileModel_s>& files) : dice_(dice), files_(files) {
        chooseShape();
    }

    const Shape_s& shape() const { return shape_; }
    /// 1-D or unstructured: neither I-blank nor directions to speak of.
    bool isFlat() const {
        return shape_.layout == Layout_e::OneD || shape_.layout == Layout_e::Unstructured;
    }
    /// Whether loads take parts of the grids, or some of them.
    bool takesPart() const;

    /// Makes so many files of each kind and names them in the load, whose options must have been
    /// chosen: the files keep what those promise. Now and then they don't fit what is there.
    void chooseFiles(Load_s& load, std::int32_t grids, std::int32_t solutions,
                     std::int32_t functions);
    /// Files that exist already get another number of variables.
    void setFunctionCount(const Places& functions, std::int32_t count);

private:
    void chooseShape();
    FileForm_s chooseForm();
    GridDims_s chooseDims();
    std::vector<Boundary_s> chooseBoundaries(const Grids& grids);
    std::size_t addFile(FileKind_e kind, const char* extension, const FileForm_s& form,
                        const Grids& grids, bool hasIBlank, std::int32_t functionCount,
                        std::int32_t step, bool isNamedByTime);
    Places addList(FileKind_e kind, const char* extension, std::int32_t count,
                   const std::vector<Grids>& grids, const Load_s& load);

    Dice& dice_;
    std::vector<FileModel_s>& files_;
    Shape_s shape_;
};

} // namespace quorvia::sessions
