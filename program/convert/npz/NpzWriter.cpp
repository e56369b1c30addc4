#include "convert/npz/NpzWriter.h"

#include "convert/npz/ZipOutput.h"
#include "manners/ResultFile.h"
#include "names/UniqueNames.h"

namespace plot3d::program {

namespace {

const char* numpyWordOf(ValueType type) {
    switch (type) {
    case ValueType::Float32:
        return "<f4";
    case ValueType::Float64:
        return "<f8";
    case ValueType::Int32:
        return "<i4";
    }
    return "";
}

std::string shapeOf(const std::vector<std::int64_t>& lengths) {
    std::string text = "(";
    for (const std::int64_t length : lengths)
        text += std::to_string(length) + ", ";
    return text + ")";
}

/// What stands ahead of an array's values.
std::string headerOf(ValueType type, const std::vector<std::int64_t>& lengths) {
    constexpr std::size_t alignment = 64;
    std::string description = "{'descr': '" + std::string(numpyWordOf(type)) +
                              "', 'fortran_order': False, 'shape': " + shapeOf(lengths) + "}";
    const std::string magic = std::string("\x93NUMPY\x01") + '\0';
    const std::size_t unpadded = magic.size() + 2 + description.size() + 1;
    description.append((alignment - unpadded % alignment) % alignment, ' ');
    description += '\n';
    const std::size_t length = description.size();
    return magic + static_cast<char>(length % 256) + static_cast<char>(length / 256) + description;
}

class Archive {
public:
    explicit Archive(ByteOutput& out) : zip_(out) {}

    void begin(const std::string& key, ValueType type, const std::vector<std::int64_t>& lengths) {
        std::int64_t bytes = width(type);
        for (const std::int64_t length : lengths)
            bytes *= length;
        const std::string header = headerOf(type, lengths);
        zip_.begin(key + ".npy", static_cast<std::int64_t>(header.size()) + bytes);
        zip_.write(header.data(), header.size());
    }
    void write(const void* values, std::size_t bytes) { zip_.write(values, bytes); }
    void end() { zip_.end(); }
    void finish() { zip_.finish(); }

private:
    ZipOutput zip_;
};

void writeField(Contents& contents, std::size_t zone, std::size_t variable, Archive& archive) {
    const ValueType type = *contents.type(zone, variable);
    std::vector<std::uint64_t> values;
    forEachBlock(contents.zones()[zone].size, pointsPerBlock,
                 [&](const Box& box, std::int64_t count) {
                     values.resize(static_cast<std::size_t>(count));
                     contents.read(zone, variable, box, values.data());
                     archive.write(values.data(), static_cast<std::size_t>(count * width(type)));
                 });
}

void writeElements(Contents& contents, std::size_t zone, Archive& archive) {
    const ContentZone_s& facts = contents.zones()[zone];
    if (facts.kind == ZoneKind::Ordered)
        return;
    const std::vector<std::int32_t> nodes = contents.nodeMap(zone);
    archive.begin(std::to_string(facts.number) + "/elements", ValueType::Int32,
                  {facts.elementCount, cornerCount(facts.kind)});
    archive.write(nodes.data(), nodes.size() * sizeof nodes.front());
    archive.end();
}

void writeTimes(const Contents& contents, Archive& archive) {
    std::vector<double> times;
    for (const ContentZone_s& zone : contents.zones())
        times.push_back(zone.time);
    archive.begin("times", ValueType::Float64, {static_cast<std::int64_t>(times.size())});
    archive.write(times.data(), times.size() * sizeof times.front());
    archive.end();
}

void writeZone(Contents& contents, std::size_t zone, const std::vector<std::string>& names,
               Archive& archive) {
    const ContentZone_s& facts = contents.zones()[zone];
    for (std::size_t variable = 0; variable < names.size(); ++variable) {
        const std::optional<ValueType> type = contents.type(zone, variable);
        if (!type)
            continue;
        archive.begin(std::to_string(facts.number) + "/" + names[variable], *type,
                      {facts.size.k, facts.size.j, facts.size.i});
        writeField(contents, zone, variable, archive);
        archive.end();
    }
    writeElements(contents, zone, archive);
}

} // namespace

Written_s NpzWriter::write(Contents& contents, const Target_s& target) {
    ResultFile file(target.path, target.overwrites);
    ByteOutput out(file.growingPath(), target.path);
    Archive archive(out);
    const std::vector<std::string> names = uniqueNames(namesOf(contents));
    for (std::size_t zone = 0; zone < contents.zones().size(); ++zone)
        writeZone(contents, zone, names, archive);
    writeTimes(contents, archive);
    archive.finish();
    out.finish();
    file.finish();
    return {{target.path}, {}};
}

} // namespace plot3d::program
