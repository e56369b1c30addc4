#include "index/xdmf/XdmfIndex.h"

#include <sstream>
#include <string>

#include <fmt/format.h>

#include "index/contents/PlainText.h"
#include "index/contents/Refusal.h"
#include "index/contents/TextFile.h"
#include "manners/ProgressWatch.h"

namespace plot3d::program {

namespace {

constexpr std::string_view markBegin = "<Information Name=\"plot3d original\" Value=\"";
constexpr std::string_view markEnd = "\"/>";

const char* topologyOf(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Triangles:
        return "Triangle";
    case ZoneKind::Quadrilaterals:
        return "Quadrilateral";
    case ZoneKind::Tetrahedra:
        return "Tetrahedron";
    case ZoneKind::Bricks:
        return "Hexahedron";
    case ZoneKind::Ordered:
        break;
    }
    return "3DSMesh";
}

/// K, J and I.
std::string sizesOf(const Zone& zone) {
    if (zone.kind != ZoneKind::Ordered)
        return std::to_string(zone.size.i);
    return fmt::format("{} {} {}", zone.size.k, zone.size.j, zone.size.i);
}

class XdmfWriter {
public:
    XdmfWriter(const IndexedData& data, Originals& originals, std::ofstream& out,
               const Watch& watch)
        : data_(data), originals_(originals), out_(out), watch_(watch) {}

    void write() {
        if (data_.coordinateCount() < 2)
            refuseIndex("XDMF has no place for grids of one dimension");
        data_.refuseTimesThatAreNotFinite();
        out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Xdmf Version=\"2.0\">\n<Domain>\n"
                "<Grid Name=\"steps\" GridType=\"Collection\" CollectionType=\"Temporal\">\n";
        for (std::size_t place = 0; place < data_.steps().size(); ++place) {
            writeStep(data_.steps()[place]);
            tellProgress(place + 1);
        }
        out_ << "</Grid>\n";
        for (const OriginalMark_s& mark : originals_.marks())
            out_ << markBegin << xmlText(lineOf(mark)) << markEnd << '\n';
        out_ << "</Domain>\n</Xdmf>\n";
    }

private:
    void writeStep(const TimeStep& step) {
        out_ << fmt::format("<Grid Name=\"step\" GridType=\"Collection\" "
                            "CollectionType=\"Spatial\">\n<Time Value=\"{}\"/>\n",
                            step.time);
        for (const std::size_t zone : step.zones)
            writeZone(zone);
        out_ << "</Grid>\n";
    }

    void writeZone(std::size_t index) {
        const Zone& zone = data_.zone(index);
        out_ << fmt::format("<Grid Name=\"{}\" GridType=\"Uniform\">\n", xmlText(zone.name));
        writeTopology(index);
        out_ << fmt::format("<Geometry GeometryType=\"{}\">\n",
                            data_.coordinateCount() == 3 ? "X_Y_Z" : "X_Y");
        for (const IndexedVariable_s& variable : data_.variables())
            if (variable.coordinate)
                writeField(index, variable);
        out_ << "</Geometry>\n";
        for (const IndexedVariable_s& variable : data_.variables())
            if (!variable.coordinate && data_.has(index, variable.variable)) {
                out_ << fmt::format(
                    "<Attribute Name=\"{}\" AttributeType=\"Scalar\" Center=\"Node\">\n",
                    xmlText(variable.name));
                writeField(index, variable);
                out_ << "</Attribute>\n";
            }
        out_ << "</Grid>\n";
    }

    void writeTopology(std::size_t index) {
        const Zone& zone = data_.zone(index);
        if (zone.kind == ZoneKind::Ordered) {
            out_ << fmt::format("<Topology TopologyType=\"3DSMesh\" Dimensions=\"{}\"/>\n",
                                sizesOf(zone));
            return;
        }
        const std::vector<std::int32_t> corners = data_.data().nodeMap(index);
        out_ << fmt::format("<Topology TopologyType=\"{}\" NumberOfElements=\"{}\">\n"
                            "<DataItem Format=\"XML\" NumberType=\"Int\" Dimensions=\"{} {}\">\n"
                            "{}\n</DataItem>\n</Topology>\n",
                            topologyOf(zone.kind), zone.elementCount, zone.elementCount,
                            cornerCount(zone.kind), fmt::join(corners, " "));
    }

    void writeField(std::size_t index, const IndexedVariable_s& variable) {
        const Source source = data_.data().source(index, variable.variable);
        if (source.pieces.size() != 1)
            refuseIndex(fmt::format("{} of zone {} is cut by markers, which XDMF can't tell",
                                    variable.name, index + 1),
                        source.file);
        out_ << fmt::format(
            "<DataItem Format=\"Binary\" NumberType=\"{}\" Precision=\"{}\" Endian=\"{}\" "
            "Seek=\"{}\" Dimensions=\"{}\">{}</DataItem>\n",
            source.type == ValueType::Int32 ? "Int" : "Float", width(source.type),
            source.order == ByteOrder::Big ? "Big" : "Little", source.pieces.front().offset,
            sizesOf(data_.zone(index)), xmlText(originals_.pathOf(source)));
    }

    void tellProgress(std::size_t done) const {
        throwIfStopped(watch_.stop);
        if (watch_.progress)
            watch_.progress({"writing the index", static_cast<double>(done) /
                                                      static_cast<double>(data_.steps().size())});
    }

    const IndexedData& data_;
    Originals& originals_;
    std::ofstream& out_;
    const Watch& watch_;
};

} // namespace

void XdmfIndex::write(const IndexedData& data, Originals& originals,
                      const std::filesystem::path& file, const Watch& watch) const {
    data.refuseFieldsOutsideFiles();
    data.refuseMissingCoordinates();
    std::ofstream out = openedForText(file);
    XdmfWriter(data, originals, out, watch).write();
    finishText(out);
}

std::vector<OriginalMark_s> XdmfIndex::readMarks(const std::filesystem::path& file) const {
    std::string marks;
    std::istringstream lines(textOfFile(file));
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(markBegin) && line.ends_with(markEnd))
            marks += plainText(std::string_view(line).substr(
                         markBegin.size(), line.size() - markBegin.size() - markEnd.size())) +
                     "\n";
    return marksOfText(marks);
}

} // namespace plot3d::program
