// What readers of others find in converted files: data sets are written with what they hold beside
// them, converted, and then all read by one process.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/DataSet.h>

#include "acceptance/matrix/FileReading.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

/// How files of the matrix are opened, and what they are then expected to hold.
struct OpenedCase_s {
    std::vector<std::string> files;
    std::vector<std::string> settings; // KEY=VALUE
    std::vector<FileReading> readings; // of the files
};

/// What a zone must hold: its fields in the order of the variables, coordinates first.
struct ExpectedZone_s {
    std::size_t zone = 0; // in the data set, from 0
    std::array<std::int64_t, 3> size = {1, 1, 1};
    std::vector<FieldExpectation_s> fields;
    std::vector<std::vector<std::int32_t>> elements; // node indices from 0; none if ordered
};

/// Runs the program; gives its exit code.
int runProgram(const std::vector<std::string>& arguments, std::string* err = nullptr);

class ReadBackTest : public ::testing::Test {
protected:
    /// The readers are those of read_back.py, or another script and its first arguments.
    ReadBackTest();
    explicit ReadBackTest(std::string readers) : readers_(std::move(readers)) {}

    /// A folder of its own for a data set.
    std::string folder(const std::string& name) const;
    /// Writes the files of a row of the matrix into it.
    OpenedCase_s writeCase(const std::string& folder, const MatrixCase_s& matrixCase);
    /// `--set` and the like for the files.
    static std::vector<std::string> arguments(const OpenedCase_s& opened);
    /// Converts it to folder/out.<ending> for each of the endings.
    static void convert(const std::string& folder, std::vector<std::string> arguments,
                        const std::vector<std::string>& endings);
    /// Writes what must be read. The fields are those of `variables`, from 0; of all, if it is
    /// empty.
    static void writeExpected(const std::string& folder, const OpenedCase_s& opened);
    static void writeExpected(const std::string& folder, const plot3d::DataSet& data,
                              int coordinateCount, const std::vector<ExpectedZone_s>& zones,
                              const std::vector<std::size_t>& variables = {});
    /// Reads all folders; the script gets the argument, too. Skips the test where the readers are
    /// not there.
    void expectReadBack(int fileCount, const std::string& argument = {}) const;

private:
    const std::string readers_;
    const TemporaryDirectory directory_;
    std::vector<std::unique_ptr<WrittenFile_s>> written_; // readings point into them
};

} // namespace quorvia::testsupport
