#include "index/vp3d/Vp3dIndex.h"

#include <algorithm>
#include <sstream>

#include "index/contents/Refusal.h"
#include "index/contents/TextFile.h"
#include "index/wholefiles/WholeFiles.h"
#include "manners/ProgressWatch.h"

namespace plot3d::program {

namespace fs = std::filesystem;

namespace {

const char* const vp3dComment = "# ";

std::size_t commonBeginning(const std::string& a, const std::string& b) {
    const auto place = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return static_cast<std::size_t>(place.first - a.begin());
}

std::size_t commonEnd(const std::string& a, const std::string& b) {
    const auto place = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
    return static_cast<std::size_t>(place.first - a.rbegin());
}

/// "step*.q" of step1.q, step2.q and so on: what all names begin with, and what they end with.
std::string patternOf(const std::vector<std::string>& names) {
    std::string begin = names.front();
    std::string end = names.front();
    for (const std::string& name : names) {
        begin.resize(commonBeginning(begin, name));
        end = end.substr(end.size() - commonEnd(end, name));
    }
    const std::size_t shortest =
        std::min_element(names.begin(), names.end(), [](const auto& a, const auto& b) {
            return a.size() < b.size();
        })->size();
    end = end.substr(end.size() - std::min(end.size(), shortest - begin.size()));
    return begin + "*" + end;
}

/// Files of the folder that a pattern with one asterisk fits.
std::size_t countFitting(const fs::path& folder, const std::string& pattern) {
    const std::size_t star = pattern.find('*');
    const std::string begin = pattern.substr(0, star);
    const std::string end = pattern.substr(star + 1);
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename();
        count += name.size() >= begin.size() + end.size() && name.starts_with(begin) &&
                 name.ends_with(end);
    }
    return count;
}

/// What stands behind SOLUTION: one file, or a pattern that fits all of them and no other.
std::string solutionOf(const WholeFiles_s& files, Originals& originals) {
    const fs::path first = originals.pathOf(files.steps.front().solution);
    if (!files.isSeries)
        return first;
    std::vector<std::string> names;
    for (const WholeFilesStep_s& step : files.steps) {
        const fs::path path = originals.pathOf(step.solution);
        if (path.parent_path() != first.parent_path())
            refuseIndex(
                "is in another folder than the first solution, and this format has one for all",
                step.solution);
        names.push_back(path.filename());
    }
    const std::string pattern = patternOf(names);
    const fs::path folder = fs::absolute(files.steps.front().solution).parent_path();
    if (countFitting(folder, pattern) != names.size())
        refuseIndex("no pattern fits the names of the solutions and of no other file");
    return (first.parent_path() / pattern).string();
}

void refuseOthers(const WholeFiles_s& files) {
    for (const WholeFilesStep_s& step : files.steps) {
        if (!step.function.empty())
            refuseIndex("is a function file, of which this format can't tell", step.function);
        if (step.grid != files.steps.front().grid)
            refuseIndex("is a second grid file: this format has one for all times", step.grid);
    }
}

} // namespace

void Vp3dIndex::write(const IndexedData& data, Originals& originals, const fs::path& file,
                      const Watch& watch) const {
    const WholeFiles_s files = wholeFilesOf(data);
    refuseOthers(files);
    throwIfStopped(watch.stop);
    std::ostringstream lines;
    lines << "GRID " << originals.pathOf(files.steps.front().grid) << '\n';
    if (!files.steps.front().solution.empty())
        lines << "SOLUTION " << solutionOf(files, originals) << '\n';
    lines << (files.form.multiGrid ? "MULTI_GRID" : "SINGLE_GRID") << '\n'
          << (files.form.encoding == Encoding::Fortran ? "FORTRAN_BINARY" : "C_BINARY") << '\n'
          << (files.form.byteOrder == ByteOrder::Big ? "BIG_ENDIAN" : "LITTLE_ENDIAN") << '\n'
          << (files.form.layout == Layout::TwoD ? "2D" : "3D") << '\n'
          << (files.form.iBlank ? "IBLANKING" : "NO_IBLANKING") << '\n'
          << (files.form.precision == 64 ? "DOUBLE_PRECISION" : "SINGLE_PRECISION") << '\n';
    if (files.isSeries)
        lines << "SOLUTION_TIME_ACCURATE\n";
    std::ofstream out = openedForText(file);
    std::istringstream marks(textOf(originals.marks()));
    for (std::string line; std::getline(marks, line);)
        out << vp3dComment << line << '\n';
    out << lines.str();
    finishText(out);
}

std::vector<OriginalMark_s> Vp3dIndex::readMarks(const fs::path& file) const {
    return marksOfText(textOfFile(file), vp3dComment);
}

} // namespace plot3d::program
