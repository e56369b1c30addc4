// The add-on as a user's host gets it: the built library, opened once for the whole program.
#include <memory>

#include "session/AddOnLibrary.h"
#include "support/LoadedAddOn.h"

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

} // namespace

bool isAddOnBroughtIn() {
    return gAddOnEnvironment != nullptr;
}

} // namespace quorvia::testsupport
