#include "index/references/ReferenceIndex.h"

#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include <plot3d/Error.h>

#include "index/contents/PlainText.h"
#include "index/contents/TextFile.h"
#include "manners/ProgressWatch.h"
#include "names/UniqueNames.h"

namespace plot3d::program {

namespace {

using nlohmann::json;

const char* const marksName = "plot3d_originals";
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

json shapeOf(const Zone& zone) {
    if (zone.kind != ZoneKind::Ordered)
        return json::array({zone.size.i});
    return json::array({zone.size.k, zone.size.j, zone.size.i});
}

/// What xarray calls the directions.
json dimensionsOf(const Zone& zone) {
    return zone.kind != ZoneKind::Ordered ? json::array({"node"}) : json::array({"k", "j", "i"});
}

class IndexWriter {
public:
    IndexWriter(const IndexedData& data, Originals& originals, std::ofstream& out,
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
        put(".zgroup", group);
        for (std::size_t place = 0; place < data_.zones().size(); ++place) {
            writeZone(data_.zones()[place]);
            tellProgress(place + 1);
        }
        json marks = json::array();
        for (const OriginalMark_s& mark : originals_.marks())
            marks.push_back(lineOf(mark));
        put(".zattrs", json({{marksName, marks}}).dump());
        out_ << "\n}}\n";
    }

private:
    /// `value`: a text that is the value of the key, or [path, offset, bytes].
    void put(const std::string& key, const json& value) {
        out_ << std::exchange(comma_, ",\n") << json(key).dump() << ": " << value.dump();
    }

    void writeZone(std::size_t index) {
        const std::string folder = std::to_string(index + 1) + "/";
        const Zone& zone = data_.zone(index);
        refuseOtherThanUtf8(zone.name);
        put(folder + ".zgroup", group);
        put(folder + ".zattrs", json({{"name", zone.name}, {"time", timeOf(zone)}}).dump());
        for (std::size_t place = 0; place < names_.size(); ++place)
            if (data_.has(index, data_.variables()[place].variable))
                writeField(folder + names_[place], index, data_.variables()[place]);
        if (zone.kind != ZoneKind::Ordered)
            writeElements(folder + "elements", index);
    }

    static json timeOf(const Zone& zone) {
        return zone.strand == 0 ? json(nullptr) : json(zone.time);
    }

    void writeField(const std::string& key, std::size_t index, const IndexedVariable_s& variable) {
        const Source source = data_.data().source(index, variable.variable);
        refuseOtherThanUtf8(variable.name);
        if (source.pieces.size() != 1)
            throw Error(ErrorKind::Unsupported,
                        variable.name + " of zone " + std::to_string(index + 1) +
                            " is cut by markers, which references can't tell",
                        {.file = source.file});
        const std::string& path = originals_.pathOf(source);
        refuseOtherThanUtf8(path);
        const Piece& piece = source.pieces.front();
        const Zone& zone = data_.zone(index);
        putArray(key, shapeOf(zone), dimensionsOf(zone), typeWord(source),
                 json::array({path, piece.offset, piece.byteCount}));
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
        putArray(key, json::array({count, cornerCount}), json::array({"element", "corner"}), "<i4",
                 "base64:" + base64(bytes));
    }

    /// An array of one chunk: [path, offset, bytes], or the bytes themselves as text.
    void putArray(const std::string& key, const json& shape, const json& dimensions,
                  const std::string& type, const json& chunk) {
        const json facts = {{"zarr_format", 2},   {"shape", shape},       {"chunks", shape},
                            {"dtype", type},      {"order", "C"},         {"compressor", nullptr},
                            {"filters", nullptr}, {"fill_value", nullptr}};
        put(key + "/.zarray", facts.dump());
        put(key + "/.zattrs", json({{"_ARRAY_DIMENSIONS", dimensions}}).dump());
        std::string chunkName = "0";
        for (std::size_t place = 1; place < shape.size(); ++place)
            chunkName += ".0";
        put(key + "/" + chunkName, chunk);
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

std::string IndexWriter::base64(const std::string& bytes) {
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
    IndexWriter(data, originals, out, watch).write();
    finishText(out);
}

std::vector<OriginalMark_s> ReferenceIndex::readMarks(const std::filesystem::path& file) const {
    std::vector<OriginalMark_s> marks;
    try {
        const json index = json::parse(textOfFile(file));
        const json attributes = json::parse(index.at("refs").at(".zattrs").get<std::string>());
        for (const json& line : attributes.at(marksName))
            marks.push_back(markOfLine(line.get<std::string>()));
    } catch (const json::exception&) {
        throw Error(ErrorKind::Unreadable, "is no index of plot3d: it has no notes on originals",
                    {.file = file.string()});
    }
    return marks;
}

} // namespace plot3d::program
