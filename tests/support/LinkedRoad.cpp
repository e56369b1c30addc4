// The add-on linked in, where debuggers and sanitizers see all of it, and entered as the library
// is.
#include "addon/AddOnEntry.h"
#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {
namespace {

/// Enters before the first test; there is no way out.
class AddOnEnvironment final : public ::testing::Environment {
public:
    void SetUp() override {
        InitQuorAddOn113();
        ASSERT_EQ(host::ReferenceHost::instance().loaderNames(), Texts{"PLOT3D Loader"});
    }
};

// GoogleTest owns the environment.
::testing::Environment* const gAddOnEnvironment =
    ::testing::AddGlobalTestEnvironment(new AddOnEnvironment);

} // namespace

bool isAddOnBroughtIn() {
    return gAddOnEnvironment != nullptr;
}

} // namespace quorvia::testsupport
