#include "program/convert/ReadBack.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <sstream>

#include "program/app/Program.h" // the host has an app/Program.h, too
#include "support/Json.h"

namespace quorvia::testsupport {

using plot3dwriter::Encoding_e;
using plot3dwriter::FileKind_e;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;

namespace {

bool isText(const WrittenFile_s& file) {
    return file.form.encoding == Encoding_e::Text;
}

/// Text that no trial takes for what it is (docs/detection.md): it is described by hand.
bool needsDescription(const WrittenFile_s& grid) {
    const LayoutCase_s& layout = grid.layout;
    return isText(grid) && ((layout.layout == Layout_e::ThreeDPlanes && layout.hasIBlank) ||
                            (layout.layout == Layout_e::Unstructured && layout.isMultiGrid));
}

/// Without records nothing tells planes from whole fields, and whole fields are tried first.
FileReading readingOf(const WrittenFile_s& file, bool isDescribed) {
    return file.layout.layout == Layout_e::ThreeDPlanes &&
                   file.form.encoding != Encoding_e::Fortran && !isDescribed
               ? FileReading::planesAsWhole(file)
               : FileReading::asMeant(file);
}

std::vector<std::string> settingsFor(const WrittenFile_s& grid, FileKind_e kind) {
    std::vector<std::string> settings;
    if (isText(grid))
        settings = {isDouble(grid.form) ? "ASCIIISDOUBLE=Yes" : "ASCIIISDOUBLE=No",
                    grid.layout.hasIBlank ? "ASCIIHASIBLANK=Yes" : "ASCIIHASIBLANK=No"};
    if (!needsDescription(grid))
        return settings;
    const bool isPlanes = grid.layout.layout == Layout_e::ThreeDPlanes;
    const char* const style =
        kind == FileKind_e::Function ? "STYLE=PLOT3DFUNCTION" : "STYLE=PLOT3DCLASSIC";
    settings.insert(settings.end(),
                    {"AUTODETECT=No", style,
                     isPlanes ? "DATASTRUCTURE=3DP" : "DATASTRUCTURE=UNSTRUCTURED",
                     grid.layout.isMultiGrid ? "ISMULTIGRID=Yes" : "ISMULTIGRID=No"});
    return settings;
}

plot3d::DataSet open(const OpenedCase_s& opened) {
    plot3d::OpenOptions options;
    for (const std::string& setting : opened.settings) {
        const std::size_t equals = setting.find('=');
        options.instructions.emplace_back(setting.substr(0, equals), setting.substr(equals + 1));
    }
    return plot3d::DataSet::open(opened.files, options);
}

ExpectedZone_s expectedZone(const OpenedCase_s& opened, std::int32_t grid) {
    const WrittenFile_s& file = opened.readings.front().file();
    const GridDims_s& dims = file.contents.grids[static_cast<std::size_t>(grid)];
    ExpectedZone_s zone;
    zone.zone = static_cast<std::size_t>(grid);
    zone.size = {dims.i, dims.j, dims.k};
    for (const FileReading& reading : opened.readings) {
        const std::int32_t count = reading.variableCount() + (reading.hasIBlank() ? 1 : 0);
        for (std::int32_t variable = 0; variable < count; ++variable)
            zone.fields.push_back(reading.field(grid, variable));
    }
    if (file.layout.layout != Layout_e::Unstructured)
        return zone;
    zone.size = {dims.i, 1, 1};
    for (std::int64_t element = 0; element < dims.j + dims.k; ++element) {
        zone.elements.emplace_back();
        for (std::int32_t corner = 0; corner < (dims.j > 0 ? 3 : 4); ++corner)
            zone.elements.back().push_back(cornerAt(grid, element, corner) - 1);
    }
    return zone;
}

/// One data set as expected.json and expected.bin tell it. Names and times are taken from the data
/// set, of which other tests know that they are right.
class Expectation {
public:
    Expectation(const std::string& folder, const plot3d::DataSet& data,
                const std::vector<std::size_t>& variables)
        : data_(data), variables_(variables), values_(folder + "/expected.bin", std::ios::binary),
          text_(folder + "/expected.json") {}

    void write(int coordinateCount, const std::vector<ExpectedZone_s>& zones) {
        Json all = Json::array();
        std::set<std::size_t> selected;
        for (const ExpectedZone_s& expected : zones) {
            all.add(zone(expected, data_.zones()[expected.zone]));
            selected.insert(expected.zone);
        }
        Json times = Json::array();
        for (const plot3d::TimeStep& step : data_.timeSteps())
            if (std::any_of(step.zones.begin(), step.zones.end(),
                            [&](std::size_t seen) { return selected.count(seen) > 0; }))
                times.add(step.time);
        text_ << Json({{"coordinates", coordinateCount}, {"times", times}, {"zones", all}});
    }

private:
    Json zone(const ExpectedZone_s& expected, const plot3d::Zone& facts) {
        Json fields = Json::array();
        for (std::size_t place = 0; place < expected.fields.size(); ++place)
            fields.add(field(expected.fields[place], expected.size,
                             variables_.empty() ? place : variables_[place]));
        Json zone = {{"name", facts.name},     {"number", expected.zone + 1}, {"time", facts.time},
                     {"strand", facts.strand}, {"size", expected.size},       {"fields", fields}};
        if (!expected.elements.empty())
            zone.set("elements", expected.elements);
        return zone;
    }

