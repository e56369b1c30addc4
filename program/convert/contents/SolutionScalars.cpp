#include "convert/contents/SolutionScalars.h"

#include <algorithm>
#include <memory>

#include "convert/contents/NumberInput.h"
#include "convert/contents/StyleForm.h"

namespace plot3d::program {

namespace {

int dimensionCount(Layout layout) {
    if (layout == Layout::OneD)
        return 1;
    return layout == Layout::TwoD ? 2 : 3;
}

class Reading {
public:
    Reading(const FileInfo& info, const std::stop_token& stop)
        : info_(info), layout_(info.layout.value_or(Layout::ThreeDWhole)),
          form_(styleForm(info.style.value_or(Style::Classic))), numbers_(openNumbers(info, stop)) {
    }

    SolutionScalars_s run() {
        passHeader();
        for (std::size_t grid = 0; grid < info_.grids.size(); ++grid) {
            scalars_.ofGrid.push_back(readScalars());
            if (grid + 1 < info_.grids.size())
                passVariables(info_.grids[grid]);
        }
        return std::move(scalars_);
    }

private:
    void passHeader() {
        if (info_.multiGrid) {
            numbers_->nextInteger();
            numbers_->nextRecord();
        }
        for (std::size_t grid = 0; grid < info_.grids.size(); ++grid)
            for (int place = 0; place < dimensionCount(layout_); ++place)
                numbers_->nextInteger();
        if (form_.variableCount == VariableCount_e::OfFile) {
            numbers_->nextInteger(); // variables
            scalars_.speciesCount = numbers_->nextInteger();
        }
        numbers_->nextRecord();
    }

    std::vector<double> readScalars() {
        std::vector<double> scalars;
        const auto count = static_cast<std::size_t>(expectedCount());
        while (scalars.size() < count)
            scalars.push_back(scalars.size() == form_.integerScalar ? numbers_->nextInteger()
                                                                    : numbers_->nextReal());
        while (form_.hasSpecies && numbers_->realsLeft() > 0)
            scalars.push_back(numbers_->nextReal());
        return scalars;
    }

    int expectedCount() const {
        return scalarCount(info_.style.value_or(Style::Classic), layout_, scalars_.speciesCount);
    }

    /// From behind the scalars of a grid to those of the next.
    void passVariables(const GridSize& grid) {
        const bool inPlanes = layout_ == Layout::ThreeDPlanes;
        if (info_.encoding != Encoding::Fortran) {
            numbers_->skipReals(std::int64_t{grid.i} * grid.j * grid.k * info_.variables);
            return;
        }
        const std::int32_t records = 1 + (inPlanes ? grid.k : 1);
        for (std::int32_t record = 0; record < records; ++record)
            numbers_->nextRecord();
    }

    const FileInfo& info_;
    Layout layout_;
    StyleForm_s form_;
    std::unique_ptr<NumberInput> numbers_;
    SolutionScalars_s scalars_;
};

} // namespace

SolutionScalars_s readSolutionScalars(const FileInfo& info, const std::stop_token& stop) {
    return Reading(info, stop).run();
}

} // namespace plot3d::program
