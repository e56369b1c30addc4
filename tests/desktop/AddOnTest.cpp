// The add-on that is linked into the program, and others in its place.
#include <gtest/gtest.h>

#include <plot3d/DataSet.h>

#include "desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

class AddOnTest : public DesktopTest {
protected:
    void openLinked() { openWindow(linkedIn); }
    void importVortex() {
        writeSample({"vortex", "--steps", "1", "--size", "7x5"});
        import({"vortex.x", "vortex_t0.00.q"});
    }
    static plot3d::FieldKind kindOfDensity() {
        const plot3d::DataSet data = plot3d::DataSet::of(host().frame());
        return data.kind(0, data.variable("RHO"));
    }

private:
    inline static const std::string linkedIn;
};

TEST_F(AddOnTest, LinkedInOneNeedsNoLibrary) {
    openLinked();
    EXPECT_TRUE(window().session().loader().has_value());
    EXPECT_EQ(loaderCount("plot3dloader.so"), 0);
}

TEST_F(AddOnTest, LibraryThatIsNamedTakesItsPlace) {
    EXPECT_TRUE(window().session().loader().has_value());
    EXPECT_EQ(loaderCount("plot3dloader.so"), 1);
}

TEST_F(AddOnTest, LinkedInOneBringsInTheValuesOfTheLibrary) {
    importVortex();
    const std::vector<float> density = values(1, 3);
    openLinked();
    importVortex();
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(values(1, 3), density);
}

TEST_F(AddOnTest, OfTheLinkedInOneAloneTheFieldsAreKnownToLieInFiles) {
    importVortex();
    EXPECT_EQ(kindOfDensity(), plot3d::FieldKind::AtHost);
    openLinked();
    importVortex();
    EXPECT_EQ(kindOfDensity(), plot3d::FieldKind::InFile);
}

TEST_F(AddOnTest, LinkedInOneShowsItsDialog) {
    openLinked();
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    constexpr bool advanced = true;
    person().pickFiles(files({"vortex.x", "vortex_t0.00.q"}), advanced);
    person().clickInDialog(QStringLiteral("OK"));
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_NE(window().tree().dataSet(), nullptr);
}

TEST_F(AddOnTest, NextWindowHasTheLinkedInOneAgain) {
    openLinked();
    openLinked();
    importVortex();
    EXPECT_NE(window().tree().dataSet(), nullptr);
}

} // namespace
} // namespace quorvia::host
