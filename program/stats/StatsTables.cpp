#include <algorithm>
#include <cmath>
#include <functional>
#include <ostream>

#include <fmt/core.h>

#include "analysis/statistics/Histogram.h"
#include "console/TextGrid.h"
#include "console/Words.h"
#include "stats/StatsReport.h"

namespace plot3d::program {
namespace {

using console::TextGrid;
using Align_e = TextGrid::Align_e;
using Cells = std::vector<std::string>;

constexpr auto left = Align_e::Left;
constexpr auto right = Align_e::Right;

bool isTable(const analysis::VariableStatistics_s& variable) {
    return variable.type == ValueType::Int32;
}

/// One line of a table: the whole of a variable, or one of its zones.
struct Row_s {
    const analysis::VariableStatistics_s& variable;
    const analysis::Statistics_s& statistics;
    const analysis::ZoneStatistics_s* zone; // null: the whole
};

class StatsTables {
public:
    StatsTables(const StatsReport_s& report, const Surroundings_s& surroundings)
        : report_(report), out_(surroundings.out),
          columns_(surroundings.outColumns), paint_{surroundings.colour} {
        for (const analysis::VariableStatistics_s& variable : report.variables)
            addRows(variable);
    }

    void print() {
        printHead();
        if (isOfPoints())
            printPoints();
        else
            printSummaries();
        printLeftOut();
        for (const Row_s& row : rows_)
            if (isTable(row.variable) && !isOfPoints())
                printValues(row);
        if (!report_.wishes.percentiles.empty())
            printPercentiles();
        if (report_.wishes.bins > 0)
            for (const Row_s& row : rows_)
                printHistogram(row);
        if (report_.wishes.checksum == analysis::Checksum_e::Yes)
            printChecksums();
    }

private:
    void addRows(const analysis::VariableStatistics_s& variable) {
        if (!report_.tellsZones || variable.zones.size() != 1) // else the zone tells all
            rows_.push_back({variable, variable.whole, nullptr});
        for (const analysis::ZoneStatistics_s& zone : variable.zones)
            if (report_.tellsZones)
                rows_.push_back({variable, zone.statistics, &zone});
    }

    // --- tables that give up columns where they are wider than the terminal

    bool fits(const TextGrid& grid) const {
        return columns_ == 0 || grid.width() <= static_cast<std::size_t>(columns_);
    }

    void heading(const std::string& text) {
        out_ << '\n' << paint_(console::Colour_e::Bold, text) << '\n';
    }

    // --- head

    void printHead() {
        std::int64_t points = 0;
        for (const analysis::SelectedZone_s& zone : report_.selection.zones)
            points += zone.box.count();
        const auto zones = static_cast<std::int64_t>(report_.selection.zones.size());
        const auto variables = static_cast<std::int64_t>(report_.variables.size());
        out_ << fmt::format("{}, {}, {}\n\n", console::counted(zones, "zone", "zones"),
                            console::counted(points, "point", "points"),
                            console::counted(variables, "variable", "variables"));
    }

    // --- minimum, maximum and the rest

    bool any(std::int64_t analysis::FieldSummary_s::*count) const {
        return std::any_of(rows_.begin(), rows_.end(),
                           [count](const Row_s& row) { return row.statistics.summary.*count > 0; });
    }

    std::string zoneText(const Row_s& row) const {
        return row.zone == nullptr ? "all" : std::to_string(row.zone->zone + 1);
    }

    std::string placeText(const Row_s& row, const analysis::Place_s& place) const {
        if (row.statistics.summary.moments.count == 0)
            return "-";
        const std::string point =
            fmt::format("{},{},{}", place.point.i + 1, place.point.j + 1, place.point.k + 1);
        return hasSeveralZones() ? fmt::format("{}: {}", place.zone + 1, point) : point;
    }

    bool hasSeveralZones() const { return report_.data.zones().size() > 1; }

    std::string valueText(const Row_s& row, double value) const {
        return row.statistics.summary.moments.count == 0 ? "-" : console::roughNumber(value);
    }

    struct Column_s {
        std::string heading;
        Align_e align;
        std::function<std::string(const Row_s&)> cell;
    };

    std::vector<Column_s> namesOfRows() const {
        std::vector<Column_s> columns = {
            {"variable", left, [this](const Row_s& row) { return report_.nameOf(row.variable); }}};
        if (report_.tellsZones)
            columns.push_back({"zone", right, [this](const Row_s& row) { return zoneText(row); }});
        return columns;
    }

