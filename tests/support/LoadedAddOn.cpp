#include "support/LoadedAddOn.h"

#include "support/AddOnRoad.h"

namespace quorvia::testsupport {

namespace {

/// Brings the add-on in before the first test and takes it out behind the last.
class AddOnEnvironment final : public ::testing::Environment {
public:
    void SetUp() override {
        ASSERT_EQ(bringAddOnIn(), "");
        ASSERT_EQ(host::ReferenceHost::instance().loaderNames(), Texts{"PLOT3D Loader"});
    }
    void TearDown() override {
        takeAddOnOut();
        EXPECT_EQ(host::ReferenceHost::instance().log().violations, Texts());
    }
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

void LoadedAddOnTest::TearDown() {
    host().frame().reset();
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

} // namespace quorvia::testsupport
