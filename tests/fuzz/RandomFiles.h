// Random PLOT3D files: sound ones of every kind and form, and what damage makes of them.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "support/SmallFiles.h"

namespace quorvia::testsupport {

class RandomFiles {
public:
    explicit RandomFiles(std::uint64_t seed) : random_(seed) {}

    /// A number from 0 to below `end`, which is positive.
    std::int64_t below(std::int64_t end);

    /// Layout, grids and form that the files of one load have in common.
    void chooseShape();
    /// A sound file of the kind in the shape chosen last.
    std::string file(plot3dwriter::FileKind_e kind);
    /// A solution of a style that the shape's layout knows.
    plot3dwriter::FileKind_e solutionKind();

    /// Damages the file in one place or a few: counts, markers, tokens, bytes, ends.
    void damage(std::string& bytes);

private:
    plot3dwriter::FileDescription_s described(plot3dwriter::FileKind_e kind);
    void damageOnce(std::string& bytes);
    void setInteger(std::string& bytes);
    void setToken(std::string& bytes);
    void setByte(std::string& bytes);
    void cut(std::string& bytes);
    void pad(std::string& bytes);
    void eraseRange(std::string& bytes);
    void repeatRange(std::string& bytes);
    std::size_t place(const std::string& bytes);

    std::mt19937_64 random_;
    plot3dwriter::FileDescription_s shape_;
    plot3dwriter::FileForm_s form_;
};

} // namespace quorvia::testsupport
