#include "OpenFixture.h"

#include <cstring>
#include <stdexcept>

namespace plot3dtest {

namespace {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

plot3d::ValueType typeOf(std::int32_t hostType) {
    switch (hostType) {
    case QuorFieldDataType_Double:
        return plot3d::ValueType::Float64;
    case QuorFieldDataType_Int32:
        return plot3d::ValueType::Int32;
    default:
        return plot3d::ValueType::Float32;
    }
}

template <typename Value>
AssertionResult compare(const plot3d::DataSet& data, std::size_t zone, std::size_t variable,
                        const quorvia::testsupport::ValueAt& expected) {
    const plot3d::Extent size = data.zones()[zone].size;
    std::vector<Value> values(static_cast<std::size_t>(size.count()));
    data.read(zone, variable, values.data());
    std::size_t index = 0;
    for (std::int64_t k = 0; k < size.k; ++k)
        for (std::int64_t j = 0; j < size.j; ++j)
            for (std::int64_t i = 0; i < size.i; ++i, ++index) {
                const auto wanted = static_cast<Value>(expected(i, j, k));
                if (std::memcmp(&wanted, &values[index], sizeof wanted) != 0)
                    return AssertionFailure()
                           << "at (" << i << ", " << j << ", " << k << "): found " << values[index]
                           << ", expected " << wanted;
            }
    return AssertionSuccess();
}

} // namespace

LayoutCase_s wholeLayout(writer::FileKind_e kind) {
    return {kind, writer::Layout_e::ThreeDWhole, /*isMultiGrid=*/true, /*hasIBlank=*/false};
}

writer::FileForm_s plainForm() {
    return {};
}

writer::FileForm_s textForm() {
    return quorvia::testsupport::text();
}

AssertionResult holds(const plot3d::DataSet& data, std::size_t zone, std::size_t variable,
                      const FileReading& file, std::int32_t variableOfFile) {
    const auto grids = static_cast<std::size_t>(file.file().contents.grids.size());
    const auto expected = file.field(static_cast<std::int32_t>(zone % grids), variableOfFile);
    if (data.type(zone, variable) != typeOf(expected.type))
        return AssertionFailure() << "type of zone " << zone << ", variable " << variable;
    switch (data.type(zone, variable)) {
    case plot3d::ValueType::Float64:
        return compare<double>(data, zone, variable, expected.value);
    case plot3d::ValueType::Int32:
        return compare<std::int32_t>(data, zone, variable, expected.value);
    case plot3d::ValueType::Float32:
        break;
    }
    return compare<float>(data, zone, variable, expected.value);
}

plot3d::Error failureOf(const std::vector<std::string>& files, const plot3d::OpenOptions& options) {
    try {
        plot3d::DataSet::open(files, options);
    } catch (const plot3d::Error& error) {
        return error;
    }
    throw std::logic_error("the files were opened");
}

WrittenFile_s OpenTest::write(const std::string& name, const LayoutCase_s& layout,
                              const writer::FileForm_s& form) const {
    return writeFile(file(name), layout, form);
}

std::string OpenTest::write(const std::string& name, const writer::FileDescription_s& contents,
                            const writer::FileForm_s& form) const {
    const std::string path = file(name);
    quorvia::testsupport::writeFile(path, contents, form);
    return path;
}

void expectFields(const plot3d::DataSet& data, const FileReading& file, std::size_t firstVariable) {
    const std::int32_t count = file.variableCount() + (file.hasIBlank() ? 1 : 0);
    for (std::size_t zone = 0; zone < data.zones().size(); ++zone)
        for (std::int32_t variable = 0; variable < count; ++variable)
            EXPECT_TRUE(holds(data, zone, firstVariable + static_cast<std::size_t>(variable), file,
                              variable))
                << "zone " << zone << ", variable " << variable;
}

} // namespace plot3dtest
