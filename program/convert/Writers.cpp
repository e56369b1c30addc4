#include "convert/cgns/CgnsWriter.h"
#include "convert/csv/CsvWriter.h"
#include "convert/npz/NpzWriter.h"
#include "convert/plot3d/Plot3DWriter.h"
#include "convert/vtk/VtkWriter.h"

namespace plot3d::program {

std::unique_ptr<Writer> makeWriter(Format_e format) {
    switch (format) {
    case Format_e::Plot3D:
        return std::make_unique<Plot3DWriter>();
    case Format_e::Vtk:
        return std::make_unique<VtkWriter>();
    case Format_e::Cgns:
        return std::make_unique<CgnsWriter>();
    case Format_e::Npz:
        return std::make_unique<NpzWriter>();
    case Format_e::Csv:
        return std::make_unique<CsvWriter>();
    }
    return nullptr;
}

} // namespace plot3d::program
