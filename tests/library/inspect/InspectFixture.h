// Files on disk, good ones of the writer's and what is made of them, and what inspect tells of
// them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/FileInfo.h>

#include "acceptance/matrix/MatrixCase.h"
#include "support/TemporaryDirectory.h"

namespace plot3d {

namespace writer = quorvia::plot3dwriter;
using quorvia::testsupport::formOf;
using quorvia::testsupport::LayoutCase_s;
using quorvia::testsupport::MatrixCase_s;

using Strings = std::vector<std::string>;

class InspectTest : public testing::Test {
protected:
    /// The bytes of a good file.
    static std::string bytesOf(const writer::FileDescription_s& contents,
                               const writer::FileForm_s& form);
    static std::string bytesOf(const LayoutCase_s& layout, const writer::FileForm_s& form);
    /// A grid of 2 x 3 x 5 points, in this encoding; of 32-bit reals, little-endian.
    static std::string gridBytes(writer::Encoding_e encoding, bool hasIBlank = false);
    static std::string solutionBytes(writer::Encoding_e encoding);

    FileInfo inspectBytes(const std::string& name, const std::string& bytes,
                          const InspectOptions& options = {}) const {
        return inspect(directory.write(name, bytes), options);
    }

    /// What must be so of any file.
    static void expectAccount(const FileInfo& info);

    quorvia::testsupport::TemporaryDirectory directory;
};

/// What the problem is, or the first warning; empty if there is none.
std::string problemOf(const FileInfo& info);
std::string warningOf(const FileInfo& info);
/// What to type next, in one line, with "FILE" for the file.
std::string nextOf(const FileProblem& problem, const FileInfo& info);

} // namespace plot3d
