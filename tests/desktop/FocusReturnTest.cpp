// Which window has the keyboard once another one has closed. No window manager gives it away on
// the tests' display.
#include "desktop/FocusReturn.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>

#include "desktop/Patience.h"

namespace quorvia::host {
namespace {

class FocusReturnTest : public ::testing::Test {
protected:
    void SetUp() override {
        dialog_.setModal(true);
        dialog_.show();
        ASSERT_TRUE(comesToTheFront(dialog_));
    }
    QDialog& dialog() { return dialog_; }
    /// A program is told at once that it is given the keyboard, and after a while that it has lost
    /// it.
    static void hearWhatIsUnderWay() {
        constexpr int longEnough = 300; // milliseconds
        QTest::qWait(longEnough);
    }

private:
    FocusReturn focusReturn_;
    QDialog dialog_;
};

TEST_F(FocusReturnTest, GoesToTheDialogBeneathABox) {
    QMessageBox box(&dialog());
    box.open();
    ASSERT_TRUE(comesToTheFront(box));
    box.close();
    EXPECT_TRUE(comesToTheFront(dialog()));
}

// The display has given the box the keyboard, and the program has not heard of it.
TEST_F(FocusReturnTest, GoesToTheDialogBeneathABoxThatIsClosedAtOnce) {
    QMessageBox box(&dialog());
    box.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box, patience));
    box.close();
    hearWhatIsUnderWay();
    EXPECT_TRUE(comesToTheFront(dialog()));
}

TEST_F(FocusReturnTest, StaysWithAWindowBesideTheOneThatCloses) {
    QDialog help(&dialog());
    help.show();
    help.activateWindow();
    ASSERT_TRUE(comesToTheFront(help));
    QDialog other(&dialog());
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other, patience));
    other.close();
    hearWhatIsUnderWay();
    EXPECT_EQ(QApplication::activeWindow(), &help);
}

} // namespace
} // namespace quorvia::host
