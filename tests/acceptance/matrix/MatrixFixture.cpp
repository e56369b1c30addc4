#include "acceptance/matrix/MatrixFixture.h"

#include <cstdio>
#include <filesystem>

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

const char* styleWord(FileKind_e kind) {
    switch (kind) {
    case FileKind_e::Function:
        return "PLOT3DFUNCTION";
    case FileKind_e::OverflowSolution:
        return "OVERFLOW";
    case FileKind_e::SwiftSolution:
        return "SWIFT";
    case FileKind_e::Grid:
    case FileKind_e::ClassicSolution:
        break; // the compiler asks for every kind
    }
    return "PLOT3DCLASSIC";
}

const char* dataStructureWord(Layout_e layout) {
    switch (layout) {
    case Layout_e::OneD:
        return "1D";
    case Layout_e::TwoD:
        return "2D";
    case Layout_e::ThreeDWhole:
        return "3DW";
    case Layout_e::ThreeDPlanes:
        return "3DP";
    default:
        return "UNSTRUCTURED";
    }
}

std::int32_t plotTypeOf(Layout_e layout) {
    if (layout == Layout_e::OneD)
        return QuorPlotType_XY;
    return layout == Layout_e::TwoD ? QuorPlotType_2D : QuorPlotType_3D;
}

void expectZoneShape(const host::Zone_s& zone, const WrittenFile_s& gridFile, std::size_t grid) {
    const GridDims_s& dims = gridFile.contents.grids[grid];
    if (gridFile.layout.layout != Layout_e::Unstructured) {
        EXPECT_EQ(zone.type, QuorZoneType_Ordered);
        EXPECT_EQ(zone.i, dims.i);
        EXPECT_EQ(zone.j, dims.j);
        EXPECT_EQ(zone.k, dims.k);
        return;
    }
    const bool isSurface = dims.j > 0;
    EXPECT_EQ(zone.type, isSurface ? QuorZoneType_Triangles : QuorZoneType_Tetrahedra);
    EXPECT_EQ(zone.i, dims.i);
    EXPECT_EQ(zone.j, isSurface ? dims.j : dims.k);
    EXPECT_EQ(zone.k, isSurface ? 3 : 4);
}

void expectConnectivity(const host::Zone_s& zone, std::int32_t grid) {
    if (zone.isOrdered()) {
        EXPECT_EQ(zone.nodeMap, nullptr);
        return;
    }
    ASSERT_NE(zone.nodeMap, nullptr);
    ASSERT_NE(zone.nodeMap->nodes(), nullptr);
    const std::int64_t corners = zone.nodeMap->cornerCount();
    ASSERT_EQ(corners, zone.k);
    ASSERT_EQ(zone.nodeMap->elementCount(), zone.j);
    for (std::int64_t place = 0; place < corners * zone.j; ++place)
        ASSERT_EQ(zone.nodeMap->nodes()[place],
                  cornerAt(grid, place / corners, static_cast<std::int32_t>(place % corners)))
            << "corner " << place;
}

/// The fields of one file in a zone, the file's first variable being `firstVariable` of the host.
void expectFields(const FileReading& reading, std::int32_t zoneNumber, std::int32_t firstVariable) {
    const std::int32_t count = reading.variableCount() + (reading.hasIBlank() ? 1 : 0);
    for (std::int32_t variable = 0; variable < count; ++variable)
        EXPECT_TRUE(fieldIs(host::ReferenceHost::instance(), zoneNumber, firstVariable + variable,
                            reading.field(zoneNumber - 1, variable)));
}

std::int32_t variablesOf(const FileReading& reading) {
    return reading.variableCount() + (reading.hasIBlank() ? 1 : 0);
}

std::string formatReal(double value) {
    char text[80];
    std::snprintf(text, sizeof text, "%G", value);
    return text;
}

} // namespace

CaseFiles_s MatrixTest::writeCase(const MatrixCase_s& matrixCase) const {
    const LayoutCase_s& layout = matrixCase.layout;
    if (layout.kind == FileKind_e::Grid)
        return {writeFile(directory().file("case.x"), layout, matrixCase.form), std::nullopt};
    const std::string name = isSolution(layout.kind) ? "case.q" : "case.f";
    return {writeFile(directory().file("case.x"), companionGrid(layout), matrixCase.form),
            writeFile(directory().file(name), layout, matrixCase.form)};
}

Load_s MatrixTest::loadOf(const CaseFiles_s& files) {
    Load_s load;
    load.gridFiles = {files.grid.path};
    if (files.other && isSolution(files.other->layout.kind))
        load.solutionFiles = {files.other->path};
    else if (files.other)
        load.functionFiles = {files.other->path};
    if (files.grid.form.encoding == Encoding_e::Text) {
        load.settings.emplace_back("ASCIIISDOUBLE", isDouble(files.grid.form) ? "Yes" : "No");
        load.settings.emplace_back("ASCIIHASIBLANK", files.grid.layout.hasIBlank ? "Yes" : "No");
    }
    return load;
}

Load_s MatrixTest::describedLoadOf(const CaseFiles_s& files) {
    Load_s load = loadOf(files);
    const LayoutCase_s& layout = files.other ? files.other->layout : files.grid.layout;
    load.settings.emplace_back("AUTODETECT", "No");
    load.settings.emplace_back("STYLE", styleWord(layout.kind));
    load.settings.emplace_back("DATASTRUCTURE", dataStructureWord(layout.layout));
    load.settings.emplace_back("ISMULTIGRID", layout.isMultiGrid ? "Yes" : "No");
    return load;
}

