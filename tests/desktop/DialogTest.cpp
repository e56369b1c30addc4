// The add-on's own dialog in a window, worked with mouse and keys.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTest>

#include "desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

enum Page_e { filesPage, structurePage, subsetPage };
enum Field_e { iStart, iEnd, iSkip, jStart, jEnd, jSkip, kStart, kEnd, kSkip, gridSet };

/// A selection of a grid of 7 x 5 points and one solution, shown in the dialog.
class LoadDialogTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    }
    void pickWithDialog() {
        constexpr bool advanced = true;
        person().pickFiles(files({"vortex.x", "vortex_t0.00.q"}), advanced);
    }
    void press(const char* button) { person().clickInDialog(QLatin1String(button)); }
    /// Does what was asked of the person.
    void begin() { choose(QStringLiteral("PLOT3D Loader...")); }
    /// Of the control of that name, once the dialog is there.
    void expectHint(const char* name, const char* hint, int which = 0) {
        person().inDialog("a hint", [name, hint, which](QDialog& dialog) {
            const QWidget* widget = namedWidget(dialog, QLatin1String(name), which);
            ASSERT_NE(widget, nullptr) << name;
            EXPECT_FALSE(widget->isEnabled()) << name;
            EXPECT_EQ(widget->toolTip().toStdString(), hint);
        });
    }
};

TEST_F(LoadDialogTest, BringsInTheSameValuesAsAnImportWithoutIt) {
    import({"vortex.x", "vortex_t0.00.q"});
    std::vector<std::vector<float>> expected;
    for (std::int32_t variable = 1; variable <= 6; ++variable)
        expected.push_back(values(1, variable));
    choose(QStringLiteral("Discard Data Set"));
    pickWithDialog();
    press("OK");
    begin();
    ASSERT_NE(window().tree().dataSet(), nullptr);
    for (std::int32_t variable = 1; variable <= 6; ++variable)
        EXPECT_EQ(values(1, variable), expected[static_cast<std::size_t>(variable) - 1]);
}

TEST_F(LoadDialogTest, RefusedFieldIsCorrectedAndItsRangeLoaded) {
    pickWithDialog();
    person().showPage(subsetPage);
    person().typeInto(iStart, QStringLiteral("4"));
    person().typeInto(iEnd, QStringLiteral("2"));
    person().answerBox();
    person().typeInto(iEnd, QStringLiteral("6"));
    press("OK");
    begin();
    EXPECT_EQ(
        person().boxTexts(),
        std::vector<std::string>{"I-Range Error: end must be greater than or equal to start."});
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->zones.front().i, 3);
    const std::vector<float> x = values(1, 1);
    EXPECT_EQ(std::vector<float>(x.begin(), x.begin() + 3),
              (std::vector<float>{0.0F, 10.0F / 6, 20.0F / 6}));
}

TEST_F(LoadDialogTest, OkThatWasPressedOverARefusedFieldWaitsForAnother) {
    pickWithDialog();
    person().showPage(subsetPage);
    person().typeInto(jEnd, QStringLiteral("no number"), Person::Leave_e::NotYet);
    press("OK");
    person().answerBox();
    person().inDialog("the field as it was before", [](QDialog& dialog) {
        EXPECT_EQ(host().frame().dataSet(), nullptr);
        EXPECT_EQ(dialog.findChild<QTabWidget*>()->currentIndex(), subsetPage);
    });
    press("OK");
    begin();
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->zones.front().j, 5);
}

TEST_F(LoadDialogTest, StructureIsDescribedByHand) {
    pickWithDialog();
    person().showPage(structurePage);
    press("Manually Describe");
    press("2-D");
    press("OK");
    begin();
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->variables.size(), 6U);
}

TEST_F(LoadDialogTest, FilesAreRemovedAndAdded) {
    pickWithDialog();
    person().inDialog("a selected file", [](QDialog& dialog) {
        auto* solutions = dialog.findChildren<QListWidget*>().at(1);
        QTest::mouseClick(solutions->viewport(), Qt::LeftButton, {},
                          solutions->visualItemRect(solutions->item(0)).center());
    });
    constexpr int ofSolutions = 1;
    person().clickInDialog(QStringLiteral("Remove Selected"), ofSolutions);
    person().clickInDialog(QStringLiteral("Add Files..."), ofSolutions);
    person().pickFiles(files({"vortex_t0.25.q"}));
    press("OK");
    begin();
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->zones.front().name, "vortex_t0.25.q:1");
}

