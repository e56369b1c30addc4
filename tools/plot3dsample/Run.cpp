#include "plot3dsample/Run.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include <fmt/format.h>

#include "plot3dsample/CommandLine.h"
#include "plot3dsample/Doubt.h"
#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

namespace {

enum ExitCode_e { ExitCode_Written = 0, ExitCode_NotWritten = 1, ExitCode_BadUsage = 2 };

/// One line for the user: which file, and why. Ends in exit code 1.
class OutputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::string kindWord(const SampleFile_s& file) {
    if (!file.text.empty())
        return file.name.ends_with(".fvbnd") ? "boundary" : "names";
    switch (file.description.kind) {
    case FileKind_e::Grid:
        return "grid";
    case FileKind_e::Function:
        return "function";
    case FileKind_e::ClassicSolution:
    case FileKind_e::SwiftSolution:
    case FileKind_e::OverflowSolution:
        break;
    }
    return "solution";
}

/// Behind two blanks "73x31x5", several grids separated by blanks; for unstructured grids their
/// counts of nodes.
std::string gridWords(const plot3dwriter::FileDescription_s& description) {
    std::string words;
    for (const plot3dwriter::GridDims_s& grid : description.grids) {
        words += words.empty() ? "  " : " ";
        if (description.layout == Layout_e::Unstructured)
            words += fmt::format("{} nodes", grid.i);
        else
            words += fmt::format("{}x{}x{}", grid.i, grid.j, grid.k);
    }
    return words;
}

void makeDirectory(const std::string& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (!std::filesystem::is_directory(directory, error))
        throw OutputError(fmt::format("{}: cannot make the directory", directory));
}

std::int64_t writeText(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    if (!file.flush())
        throw OutputError("cannot write " + path);
    return static_cast<std::int64_t>(text.size());
}

std::int64_t writeFile(const std::string& path, const SampleFile_s& file, const FileForm_s& form) {
    if (!file.text.empty())
        return writeText(path, file.text);
    const auto outcome = plot3dwriter::writePlot3DFile(path, file.description, form);
    if (!outcome.problem.empty())
        throw OutputError(outcome.problem);
    return outcome.byteCount;
}

/// Once, since one word helps for all files of a data set.
void noteDoubt(const std::vector<SampleFile_s>& files, const FileForm_s& form, std::ostream& err) {
    for (const SampleFile_s& file : files) {
        if (const std::optional<Doubt_s> doubt = doubtAbout(file, form)) {
            err << fmt::format("plot3d-sample: note: {} passes for {} unless it is described by "
                               "hand; {} leaves no doubt\n",
                               file.name, doubt->takenFor, doubt->wayOut);
            return;
        }
    }
}

void writeSample(const SampleOptions_s& options, std::ostream& out, std::ostream& err) {
    const auto files = sampleCaseNamed(options.caseName).files(options);
    makeDirectory(options.directory);
    for (const SampleFile_s& file : files) {
        const std::string path = (std::filesystem::path(options.directory) / file.name).string();
        const std::int64_t byteCount = writeFile(path, file, options.form);
        out << fmt::format("{:<24} {:<9} {:>12} bytes{}\n", file.name, kindWord(file), byteCount,
                           gridWords(file.description));
    }
    noteDoubt(files, options.form, err);
}

} // namespace

int run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    try {
        if (const auto options = parseCommandLine(args, out))
            writeSample(*options, out, err);
        return ExitCode_Written;
    } catch (const UsageError& error) {
        err << fmt::format("plot3d-sample: error: {}\n", error.what());
        return ExitCode_BadUsage;
    } catch (const std::exception& error) {
        err << fmt::format("plot3d-sample: error: {}\n", error.what());
        return ExitCode_NotWritten;
    }
}

} // namespace quorvia::plot3dsample
