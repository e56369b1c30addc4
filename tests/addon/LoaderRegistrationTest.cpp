// The entry, linked in, at hosts of several versions.
#include <algorithm>

#include "addon/AddOnEntry.h"
#include "addon/AddOnFixture.h"
#include "addon/LoaderCallbacks.h"
#include "state/AddOnIdentity.h"
#include "state/DialogState.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class LoaderRegistration : public testsupport::AddOnTest {
protected:
    /// How many loaders the entry adds at a host of this version.
    static std::size_t loadersAddedAt(std::int32_t version) {
        host().settings().version = version;
        const std::size_t before = host().loaderNames().size();
        InitQuorAddOn113();
        return host().loaderNames().size() - before;
    }
};

TEST_F(LoaderRegistration, IsRefusedByAHostThatIsTooOld) {
    EXPECT_EQ(loadersAddedAt(1000376), 0u);
    EXPECT_EQ(messages(),
              Texts{"Add-On \"PLOT3D Loader\" requires Quorvia version 10.0-3-77 or greater"});
    EXPECT_EQ(host().callCount("QuorUtilAddOnRegister"), 0);
    EXPECT_EQ(host().callCount("QuorUtilStateChangeAddCallback"), 0);
    EXPECT_EQ(host().lockDepth(), 0);
}

TEST_F(LoaderRegistration, SucceedsAtTheOldestVersionThatIsGoodEnough) {
    EXPECT_EQ(loadersAddedAt(1000377), 1u);
    EXPECT_EQ(host().loaderNames().back(), "PLOT3D Loader");
    EXPECT_NE(addOnID, nullptr);
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(host().lockDepth(), 0);
}

TEST_F(LoaderRegistration, SucceedsAtLaterVersions) {
    EXPECT_EQ(loadersAddedAt(2000000), 1u);
}

TEST_F(LoaderRegistration, GivesTheDialogItsDefaultsAndNoSolutionFiles) {
    gLoadOptions.autoDetect = false;
    gRetainedGridFiles = {"kept.x"};
    gRetainedSolutionFiles = {"dropped.q"};
    loadersAddedAt(1000377);
    EXPECT_TRUE(gLoadOptions.autoDetect);
    EXPECT_EQ(gRetainedGridFiles, Texts{"kept.x"});
    EXPECT_EQ(gRetainedSolutionFiles, Texts());
}

TEST_F(LoaderRegistration, AsksTheHostInThisOrder) {
    host().recordTranscript(true);
    loadersAddedAt(1000377);
    const Texts expected = {
        R"(QuorUtilLockOn())",
        R"(QuorUtilGetQuorviaVersion() = 1000377)",
        R"(QuorUtilAddOnRegister(100, "PLOT3D Loader") = addon#1)",
        R"(QuorUtilArgListAlloc() = args#1)",
        R"(QuorUtilArgListAppendString(args#1, "LoaderName", "PLOT3D Loader") = true)",
        R"(QuorUtilArgListAppendString(args#1, "FileNameExtensions", "g.* *.g x.* *.x xyz.* *.xyz *.in *.in.* in.* *.p3d q.* *.q *.qfile f.* *.f fun.* *.fun *.nam") = true)",
        R"(QuorUtilArgListAppendInt(args#1, "LoaderCallbackVersion", 1) = true)",
        R"(QuorUtilArgListAppendFunction(args#1, "LoaderCallback", given) = true)",
        R"(QuorUtilArgListAppendFunction(args#1, "LoaderSelectedCallback", given) = true)",
        R"(QuorUtilArgListAppendInt(args#1, "AllowMultiFileSelection", 1) = true)",
        R"(QuorUtilArgListAppendInt(args#1, "AllowAdvancedOptions", 1) = true)",
        R"(QuorUtilArgListAppendInt(args#1, "AllowAppending", 1) = true)",
        R"(QuorUtilImportAddLoaderX(args#1) = true)",
        R"(QuorUtilArgListDealloc(args#1))",
        R"(QuorUtilStateChangeAddCallback(given))",
        R"(QuorUtilLockOff())"};
    EXPECT_EQ(host().log().transcript, expected);
}

TEST_F(LoaderRegistration, BuildsNoDialog) {
    loadersAddedAt(1000377);
    EXPECT_EQ(loadDialog, -2);
    EXPECT_EQ(gridAddFiles, -2);
}

TEST_F(LoaderRegistration, ComesToAnEndWithoutAnArgumentList) {
    host().failCall("QuorUtilArgListAlloc", 1);
    EXPECT_EQ(loadersAddedAt(1000377), 0u);
    EXPECT_EQ(host().lockDepth(), 0);
}

} // namespace
} // namespace quorvia::quorutildataio
