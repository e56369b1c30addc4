// What a loader can make of a written file: the contents as they were meant, or, where the format
// does not tell two structures apart, the bytes in the places of the other structure.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "acceptance/matrix/MatrixCase.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "support/FieldExpectation.h"

namespace quorvia::testsupport {

/// One file of a load as it was written.
struct WrittenFile_s {
    std::string path;
    LayoutCase_s layout;
    plot3dwriter::FileForm_s form;
    plot3dwriter::FileDescription_s contents;
    std::string bytes;
    std::vector<plot3dwriter::BlockPosition_s> blocks;
};

/// Writes contentsOf(layout) to `path`. Throws std::runtime_error if that fails.
WrittenFile_s writeFile(const std::string& path, const LayoutCase_s& layout,
                        const plot3dwriter::FileForm_s& form);

class FileReading {
public:
    /// The contents as they were meant.
    static FileReading asMeant(const WrittenFile_s& file);
    /// A 3-D Planes file without records, which nothing tells from a 3-D Whole file: the fields of
    /// a grid are taken one whole field after the other. Not for text with I-blank, which can't be
    /// read so.
    static FileReading planesAsWhole(const WrittenFile_s& file);
    /// A plain binary file that was described by hand. A description is accepted if the file is
    /// long enough for it, and 32-bit reals without I-blank are tried first: any file is long
    /// enough for these.
    static FileReading asShortestReals(const WrittenFile_s& file);

    bool hasIBlank() const;
    bool isDouble() const;
    /// Fields stay in the file unless the file is text or its fields are spread over planes.
    host::FieldState_e state() const;
    std::int32_t variableCount() const { return numVars_; }
    /// As far as they can stand in the file: of single precision they are narrowed.
    std::vector<double> scalars(std::int32_t grid) const;
    /// A variable from 0; I-blank has the index behind the last.
    FieldExpectation_s field(std::int32_t grid, std::int32_t variable) const;
    const WrittenFile_s& file() const { return *file_; }

private:
    enum class Reading_e { AsMeant, PlanesAsWhole, ShortestReals };
    FileReading(const WrittenFile_s& file, Reading_e reading);

    double meantValue(std::int32_t grid, std::int32_t variable, std::int64_t i, std::int64_t j,
                      std::int64_t k) const;
    double wholeValue(std::int32_t grid, std::int32_t variable, std::int64_t index) const;
    double shortValue(std::int32_t grid, std::int32_t variable, std::int64_t index) const;
    std::int64_t shortDataStart(std::int32_t grid) const;
    std::int64_t connectivityBytes(std::int32_t grid) const;
    std::int64_t pointCount(std::int32_t grid) const;
    bool readsPlanes() const;

    const WrittenFile_s* file_;
    Reading_e reading_;
    std::int32_t numVars_;
};

} // namespace quorvia::testsupport
