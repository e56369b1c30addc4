#include "info/WhyTable.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "console/TextGrid.h"
#include "info/InfoWords.h"

namespace plot3d::program {

void printWhy(const FileInfo& info, const Surroundings_s& surroundings) {
    using Grid = console::TextGrid;
    if (info.trials.empty())
        return;
    surroundings.out << "  readings that were tried, in their order\n";
    Grid table({{"", Grid::Align_e::Right},
                {"kind"},
                {"layout"},
                {"style"},
                {"grids"},
                {"I-blank"},
                {"reals"},
                {"first misfit", Grid::Align_e::Left, Grid::Fit_e::Wrap}});
    int number = 0;
    bool isTaken = false;
    for (const Trial& trial : info.trials) {
        const Candidate& candidate = trial.candidate;
        const bool isText = info.encoding == Encoding::Text;
        const char* const fits = isTaken ? "fits, too" : "fits";
        table.addRow({std::to_string(++number), wordOf(candidate.kind), captionOf(candidate.layout),
                      candidate.style ? wordOf(*candidate.style) : "-",
                      candidate.multiGrid ? "multi" : "single", candidate.iBlank ? "yes" : "-",
                      isText ? "-" : std::to_string(candidate.precision) + "-bit",
                      trial.misfit ? misfitText(*trial.misfit) : fits});
        isTaken = isTaken || !trial.misfit;
    }
    table.print(surroundings.out, surroundings.outColumns, {surroundings.colour});
}

} // namespace plot3d::program