    std::vector<Column_s> valuesOfRows() const {
        const auto summary = [](const Row_s& row) -> const analysis::FieldSummary_s& {
            return row.statistics.summary;
        };
        return {
            {"count", right,
             [=](const Row_s& row) { return console::grouped(summary(row).moments.count); }},
            {"minimum", right,
             [=, this](const Row_s& row) { return valueText(row, summary(row).min); }},
            {"maximum", right,
             [=, this](const Row_s& row) { return valueText(row, summary(row).max); }},
            {"mean", right,
             [=, this](const Row_s& row) { return valueText(row, summary(row).moments.mean()); }},
            {"deviation", right,
             [=, this](const Row_s& row) {
                 return valueText(row, summary(row).moments.deviation());
             }},
        };
    }

    std::vector<Column_s> placesOfRows() const {
        const std::string where = hasSeveralZones() ? "zone: i,j,k" : "i,j,k";
        return {{"minimum at " + where, left,
                 [this](const Row_s& row) { return placeText(row, row.statistics.summary.minAt); }},
                {"maximum at " + where, left, [this](const Row_s& row) {
                     return placeText(row, row.statistics.summary.maxAt);
                 }}};
    }

    std::vector<Column_s> leftOutOfRows() const {
        std::vector<Column_s> columns;
        const auto add = [&](const char* name, std::int64_t analysis::FieldSummary_s::*count) {
            if (any(count))
                columns.push_back({name, right, [count](const Row_s& row) {
                                       return console::grouped(row.statistics.summary.*count);
                                   }});
        };
        add("NaN", &analysis::FieldSummary_s::nan);
        add("infinite", &analysis::FieldSummary_s::infinite);
        add("blanked", &analysis::FieldSummary_s::blanked);
        return columns;
    }

    using Columns = std::vector<Column_s>;

    static Columns joined(std::initializer_list<Columns> parts) {
        Columns all;
        for (const Columns& part : parts)
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }

    TextGrid gridOf(const Columns& columns, const std::function<bool(const Row_s&)>& shows) const {
        std::vector<TextGrid::Column_s> headings;
        for (const Column_s& column : columns)
            headings.push_back({column.heading, column.align});
        TextGrid grid(headings);
        for (const Row_s& row : rows_) {
            if (!shows(row))
                continue;
            Cells cells;
            for (const Column_s& column : columns)
                cells.push_back(column.cell(row));
            grid.addRow(cells);
        }
        return grid;
    }

    /// In one table if it fits, otherwise in several, each with the names of the rows and as many
    /// columns as fit.
    void printSummaries() {
        const auto shows = [](const Row_s& row) { return !isTable(row.variable); };
        const Columns all = joined({valuesOfRows(), leftOutOfRows(), placesOfRows()});
        for (std::size_t next = 0; next < all.size();) {
            out_ << (next == 0 ? "" : "\n");
            Columns columns = joined({namesOfRows(), {all[next++]}});
            for (; next < all.size(); ++next) {
                columns.push_back(all[next]);
                if (fits(gridOf(columns, shows)))
                    continue;
                columns.pop_back();
                break;
            }
            gridOf(columns, shows).print(out_, 0, paint_);
        }
    }

    void printLeftOut() {
        std::int64_t blanked = 0;
        for (const analysis::VariableStatistics_s& variable : report_.variables)
            blanked = std::max(blanked, variable.whole.summary.blanked);
        if (blanked > 0)
            out_ << fmt::format("\n{} with I-blank 0 left out; --blank keep takes them in\n",
                                console::counted(blanked, "point", "points"));
    }

    // --- single points

    bool isOfPoints() const {
        return std::all_of(
            report_.selection.zones.begin(), report_.selection.zones.end(),
            [](const analysis::SelectedZone_s& zone) { return zone.box.count() == 1; });
    }

    static std::string pointText(const analysis::ZoneStatistics_s& zone) {
        const analysis::FieldSummary_s& summary = zone.statistics.summary;
        if (zone.error)
            return "unreadable";
        if (summary.blanked > 0)
            return "blanked";
        if (summary.nan > 0)
            return "NaN";
        return summary.infinite > 0 ? "infinite" : console::roughNumber(summary.min);
    }

    /// A line for each zone, a column for each variable; or a line for each of both.
    void printPoints() {
        std::vector<TextGrid::Column_s> headings = {{"zone", right}, {"time", right}, {"i,j,k"}};
        for (const analysis::VariableStatistics_s& variable : report_.variables)
            headings.push_back({report_.nameOf(variable), right});
        TextGrid wide(headings);
        TextGrid high(
            {{"zone", right}, {"time", right}, {"i,j,k"}, {"variable"}, {"value", right}});
        for (const analysis::SelectedZone_s& selected : report_.selection.zones) {
            const Box& box = selected.box;
            const Cells zone = {
                std::to_string(selected.zone + 1),
                fmt::format("{}", report_.data.zones()[selected.zone].time),
                fmt::format("{},{},{}", box.i.first + 1, box.j.first + 1, box.k.first + 1)};
            Cells row = zone;
            for (const analysis::VariableStatistics_s& variable : report_.variables) {
                row.push_back(pointTextOf(variable, selected.zone));
                Cells line = zone;
                line.insert(line.end(), {report_.nameOf(variable), row.back()});
                high.addRow(line);
            }
            wide.addRow(row);
        }
        (fits(wide) ? wide : high).print(out_, 0, paint_);
    }

