// Files of the test matrix on disk, opened through the library, and what must be found there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <plot3d/DataSet.h>
#include <plot3d/Error.h>

#include "acceptance/matrix/FileReading.h"
#include "support/TemporaryDirectory.h"

namespace plot3dtest {

namespace writer = quorvia::plot3dwriter;
using quorvia::testsupport::FileReading;
using quorvia::testsupport::LayoutCase_s;
using quorvia::testsupport::WrittenFile_s;

/// A grid file, or a solution, function file of several grids in 3-D, whole.
LayoutCase_s wholeLayout(writer::FileKind_e kind);
/// Plain binary of 32 bits, little-endian.
writer::FileForm_s plainForm();
writer::FileForm_s textForm();

/// Whether the field holds what the file that it was read from was written with, value for value
/// and bit for bit.
::testing::AssertionResult holds(const plot3d::DataSet& data, std::size_t zone,
                                 std::size_t variable, const FileReading& file,
                                 std::int32_t variableOfFile);

/// The Error that opening ends with.
plot3d::Error failureOf(const std::vector<std::string>& files,
                        const plot3d::OpenOptions& options = {});

class OpenTest : public ::testing::Test {
protected:
    std::string file(const std::string& name) const { return directory_.file(name); }
    std::string write(const std::string& name, const std::string& bytes) const {
        return directory_.write(name, bytes);
    }
    WrittenFile_s write(const std::string& name, const LayoutCase_s& layout,
                        const writer::FileForm_s& form = plainForm()) const;
    /// The same with other contents.
    std::string write(const std::string& name, const writer::FileDescription_s& contents,
                      const writer::FileForm_s& form = plainForm()) const;

private:
    quorvia::testsupport::TemporaryDirectory directory_;
};

/// Every field of the zones of a file; `firstVariable` is the place of the file's first variable.
void expectFields(const plot3d::DataSet& data, const FileReading& file, std::size_t firstVariable);

} // namespace plot3dtest