void MatrixTest::expectFrame(const CaseReadings_s& readings) {
    const WrittenFile_s& gridFile = readings.grid.file();
    EXPECT_EQ(host().frame().plotType(), plotTypeOf(gridFile.layout.layout));
    EXPECT_EQ(variableNames(), expectedVariableNames(readings));
    EXPECT_EQ(dataSet().auxData, expectedDataSetAuxData(readings));
    ASSERT_EQ(dataSet().zones().size(), gridFile.contents.grids.size());

    const std::string& namingFile = readings.other ? readings.other->file().path : gridFile.path;
    for (std::int32_t number = 1; number <= dataSet().zoneCount(); ++number) {
        SCOPED_TRACE("zone " + std::to_string(number));
        const std::int32_t grid = number - 1;
        const bool hasScalars = readings.other && isSolution(readings.other->file().layout.kind);
        EXPECT_EQ(zone(number).name, std::filesystem::path(namingFile).filename().string() + ":" +
                                         std::to_string(number));
        EXPECT_EQ(zone(number).strandId, 0);
        EXPECT_EQ(zone(number).solutionTime, hasScalars ? readings.other->scalars(grid)[3] : 0.0);
        expectZoneShape(zone(number), gridFile, static_cast<std::size_t>(grid));
        expectConnectivity(zone(number), grid);
        expectFields(readings.grid, number, 1);
        EXPECT_EQ(zone(number).auxData,
                  hasScalars ? expectedZoneAuxData(*readings.other, grid) : host::AuxData());
        if (readings.other)
            expectFields(*readings.other, number, 1 + variablesOf(readings.grid));
    }
}

Texts expectedVariableNames(const CaseReadings_s& readings) {
    const Layout_e layout = readings.grid.file().layout.layout;
    Texts names = {"X", "Y", "Z"};
    names.resize(static_cast<std::size_t>(readings.grid.variableCount()));
    if (readings.grid.hasIBlank())
        names.push_back("IBlank");
    if (!readings.other)
        return names;
    const FileKind_e kind = readings.other->file().layout.kind;
    if (kind == FileKind_e::Function)
        names.insert(names.end(), {"F1V1", "F1V2"});
    else if (layout == Layout_e::OneD)
        names.insert(names.end(), {"V2   ", "V3   ", "V4   "});
    else if (layout == Layout_e::TwoD)
        names.insert(names.end(), {"RHO", "RHO-U", "RHO-V", "E"});
    else
        names.insert(names.end(), {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"});
    if (kind == FileKind_e::OverflowSolution)
        names.insert(names.end(), {"GAMMA", "RHO-C1", "RHO-C2", "K", "EPSILON"});
    return names;
}

std::map<std::string, std::string> expectedZoneAuxData(const FileReading& reading,
                                                       std::int32_t grid) {
    const std::vector<double> scalars = reading.scalars(grid);
    Texts names = {"Common.ReferenceMachNumber", "Common.AngleOfAttack", "Common.ReynoldsNumber",
                   ""}; // the time is no auxiliary data
    if (reading.file().layout.kind == FileKind_e::SwiftSolution)
        names.push_back("OMAR");
    else
        names.insert(names.end(), {"G", "B", "T", "I", "H", "H1", "H2", "G1", "G2"});
    std::map<std::string, std::string> items;
    for (std::size_t place = 0; place < scalars.size(); ++place)
        if (!names[place].empty())
            items[names[place]] = names[place] == "I"
                                      ? std::to_string(static_cast<std::int32_t>(scalars[place]))
                                      : formatReal(scalars[place]);
    return items;
}

std::map<std::string, std::string> expectedDataSetAuxData(const CaseReadings_s& readings) {
    static const std::map<std::string, std::string> itemOfVariable = {
        {"RHO", "Common.DensityVar"},
        {"RHO-U", "Common.UVar"},
        {"RHO-V", "Common.VVar"},
        {"RHO-W", "Common.WVar"},
        {"E", "Common.StagnationEnergyVar"},
        {"GAMMA", "Common.GammaVar"},
        {"K", "Common.TurbulentKineticEnergyVar"},
        {"EPSILON", "Common.TurbulentDissipationRateVar"}};
    std::map<std::string, std::string> items = {{"Common.VectorVarsAreVelocity", "FALSE"},
                                                {"Common.SpeedOfSound", "1.0"}};
    const Texts names = expectedVariableNames(readings);
    for (std::size_t index = 0; index < names.size(); ++index)
        if (const auto item = itemOfVariable.find(names[index]); item != itemOfVariable.end())
            items[item->second] = std::to_string(index + 1);
    if (!readings.other || !isSolution(readings.other->file().layout.kind))
        return items;
    // Each zone overwrites what the one before it said.
    const auto lastGrid =
        static_cast<std::int32_t>(readings.other->file().contents.grids.size()) - 1;
    const std::vector<double> scalars = readings.other->scalars(lastGrid);
    items["Common.ReferenceMachNumber"] = formatReal(scalars[0]);
    items["Common.AngleOfAttack"] = formatReal(scalars[1]);
    items["Common.ReynoldsNumber"] = formatReal(scalars[2]);
    return items;
}

} // namespace quorvia::testsupport
