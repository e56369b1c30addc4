#include "index/p3d/P3dIndex.h"

#include <sstream>

#include <nlohmann/json.hpp>

#include "index/contents/PlainText.h"
#include "index/contents/TextFile.h"
#include "index/wholefiles/WholeFiles.h"
#include "manners/ProgressWatch.h"

namespace plot3d::program {

namespace {

using nlohmann::ordered_json;

const char* const comment = "// ";

/// The path as it stands in the index.
std::string named(Originals& originals, const std::string& file) {
    const std::string& path = originals.pathOf(file);
    refuseOtherThanUtf8(path);
    return path;
}

ordered_json stepOf(const WholeFilesStep_s& step, Originals& originals) {
    ordered_json facts = {{"time", step.time}, {"xyz", named(originals, step.grid)}};
    if (!step.solution.empty())
        facts["q"] = named(originals, step.solution);
    if (!step.function.empty())
        facts["function"] = named(originals, step.function);
    return facts;
}

ordered_json namesOfFunctions(const IndexedData& data, const WholeFiles_s& files) {
    const auto count = static_cast<std::size_t>(files.function.variables);
    ordered_json names = ordered_json::array();
    for (std::size_t place = data.variables().size() - count; place < data.variables().size();
         ++place) {
        refuseOtherThanUtf8(data.variables()[place].name);
        names.push_back(data.variables()[place].name);
    }
    return names;
}

} // namespace

void P3dIndex::write(const IndexedData& data, Originals& originals,
                     const std::filesystem::path& file, const Watch& watch) const {
    const WholeFiles_s files = wholeFilesOf(data);
    ordered_json steps = ordered_json::array();
    for (const WholeFilesStep_s& step : files.steps) {
        throwIfStopped(watch.stop);
        steps.push_back(stepOf(step, originals));
    }
    ordered_json index = {
        {"auto-detect-format", false},
        {"format", "binary"},
        {"byte-order", files.form.byteOrder == ByteOrder::Big ? "big" : "little"},
        {"precision", *files.form.precision},
        {"language", files.form.encoding == Encoding::Fortran ? "fortran" : "C"},
        {"multi-grid", files.form.multiGrid},
        {"blanking", files.form.iBlank},
        {"2D", files.form.layout == Layout::TwoD},
    };
    if (files.function.variables > 0)
        index["function-names"] = namesOfFunctions(data, files);
    index["filenames"] = std::move(steps);
    std::ofstream out = openedForText(file);
    std::istringstream marks(textOf(originals.marks()));
    for (std::string line; std::getline(marks, line);)
        out << comment << line << '\n';
    constexpr int indent = 1;
    out << index.dump(indent) << '\n';
    finishText(out);
}

std::vector<OriginalMark_s> P3dIndex::readMarks(const std::filesystem::path& file) const {
    return marksOfText(textOfFile(file), comment);
}

} // namespace plot3d::program
