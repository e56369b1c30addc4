#include "convert/csv/CsvWriter.h"

#include <algorithm>

#include "convert/output/ByteOutput.h"
#include "convert/output/RealText.h"
#include "manners/ResultFile.h"

namespace plot3d::program {

namespace {

constexpr std::int64_t linesPerBlock = std::int64_t{1} << 14;

std::string quoted(const std::string& name) {
    if (name.find_first_of(",\"\r\n") == std::string::npos)
        return name;
    std::string text = "\"";
    for (const char letter : name)
        text += letter == '"' ? std::string("\"\"") : std::string(1, letter);
    return text + '"';
}

std::string headerOf(const Contents& contents) {
    std::string line = "zone,time,i,j,k";
    for (const ContentVariable_s& variable : contents.variables())
        line += "," + quoted(variable.name);
    return line + "\n";
}

/// The values of a variable in the points of a block.
struct Column_s {
    std::size_t variable = 0;
    std::optional<ValueType> type; // nothing: the zone has none
    std::vector<std::uint64_t> values;
};

class ZoneLines {
public:
    ZoneLines(Contents& contents, std::size_t zone, ByteOutput& out)
        : contents_(contents), zone_(zone), facts_(contents.zones()[zone]), out_(out) {
        appendNumber(beginning_, facts_.number);
        beginning_ += ',';
        appendNumber(beginning_, facts_.time);
        for (std::size_t variable = 0; variable < contents.variables().size(); ++variable)
            columns_.push_back({variable, contents.type(zone, variable), {}});
    }

    void write() {
        forEachBlock(facts_.size, linesPerBlock, [this](const Box& box, std::int64_t count) {
            read(box, count);
            text_.clear();
            append(box);
            out_.write(text_);
        });
    }

private:
    void read(const Box& box, std::int64_t count) {
        for (Column_s& column : columns_) {
            if (!column.type)
                continue;
            column.values.resize(static_cast<std::size_t>(count));
            contents_.read(zone_, column.variable, box, column.values.data());
        }
    }

    void append(const Box& box) {
        std::size_t point = 0;
        for (std::int64_t k = box.k.first; k <= box.k.last; ++k)
            for (std::int64_t j = box.j.first; j <= box.j.last; ++j)
                for (std::int64_t i = box.i.first; i <= box.i.last; ++i)
                    appendLine(i, j, k, point++);
    }

    void appendLine(std::int64_t i, std::int64_t j, std::int64_t k, std::size_t point) {
        text_ += beginning_;
        appendIndex(facts_.box.i, i);
        appendIndex(facts_.box.j, j);
        appendIndex(facts_.box.k, k);
        for (const Column_s& column : columns_) {
            text_ += ',';
            if (column.type)
                appendNumber(text_, *column.type, column.values.data(), point);
        }
        text_ += '\n';
    }

    /// From 1, as the point is called in the data set.
    void appendIndex(const Range& range, std::int64_t index) {
        text_ += ',';
        appendNumber(text_, range.first + index * range.step + 1);
    }

    Contents& contents_;
    std::size_t zone_;
    const ContentZone_s& facts_;
    ByteOutput& out_;
    std::string beginning_;
    std::vector<Column_s> columns_;
    std::string text_;
};

} // namespace

Written_s CsvWriter::write(Contents& contents, const Target_s& target) {
    ResultFile file(target.path, target.overwrites);
    ByteOutput out(file.growingPath(), target.path);
    out.write(headerOf(contents));
    for (std::size_t zone = 0; zone < contents.zones().size(); ++zone)
        ZoneLines(contents, zone, out).write();
    out.finish();
    file.finish();
    return {{target.path}, {}};
}

} // namespace plot3d::program
