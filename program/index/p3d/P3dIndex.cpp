#include "index/p3d/P3dIndex.h"

#include <cmath>
#include <optional>
#include <sstream>

#include "console/JsonStream.h"
#include "index/contents/PlainText.h"
#include "index/contents/TextFile.h"
#include "index/wholefiles/WholeFiles.h"
#include "manners/ProgressWatch.h"

namespace plot3d::program {

namespace {

const char* const p3dComment = "// ";

/// The path as it stands in the index.
std::string named(Originals& originals, const std::string& file) {
    const std::string& path = originals.pathOf(file);
    refuseOtherThanUtf8(path);
    return path;
}

class P3dWriter {
public:
    P3dWriter(const IndexedData& data, Originals& originals, std::ostream& out)
        : data_(data), originals_(originals), files_(wholeFilesOf(data)), json_(out, indentWidth) {}

    void write(const Watch& watch) {
        data_.refuseTimesThatAreNotFinite();
        json_.beginObject();
        writeForm();
        if (files_.function.variables > 0)
            writeNamesOfFunctions();
        json_.key("filenames");
        json_.beginList();
        for (const WholeFilesStep_s& step : files_.steps) {
            throwIfStopped(watch.stop);
            writeStep(step);
        }
        json_.endList();
        json_.endObject();
        json_.finish();
    }

private:
    void writeForm() {
        const FileInfo& form = files_.form;
        json_.member("auto-detect-format", false);
        json_.member("format", "binary");
        json_.member("byte-order", form.byteOrder == ByteOrder::Big ? "big" : "little");
        json_.member("precision", *form.precision);
        json_.member("language", form.encoding == Encoding::Fortran ? "fortran" : "C");
        json_.member("multi-grid", form.multiGrid);
        json_.member("blanking", form.iBlank);
        json_.member("2D", form.layout == Layout::TwoD);
    }

    void writeNamesOfFunctions() {
        const auto count = static_cast<std::size_t>(files_.function.variables);
        json_.key("function-names");
        json_.beginList();
        for (std::size_t place = data_.variables().size() - count; place < data_.variables().size();
             ++place) {
            refuseOtherThanUtf8(data_.variables()[place].name);
            json_.value(data_.variables()[place].name);
        }
        json_.endList();
    }

    void writeStep(const WholeFilesStep_s& step) {
        json_.beginObject();
        // VTK ends at a text, and would take null for 0, which is as good for a time alone.
        json_.member("time", std::isfinite(step.time) ? std::optional(step.time) : std::nullopt);
        json_.member("xyz", named(originals_, step.grid));
        if (!step.solution.empty())
            json_.member("q", named(originals_, step.solution));
        if (!step.function.empty())
            json_.member("function", named(originals_, step.function));
        json_.endObject();
    }

    static constexpr std::size_t indentWidth = 1;
    const IndexedData& data_;
    Originals& originals_;
    const WholeFiles_s files_;
    console::JsonStream json_;
};

} // namespace

void P3dIndex::write(const IndexedData& data, Originals& originals,
                     const std::filesystem::path& file, const Watch& watch) const {
    std::ostringstream index;
    P3dWriter(data, originals, index).write(watch);
    std::ofstream out = openedForText(file);
    std::istringstream marks(textOf(originals.marks())); // of all that the index names
    for (std::string line; std::getline(marks, line);)
        out << p3dComment << line << '\n';
    out << index.str();
    finishText(out);
}

std::vector<OriginalMark_s> P3dIndex::readMarks(const std::filesystem::path& file) const {
    return marksOfText(textOfFile(file), p3dComment);
}

} // namespace plot3d::program
