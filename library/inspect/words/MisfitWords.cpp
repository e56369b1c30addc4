#include "inspect/words/MisfitWords.h"

#include <algorithm>
#include <limits>

#include "inspect/words/Words.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t past64Bits = std::numeric_limits<std::int64_t>::max();

struct Words_s {
    std::string what;
    std::string expected;
    std::string found;
};

std::string bytes(std::int64_t count) {
    return count == past64Bits ? "more bytes than 64 bits can count" : counted(count, "byte");
}

/// The integers that stand alone on the first record, or line.
std::string integersOf(const TrialNote_s& note) {
    return note.structure.dataStructure == io::Plot3DDataStructure_1D ? "the size of the grid"
                                                                      : "the count of grids";
}

std::string ofGrid(const TrialNote_s& note) {
    return " of grid " + grouped(note.misfit.grid + 1);
}

Words_s sizeWordsOf(const io::Plot3DMisfit_s& misfit) {
    const bool isLong = misfit.found > misfit.expected;
    const std::int64_t difference =
        isLong ? misfit.found - misfit.expected : misfit.expected - misfit.found;
    const std::int64_t end = misfit.position + (isLong ? misfit.expected : misfit.found);
    return {counted(difference, "byte") +
                (isLong ? " too many behind byte " : " too few behind byte ") + grouped(end),
            bytes(misfit.expected) + " behind the header", bytes(misfit.found)};
}

Words_s recordWords(const std::string& record, const io::Plot3DMisfit_s& misfit) {
    return {"the record of " + record + " has another length", bytes(misfit.expected),
            bytes(misfit.found)};
}

Words_s headerWords(const TrialNote_s& note) {
    const io::Plot3DMisfit_s& misfit = note.misfit;
    switch (misfit.what) {
    case io::Plot3DMisfit_e::IntegersMissing:
        return {integersOf(note) + " is missing", "an integer", "something else"};
    case io::Plot3DMisfit_e::IntegersLineEnds:
        return {"the first line ends too early", counted(misfit.expected, "integer"),
                grouped(misfit.found)};
    case io::Plot3DMisfit_e::IntegersLineGoesOn:
        return {integersOf(note) + " does not end its line", "a line end", "more on the line"};
    case io::Plot3DMisfit_e::IntegersRecord:
        return recordWords(integersOf(note), misfit);
    case io::Plot3DMisfit_e::GridCount:
        return {"there can't be so many grids", "between 1 and " + grouped(misfit.expected),
                grouped(misfit.found)};
    case io::Plot3DMisfit_e::DimensionsMissing:
        return {"the dimensions" + ofGrid(note) + " are missing", "an integer", "something else"};
    case io::Plot3DMisfit_e::DimensionsLineEnds:
        return {"the line or record ends within the dimensions" + ofGrid(note),
                grouped(misfit.expected) + " on a line", grouped(misfit.found)};
    case io::Plot3DMisfit_e::Dimension:
        return {"a dimension" + ofGrid(note) + " is too small",
                grouped(misfit.expected) + " or more", grouped(misfit.found)};
    case io::Plot3DMisfit_e::NoElements:
        return {"there are no elements in grid " + grouped(misfit.grid + 1),
                "triangles or tetrahedra", "neither"};
    case io::Plot3DMisfit_e::TwoKindsOfElements:
        return {"there are two kinds of elements in grid " + grouped(misfit.grid + 1),
                "triangles or tetrahedra",
                counted(misfit.expected, "triangle") + ", " + grouped(misfit.found) +
                    " tetrahedra"};
    case io::Plot3DMisfit_e::NotNodesAlone:
        return {"no 1 stands in an element's place" + ofGrid(note), "1", grouped(misfit.found)};
    case io::Plot3DMisfit_e::GridsPassEnd:
        return {"grid " + grouped(misfit.grid + 1) +
                    " ends behind the file even with one byte a point",
                misfit.expected == past64Bits ? bytes(misfit.expected)
                                              : "at least " + bytes(misfit.expected),
                bytes(misfit.found)};
    case io::Plot3DMisfit_e::VariablesMissing:
        return {"the count of variables" + ofGrid(note) + " is missing", "an integer",
                "something else"};
    case io::Plot3DMisfit_e::VariablesDiffer:
        return {"the grids have different numbers of variables", grouped(misfit.expected),
                grouped(misfit.found)};
    case io::Plot3DMisfit_e::SpeciesMissing:
        return {"the counts of variables and species are missing", "two integers",
                "something else"};
    case io::Plot3DMisfit_e::HeaderGoesOn:
        return {"the header does not fill its record or end its line", "an end", "more"};
    default:
        return {};
    }
}

