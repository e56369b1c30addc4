#include "convert/vtk/ZonePiece.h"

#include <algorithm>
#include <array>
#include <utility>

#include <plot3d/Error.h>

#include "convert/contents/ValueConversion.h"
#include "convert/vtk/AppendedFile.h"
#include "names/UniqueNames.h"

namespace plot3d::program {

namespace {

constexpr int pointComponents = 3;

const char* vtkWordOf(ValueType type) {
    switch (type) {
    case ValueType::Float32:
        return "Float32";
    case ValueType::Float64:
        return "Float64";
    case ValueType::Int32:
        return "Int32";
    }
    return "";
}

std::string attribute(const std::string& name, const std::string& value) {
    return " " + name + "=\"" + value + "\"";
}

std::string extentText(const Extent& size) {
    return "0 " + std::to_string(size.i - 1) + " 0 " + std::to_string(size.j - 1) + " 0 " +
           std::to_string(size.k - 1);
}

/// VTK's numbers of cell types.
std::uint8_t cellTypeOf(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Triangles:
        return 5;
    case ZoneKind::Quadrilaterals:
        return 9;
    case ZoneKind::Tetrahedra:
        return 10;
    case ZoneKind::Bricks:
        return 12;
    case ZoneKind::Ordered:
        break;
    }
    return 0;
}

template <class Value>
AppendedArray_s listArray(std::string name, std::string type, std::vector<Value> values) {
    const auto bytes = static_cast<std::int64_t>(values.size() * sizeof(Value));
    return {std::move(name), std::move(type), 1, bytes,
            [list = std::move(values)](ByteOutput& out) {
                out.write(list.data(), list.size() * sizeof(Value));
            }};
}

class ZonePiece {
public:
    ZonePiece(Contents& contents, std::size_t zone)
        : contents_(contents), zone_(zone), facts_(contents.zones()[zone]) {}

    AppendedFile_s make() {
        AppendedFile_s file;
        file.fieldData = {listArray("TimeValue", "Float64", std::vector<double>{facts_.time})};
        file.groups = {{"PointData", pointArrays()}, {"CellData", {}}, {"Points", {points()}}};
        if (facts_.kind == ZoneKind::Ordered) {
            file.dataSetType = "StructuredGrid";
            file.dataSetAttributes = attribute("WholeExtent", extentText(facts_.size));
            file.pieceAttributes = attribute("Extent", extentText(facts_.size));
            addHiddenCells(file.groups[1].arrays);
        } else {
            file.dataSetType = "UnstructuredGrid";
            file.pieceAttributes =
                attribute("NumberOfPoints", std::to_string(facts_.size.count())) +
                attribute("NumberOfCells", std::to_string(facts_.elementCount));
            file.groups.push_back({"Cells", cells()});
        }
        return file;
    }

private:
    std::vector<AppendedArray_s> pointArrays() {
        std::vector<AppendedArray_s> arrays;
        const std::vector<std::string> names = uniqueNames(namesOf(contents_));
        for (std::size_t variable = 0; variable < names.size(); ++variable) {
            const std::optional<ValueType> type = contents_.type(zone_, variable);
            if (type && contents_.variables()[variable].role != Role_e::Coordinate)
                arrays.push_back({names[variable], vtkWordOf(*type), 1,
                                  facts_.size.count() * width(*type),
                                  [this, variable, valueType = *type](ByteOutput& out) {
                                      writeField(variable, valueType, out);
                                  }});
        }
        return arrays;
    }

    void writeField(std::size_t variable, ValueType type, ByteOutput& out) {
        std::vector<std::uint64_t> values;
        forEachBlock(facts_.size, pointsPerBlock, [&](const Box& box, std::int64_t count) {
            values.resize(static_cast<std::size_t>(count));
            contents_.read(zone_, variable, box, values.data());
            out.write(values.data(), static_cast<std::size_t>(count * width(type)));
        });
    }

    AppendedArray_s points() {
        bool isDouble = false;
        for (const std::size_t variable : variablesOf(contents_, Role_e::Coordinate))
            isDouble = isDouble || contents_.type(zone_, variable) == ValueType::Float64;
        const ValueType type = isDouble ? ValueType::Float64 : ValueType::Float32;
        return {"Points", vtkWordOf(type), pointComponents,
                pointComponents * facts_.size.count() * width(type),
                [this, isDouble](ByteOutput& out) {
                    if (isDouble)
                        writePoints<double>(ValueType::Float64, out);
                    else
                        writePoints<float>(ValueType::Float32, out);
                }};
    }

