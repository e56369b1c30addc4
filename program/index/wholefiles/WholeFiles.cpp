#include "index/wholefiles/WholeFiles.h"

#include <algorithm>

#include <plot3d/Error.h>

#include "index/contents/Refusal.h"
#include "selection/TimeRange.h"

namespace plot3d::program {

namespace {

FileInfo formOf(const std::string& file, FileKind kind) {
    InspectOptions options;
    options.as = kind;
    options.trials = false;
    return inspect(file, options);
}

void refuseStrangeForm(const FileInfo& info) {
    if (info.encoding == Encoding::Text)
        refuseIndex("is text, which PLOT3D writes in more ways than other readers know", info.file);
    if (info.layout != Layout::TwoD && info.layout != Layout::ThreeDWhole)
        refuseIndex("is neither 2-D nor 3-D in whole fields", info.file);
    if (info.markerBytes == 8)
        refuseIndex("has markers of 8 bytes, which this format can't tell", info.file);
    if (info.style && *info.style != Style::Classic && *info.style != Style::Function)
        refuseIndex("is a solution of another style than PLOT3D's own", info.file);
}

void refuseOtherForm(const FileInfo& info, const FileInfo& first) {
    if (info.encoding != first.encoding || info.byteOrder != first.byteOrder ||
        info.precision != first.precision || info.multiGrid != first.multiGrid ||
        info.layout != first.layout)
        refuseIndex("is not of the form of " + first.file + ", and this format has one for all",
                    info.file);
}

class Finder {
public:
    explicit Finder(const IndexedData& data) : data_(data), lists_(data.data().files()) {}

    WholeFiles_s find() {
        if (lists_.grid.empty())
            refuseIndex("there is no grid file, and this format tells of values at points");
        refuseParts();
        data_.refuseFieldsOutsideFiles();
        files_.form = formOf(lists_.grid.front(), FileKind::Grid);
        holdForms(lists_.grid, FileKind::Grid);
        holdForms(lists_.solution, FileKind::Solution);
        holdForms(lists_.function, FileKind::Function);
        if (!lists_.function.empty())
            files_.function = formOf(lists_.function.front(), FileKind::Function);
        addSteps();
        return files_;
    }

private:
    void refuseParts() const {
        if (data_.zones().size() != data_.data().zones().size() ||
            data_.variables().size() != data_.data().variables().size())
            refuseIndex(
                "this format tells of whole files, not of some of their zones or variables");
        for (const Zone& zone : data_.data().zones())
            if (zone.parent)
                throw Error(ErrorKind::Unsupported, "this format tells of no boundaries",
                            {.next = "the same with --no-boundaries"});
    }

    void holdForms(const std::vector<std::string>& files, FileKind kind) const {
        for (const std::string& file : files) {
            const FileInfo info = formOf(file, kind);
            refuseStrangeForm(info);
            refuseOtherForm(info, files_.form);
            if (kind == FileKind::Grid && info.iBlank != files_.form.iBlank)
                refuseIndex("has I-blank or not, other than " + files_.form.file, file);
        }
    }

    /// The file of a step; one file may serve all of them.
    static std::string fileOf(const std::vector<std::string>& files, std::size_t step) {
        return files.size() < 2 ? (files.empty() ? std::string() : files.front()) : files[step];
    }

    /// Zones come file by file.
    void addSteps() {
        const std::size_t count =
            std::max({lists_.grid.size(), lists_.solution.size(), lists_.function.size()});
        const std::size_t zoneCount = files_.form.grids.size();
        for (const auto* list : {&lists_.grid, &lists_.solution, &lists_.function})
            if (list->size() > 1 && list->size() != count)
                refuseIndex("the files don't make one set for each time, as this format has them");
        if (data_.data().zones().size() != count * zoneCount)
            refuseIndex("the grids of the data set are not those of its files");
        for (std::size_t step = 0; step < count; ++step) {
            holdZones(step * zoneCount);
            files_.steps.push_back({data_.zone(step * zoneCount).time, fileOf(lists_.grid, step),
                                    fileOf(lists_.solution, step), fileOf(lists_.function, step)});
        }
        files_.isSeries = count > 1;
    }

    /// The data set may have been described by hand, as a look at its files does not find it.
    void holdZones(std::size_t first) const {
        for (std::size_t place = 0; place < files_.form.grids.size(); ++place) {
            const GridSize& grid = files_.form.grids[place];
            if (data_.zone(first + place).size != Extent{grid.i, grid.j, grid.k})
                refuseIndex("the grids of the data set are not those of its files");
            if (!isSameTime(data_.zone(first + place).time, data_.zone(first).time, {}))
                refuseIndex(
                    "the grids of one file have several times, and this format has one for all");
        }
    }

    const IndexedData& data_;
    const FileLists& lists_;
    WholeFiles_s files_;
};

} // namespace

WholeFiles_s wholeFilesOf(const IndexedData& data) {
    return Finder(data).find();
}

} // namespace plot3d::program
