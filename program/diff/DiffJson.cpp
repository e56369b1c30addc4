#include "console/JsonStream.h"
#include "diff/DiffReport.h"

namespace plot3d::program {
namespace {

class DiffJson {
public:
    DiffJson(const DiffReport_s& report, std::ostream& out) : report_(report), json_(out) {}

    void write() {
        json_.beginObject();
        member("schema", "plot3d.diff/1");
        member("same", report_.isSame());
        member("tolerance", report_.tolerance.absolute);
        member("relativeTolerance", report_.tolerance.relative);
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
    template <typename Value>
    void member(const char* key, const Value& value) {
        json_.key(key);
        json_.value(value);
    }

    void writeUnlike(const Unlikeness_s& unlike) {
        json_.beginObject();
        member("what", unlike.what);
        json_.key("zone");
        if (unlike.zone)
            json_.value(*unlike.zone + 1);
        else
            json_.null();
        json_.key("variable");
        if (unlike.variable.empty())
            json_.null();
        else
            json_.value(unlike.variable);
        member("first", unlike.first);
        member("second", unlike.second);
        json_.endObject();
    }

    void writeVariable(const VariableDifference_s& variable) {
        json_.beginObject();
        member("name", variable.variable.name);
        writeDifference(variable.whole);
        json_.key("zones");
        json_.beginList();
        for (const std::size_t pair : variable.pairs) {
            json_.beginObject();
            member("zone", report_.plan.pairs[pair].zone + 1);
            writeDifference(report_.found[pair].difference);
            if (report_.found[pair].error)
                member("error", report_.found[pair].error->what());
            json_.endObject();
        }
        json_.endList();
        json_.endObject();
    }

    void writeDifference(const Difference_s& difference) {
        member("compared", difference.compared);
        member("different", difference.different);
        member("notFinite", difference.unlike);
        member("absolute", difference.absolute);
        writePair("absoluteAt", difference.absolute > 0, difference.absoluteAt);
        member("relative", difference.relative);
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
        member("zone", pair.zone + 1);
        member("i", pair.point.i + 1);
        member("j", pair.point.j + 1);
        member("k", pair.point.k + 1);
        member("first", pair.first);
        member("second", pair.second);
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
