#include "diff/DiffReport.h"

#include <algorithm>
#include <ostream>

#include <fmt/core.h>

#include "console/Text.h"
#include "console/TextGrid.h"
#include "console/Words.h"

namespace plot3d::program {
namespace {

using console::TextGrid;
using Align_e = TextGrid::Align_e;

std::string sentenceOf(const Unlikeness_s& unlike) {
    std::string about = unlike.variable.empty() ? "" : unlike.variable;
    if (unlike.zone)
        about += fmt::format("{}zone {}", about.empty() ? "" : " of ", *unlike.zone + 1);
    const std::string of = about.empty() ? "" : " of " + about;
    if (unlike.what == "variable")
        return fmt::format("variable {}: {} in the first, {} in the second", about, unlike.first,
                           unlike.second);
    return fmt::format("{}{}: {} in the first, {} in the second", unlike.what, of, unlike.first,
                       unlike.second);
}

class DiffTables {
public:
    DiffTables(const DiffReport_s& report, const Surroundings_s& surroundings)
        : report_(report), out_(surroundings.out),
          columns_(surroundings.outColumns), paint_{surroundings.colour},
          variables_(byVariable(report)) {}

    void print() {
        out_ << headText() << '\n';
        printUnlike();
        if (hasDistance())
            printDistances();
    }

private:
    std::string headText() const {
        Difference_s all;
        for (const VariableDifference_s& variable : variables_)
            all.add(variable.whole);
        const std::string compared = console::counted(all.compared, "value", "values");
        if (report_.isUnreadable())
            return fmt::format("Not all could be read: {} compared, {} different", compared,
                               console::grouped(all.different));
        if (all.compared == 0)
            return report_.isSame() ? "The data sets have no values to compare"
                                    : "The data sets differ, and have no values to compare";
        if (!report_.isSame())
            return fmt::format("The data sets differ: {} of {} different",
                               console::grouped(all.different), compared);
        return fmt::format("The data sets are the same{}: {} compared",
                           hasDistance() ? " within the tolerance" : "", compared);
    }

    bool hasDistance() const {
        return std::any_of(variables_.begin(), variables_.end(), [](const auto& variable) {
            return variable.whole.absolute > 0 || variable.whole.unlike > 0;
        });
    }

    void printUnlike() {
        constexpr std::size_t linesAtMost = 40;
        for (std::size_t line = 0; line < report_.plan.unlike.size() && line < linesAtMost; ++line)
            out_ << "  " << console::onOneLine(sentenceOf(report_.plan.unlike[line])) << '\n';
        if (report_.plan.unlike.size() > linesAtMost)
            out_ << fmt::format("  and {} more; --json tells all\n",
                                report_.plan.unlike.size() - linesAtMost);
    }

    std::string placeText(double difference, const Pair_s& at) const {
        if (difference == 0)
            return "-";
        const std::string point =
            fmt::format("{},{},{}", at.point.i + 1, at.point.j + 1, at.point.k + 1);
        return report_.hasSeveralZones ? fmt::format("{}: {}", at.zone + 1, point) : point;
    }

    TextGrid grid(bool hasPlaces) const {
        const std::string where = report_.hasSeveralZones ? "zone: i,j,k" : "i,j,k";
        std::vector<TextGrid::Column_s> columns = {
            {"variable"}, {"different", Align_e::Right}, {"largest", Align_e::Right}};
        if (hasPlaces)
            columns.push_back({"at " + where, Align_e::Left});
        columns.push_back({"relative", Align_e::Right});
        if (hasPlaces)
            columns.push_back({"at " + where, Align_e::Left});
        if (hasUnlike())
            columns.push_back({"not finite in one", Align_e::Right});
        return TextGrid(columns);
    }

    bool hasUnlike() const {
        return std::any_of(variables_.begin(), variables_.end(),
                           [](const auto& variable) { return variable.whole.unlike > 0; });
    }

    void addRow(TextGrid& grid, const VariableDifference_s& variable, bool hasPlaces) const {
        const Difference_s& whole = variable.whole;
        std::vector<std::string> cells = {variable.variable.name, console::grouped(whole.different),
                                          console::roughNumber(whole.absolute)};
        if (hasPlaces)
            cells.push_back(placeText(whole.absolute, whole.absoluteAt));
        cells.push_back(console::roughNumber(whole.relative));
        if (hasPlaces)
            cells.push_back(placeText(whole.relative, whole.relativeAt));
        if (hasUnlike())
            cells.push_back(console::grouped(whole.unlike));
        grid.addRow(cells);
    }

    TextGrid table(bool hasPlaces) const {
        TextGrid result = grid(hasPlaces);
        for (const VariableDifference_s& variable : variables_)
            addRow(result, variable, hasPlaces);
        return result;
    }

    void printDistances() {
        const TextGrid wide = table(true);
        const bool fits = columns_ == 0 || wide.width() <= static_cast<std::size_t>(columns_);
        out_ << '\n';
        (fits ? wide : table(false)).print(out_, 0, paint_);
        if (fits)
            return;
        const std::string where = report_.hasSeveralZones ? "zone: i,j,k" : "i,j,k";
        TextGrid places({{"variable"}, {"largest at " + where}, {"relative at " + where}});
        for (const VariableDifference_s& variable : variables_)
            places.addRow({variable.variable.name,
                           placeText(variable.whole.absolute, variable.whole.absoluteAt),
                           placeText(variable.whole.relative, variable.whole.relativeAt)});
        out_ << '\n';
        places.print(out_, columns_, paint_);
    }

    const DiffReport_s& report_;
    std::ostream& out_;
    int columns_;
    console::Paint_s paint_;
    std::vector<VariableDifference_s> variables_;
};

} // namespace

bool DiffReport_s::isSame() const {
    return plan.unlike.empty() && !isUnreadable() &&
           std::all_of(found.begin(), found.end(),
                       [](const auto& field) { return field.difference.different == 0; });
}

bool DiffReport_s::isUnreadable() const {
    return std::any_of(found.begin(), found.end(),
                       [](const auto& field) { return field.error.has_value(); });
}

std::vector<VariableDifference_s> byVariable(const DiffReport_s& report) {
    std::vector<VariableDifference_s> variables;
    std::size_t pair = 0;
    for (const SharedVariable_s& variable : report.plan.variables) {
        VariableDifference_s& added =
            variables.emplace_back(VariableDifference_s{variable, {}, {}});
        for (;
             pair < report.found.size() && report.plan.pairs[pair].firstVariable == variable.first;
             ++pair) {
            added.whole.add(report.found[pair].difference);
            added.pairs.push_back(pair);
        }
    }
    return variables;
}

void printTables(const DiffReport_s& report, const Surroundings_s& surroundings) {
    DiffTables(report, surroundings).print();
}

} // namespace plot3d::program