    Json field(const FieldExpectation_s& expected, const std::array<std::int64_t, 3>& size,
               std::size_t variable) {
        const std::int64_t offset = values_.tellp();
        for (std::int64_t k = 0; k < size[2]; ++k)
            for (std::int64_t j = 0; j < size[1]; ++j)
                for (std::int64_t i = 0; i < size[0]; ++i)
                    put(expected.type, expected.value(i, j, k));
        const char* const type = expected.type == QuorFieldDataType_Double  ? "<f8"
                                 : expected.type == QuorFieldDataType_Int32 ? "<i4"
                                                                            : "<f4";
        return {{"name", data_.variables()[variable].name}, {"type", type}, {"offset", offset}};
    }

    void put(std::int32_t type, double value) {
        if (type == QuorFieldDataType_Double)
            putNumber(value);
        else if (type == QuorFieldDataType_Int32)
            putNumber(static_cast<std::int32_t>(value));
        else
            putNumber(static_cast<float>(value));
    }

    template <class Number>
    void putNumber(Number number) {
        std::array<char, sizeof number> bytes;
        std::memcpy(bytes.data(), &number, sizeof number);
        values_.write(bytes.data(), bytes.size());
    }

    const plot3d::DataSet& data_;
    const std::vector<std::size_t>& variables_;
    std::ofstream values_;
    std::ofstream text_;
};

} // namespace

int runProgram(const std::vector<std::string>& arguments, std::string* err) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream talk;
    const int code = plot3d::program::run(arguments, in, out, talk);
    if (err != nullptr)
        *err = talk.str();
    return code;
}

ReadBackTest::ReadBackTest() : ReadBackTest(READ_BACK_SCRIPT) {}

std::string ReadBackTest::folder(const std::string& name) const {
    std::filesystem::create_directory(directory_.path() / name);
    return directory_.file(name);
}

OpenedCase_s ReadBackTest::writeCase(const std::string& folder, const MatrixCase_s& matrixCase) {
    const LayoutCase_s& layout = matrixCase.layout;
    const bool isGrid = layout.kind == FileKind_e::Grid;
    const auto write = [&](const char* name, const LayoutCase_s& ofFile) -> const WrittenFile_s& {
        written_.push_back(std::make_unique<WrittenFile_s>(
            writeFile(folder + "/" + name, ofFile, matrixCase.form)));
        return *written_.back();
    };
    const WrittenFile_s& grid = write("case.x", isGrid ? layout : companionGrid(layout));
    const bool isDescribed = needsDescription(grid);
    OpenedCase_s opened = {
        {grid.path}, settingsFor(grid, layout.kind), {readingOf(grid, isDescribed)}};
    if (isGrid)
        return opened;
    const WrittenFile_s& other = write(isSolution(layout.kind) ? "case.q" : "case.f", layout);
    opened.files.push_back(other.path);
    opened.readings.push_back(readingOf(other, isDescribed));
    return opened;
}

std::vector<std::string> ReadBackTest::arguments(const OpenedCase_s& opened) {
    std::vector<std::string> words = opened.files;
    for (const std::string& setting : opened.settings)
        words.insert(words.end(), {"--set", setting});
    return words;
}

void ReadBackTest::convert(const std::string& folder, std::vector<std::string> arguments,
                           const std::vector<std::string>& endings) {
    arguments.insert(arguments.begin(), "convert");
    arguments.push_back("-o");
    for (const std::string& ending : endings) {
        arguments.push_back(folder + "/out." + ending);
        std::string err;
        EXPECT_EQ(runProgram(arguments, &err), 0) << arguments.back() << "\n" << err;
        arguments.pop_back();
    }
}

void ReadBackTest::writeExpected(const std::string& folder, const OpenedCase_s& opened) {
    const auto count = opened.readings.front().file().contents.grids.size();
    std::vector<ExpectedZone_s> zones;
    for (std::size_t grid = 0; grid < count; ++grid)
        zones.push_back(expectedZone(opened, static_cast<std::int32_t>(grid)));
    writeExpected(folder, open(opened), opened.readings.front().variableCount(), zones);
}

void ReadBackTest::writeExpected(const std::string& folder, const plot3d::DataSet& data,
                                 int coordinateCount, const std::vector<ExpectedZone_s>& zones,
                                 const std::vector<std::size_t>& variables) {
    Expectation(folder, data, variables).write(coordinateCount, zones);
}

void ReadBackTest::expectReadBack(int fileCount, const std::string& argument) const {
    constexpr int moduleIsMissing = 77;
    const std::string command = "/usr/bin/python3 " + readers_ + " " + directory_.path().string() +
                                " " + argument + " 2>&1";
    std::FILE* const pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string text;
    for (int letter = std::fgetc(pipe); letter != EOF; letter = std::fgetc(pipe))
        text += static_cast<char>(letter);
    const int code = WEXITSTATUS(pclose(pipe));
    if (code == moduleIsMissing)
        GTEST_SKIP() << text;
    EXPECT_EQ(code, 0);
    EXPECT_EQ(text, std::to_string(fileCount) + " files read\n");
}

} // namespace quorvia::testsupport
