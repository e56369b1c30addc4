// Compare a newly detected file with the first file of its list, so that a list can't hold files of
// different structure. A failed validation has shown exactly one message; no record is changed.
#pragma once

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

class Plot3DFileStructureValidatorInterface {
public:
    /// False (told): the file differs.
    [[nodiscard]] virtual bool validate(const Plot3DFile_s& file) = 0;
    virtual ~Plot3DFileStructureValidatorInterface() = default;
};

class Plot3DFileStructureValidatorAbstract : public virtual Plot3DFileStructureValidatorInterface {
protected:
    /// `firstFile` is borrowed.
    Plot3DFileStructureValidatorAbstract(const Plot3DFile_s& firstFile,
                                         const Plot3DLoadOptions_s& options);

    /// Parts of a validation. False (told): a difference.
    [[nodiscard]] bool checkDataStructure(const Plot3DFile_s& file) const;
    [[nodiscard]] bool checkGridCounts(const Plot3DFile_s& file) const;

    const Plot3DFile_s* firstFile;
    bool uniformGrids;
};

class Plot3DGridFileStructureValidator : public virtual Plot3DFileStructureValidatorAbstract {
public:
    Plot3DGridFileStructureValidator(const Plot3DFile_s& firstFile,
                                     const Plot3DLoadOptions_s& options);
    /// False (told): the file differs.
    [[nodiscard]] bool validate(const Plot3DFile_s& file) override;
};

class Plot3DNonGridFileStructureValidator : public virtual Plot3DFileStructureValidatorAbstract {
public:
    Plot3DNonGridFileStructureValidator(const Plot3DFile_s& firstFile,
                                        const Plot3DLoadOptions_s& options);
    /// False (told): the file differs.
    [[nodiscard]] bool validate(const Plot3DFile_s& file) override;
};

/// Whether the grids of both files have the same dimensions, grid by grid of `a`; of unstructured
/// grids the same number of nodes. False (told): the first difference, with the grid's index from
/// 0.
[[nodiscard]] bool compareFileDimensions(const Plot3DFile_s& a, const Plot3DFile_s& b);

} // namespace quorvia::quorutildataio
