#include "inspect/Evidence.h"

namespace plot3dlib {

namespace {

const char* optionOf(const Evidence_s& evidence) {
    const plot3d::FileKind kind = evidence.reading
                                      ? kindOf(*evidence.reading)
                                      : evidence.expectedKind.value_or(plot3d::FileKind::Grid);
    switch (kind) {
    case plot3d::FileKind::Solution:
        return "--solution";
    case plot3d::FileKind::Function:
        return "--function";
    default:
        return "--grid";
    }
}

const char* structureWord(io::Plot3DDataStructure_e structure) {
    switch (structure) {
    case io::Plot3DDataStructure_1D:
        return "DATASTRUCTURE=1D";
    case io::Plot3DDataStructure_2D:
        return "DATASTRUCTURE=2D";
    case io::Plot3DDataStructure_3DPlanes:
        return "DATASTRUCTURE=3DP";
    case io::Plot3DDataStructure_Unstructured:
        return "DATASTRUCTURE=UNSTRUCTURED";
    default:
        return "DATASTRUCTURE=3DW";
    }
}

const char* styleWord(io::Plot3DStyle_e style) {
    switch (style) {
    case io::Plot3DStyle_Function:
        return "STYLE=PLOT3DFUNCTION";
    case io::Plot3DStyle_Overflow:
        return "STYLE=OVERFLOW";
    case io::Plot3DStyle_Swift:
        return "STYLE=SWIFT";
    default:
        return "STYLE=PLOT3DCLASSIC";
    }
}

void addSetting(std::vector<std::string>& command, const char* setting) {
    command.emplace_back("--set");
    command.emplace_back(setting);
}

} // namespace

std::vector<std::string> loadCommand(const Evidence_s& evidence) {
    std::vector<std::string> command = {"plot3d", "stats", optionOf(evidence),
                                        evidence.file.name()};
    const bool isText = evidence.form.encoding == io::Plot3DEncoding_Ascii;
    if (isText && evidence.reading && evidence.reading->hasIBlank)
        addSetting(command, "ASCIIHASIBLANK=Yes");
    return command;
}

std::vector<std::string> describedLoadCommand(const Evidence_s& evidence) {
    std::vector<std::string> command = loadCommand(evidence);
    addSetting(command, "AUTODETECT=No");
    addSetting(command, structureWord(evidence.reading->dataStructure));
    addSetting(command, styleWord(evidence.reading->style));
    addSetting(command, evidence.reading->isMultiGrid ? "ISMULTIGRID=Yes" : "ISMULTIGRID=No");
    return command;
}

std::vector<std::string> whyCommand(const Evidence_s& evidence) {
    return {"plot3d", "info", "--why", evidence.file.name()};
}

} // namespace plot3dlib
