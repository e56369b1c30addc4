#include "index/references/ReferenceIndex.h"

#include <algorithm>
#include <string>
#include <utility>

#include <fmt/core.h>

#include <plot3d/Error.h>

#include "console/JsonText.h"
#include "index/contents/PlainText.h"
#include "index/contents/TextFile.h"
#include "manners/ProgressWatch.h"
#include "names/UniqueNames.h"

namespace plot3d::program {

namespace {

const char* const marksKey = "plot3d_originals";
constexpr std::size_t longestName = 255; // where stores are folders
const char* const group = R"({"zarr_format": 2})";

std::string typeWord(const Source& source) {
    const std::string order = source.order == ByteOrder::Big ? ">" : "<";
    switch (source.type) {
    case ValueType::Float64:
        return order + "f8";
    case ValueType::Int32:
        return order + "i4";
    case ValueType::Float32:
        break;
    }
    return order + "f4";
}

std::string shapeOf(const Zone& zone) {
    if (zone.kind != ZoneKind::Ordered)
        return fmt::format("[{}]", zone.size.i);
    return fmt::format("[{},{},{}]", zone.size.k, zone.size.j, zone.size.i);
}

/// What xarray calls the directions.
const char* dimensionsOf(const Zone& zone) {
    return zone.kind != ZoneKind::Ordered ? R"(["node"])" : R"(["k","j","i"])";
}

/// The one chunk of an array of that shape: "0.0.0" if it has three directions.
std::string chunkOf(const std::string& shape) {
    std::string name = "0";
    for (auto commas = std::count(shape.begin(), shape.end(), ','); commas > 0; --commas)
        name += ".0";
    return name;
}

class ReferenceWriter {
public:
    ReferenceWriter(const IndexedData& data, Originals& originals, std::ofstream& out,
                    const Watch& watch)
        : data_(data), originals_(originals), out_(out), watch_(watch) {
        std::vector<std::string> names;
        for (const IndexedVariable_s& variable : data.variables())
            names.push_back(variable.name);
        names.insert(names.begin(), "elements"); // which is taken
        names_ = nodeNames(names, longestName);
        names_.erase(names_.begin());
    }

    void write() {
        out_ << "{\"version\": 1,\n\"refs\": {\n";
        putText(".zgroup", group);
        for (std::size_t place = 0; place < data_.zones().size(); ++place) {
            writeZone(data_.zones()[place]);
            tellProgress(place + 1);
        }
        writeMarks();
        out_ << "\n}}\n";
    }

private:
    void put(const std::string& key, const std::string& json) {
        out_ << std::exchange(comma_, ",\n") << jsonText(key) << ": " << json;
    }
    void putText(const std::string& key, const std::string& text) { put(key, jsonText(text)); }

    void writeMarks() {
        std::string marks;
        for (const OriginalMark_s& mark : originals_.marks())
            marks += (marks.empty() ? "" : ",") + jsonText(lineOf(mark));
        putText(".zattrs", fmt::format(R"({{"{}":[{}]}})", marksKey, marks));
    }

    void writeZone(std::size_t index) {
        const std::string folder = std::to_string(index + 1) + "/";
        const Zone& zone = data_.zone(index);
        putText(folder + ".zgroup", group);
        putText(folder + ".zattrs",
                fmt::format(R"({{"name":{},"time":{}}})", jsonText(zone.name), timeOf(zone)));
        for (std::size_t place = 0; place < names_.size(); ++place)
            if (data_.has(index, data_.variables()[place].variable))
                writeField(folder + names_[place], index, data_.variables()[place]);
        if (zone.kind != ZoneKind::Ordered)
            writeElements(folder + "elements", index);
    }

    static std::string timeOf(const Zone& zone) {
        return zone.strand == 0 ? "null" : console::jsonNumber(zone.time);
    }

