#include "acceptance/support/LoadedAddOn.h"

#include <memory>
#include <stdexcept>

#include "session/AddOnLibrary.h"

namespace quorvia::testsupport {
namespace {

/// Opens the library before the first test and unloads it behind the last.
class AddOnEnvironment final : public ::testing::Environment {
public:
    void SetUp() override {
        std::string error;
        library_ = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
        ASSERT_NE(library_, nullptr) << error;
        ASSERT_EQ(host::ReferenceHost::instance().loaderNames(), Texts{"PLOT3D Loader"});
    }
    void TearDown() override {
        if (library_ != nullptr)
            library_->unload();
        EXPECT_EQ(host::ReferenceHost::instance().log().violations, Texts());
    }

private:
    std::unique_ptr<host::AddOnLibrary> library_;
};

// GoogleTest owns the environment.
::testing::Environment* const gAddOnEnvironment =
    ::testing::AddGlobalTestEnvironment(new AddOnEnvironment);

void appendFiles(Texts& instructions, const std::string& key, const Texts& files) {
    if (files.empty())
        return;
    instructions.push_back(key);
    instructions.push_back(std::to_string(files.size()));
    instructions.insert(instructions.end(), files.begin(), files.end());
}

template <class Value>
void appendValues(std::vector<double>& widened, const host::FetchResult_s& fetched) {
    const auto* const values = static_cast<const Value*>(fetched.values);
    widened.assign(values, values + fetched.count);
}

host::FetchResult_s fetchOrThrow(std::int32_t zoneNumber, std::int32_t variable) {
    const host::FetchResult_s fetched = host::ReferenceHost::instance().fetch(zoneNumber, variable);
    if (!fetched.ok)
        throw std::runtime_error("zone " + std::to_string(zoneNumber) + ", variable " +
                                 std::to_string(variable) + ": " + fetched.error);
    return fetched;
}

} // namespace

Texts instructionsOf(const Load_s& load) {
    Texts instructions = {"STANDARDSYNTAX", "1.0"};
    appendFiles(instructions, "FILELIST_GRIDFILES", load.gridFiles);
    appendFiles(instructions, "FILELIST_SOLUTIONFILES", load.solutionFiles);
    appendFiles(instructions, "FILELIST_FUNCTIONFILES", load.functionFiles);
    if (!load.nameFile.empty())
        instructions.insert(instructions.end(), {"FILENAME_NAMEFILE", load.nameFile});
    for (const auto& [key, value] : load.settings)
        instructions.insert(instructions.end(), {key, value});
    return instructions;
}

void LoadedAddOnTest::SetUp() {
    // Named here so that the linker keeps this file's static initialiser in every program.
    ASSERT_NE(gAddOnEnvironment, nullptr);
    host().reset();
}

void LoadedAddOnTest::TearDown() {
    host().frame().reset();
    host().checkForLeaks();
    EXPECT_EQ(host().log().violations, Texts());
    EXPECT_EQ(host().lockDepth(), 0);
    host().reset();
}

host::LoadResult_s LoadedAddOnTest::load(const Load_s& load) {
    return host().importInstructions(instructionsOf(load));
}

host::LoadResult_s LoadedAddOnTest::select(const Texts& files) {
    constexpr bool advanced = false;
    constexpr bool append = false;
    return host().importSelection(files, advanced, append);
}

void LoadedAddOnTest::expectLoads(const Load_s& load) {
    const host::LoadResult_s result = LoadedAddOnTest::load(load);
    EXPECT_TRUE(result.ok) << result.hostError;
    EXPECT_EQ(messages(), Texts());
}

void LoadedAddOnTest::expectSelectionLoads(const Texts& files) {
    const host::LoadResult_s result = select(files);
    EXPECT_TRUE(result.ok) << result.hostError;
    EXPECT_EQ(messages(), Texts());
}

Texts LoadedAddOnTest::messages() {
    Texts texts;
    for (const host::Message_s& message : host().log().messages)
        texts.push_back(message.text);
    return texts;
}

Texts LoadedAddOnTest::variableNames() {
    Texts names;
    for (const host::Variable_s& variable : dataSet().variables())
        names.push_back(variable.name);
    return names;
}

Texts LoadedAddOnTest::zoneNames() {
    Texts names;
    for (const auto& zone : dataSet().zones())
        names.push_back(zone->name);
    return names;
}

host::DataSet& LoadedAddOnTest::dataSet() {
    host::DataSet* const dataSet = host().frame().dataSet();
    if (dataSet == nullptr)
        throw std::runtime_error("the frame has no data set");
    return *dataSet;
}

host::Zone_s& LoadedAddOnTest::zone(std::int32_t number) {
    host::Zone_s* const zone = dataSet().zone(number);
    if (zone == nullptr)
        throw std::runtime_error("there is no zone " + std::to_string(number));
    return *zone;
}

const host::Field_s& LoadedAddOnTest::field(std::int32_t zoneNumber, std::int32_t variable) {
    const host::Field_s* const field = dataSet().field(zoneNumber, variable);
    if (field == nullptr)
        throw std::runtime_error("there is no zone " + std::to_string(zoneNumber) +
                                 " with a variable " + std::to_string(variable));
    return *field;
}

std::vector<double> LoadedAddOnTest::values(std::int32_t zoneNumber, std::int32_t variable) {
    const host::FetchResult_s fetched = fetchOrThrow(zoneNumber, variable);
    std::vector<double> widened;
    if (fetched.type == QuorFieldDataType_Float)
        appendValues<float>(widened, fetched);
    else if (fetched.type == QuorFieldDataType_Double)
        appendValues<double>(widened, fetched);
    else if (fetched.type == QuorFieldDataType_Int32)
        appendValues<std::int32_t>(widened, fetched);
    else
        throw std::runtime_error("a field of unknown type " + std::to_string(fetched.type));
    return widened;
}

std::vector<std::int32_t> LoadedAddOnTest::integers(std::int32_t zoneNumber,
                                                    std::int32_t variable) {
    const host::FetchResult_s fetched = fetchOrThrow(zoneNumber, variable);
    if (fetched.type != QuorFieldDataType_Int32)
        throw std::runtime_error("the field holds no integers");
    const auto* const values = static_cast<const std::int32_t*>(fetched.values);
    return {values, values + fetched.count};
}

} // namespace quorvia::testsupport
