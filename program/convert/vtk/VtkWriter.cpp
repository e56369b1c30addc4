#include "convert/vtk/VtkWriter.h"

#include "convert/output/ByteOutput.h"
#include "convert/output/Format.h"
#include "convert/output/RealText.h"
#include "convert/output/Refusal.h"
#include "convert/vtk/AppendedFile.h"
#include "convert/vtk/ZonePiece.h"
#include "manners/ResultFile.h"
#include "manners/ResultFolder.h"

namespace plot3d::program {

namespace {

std::string fileElement(const std::string& type, const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<VTKFile type=\"" + type +
           "\" version=\"1.0\" byte_order=\"LittleEndian\" header_type=\"UInt64\">\n  <" + type +
           ">\n" + body + "  </" + type + ">\n</VTKFile>\n";
}

/// The index file with its folder of pieces.
class Pieces {
public:
    Pieces(Contents& contents, const Target_s& target)
        : contents_(contents), result_(target.path, target.overwrites),
          shownFolder_(withoutExtension(target.path)) {}

    void writeMultiBlock() {
        writeZones();
        writeIndex(multiBlock(contents_.steps().front(), result_.name() + "/"));
    }

    void writeSeries() {
        writeZones();
        std::string body;
        for (std::size_t step = 0; step < contents_.steps().size(); ++step) {
            const std::string name = "step_" + std::to_string(step + 1) + ".vtm";
            ByteOutput out(result_.growingPath() / name, shownFolder_ + "/" + name);
            out.write(multiBlock(contents_.steps()[step], ""));
            out.finish();
            body += "    <DataSet timestep=\"";
            appendNumber(body, contents_.steps()[step].time);
            body += "\" part=\"0\" file=\"" + xmlText(result_.name() + "/" + name) + "\"/>\n";
        }
        writeIndex(fileElement("Collection", body));
    }

private:
    std::string pieceName(std::size_t zone) const {
        const ContentZone_s& facts = contents_.zones()[zone];
        return "zone_" + std::to_string(facts.number) + pieceExtension(facts);
    }

    void writeZones() {
        for (std::size_t zone = 0; zone < contents_.zones().size(); ++zone) {
            const std::string name = pieceName(zone);
            ByteOutput out(result_.growingPath() / name, shownFolder_ + "/" + name);
            writeZonePiece(contents_, zone, out);
            out.finish();
        }
    }

    std::string multiBlock(const TimeStep& step, const std::string& ahead) const {
        std::string body;
        for (std::size_t place = 0; place < step.zones.size(); ++place)
            body += "    <DataSet index=\"" + std::to_string(place) + "\" name=\"" +
                    xmlText(contents_.zones()[step.zones[place]].name) + "\" file=\"" +
                    xmlText(ahead + pieceName(step.zones[place])) + "\"/>\n";
        return fileElement("vtkMultiBlockDataSet", body);
    }

    void writeIndex(const std::string& text) {
        result_.index() << text;
        result_.finish();
    }

    Contents& contents_;
    ResultFolder result_;
    std::string shownFolder_;
};

void writeSinglePiece(Contents& contents, const Target_s& target) {
    if (contents.zones().size() != 1)
        refuseContents("a " + extensionOf(target.path) + " file holds one zone, and there are " +
                           std::to_string(contents.zones().size()),
                       "name a .vtm file, or choose a zone with --zone");
    const char* const fitting = pieceExtension(contents.zones().front());
    if (extensionOf(target.path) != fitting)
        refuseContents(std::string("a zone of this kind goes into a ") + fitting + " file",
                       "name a .vtm or " + std::string(fitting) + " file");
    ResultFile file(target.path, target.overwrites);
    ByteOutput out(file.growingPath(), target.path);
    writeZonePiece(contents, 0, out);
    out.finish();
    file.finish();
}

} // namespace

Written_s VtkWriter::write(Contents& contents, const Target_s& target) {
    refuseWithoutCoordinates(contents);
    const std::string extension = extensionOf(target.path);
    const bool isSeries = contents.steps().size() > 1;
    if (extension == ".vts" || extension == ".vtu")
        writeSinglePiece(contents, target);
    else if (extension == ".vtm" && isSeries)
        refuseContents("a .vtm file holds one time, and there are " +
                           std::to_string(contents.steps().size()),
                       "name a .pvd file, or choose a time with --time");
    else if (extension == ".pvd" || isSeries)
        Pieces(contents, target).writeSeries();
    else
        Pieces(contents, target).writeMultiBlock();
    return {{target.path}, {}};
}

} // namespace plot3d::program