TEST_F(LoadDialogTest, EscapeCancelsIt) {
    pickWithDialog();
    person().pressKeyInDialog(Qt::Key_Escape);
    begin();
    EXPECT_EQ(guestDialog(), nullptr);
    EXPECT_EQ(window().tree().dataSet(), nullptr);
}

TEST_F(LoadDialogTest, CancelDoesNotTakeAHalfTypedField) {
    const std::function<void()> waysOut[] = {
        [this] { press("Cancel"); }, [this] { person().pressKeyInDialog(Qt::Key_Escape); },
        [this] { person().inDialog("the frame", [](QDialog& dialog) { dialog.close(); }); }};
    for (const auto& leave : waysOut) {
        pickWithDialog();
        person().showPage(subsetPage);
        person().typeInto(iStart, QStringLiteral("abc"), Person::Leave_e::NotYet);
        leave();
        begin();
        EXPECT_EQ(guestDialog(), nullptr);
    }
    EXPECT_EQ(window().tree().dataSet(), nullptr);
}

TEST_F(LoadDialogTest, HelpLeavesAHalfTypedFieldAsItIs) {
    pickWithDialog();
    person().showPage(subsetPage);
    person().typeInto(iStart, QStringLiteral("abc"), Person::Leave_e::NotYet);
    press("Help");
    person().then("the help", [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible() && widget->objectName() == QLatin1String("help")) {
                widget->close();
                return true;
            }
        return false;
    });
    person().inDialog("the field", [](QDialog& dialog) {
        EXPECT_EQ(visibleField(dialog, iStart)->text(), QStringLiteral("abc"));
    });
    press("Cancel");
    begin();
}

TEST_F(LoadDialogTest, ReturnPressesOk) {
    pickWithDialog();
    person().showPage(subsetPage);
    person().typeInto(iSkip, QStringLiteral("2"), Person::Leave_e::NotYet);
    person().inDialog("the field for Return", [](QDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    begin();
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->zones.front().i, 4);
}

TEST_F(LoadDialogTest, ReturnPressesTheButtonThatHasTheFocus) {
    pickWithDialog();
    person().inDialog("the focus on a button", [](QDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    person().cancelFileSelection();
    press("Cancel");
    begin();
    EXPECT_EQ(window().tree().dataSet(), nullptr);
}

TEST_F(LoadDialogTest, NoToTheWarningBringsItBack) {
    import({"vortex.x", "vortex_t0.25.q"});
    pickWithDialog();
    press("OK");
    person().answerBox(QMessageBox::No);
    press("OK");
    person().answerBox(QMessageBox::Yes);
    begin();
    EXPECT_EQ(person().boxTexts(),
              std::vector<std::string>(2, "Warning: All current data will be lost. Continue?"));
    EXPECT_EQ(window().tree().dataSet()->zones.front().name, "vortex_t0.00.q:1");
}

TEST_F(LoadDialogTest, InsensitiveControlsSayWhy) {
    pickWithDialog();
    expectHint("Append to Existing Data Set", "There is no data set to append to yet.");
    expectHint("Remove Selected", "Nothing is selected in the list.");
    constexpr int ofFunctions = 2;
    expectHint("Remove All", "The list is empty.", ofFunctions);
    person().showPage(structurePage);
    expectHint("Multi-Grid",
               "Auto Detect finds this out. Choose Manually Describe to set it by hand.");
    expectHint("File Organization, Solution file style:",
               "Auto Detect finds this out. Choose Manually Describe to set it by hand.");
    press("Cancel");
    begin();
}

TEST_F(LoadDialogTest, HintGoesOnceTheControlCanBeUsed) {
    pickWithDialog();
    person().showPage(structurePage);
    press("Manually Describe");
    person().then("Multi-Grid without a hint", [] {
        QWidget* toggle = namedWidget(*guestDialog(), QStringLiteral("Multi-Grid"));
        return toggle->isEnabled() && toggle->toolTip().isEmpty();
    });
    press("Cancel");
    begin();
}

TEST_F(LoadDialogTest, FirstKeyGoesToTheGridFiles) {
    pickWithDialog();
    person().inDialog("the focus", [](QDialog& dialog) {
        ASSERT_NE(dialog.focusWidget(), nullptr);
        EXPECT_EQ(dialog.focusWidget(), namedWidget(dialog, QStringLiteral("Add Files...")));
    });
    press("Cancel");
    begin();
}

} // namespace
} // namespace quorvia::host
