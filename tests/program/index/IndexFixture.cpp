#include "IndexFixture.h"

#include <fstream>

#include "plot3dwriter/Plot3DWriter.h"
#include "support/Json.h"

namespace quorvia::testsupport {

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

Json fieldsOf(const plot3d::DataSet& data, std::size_t zone, std::ofstream& values) {
    Json fields = Json::array();
    for (std::size_t variable = 0; variable < data.variables().size(); ++variable) {
        const plot3d::ValueType type = data.type(zone, variable);
        const std::int64_t count = data.zones()[zone].size.count() * plot3d::width(type);
        std::string bytes(static_cast<std::size_t>(count), '\0');
        data.read(zone, variable, bytes.data());
        fields.add({{"name", data.variables()[variable].name},
                    {"type", wordOf(type)},
                    {"offset", static_cast<std::int64_t>(values.tellp())}});
        values.write(bytes.data(), count);
    }
    return fields;
}

} // namespace

IndexTest::IndexTest() : ReadBackTest(READ_INDEX_SCRIPT) {}

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
    Json zones = Json::array();
    for (std::size_t zone = 0; zone < data.zones().size(); ++zone) {
        const plot3d::Zone& facts = data.zones()[zone];
        zones.add({{"name", facts.name},
                   {"time", facts.time},
                   {"strand", facts.strand},
                   {"size", {facts.size.i, facts.size.j, facts.size.k}},
                   {"fields", fieldsOf(data, zone, values)}});
    }
    Json times = Json::array();
    for (const plot3d::TimeStep& step : data.timeSteps())
        times.add(step.time);
    std::ofstream(folder + "/expected.json")
        << Json({{"coordinates", 3}, {"times", times}, {"zones", zones}});
}

std::vector<std::string> IndexTest::writePair(const std::string& folder) {
    const FileForm_s form = fortran(ByteOrder_e::Big);
    const std::vector<std::string> files = {folder + "/a.x", folder + "/a.q"};
    writeFile(files[0], contentsOf({FileKind_e::Grid, Layout_e::ThreeDWhole, false, false}), form);
    writeFile(files[1],
              contentsOf({FileKind_e::ClassicSolution, Layout_e::ThreeDWhole, false, false}), form);
    return files;
}

std::vector<std::string> IndexTest::writeSeries(const std::string& folder, int steps, bool moves) {
    std::vector<std::string> files;
    const auto add = [&](const std::string& name, FileKind_e kind, int step) {
        files.push_back(folder + "/" + name);
        writeFile(files.back(), contentsOfStep(kind, step));
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