    static std::string pointTextOf(const analysis::VariableStatistics_s& variable,
                                   std::size_t zone) {
        for (const analysis::ZoneStatistics_s& statistics : variable.zones)
            if (statistics.zone == zone)
                return pointText(statistics);
        return "-";
    }

    // --- what is asked for beside

    std::string titleOf(const Row_s& row) const {
        const std::string& name = report_.nameOf(row.variable);
        return row.zone == nullptr ? name : fmt::format("{}, zone {}", name, row.zone->zone + 1);
    }

    void printValues(const Row_s& row) {
        heading("Values of " + titleOf(row));
        TextGrid grid({{"value", right}, {"points", right}});
        for (const auto& [value, count] : row.statistics.summary.table)
            grid.addRow({std::to_string(value), console::grouped(count)});
        if (row.statistics.summary.beyondTable > 0)
            grid.addRow({"others", console::grouped(row.statistics.summary.beyondTable)});
        grid.print(out_, columns_, paint_);
    }

    void printPercentiles() {
        heading("Percentiles");
        Columns wide = namesOfRows();
        TextGrid high({{"variable"}, {"zone", right}, {"percentile", right}, {"value", right}});
        for (std::size_t index = 0; index < report_.wishes.percentiles.size(); ++index) {
            const std::string percent = fmt::format("{}%", report_.wishes.percentiles[index]);
            wide.push_back(
                {percent, right, [index](const Row_s& row) { return percentileText(row, index); }});
        }
        const TextGrid grid = gridOf(wide, [](const Row_s&) { return true; });
        for (const Row_s& row : rows_)
            for (std::size_t index = 0; index < report_.wishes.percentiles.size(); ++index)
                high.addRow({report_.nameOf(row.variable), zoneText(row),
                             fmt::format("{}%", report_.wishes.percentiles[index]),
                             percentileText(row, index)});
        (fits(grid) ? grid : high).print(out_, 0, paint_);
    }

    static std::string percentileText(const Row_s& row, std::size_t index) {
        const std::vector<double>& percentiles = row.statistics.percentiles;
        return index < percentiles.size() && !std::isnan(percentiles[index])
                   ? console::roughNumber(percentiles[index])
                   : "-";
    }

    void printHistogram(const Row_s& row) {
        const std::vector<std::int64_t>& counts = row.statistics.histogram;
        if (counts.empty())
            return;
        heading("Histogram of " + titleOf(row));
        constexpr std::int64_t longestBar = 30;
        const std::int64_t most = *std::max_element(counts.begin(), counts.end());
        const analysis::FieldSummary_s& whole = row.variable.whole.summary;
        TextGrid grid({{"from", right}, {"to", right}, {"values", right}, {""}});
        for (std::size_t bin = 0; bin < counts.size(); ++bin) {
            const auto length =
                most == 0 ? 0
                          : static_cast<std::size_t>(static_cast<double>(counts[bin]) /
                                                         static_cast<double>(most) * longestBar +
                                                     0.5);
            grid.addRow(
                {console::roughNumber(analysis::binEdge(whole.min, whole.max, counts.size(), bin)),
                 console::roughNumber(
                     analysis::binEdge(whole.min, whole.max, counts.size(), bin + 1)),
                 console::grouped(counts[bin]), std::string(length, '#')});
        }
        grid.print(out_, columns_, paint_);
    }

    void printChecksums() {
        heading("CRC-32 of the values");
        TextGrid grid({{"variable"}, {"zone", right}, {"crc32"}});
        for (const analysis::VariableStatistics_s& variable : report_.variables)
            for (const analysis::ZoneStatistics_s& zone : variable.zones)
                if (!zone.error)
                    grid.addRow({report_.nameOf(variable), std::to_string(zone.zone + 1),
                                 fmt::format("{:08x}", zone.statistics.summary.checksum.crc32)});
        grid.print(out_, columns_, paint_);
    }

    const StatsReport_s& report_;
    std::ostream& out_;
    int columns_;
    console::Paint_s paint_;
    std::vector<Row_s> rows_;
};

} // namespace

void printTables(const StatsReport_s& report, const Surroundings_s& surroundings) {
    StatsTables(report, surroundings).print();
}

} // namespace plot3d::program
