// Files whose header lacks something, or says something that is not read.
#include <array>
#include <bit>
#include <cmath>

#include "inspect/evidence/HeaderGuess.h"
#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t mostVariables = 1000;

bool isText(const HeaderGuess_s& guess) {
    return guess.form.encoding == io::Plot3DEncoding_Ascii;
}

// ---- Triangles and tetrahedra together

/// Of reals of this width; 1 counts values.
std::int64_t sizeOfElementsAndNodes(const HeaderGuess_s& guess, std::int64_t realWidth) {
    const std::int64_t elementWidth = 4 * (isText(guess) ? 1 : io::integerWidth);
    std::int64_t size = 0;
    for (const io::Plot3DGridDims_s& dims : guess.grids)
        size += 3 * realWidth * dims.i + elementWidth * (std::int64_t{dims.j} + dims.k);
    return size;
}

bool hasTwoKindsOfElements(const HeaderGuess_s& guess) {
    for (const io::Plot3DGridDims_s& dims : guess.grids)
        if (dims.j > 0 && dims.k > 0)
            return guess.dimensions == 3;
    return false;
}

/// Of text the connectivity of the last grid must be integers.
bool endsWithElements(const Evidence_s& evidence, const HeaderGuess_s& guess) {
    if (!isText(guess))
        return true;
    const std::int64_t integers = 4 * (std::int64_t{guess.grids.back().j} + guess.grids.back().k);
    return evidence.text->areIntegers(evidence.text->valueCount() - integers, integers);
}

FoundProblem recogniseTwoKindsOfElements(Evidence_s& evidence) {
    if (evidence.expectedKind.value_or(plot3d::FileKind::Grid) != plot3d::FileKind::Grid)
        return std::nullopt;
    for (const HeaderGuess_s& guess : guessHeaders(evidence)) {
        if (!hasTwoKindsOfElements(guess))
            continue;
        const bool fits = isText(guess) ? guess.dataSize == sizeOfElementsAndNodes(guess, 1)
                                        : guess.dataSize == sizeOfElementsAndNodes(guess, 4) ||
                                              guess.dataSize == sizeOfElementsAndNodes(guess, 8);
        if (fits && endsWithElements(evidence, guess))
            return problemOf("An unstructured grid has triangles and tetrahedra together, which is "
                             "not read: they belong in two files.",
                             "triangles or tetrahedra",
                             counted(guess.grids[0].j, "triangle") + " and " +
                                 grouped(guess.grids[0].k) + " tetrahedra",
                             whyCommand(evidence));
    }
    return std::nullopt;
}

// ---- A function file without its count of variables

/// Further integers of a header would be tiny as reals.
bool beginsWithReals(Evidence_s& evidence, const HeaderGuess_s& guess) {
    if (isText(guess))
        return !evidence.text->areIntegers(guess.headerEnd, 1);
    const bool isFortran = guess.form.encoding == io::Plot3DEncoding_FortranUnformatted;
    const std::int64_t position = guess.headerEnd + (isFortran ? guess.form.markerSize : 0);
    const auto bits = integerAt(evidence.file, position, guess.form.byteSwap);
    if (!bits)
        return false;
    const float real = std::bit_cast<float>(*bits);
    return real == 0.0F || std::fabs(real) > 1e-20F;
}

/// 0: the data are no whole number of variables.
std::int64_t variablesOf(const HeaderGuess_s& guess, std::int64_t realWidth) {
    const std::int64_t points = pointsOf(guess);
    if (points < 1 || points > guess.dataSize || guess.dataSize % (points * realWidth) != 0)
        return 0;
    const std::int64_t variables = guess.dataSize / (points * realWidth);
    return variables <= mostVariables ? variables : 0;
}

std::int64_t variablesOf(const HeaderGuess_s& guess) {
    if (isText(guess))
        return variablesOf(guess, 1);
    const std::int64_t narrow = variablesOf(guess, 4);
    return narrow > 0 ? narrow : variablesOf(guess, 8);
}

Arguments addCountCommand(Evidence_s& evidence, const HeaderGuess_s& guess,
                          std::int64_t variables) {
    if (!isText(guess))
        return whyCommand(evidence);
    const std::string lines =
        guess.isMultiGrid ? "2," + std::to_string(guess.grids.size() + 1) : "1";
    return editCommand(lines + "s/$/ " + std::to_string(variables) + "/", evidence.file.name());
}

FoundProblem recogniseMissingCountOfVariables(Evidence_s& evidence) {
    const bool mayBe = evidence.expectedKind != plot3d::FileKind::Grid &&
                       (!evidence.reading || evidence.expectedKind == plot3d::FileKind::Function);
    if (!mayBe)
        return std::nullopt;
    for (const HeaderGuess_s& guess : guessHeaders(evidence)) {
        const std::int64_t variables = variablesOf(guess);
        if (variables < 1 || !beginsWithReals(evidence, guess))
            continue;
        return problemOf("A function file without its count of variables behind the dimensions: " +
                             grouped(variables) + " would fit.",
                         "a count of variables", "none",
                         addCountCommand(evidence, guess, variables));
    }
    return std::nullopt;
}

constexpr std::array<Recogniser, 2> headerTable = {recogniseTwoKindsOfElements,
                                                   recogniseMissingCountOfVariables};

} // namespace

std::span<const Recogniser> headerRecognisers() {
    return headerTable;
}

} // namespace plot3dlib
