// What is wrong with a file, or odd in it: tables of recognisers, asked one after the other. Each
// looks at what was found out, and knows one thing. Empty: it is not that.
#pragma once

#include <optional>
#include <span>

#include <plot3d/FileInfo.h>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

using Recogniser = std::optional<plot3d::FileProblem> (*)(Evidence_s& evidence);

/// Of files that are something else altogether, told from their first bytes.
std::span<const Recogniser> strangerRecognisers();
/// Of text, of plain binary, of Fortran files that no reading takes, or that it does not fit.
std::span<const Recogniser> textRecognisers();
std::span<const Recogniser> binaryRecognisers();
std::span<const Recogniser> fortranRecognisers();
/// Of any encoding: given as another kind than it is; with a header that lacks something; with a
/// header ahead of each grid; a 1-D grid that is hardly one.
std::span<const Recogniser> kindRecognisers();
std::span<const Recogniser> headerRecognisers();
std::span<const Recogniser> chainRecognisers();
std::span<const Recogniser> lineRecognisers();
/// Of what is missing at a file's end by its reading, and of what stands there beside it. These
/// come last, and take whatever file is so.
std::span<const Recogniser> endRecognisers();

/// A token that is no number, or not the one that it looks like; reads up to it once more.
plot3d::FileProblem faultyTokenProblem(Evidence_s& evidence, const FaultyToken_s& fault);

/// The first that knows the file.
std::optional<plot3d::FileProblem> recognise(std::span<const Recogniser> recognisers,
                                             Evidence_s& evidence);

} // namespace plot3dlib
