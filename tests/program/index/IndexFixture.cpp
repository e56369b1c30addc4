#include "IndexFixture.h"

#include <fstream>

#include <nlohmann/json.hpp>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::testsupport {

using nlohmann::json;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

namespace {

const char* wordOf(plot3d::ValueType type) {
    switch (type) {
    case plot3d::ValueType::Float64:
        return "<f8";
    case plot3d::ValueType::Int32:
        return "<i4";
    case plot3d::ValueType::Float32:
        break;
    }
    return "<f4";
}

json fieldsOf(const plot3d::DataSet& data, std::size_t zone, std::ofstream& values) {
    json fields = json::array();
    for (std::size_t variable = 0; variable < data.variables().size(); ++variable) {
        const plot3d::ValueType type = data.type(zone, variable);
        const std::int64_t count = data.zones()[zone].size.count() * plot3d::width(type);
        std::string bytes(static_cast<std::size_t>(count), '\0');
        data.read(zone, variable, bytes.data());
        fields.push_back({{"name", data.variables()[variable].name},
                          {"type", wordOf(type)},
                          {"offset", static_cast<std::int64_t>(values.tellp())}});
        values.write(bytes.data(), count);
    }
    return fields;
}

/// Each value is moved by its step.
FileDescription_s fileOf(FileKind_e kind, int step) {
    FileDescription_s file =
        contentsOf({kind, Layout_e::ThreeDWhole, true, kind == FileKind_e::Grid});
    file.grids = {{2, 3, 5}, {5, 2, 3}};
    file.scalars.resize(kind == FileKind_e::Grid ? 0 : 2, {0.5, 2.25, 1500000.0, 0.25 * step});
    for (std::vector<double>& scalars : file.scalars)
        scalars[3] = 0.25 * step;
    file.value = [kind, step](std::int32_t grid, std::int32_t variable, std::int32_t i,
                              std::int32_t j, std::int32_t k) {
        return valueAt(kind, grid, variable, i, j, k) + 7.0 * step;
    };
    return file;
}

void write(const std::string& path, const FileDescription_s& file, const FileForm_s& form) {
    ASSERT_EQ(plot3dwriter::writePlot3DFile(path, file, form).problem, "");
}

} // namespace

int IndexTest::index(std::vector<std::string> arguments, const std::string& output,
                     std::string* err) {
    arguments.insert(arguments.begin(), "index");
    arguments.insert(arguments.end(), {"-o", output});
    return runProgram(arguments, err);
}

void IndexTest::expectWhatTheLibraryFinds(const std::string& folder,
                                          const std::vector<std::string>& files) {
    const auto data = plot3d::DataSet::open(files);
    std::ofstream values(folder + "/expected.bin", std::ios::binary);
    json zones = json::array();
    for (std::size_t zone = 0; zone < data.zones().size(); ++zone) {
        const plot3d::Zone& facts = data.zones()[zone];
        zones.push_back({{"name", facts.name},
                         {"time", facts.time},
                         {"strand", facts.strand},
                         {"size", {facts.size.i, facts.size.j, facts.size.k}},
                         {"fields", fieldsOf(data, zone, values)}});
    }
    json times = json::array();
    for (const plot3d::TimeStep& step : data.timeSteps())
        times.push_back(step.time);
    std::ofstream(folder + "/expected.json")
        << json({{"coordinates", 3}, {"times", times}, {"zones", zones}});
}

std::vector<std::string> IndexTest::writePair(const std::string& folder) {
    FileForm_s form;
    form.encoding = plot3dwriter::Encoding_e::Fortran;
    form.byteOrder = plot3dwriter::ByteOrder_e::Big;
    const std::vector<std::string> files = {folder + "/a.x", folder + "/a.q"};
    write(files[0], contentsOf({FileKind_e::Grid, Layout_e::ThreeDWhole, false, false}), form);
    write(files[1], contentsOf({FileKind_e::ClassicSolution, Layout_e::ThreeDWhole, false, false}),
          form);
    return files;
}

std::vector<std::string> IndexTest::writeSeries(const std::string& folder, int steps, bool moves) {
    std::vector<std::string> files;
    const auto add = [&](const std::string& name, FileKind_e kind, int step) {
        files.push_back(folder + "/" + name);
        write(files.back(), fileOf(kind, step), {});
    };
    if (!moves)
        add("m.x", FileKind_e::Grid, 0);
    for (int step = 0; step < steps; ++step) {
        const std::string name = "m_" + std::to_string(step + 1);
        if (moves)
            add(name + ".x", FileKind_e::Grid, step);
        add(name + ".q", FileKind_e::ClassicSolution, step);
    }
    return files;
}

} // namespace quorvia::testsupport