    template <class Real>
    void writePoints(ValueType type, ByteOutput& out) {
        std::vector<std::uint64_t> raw;
        std::vector<Real> values;
        std::vector<Real> joined;
        forEachBlock(facts_.size, pointsPerBlock, [&](const Box& box, std::int64_t count) {
            const auto pointCount = static_cast<std::size_t>(count);
            raw.resize(pointCount);
            values.resize(pointCount);
            joined.assign(pointCount * pointComponents, Real{0});
            for (const std::size_t variable : variablesOf(contents_, Role_e::Coordinate)) {
                const auto place = static_cast<std::size_t>(contents_.variables()[variable].place);
                contents_.read(zone_, variable, box, raw.data());
                convertValues(*contents_.type(zone_, variable), raw.data(), type, values.data(),
                              count);
                for (std::size_t point = 0; point < pointCount; ++point)
                    joined[point * pointComponents + place] = values[point];
            }
            out.write(joined.data(), joined.size() * sizeof(Real));
        });
    }

    void addHiddenCells(std::vector<AppendedArray_s>& arrays) {
        const std::optional<std::size_t> iBlank = iBlankOf(contents_);
        if (!iBlank || contents_.type(zone_, *iBlank) != ValueType::Int32)
            return;
        const Extent cells = cellsOf(facts_.size);
        arrays.push_back({"vtkGhostType", "UInt8", 1, cells.count(),
                          [this, variable = *iBlank, cells](ByteOutput& out) {
                              writeHiddenCells(readIntegers(contents_, zone_, variable), cells,
                                               out);
                          }});
    }

    static Extent cellsOf(const Extent& points) {
        return {std::max<std::int64_t>(points.i - 1, 1), std::max<std::int64_t>(points.j - 1, 1),
                std::max<std::int64_t>(points.k - 1, 1)};
    }

    void writeHiddenCells(const std::vector<std::int32_t>& iBlank, const Extent& cells,
                          ByteOutput& out) {
        constexpr char hidden = 32;
        std::vector<char> row(static_cast<std::size_t>(cells.i));
        for (std::int64_t k = 0; k < cells.k; ++k)
            for (std::int64_t j = 0; j < cells.j; ++j) {
                for (std::int64_t i = 0; i < cells.i; ++i)
                    row[static_cast<std::size_t>(i)] =
                        hasBlankedCorner(iBlank, i, j, k) ? hidden : char{0};
                out.write(row.data(), row.size());
            }
    }

    bool hasBlankedCorner(const std::vector<std::int32_t>& iBlank, std::int64_t i, std::int64_t j,
                          std::int64_t k) const {
        const Extent& size = facts_.size;
        for (std::int64_t ck = k; ck <= std::min(k + 1, size.k - 1); ++ck)
            for (std::int64_t cj = j; cj <= std::min(j + 1, size.j - 1); ++cj)
                for (std::int64_t ci = i; ci <= std::min(i + 1, size.i - 1); ++ci)
                    if (iBlank[static_cast<std::size_t>((ck * size.j + cj) * size.i + ci)] == 0)
                        return true;
        return false;
    }

    std::vector<AppendedArray_s> cells() {
        const std::vector<std::int32_t> nodes = contents_.nodeMap(zone_);
        const auto count = static_cast<std::size_t>(facts_.elementCount);
        std::vector<std::int64_t> ends;
        ends.reserve(count);
        for (std::size_t element = 1; element <= count; ++element)
            ends.push_back(static_cast<std::int64_t>(element) * cornerCount(facts_.kind));
        return {
            listArray("connectivity", "Int32", nodes), listArray("offsets", "Int64", ends),
            listArray("types", "UInt8", std::vector<std::uint8_t>(count, cellTypeOf(facts_.kind)))};
    }

    Contents& contents_;
    std::size_t zone_;
    const ContentZone_s& facts_;
};

} // namespace

const char* pieceExtension(const ContentZone_s& zone) {
    return zone.kind == ZoneKind::Ordered ? ".vts" : ".vtu";
}

void refuseWithoutCoordinates(const Contents& contents) {
    const std::vector<std::size_t> coordinates = variablesOf(contents, Role_e::Coordinate);
    for (std::size_t zone = 0; zone < contents.zones().size(); ++zone)
        if (coordinates.empty() ||
            std::any_of(coordinates.begin(), coordinates.end(),
                        [&](std::size_t variable) { return !contents.type(zone, variable); })) {
            ErrorFacts facts;
            facts.next = "add the grid file, or convert to .npz or .csv";
            throw Error(ErrorKind::Unsupported,
                        "zone " + std::to_string(contents.zones()[zone].number) +
                            " has no coordinates, and this format can't do without",
                        std::move(facts));
        }
}

void writeZonePiece(Contents& contents, std::size_t zone, ByteOutput& out) {
    writeAppendedFile(ZonePiece(contents, zone).make(), out);
}

} // namespace plot3d::program
