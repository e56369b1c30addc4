#include "inspect/words/Words.h"

#include <utility>

namespace plot3dlib {

const char* wordOf(plot3d::FileKind kind) {
    switch (kind) {
    case plot3d::FileKind::Grid:
        return "grid";
    case plot3d::FileKind::Solution:
        return "solution";
    case plot3d::FileKind::Function:
        return "function";
    case plot3d::FileKind::Boundary:
        return "boundary";
    case plot3d::FileKind::Name:
        break;
    }
    return "name";
}

const char* wordOf(plot3d::Layout layout) {
    switch (layout) {
    case plot3d::Layout::OneD:
        return "1-D";
    case plot3d::Layout::TwoD:
        return "2-D";
    case plot3d::Layout::ThreeDWhole:
        return "3-D whole";
    case plot3d::Layout::ThreeDPlanes:
        return "3-D planes";
    case plot3d::Layout::Unstructured:
        break;
    }
    return "unstructured";
}

const char* wordOf(plot3d::Style style) {
    switch (style) {
    case plot3d::Style::Classic:
        return "Classic";
    case plot3d::Style::Function:
        return "Function";
    case plot3d::Style::Overflow:
        return "Overflow";
    case plot3d::Style::Swift:
        break;
    }
    return "Swift";
}

std::string wordsOf(const io::Plot3DFileStructure_s& structure) {
    const plot3d::Candidate candidate = candidateOf(structure);
    std::string words = wordOf(candidate.layout);
    if (candidate.style)
        words += std::string(", ") + wordOf(*candidate.style);
    words += candidate.multiGrid ? ", several grids" : ", one grid";
    if (structure.encoding != io::Plot3DEncoding_Ascii)
        words += ", " + std::to_string(candidate.precision) + "-bit";
    return words + (candidate.iBlank ? ", with I-blank" : "");
}

std::string sizeWords(const Reading_s& reading, std::size_t gridIndex) {
    const io::Plot3DGridDims_s& dims = reading.grids[gridIndex];
    switch (reading.dataStructure) {
    case io::Plot3DDataStructure_1D:
        return grouped(dims.i);
    case io::Plot3DDataStructure_2D:
        return grouped(dims.i) + " x " + grouped(dims.j);
    case io::Plot3DDataStructure_Unstructured:
        return counted(dims.i, "node");
    default:
        return grouped(dims.i) + " x " + grouped(dims.j) + " x " + grouped(dims.k);
    }
}

std::string wordsOf(const Place_s& place, const Reading_s& reading) {
    constexpr const char* coordinates[] = {"X", "Y", "Z"};
    std::string words = "in ";
    switch (place.part) {
    case Part_e::Scalars:
        words += "the scalars";
        break;
    case Part_e::IBlank:
        words += "I-blank";
        break;
    case Part_e::Connectivity:
        words += "the connectivity";
        break;
    case Part_e::Variable:
        words += reading.isSolutionOrFunction || place.variable > 2
                     ? "variable " + grouped(place.variable + 1)
                     : coordinates[place.variable];
        break;
    }
    if (place.plane >= 0)
        words += ", plane " + grouped(place.plane + 1);
    return words + " of grid " + grouped(place.grid + 1);
}

plot3d::Misfit misfitOf(std::string what) {
    plot3d::Misfit misfit;
    misfit.what = std::move(what);
    return misfit;
}

} // namespace plot3dlib
