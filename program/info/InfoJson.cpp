#include "info/InfoJson.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/findings/InfoWords.h"

namespace plot3d::program {
namespace {

using console::JsonStream;

template <typename Value>
void word(JsonStream& json, std::string_view key, const std::optional<Value>& value) {
    json.member(key,
                value ? std::optional(std::string_view(analysis::wordOf(*value))) : std::nullopt);
}

/// Texts that are not known are null.
void text(JsonStream& json, std::string_view key, const std::string& value) {
    json.member(key, value.empty() ? std::nullopt : std::optional(std::string_view(value)));
}

template <typename Value>
std::optional<Value> onlyIf(bool hasMeaning, Value value) {
    return hasMeaning ? std::optional(value) : std::nullopt;
}

void writeTexts(JsonStream& json, std::string_view key, const std::vector<std::string>& texts) {
    json.key(key);
    json.beginList();
    for (const std::string& each : texts)
        json.value(each);
    json.endList();
}

void writeGrids(JsonStream& json, const FileInfo& info) {
    json.key("grids");
    json.beginList();
    for (const GridSize& size : info.grids) {
        json.beginObject();
        json.member("i", size.i);
        json.member("j", size.j);
        json.member("k", size.k);
        json.endObject();
    }
    json.endList();
}

void writeScalars(JsonStream& json, const FileInfo& info) {
    json.key("scalars");
    json.beginList();
    for (const Scalars& scalars : info.scalars) {
        json.beginObject();
        json.member("mach", scalars.mach);
        json.member("alpha", scalars.alpha);
        json.member("reynolds", scalars.reynolds);
        json.member("time", scalars.time);
        json.endObject();
    }
    json.endList();
}

void writeBytes(JsonStream& json, const ByteAccount& bytes) {
    json.key("bytes");
    json.beginObject();
    json.member("size", bytes.size);
    json.member("used", bytes.used);
    json.member("missing", bytes.missing);
    json.member("surplus", bytes.surplus);
    json.endObject();
}

void writeProblem(JsonStream& json, const FileProblem& problem) {
    json.beginObject();
    text(json, "what", problem.misfit.what);
    json.member("byte", problem.misfit.byte);
    json.member("line", problem.misfit.line);
    json.member("column", problem.misfit.column);
    text(json, "expected", problem.misfit.expected);
    text(json, "found", problem.misfit.found);
    writeTexts(json, "try", problem.next);
    json.endObject();
}

void writeCandidate(JsonStream& json, const Candidate& candidate, bool isText) {
    json.key("candidate");
    json.beginObject();
    json.member("kind", analysis::wordOf(candidate.kind));
    json.member("layout", analysis::wordOf(candidate.layout));
    word(json, "style", candidate.style);
    json.member("multiGrid", candidate.multiGrid);
    json.member("iBlank", candidate.iBlank);
    json.member("precision", onlyIf(!isText, candidate.precision));
    word(json, "byteOrder", candidate.byteOrder);
    json.member("relaxed", candidate.relaxed);
    json.endObject();
}

void writeMisfit(JsonStream& json, const std::optional<Misfit>& misfit) {
    json.key("misfit");
    if (!misfit)
        return json.null();
    json.beginObject();
    text(json, "what", misfit->what);
    json.member("byte", misfit->byte);
    text(json, "expected", misfit->expected);
    text(json, "found", misfit->found);
    json.endObject();
}

void writeWhy(JsonStream& json, const FileInfo& info) {
    json.key("why");
    json.beginList();
    for (const Trial& trial : info.trials) {
        json.beginObject();
        writeCandidate(json, trial.candidate, info.encoding == Encoding::Text);
        writeMisfit(json, trial.misfit);
        json.endObject();
    }
    json.endList();
}

void writeStructure(JsonStream& json, const FileInfo& info) {
    const bool hasGrids = info.layout.has_value();
    word(json, "kind", info.kind);
    word(json, "encoding", info.encoding);
    json.member("markerBytes", info.markerBytes);
    word(json, "byteOrder", info.byteOrder);
    json.member("precision", info.precision);
    word(json, "layout", info.layout);
    word(json, "style", info.style);
    json.member("multiGrid", onlyIf(hasGrids, info.multiGrid));
    json.member("iBlank", onlyIf(hasGrids && info.kind == FileKind::Grid, info.iBlank));
    writeGrids(json, info);
    json.member("variables", onlyIf(hasGrids, info.variables));
    writeScalars(json, info);
    writeBytes(json, info.bytes);
}

} // namespace

void writeFile(JsonStream& json, const FileInfo& info) {
    json.beginObject();
    json.member("file", info.file);
    json.member("ok", info.ok);
    writeStructure(json, info);
    json.key("problem");
    if (info.problem)
        writeProblem(json, *info.problem);
    else
        json.null();
    writeWhy(json, info);
    json.key("warnings");
    json.beginList();
    for (const FileProblem& warning : info.warnings)
        writeProblem(json, warning);
    json.endList();
    json.key("alsoFits");
    json.beginList();
    for (const FileKind kind : info.alsoFits)
        json.value(analysis::wordOf(kind));
    json.endList();
    writeTexts(json, "names", info.names);
    json.endObject();
}

} // namespace plot3d::program
