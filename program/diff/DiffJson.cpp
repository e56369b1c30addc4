#include "console/JsonStream.h"
#include "diff/DiffReport.h"

namespace plot3d::program {
namespace {

class DiffJson {
public:
    DiffJson(const DiffReport_s& report, std::ostream& out) : report_(report), json_(out) {}

    void write() {
        json_.beginObject();
        json_.member("schema", "plot3d.diff/1");
        json_.member("same", report_.isSame());
        json_.member("tolerance", report_.tolerance.absolute);
        json_.member("relativeTolerance", report_.tolerance.relative);
        json_.key("unlike");
        json_.beginList();
        for (const Unlikeness_s& unlike : report_.plan.unlike)
            writeUnlike(unlike);
        json_.endList();
        json_.key("variables");
        json_.beginList();
        for (const VariableDifference_s& variable : byVariable(report_))
            writeVariable(variable);
        json_.endList();
        json_.endObject();
        json_.finish();
    }

private:
    void writeUnlike(const Unlikeness_s& unlike) {
        json_.beginObject();
        json_.member("what", unlike.what);
        json_.member("zone", unlike.zone ? std::optional(*unlike.zone + 1) : std::nullopt);
        json_.member("variable",
                     unlike.variable.empty() ? std::nullopt : std::optional(unlike.variable));
        json_.member("first", unlike.first);
        json_.member("second", unlike.second);
        json_.endObject();
    }

    void writeVariable(const VariableDifference_s& variable) {
        json_.beginObject();
        json_.member("name", variable.variable.name);
        writeDifference(variable.whole);
        json_.key("zones");
        json_.beginList();
        for (const std::size_t pair : variable.pairs) {
            json_.beginObject();
            json_.member("zone", report_.plan.pairs[pair].zone + 1);
            writeDifference(report_.found[pair].difference);
            if (report_.found[pair].error)
                json_.member("error", report_.found[pair].error->what());
            json_.endObject();
        }
        json_.endList();
        json_.endObject();
    }

    void writeDifference(const Difference_s& difference) {
        json_.member("compared", difference.compared);
        json_.member("different", difference.different);
        json_.member("notFinite", difference.unlike);
        json_.member("absolute", difference.absolute);
        writePair("absoluteAt", difference.absolute > 0, difference.absoluteAt);
        json_.member("relative", difference.relative);
        writePair("relativeAt", difference.relative > 0, difference.relativeAt);
        writePair("notFiniteAt", difference.unlike > 0, difference.unlikeAt);
    }

    void writePair(const char* key, bool exists, const Pair_s& pair) {
        json_.key(key);
        if (!exists) {
            json_.null();
            return;
        }
        json_.beginObject();
        json_.member("zone", pair.zone + 1);
        json_.member("i", pair.point.i + 1);
        json_.member("j", pair.point.j + 1);
        json_.member("k", pair.point.k + 1);
        json_.member("first", pair.first);
        json_.member("second", pair.second);
        json_.endObject();
    }

    const DiffReport_s& report_;
    console::JsonStream json_;
};

} // namespace

void writeJson(const DiffReport_s& report, std::ostream& out) {
    DiffJson(report, out).write();
}

} // namespace plot3d::program
