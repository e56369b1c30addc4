#include "convert/vtk/VtkWriter.h"

#include <filesystem>
#include <utility>

#include <plot3d/Error.h>

#include "convert/output/ByteOutput.h"
#include "convert/output/RealText.h"
#include "convert/output/ResultFile.h"
#include "convert/vtk/AppendedFile.h"
#include "convert/vtk/ZonePiece.h"

namespace plot3d::program {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& message, const std::string& next) {
    ErrorFacts facts;
    facts.next = next;
    throw Error(ErrorKind::Unsupported, message, std::move(facts));
}

std::string fileElement(const std::string& type, const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<VTKFile type=\"" + type +
           "\" version=\"1.0\" byte_order=\"LittleEndian\" header_type=\"UInt64\">\n  <" + type +
           ">\n" + body + "  </" + type + ">\n</VTKFile>\n";
}

void writeText(const std::string& path, const std::string& shownName, const std::string& text) {
    ByteOutput out(path, shownName);
    out.write(text);
    out.finish();
}

/// The index file with its folder of pieces.
class Pieces {
public:
    Pieces(Contents& contents, const Target_s& target)
        : contents_(contents), index_(target.path, target.overwrites),
          folder_(folderOf(target.path), target.overwrites),
          folderName_(fs::path(folder_.target()).filename().string()) {}

    void writeMultiBlock() {
        writeZones();
        writeIndex(multiBlock(contents_.steps().front(), folderName_ + "/"));
    }

    void writeSeries() {
        writeZones();
        std::string body;
        for (std::size_t step = 0; step < contents_.steps().size(); ++step) {
            const std::string name = "step_" + std::to_string(step + 1) + ".vtm";
            writeText(folder_.growing() + "/" + name, folder_.target() + "/" + name,
                      multiBlock(contents_.steps()[step], ""));
            body += "    <DataSet timestep=\"";
            appendNumber(body, contents_.steps()[step].time);
            body += "\" part=\"0\" file=\"" + xmlText(folderName_ + "/" + name) + "\"/>\n";
        }
        writeIndex(fileElement("Collection", body));
    }

private:
    static std::string folderOf(const std::string& path) {
        const std::string stem = withoutExtension(path);
        return stem == path ? path + ".pieces" : stem;
    }

    std::string pieceName(std::size_t zone) const {
        const ContentZone_s& facts = contents_.zones()[zone];
        return "zone_" + std::to_string(facts.number) + pieceExtension(facts);
    }

    void writeZones() {
        for (std::size_t zone = 0; zone < contents_.zones().size(); ++zone) {
            ByteOutput out(folder_.growing() + "/" + pieceName(zone),
                           folder_.target() + "/" + pieceName(zone));
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

    /// The pieces appear ahead of what names them.
    void writeIndex(const std::string& text) {
        writeText(index_.growing(), index_.target(), text);
        folder_.appear();
        index_.appear();
    }

    Contents& contents_;
    ResultFile index_;
    ResultFolder folder_;
    std::string folderName_;
};

void writeSinglePiece(Contents& contents, const Target_s& target) {
    if (contents.zones().size() != 1)
        refuse("a " + extensionOf(target.path) + " file holds one zone, and there are " +
                   std::to_string(contents.zones().size()),
               "name a .vtm file, or choose a zone with --zone");
    const char* const fitting = pieceExtension(contents.zones().front());
    if (extensionOf(target.path) != fitting)
        refuse(std::string("a zone of this kind goes into a ") + fitting + " file",
               "name a .vtm or " + std::string(fitting) + " file");
    ResultFile file(target.path, target.overwrites);
    ByteOutput out(file.growing(), target.path);
    writeZonePiece(contents, 0, out);
    out.finish();
    file.appear();
}

} // namespace

Written_s VtkWriter::write(Contents& contents, const Target_s& target) {
    refuseWithoutCoordinates(contents);
    const std::string extension = extensionOf(target.path);
    const bool isSeries = contents.steps().size() > 1;
    if (extension == ".vts" || extension == ".vtu")
        writeSinglePiece(contents, target);
    else if (extension == ".vtm" && isSeries)
        refuse("a .vtm file holds one time, and there are " +
                   std::to_string(contents.steps().size()),
               "name a .pvd file, or choose a time with --time");
    else if (extension == ".pvd" || isSeries)
        Pieces(contents, target).writeSeries();
    else
        Pieces(contents, target).writeMultiBlock();
    return {{target.path}, {}};
}

} // namespace plot3d::program
