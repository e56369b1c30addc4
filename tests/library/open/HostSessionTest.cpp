// The library beside a user of the same host: what a session there holds, and that a load of the
// library leaves it alone.
#include <algorithm>
#include <memory>

#include "SeriesFixture.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace plot3dtest {
namespace {

using plot3d::DataSet;
using plot3d::FieldKind;
using quorvia::host::ReferenceHost;
using writer::FileKind_e;

class HostSession : public SeriesTest {
protected:
    HostSession() { host().reset(); }
    ~HostSession() override {
        EXPECT_TRUE(host().log().violations.empty());
        host().reset();
    }
    static ReferenceHost& host() { return ReferenceHost::instance(); }

    std::vector<std::string> instructions() const {
        return {"STANDARDSYNTAX",
                "1.0",
                "FILELIST_GRIDFILES",
                "1",
                writeStep("wing.x", FileKind_e::Grid, 0),
                "FILELIST_SOLUTIONFILES",
                "1",
                writeStep("wing.q", FileKind_e::ClassicSolution, 1, 0.25)};
    }
    /// By the add-on inside the library, which stands ahead of others.
    void loadLinked() const {
        DataSet::open({writeStep("first.x", FileKind_e::Grid, 7)});
        ASSERT_TRUE(host().importInstructions(instructions(), host().loaders().front()).ok);
    }
    static std::unique_ptr<quorvia::host::AddOnLibrary> openAddOn() {
        std::string error;
        auto library = quorvia::host::AddOnLibrary::open(PLOT3DLOADER_FILE, error);
        EXPECT_NE(library, nullptr) << error;
        return library;
    }
};

TEST_F(HostSession, OfTheLinkedAddOnHasSources) {
    loadLinked();
    const DataSet data = DataSet::of(host().frame());
    ASSERT_EQ(data.zones().size(), 2u);
    EXPECT_EQ(data.kind(1, 4), FieldKind::InFile);
    host().reset();
    EXPECT_TRUE(isOfStep(data, 1, 3, 7, 1, 1));
}

TEST_F(HostSession, ThatIsEmptyIsRefused) {
    EXPECT_THROW(DataSet::of(host().frame()), plot3d::Error);
}

TEST_F(HostSession, OfALoadedAddOnIsReadThroughTheHost) {
    const auto addOn = openAddOn();
    ASSERT_TRUE(host().importInstructions(instructions()).ok);
    const DataSet data = DataSet::of(host().frame());
    EXPECT_EQ(data.kind(1, 4), FieldKind::AtHost);
    EXPECT_TRUE(isOfStep(data, 0, 0, 2, 0, 0));
    EXPECT_TRUE(isOfStep(data, 1, 3, 7, 1, 1));
}

TEST_F(HostSession, WhoseAddOnIsGoneSaysSo) {
    auto addOn = openAddOn();
    ASSERT_TRUE(host().importInstructions(instructions()).ok);
    const DataSet data = DataSet::of(host().frame());
    addOn.reset();
    try {
        data.values(0, 0);
        FAIL() << "values of a field that nobody serves";
    } catch (const plot3d::Error& error) {
        EXPECT_EQ(error.kind(), plot3d::ErrorKind::Unreadable);
    }
}

TEST_F(HostSession, IsLeftAloneByALoadOfTheLibrary) {
    const auto addOn = openAddOn();
    ASSERT_TRUE(host().importInstructions(instructions()).ok);
    const auto left = host().log().instructions;
    const auto data = DataSet::open({writeStep("other.x", FileKind_e::Grid, 5)});
    EXPECT_TRUE(isOfStep(data, 1, 0, 2, 5, 1));
    EXPECT_EQ(host().frames().size(), 1u);
    EXPECT_EQ(host().frame().dataSet()->variableCount(), 8);
    EXPECT_EQ(host().log().instructions, left);
    EXPECT_TRUE(isOfStep(DataSet::of(host().frame()), 1, 3, 7, 1, 1));
}

TEST_F(HostSession, ImportsByItsOwnAddOnAlsoAfterALoadOfTheLibrary) {
    const auto addOn = openAddOn();
    DataSet::open({writeStep("other.x", FileKind_e::Grid, 5)});
    ASSERT_TRUE(host().importInstructions(instructions()).ok);
    EXPECT_EQ(DataSet::of(host().frame()).kind(0, 0), FieldKind::AtHost);
}

TEST_F(HostSession, HearsNothingOfARefusedLoadOfTheLibrary) {
    host().settings().refuseInstructions = true;
    EXPECT_THROW(DataSet::open({write("none.x", std::string(99, 'n'))}), plot3d::Error);
    EXPECT_TRUE(host().log().messages.empty());
    EXPECT_EQ(DataSet::open({writeStep("other.x", FileKind_e::Grid, 5)}).zones().size(), 2u);
    EXPECT_TRUE(host().settings().refuseInstructions);
}

} // namespace
} // namespace plot3dtest