/// A negative count of variables takes a negative number of bytes.
bool isOfNegativeSize(const io::Plot3DMisfit_s& misfit) {
    return misfit.expected < 0 && (misfit.what == io::Plot3DMisfit_e::DataSize ||
                                   misfit.what == io::Plot3DMisfit_e::DataRecord);
}

Words_s dataWords(const TrialNote_s& note) {
    const io::Plot3DMisfit_s& misfit = note.misfit;
    if (isOfNegativeSize(misfit))
        return {"the count of variables is negative", "0 or more", grouped(note.structure.numVars)};
    switch (misfit.what) {
    case io::Plot3DMisfit_e::GridCountUnknown:
        return {"the grids are not those of a 1-D file", "1 grid", counted(misfit.found, "grid")};
    case io::Plot3DMisfit_e::GridTooBig:
        return {"grid " + grouped(misfit.grid + 1) + " is too big",
                "at most " + grouped(misfit.expected), grouped(misfit.found)};
    case io::Plot3DMisfit_e::SizePasses64Bits:
        return {"the data take more bytes than 64 bits can count", "", ""};
    case io::Plot3DMisfit_e::DataSize:
        return sizeWordsOf(misfit);
    case io::Plot3DMisfit_e::ScalarsMissing:
        return {"the scalars of grid 1 are missing", counted(misfit.expected, "number"), "fewer"};
    case io::Plot3DMisfit_e::ScalarsRecord:
        return recordWords("the scalars of grid 1", misfit);
    case io::Plot3DMisfit_e::ScalarsLine:
        return {"the scalars of grid 1 do not end their line",
                "a line end behind " + counted(misfit.expected, "number"), "more on the line"};
    case io::Plot3DMisfit_e::DataMissing:
        return {"there is no record of variables", bytes(misfit.expected), "nothing"};
    case io::Plot3DMisfit_e::DataRecord:
        return recordWords("the variables of grid 1", misfit);
    default:
        return headerWords(note);
    }
}

/// Of a position in what is kept of a text file.
void addLine(plot3d::Misfit& misfit, ExaminedFile& file, std::int64_t position) {
    const std::string_view ahead = file.head(position);
    if (static_cast<std::int64_t>(ahead.size()) < position)
        return;
    const auto lastEnd = ahead.rfind('\n');
    misfit.line = std::count(ahead.begin(), ahead.end(), '\n') + 1;
    misfit.column =
        position -
        (lastEnd == std::string_view::npos ? 0 : static_cast<std::int64_t>(lastEnd) + 1) + 1;
}

} // namespace

plot3d::Trial trialOf(const TrialNote_s& note, ExaminedFile& file) {
    plot3d::Trial trial{candidateOf(note.structure), std::nullopt};
    if (note.fits)
        return trial;
    Words_s words = dataWords(note);
    plot3d::Misfit misfit;
    misfit.what = std::move(words.what);
    misfit.expected = std::move(words.expected);
    misfit.found = std::move(words.found);
    misfit.byte = note.misfit.position;
    if (note.structure.encoding == io::Plot3DEncoding_Ascii)
        addLine(misfit, file, note.misfit.position);
    trial.misfit = std::move(misfit);
    return trial;
}

} // namespace plot3dlib