    void writeField(const std::string& key, std::size_t index, const IndexedVariable_s& variable) {
        const Source source = data_.data().source(index, variable.variable);
        refuseOtherThanUtf8(variable.name);
        if (source.pieces.size() != 1)
            throw Error(ErrorKind::Unsupported,
                        variable.name + " of zone " + std::to_string(index + 1) +
                            " is cut by markers, which references can't tell",
                        {.file = source.file});
        const std::string path = jsonText(originals_.pathOf(source));
        const Piece& piece = source.pieces.front();
        const Zone& zone = data_.zone(index);
        putArray(key, shapeOf(zone), dimensionsOf(zone), typeWord(source),
                 fmt::format("[{},{},{}]", path, piece.offset, piece.byteCount));
    }

    /// The corners of each element, from 0, in the index itself.
    void writeElements(const std::string& key, std::size_t index) {
        const std::vector<std::int32_t> corners = data_.data().nodeMap(index);
        const std::int64_t count = data_.zone(index).elementCount;
        if (count == 0)
            return;
        std::string bytes;
        for (const std::int32_t corner : corners)
            for (int byte = 0; byte < 4; ++byte)
                bytes += static_cast<char>(static_cast<std::uint32_t>(corner) >> (8 * byte) & 0xFF);
        const auto cornerCount = static_cast<std::int64_t>(corners.size()) / count;
        putArray(key, fmt::format("[{},{}]", count, cornerCount), R"(["element","corner"])", "<i4",
                 jsonText("base64:" + base64(bytes)));
    }

    /// An array of one chunk, in JSON: [path, offset, bytes], or the bytes themselves as text.
    void putArray(const std::string& key, const std::string& shape, const char* dimensions,
                  const std::string& type, const std::string& chunk) {
        putText(key + "/.zarray",
                fmt::format(R"({{"chunks":{0},"compressor":null,"dtype":"{1}","fill_value":null,)"
                            R"("filters":null,"order":"C","shape":{0},"zarr_format":2}})",
                            shape, type));
        putText(key + "/.zattrs", fmt::format(R"({{"_ARRAY_DIMENSIONS":{}}})", dimensions));
        put(key + "/" + chunkOf(shape), chunk);
    }

    static std::string base64(const std::string& bytes);

    void tellProgress(std::size_t done) const {
        throwIfStopped(watch_.stop);
        if (watch_.progress)
            watch_.progress({"writing the index", static_cast<double>(done) /
                                                      static_cast<double>(data_.zones().size())});
    }

    const IndexedData& data_;
    Originals& originals_;
    std::ofstream& out_;
    const Watch& watch_;
    std::vector<std::string> names_; // of the variables
    const char* comma_ = "";
};

std::string ReferenceWriter::base64(const std::string& bytes) {
    const char* const letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t place = 0; place < bytes.size(); place += 3) {
        std::uint32_t group24 = 0;
        for (std::size_t byte = 0; byte < 3; ++byte)
            group24 = group24 << 8 |
                      (place + byte < bytes.size() ? static_cast<unsigned char>(bytes[place + byte])
                                                   : 0U);
        for (std::size_t letter = 0; letter < 4; ++letter)
            text +=
                place + letter > bytes.size() ? '=' : letters[group24 >> (18 - 6 * letter) & 63];
    }
    return text;
}

} // namespace

void ReferenceIndex::write(const IndexedData& data, Originals& originals,
                           const std::filesystem::path& file, const Watch& watch) const {
    data.refuseFieldsOutsideFiles();
    std::ofstream out = openedForText(file);
    ReferenceWriter(data, originals, out, watch).write();
    finishText(out);
}

std::vector<OriginalMark_s> ReferenceIndex::readMarks(const std::filesystem::path& file) const {
    const auto attributes = console::jsonTexts(textOfFile(file), {"refs", ".zattrs"});
    const auto lines = attributes && !attributes->empty()
                           ? console::jsonTexts(attributes->front(), {marksKey})
                           : std::nullopt;
    if (!lines)
        throw Error(ErrorKind::Unreadable, "is no index of plot3d: it has no notes on originals",
                    {.file = file.string()});
    std::vector<OriginalMark_s> marks;
    for (const std::string& line : *lines)
        marks.push_back(markOfLine(line));
    return marks;
}

} // namespace plot3d::program
