// Views in files: saved, opened, and drawn by the program plot3d.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QTimer>

#include "desktop/ViewFixture.h"

namespace quorvia::host {
namespace {

class ViewFilesTest : public ViewTest {
protected:
    void save(const std::string& name) {
        person().pickFiles({file(name)});
        choose(QStringLiteral("Save View..."));
    }
    void open(const std::string& name) {
        person().pickFiles({file(name)});
        choose(QStringLiteral("Open View..."));
        settle();
    }
    std::string contentOf(const std::string& name) {
        std::ifstream in(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    /// As it is drawn, without alpha.
    QImage picture() {
        QImage seen = view().scene().grabFramebuffer();
        seen.reinterpretAsFormat(QImage::Format_RGB32);
        return seen;
    }
    void renderByProgram(const QStringList& arguments) {
        QProcess program;
        program.start(QStringLiteral(PLOT3D_PROGRAM), QStringList("render") + arguments);
        ASSERT_TRUE(program.waitForFinished(patience));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    }
    QString path(const char* name) { return QString::fromStdString(file(name)); }
};

/// The share of pixels below the title, which tells files and direction, that differ by more than
/// rounding does.
double differingShare(const QImage& one, const QImage& other) {
    if (one.size() != other.size())
        return 1;
    int differing = 0;
    constexpr int rounding = 8; // of 255
    constexpr int titleRows = 48;
    for (int y = titleRows; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            differing += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > rounding;
    return static_cast<double>(differing) / one.width() / one.height();
}

constexpr double edgesOfLetters = 0.002;
constexpr double edgesOfSurfaces = 0.01; // a window smoothes them in its own way

TEST_F(ViewFilesTest, ViewThatWasSavedIsSeenAgainWhenItIsOpened) {
    importCylinder();
    choose("Surfaces", "K plane");
    choose("Colour", "E");
    view().scene().turn(25, -10);
    view().scene().zoom(1.5);
    const QImage before = picture();
    save("seen.json");
    choose("Surfaces", "Outer");
    choose("Colour", "RHO");
    view().scene().resetCamera();
    EXPECT_GT(differingShare(picture(), before), 0.01);
    open("seen.json");
    EXPECT_LT(differingShare(picture(), before), edgesOfLetters);
    EXPECT_EQ(part<QComboBox>("Surfaces").currentText(), QStringLiteral("K plane"));
    EXPECT_EQ(part<QComboBox>("Colour").currentText(), QStringLiteral("E"));
    save("again.json");
    EXPECT_EQ(viewOf(contentOf("again.json")).surfaces, viewOf(contentOf("seen.json")).surfaces);
}

TEST_F(ViewFilesTest, TimeAndTicksComeWithTheView) {
    importVortex();
    view().timeBar().goBy(2);
    settle();
    save("last.json");
    view().timeBar().goBy(-1);
    settle();
    open("last.json");
    EXPECT_EQ(content().timeStep, 2U);
    EXPECT_EQ(view().timeBar().step(), 2);
    directory().write("two.json", R"({"schema": "plot3d.view/1", "zones": [2, 3]})");
    open("two.json");
    EXPECT_EQ(treeItem(QStringLiteral("Strand 1"))->checkState(0), Qt::PartiallyChecked);
    directory().write("all.json", R"({"schema": "plot3d.view/1"})");
    open("all.json");
    EXPECT_EQ(treeItem(QStringLiteral("Strand 1"))->checkState(0), Qt::Checked);
}

TEST_F(ViewFilesTest, ProgramDrawsTheSamePictureFromIt) {
    importCylinder();
    view().scene().turn(25, -10);
    const QImage before = picture();
    save("seen.json");
    renderByProgram({path("cylinder.x"), path("cylinder.q"), "--view-file", path("seen.json"), "-o",
                     path("drawn.png")});
    EXPECT_LT(differingShare(QImage(path("drawn.png")), before), edgesOfSurfaces);
}

TEST_F(ViewFilesTest, ViewOfTheProgramIsOpened) {
    importCylinder();
    renderByProgram({path("cylinder.x"), path("cylinder.q"), "--surface", "j=3", "--view", "-y",
                     "--save-view", path("other.json")});
    open("other.json");
    EXPECT_EQ(content().view.surfaces.front().indices, std::vector<std::int64_t>{3});
    EXPECT_NEAR(view().scene().stage().camera().direction[1], -1, 1e-9);
}

TEST_F(ViewFilesTest, WhatIsNoViewIsRefusedWithTheReason) {
    importCylinder();
    directory().write("wrong.json", R"({"schema": "plot3d.view/1", "colour": "E"})");
    person().pickFiles({file("wrong.json")});
    person().answerBox();
    choose(QStringLiteral("Open View..."));
    ASSERT_EQ(person().boxTexts().size(), 1U);
    EXPECT_NE(person().boxTexts().front().find("colour"), std::string::npos);
    EXPECT_EQ(content().colourName, "RHO");
}

TEST_F(ViewFilesTest, ViewOfWhatIsNotThereLeavesThePictureAndSaysSo) {
    importCylinder();
    directory().write("other.json", R"({"schema": "plot3d.view/1", "color": {"by": "NOT-THERE"}})");
    open("other.json");
    EXPECT_EQ(content().colourName, "RHO");
    EXPECT_NE(pointText().find("NOT-THERE"), std::string::npos) << pointText();
}

TEST_F(ViewFilesTest, ViewThatCannotBeWrittenIsTold) {
    importCylinder();
    std::filesystem::create_symlink("/dev/full", file("full.json"));
    QTimer second; // the person waits inside the selection for the answer to its question
    QObject::connect(&second, &QTimer::timeout, [] {
        if (visibleBox() != nullptr && visibleBox()->button(QMessageBox::Yes) != nullptr)
            click(*visibleBox()->button(QMessageBox::Yes));
    });
    second.start(10);
    person().pickFiles({file("full.json")});
    person().answerBox();
    choose(QStringLiteral("Save View..."));
    ASSERT_EQ(person().boxTexts().size(), 1U);
    EXPECT_EQ(person().boxTexts().front().rfind("The view can't be written to ", 0), 0U);
}

TEST_F(ViewFilesTest, NothingIsSavedWithoutAPicture) {
    EXPECT_FALSE(action(QStringLiteral("Save View...")).isEnabled());
    EXPECT_FALSE(action(QStringLiteral("Open View...")).isEnabled());
}

} // namespace
} // namespace quorvia::host
