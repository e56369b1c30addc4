#include <cmath>
#include <optional>

#include <fmt/core.h>

#include "console/JsonStream.h"
#include "stats/StatsReport.h"

namespace plot3d::program {
namespace {

class StatsJson {
public:
    StatsJson(const StatsReport_s& report, std::ostream& out) : report_(report), json_(out) {}

    void write() {
        json_.beginObject();
        json_.member("schema", "plot3d.stats/1");
        json_.member("blank", report_.selection.leavesOutBy ? "skip" : "keep");
        json_.key("variables");
        json_.beginList();
        for (const analysis::VariableStatistics_s& variable : report_.variables)
            writeVariable(variable);
        json_.endList();
        json_.endObject();
        json_.finish();
    }

private:
    void writeVariable(const analysis::VariableStatistics_s& variable) {
        json_.beginObject();
        json_.member("name", report_.nameOf(variable));
        writeStatistics(variable, variable.whole);
        json_.key("zones");
        json_.beginList();
        for (const analysis::ZoneStatistics_s& zone : variable.zones)
            writeZone(variable, zone);
        json_.endList();
        json_.endObject();
    }

    void writeZone(const analysis::VariableStatistics_s& variable,
                   const analysis::ZoneStatistics_s& zone) {
        json_.beginObject();
        json_.member("zone", zone.zone + 1);
        json_.member("name", report_.data.zones()[zone.zone].name);
        json_.member("time", report_.data.zones()[zone.zone].time);
        writeStatistics(variable, zone.statistics);
        if (zone.error)
            json_.member("error", zone.error->what());
        json_.endObject();
    }

    void writeStatistics(const analysis::VariableStatistics_s& variable,
                         const analysis::Statistics_s& statistics) {
        const analysis::FieldSummary_s& summary = statistics.summary;
        const auto known = [&](double value) {
            return summary.moments.count > 0 ? std::optional(value) : std::nullopt;
        };
        json_.member("count", summary.moments.count);
        json_.member("min", known(summary.min));
        json_.member("max", known(summary.max));
        writePlace("minAt", summary, summary.minAt);
        writePlace("maxAt", summary, summary.maxAt);
        json_.member("mean", known(summary.moments.mean()));
        json_.member("deviation", known(summary.moments.deviation()));
        json_.member("nan", summary.nan);
        json_.member("infinite", summary.infinite);
        json_.member("blanked", summary.blanked);
        if (report_.wishes.checksum == analysis::Checksum_e::Yes)
            json_.member("crc32", fmt::format("{:08x}", summary.checksum.crc32));
        if (variable.type == ValueType::Int32)
            writeTable(summary);
        if (!report_.wishes.percentiles.empty())
            writePercentiles(statistics);
        if (report_.wishes.bins > 0)
            writeHistogram(variable, statistics);
    }

    void writePlace(const char* key, const analysis::FieldSummary_s& summary,
                    const analysis::Place_s& place) {
        json_.key(key);
        if (summary.moments.count == 0) {
            json_.null();
            return;
        }
        json_.beginObject();
        json_.member("zone", place.zone + 1);
        json_.member("i", place.point.i + 1);
        json_.member("j", place.point.j + 1);
        json_.member("k", place.point.k + 1);
        json_.endObject();
    }

    void writeTable(const analysis::FieldSummary_s& summary) {
        json_.key("values");
        json_.beginList();
        for (const auto& [value, count] : summary.table) {
            json_.beginObject();
            json_.member("value", value);
            json_.member("count", count);
            json_.endObject();
        }
        json_.endList();
        json_.member("otherValues", summary.beyondTable);
    }

    void writePercentiles(const analysis::Statistics_s& statistics) {
        json_.key("percentiles");
        json_.beginList();
        for (std::size_t index = 0; index < statistics.percentiles.size(); ++index) {
            const double value = statistics.percentiles[index];
            json_.beginObject();
            json_.member("percent", report_.wishes.percentiles[index]);
            json_.member("value", std::isnan(value) ? std::nullopt : std::optional(value));
            json_.endObject();
        }
        json_.endList();
    }

    void writeHistogram(const analysis::VariableStatistics_s& variable,
                        const analysis::Statistics_s& statistics) {
        json_.key("histogram");
        if (statistics.histogram.empty()) {
            json_.null();
            return;
        }
        json_.beginObject();
        json_.member("min", variable.whole.summary.min);
        json_.member("max", variable.whole.summary.max);
        json_.key("counts");
        json_.beginList();
        for (const std::int64_t count : statistics.histogram)
            json_.value(count);
        json_.endList();
        json_.endObject();
    }

    const StatsReport_s& report_;
    console::JsonStream json_;
};

} // namespace

void writeJson(const StatsReport_s& report, std::ostream& out) {
    StatsJson(report, out).write();
}

} // namespace plot3d::program
