#include "index/IndexCommand.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include <plot3d/Error.h>

#include "console/options/OptionTable.h"
#include "index/contents/IndexedData.h"
#include "index/contents/Originals.h"
#include "manners/ProgressWatch.h"
#include "manners/ResultFile.h"
#include "manners/ShellWords.h"
#include "manners/Talk.h"

namespace plot3d::program {

namespace fs = std::filesystem;

namespace {

/// Writing through an index would change the originals.
void makeReadOnly(const fs::path& file) {
    std::error_code error;
    constexpr fs::perms readOnly =
        fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    fs::permissions(file, readOnly, error);
    if (error)
        throw Error(ErrorKind::Refused, "can't be made read-only: " + error.message(),
                    {.file = file.string()});
}

/// What an index noted.
std::vector<OriginalMark_s> marksOf(const std::string& index) {
    try {
        return indexFormatOf(index).make()->readMarks(index);
    } catch (const Error& error) {
        if (error.kind() != ErrorKind::Unreadable || !error.facts().file.empty())
            throw;
        throw Error(error.kind(), error.message(), {.file = index});
    }
}

} // namespace

const char* IndexCommand::purpose() const {
    return "Write a small file through which other programs read the values where they lie";
}

const char* IndexCommand::examples() const {
    return "  plot3d index wing.x wing.q -o wing.cgns\n"
           "      for ParaView, VTK and h5py, which then read wing.x and wing.q themselves\n"
           "  plot3d index wing.x wing_t*.q -o wing.cgns --variable 'RHO*' --time 0.5:2\n"
           "      some of the variables at some of the times\n"
           "  plot3d index --check wing.cgns\n"
           "      whether the original files are still as they were\n";
}

const char* IndexCommand::failureMeans() const {
    return "refused or failed, and nothing is left of the result; with --check: an original is "
           "not as it was";
}

void IndexCommand::declare(console::OptionTable& table) {
    data_.declare(table);
    table.output(output_, overwrites_,
                 "The index; its ending tells the format: .cgns, .xmf2, .json, .p3d or .vp3d");
    table.flag("--relative", isRelative_,
               "Name the original files relative to the folder of the index, so that all can move "
               "together");
    table
        .text("--check", checked_, "FILE",
              "Compare the original files of this index with what it noted of them: size, time of "
              "change and the first 64 KiB")
        .excludes({"--output"});
    // Readers of the index get all points, with their I-blank. A part of them is refused with the
    // command that makes a copy, and not offered.
    selection_.declareWithoutBlank(table);
    for (const char* const part : {"--i", "--j", "--k", "--point"})
        table.declared(part).hidden();
}

void IndexCommand::takeApart(std::vector<std::string>& arguments) {
    arguments_ = arguments;
}

/// What makes a copy of the same data, for the same readers.
std::string IndexCommand::convertCommand(const IndexFormatRow_s& row) const {
    std::vector<std::string> words = {"plot3d", "convert"};
    for (std::string word : arguments_) {
        if (word == "--relative")
            continue;
        if (word.ends_with(output_))
            word = word.substr(0, word.size() - output_.size()) +
                   fs::path(output_).replace_extension(row.copyExtension).string();
        words.push_back(word);
    }
    return shellLine(words);
}

int IndexCommand::check(const Surroundings_s& surroundings) const {
    const fs::path file = checked_;
    std::error_code ignored; // what can't be looked at can't be read, which is told then
    if (!fs::exists(file, ignored))
        throw Error(ErrorKind::NotFound, "is not there", {.file = checked_});
    const std::vector<OriginalMark_s> marks = marksOf(checked_);
    const std::vector<std::string> lines = differences(marks, fs::absolute(file).parent_path());
    for (const std::string& line : lines)
        surroundings.out << line << '\n';
    if (lines.empty())
        tellNote(surroundings,
                 "all " + std::to_string(marks.size()) + " original files are as they were");
    return lines.empty() ? ExitCode_Done : ExitCode_Failed;
}

void IndexCommand::write(const IndexFormatRow_s& row, const DataSet& data,
                         const Surroundings_s& surroundings) const {
    const IndexedData indexed(data, selection_.variables(data), selection_.selectedZones(data));
    ResultFile result(output_, overwrites_);
    Originals originals(output_, isRelative_);
    ProgressWatch progress(surroundings);
    row.make()->write(indexed, originals, result.growingPath(), progress.watch());
    result.finish();
    makeReadOnly(output_);
}

int IndexCommand::run(const Surroundings_s& surroundings) {
    if (!checked_.empty())
        return check(surroundings);
    if (output_.empty())
        throw Error(ErrorKind::Usage, "no index is named: -o FILE, or --check FILE");
    const IndexFormatRow_s& row = indexFormatOf(output_);
    refuseExisting(output_, overwrites_);
    const DataSet data = data_.open(surroundings);
    try {
        write(row, data, surroundings);
    } catch (const Error& error) {
        if (error.kind() != ErrorKind::Unsupported || !error.facts().next.empty())
            throw;
        ErrorFacts facts = error.facts();
        facts.next = convertCommand(row);
        throw Error(error.kind(), error.message(), std::move(facts));
    }
    if (isRelative_ && *row.relativeNote != '\0')
        tellNote(surroundings, row.relativeNote);
    surroundings.out << output_ << '\n';
    return ExitCode_Done;
}

} // namespace plot3d::program
