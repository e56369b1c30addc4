// One file of VTK's XML formats with its arrays raw behind the text: little-endian, each behind its
// length as a UInt64. The format is told in "VTK File Formats", XML File Formats.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "convert/output/ByteOutput.h"

namespace plot3d::program {

struct AppendedArray_s {
    std::string name;
    std::string type; // Float32, UInt8 and so on
    int components = 1;
    std::int64_t byteCount = 0;
    std::function<void(ByteOutput&)> write; // gives exactly byteCount bytes
};

/// An element of a piece: PointData, Points and so on.
struct ArrayGroup_s {
    std::string element;
    std::vector<AppendedArray_s> arrays;
};

struct AppendedFile_s {
    std::string dataSetType;       // StructuredGrid, UnstructuredGrid
    std::string dataSetAttributes; // each with a blank ahead
    std::string pieceAttributes;
    std::vector<AppendedArray_s> fieldData; // one value each
    std::vector<ArrayGroup_s> groups;
};

void writeAppendedFile(const AppendedFile_s& file, ByteOutput& out);

/// As it may stand between quotes. Bytes that are no UTF-8 are taken for Latin-1.
std::string xmlText(const std::string& text);

} // namespace plot3d::program
