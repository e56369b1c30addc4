// A window of a dialog that no guest stands behind: what it shows, and what it tells.
#include "desktop/DialogWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "desktop/ControlNames.h"
#include "host/desktop/Person.h"

namespace quorvia::host {
namespace {

enum Id_e : std::int32_t {
    kDialog = 1,
    kTabs,
    kFirstPage,
    kSecondPage,
    kLabel,
    kToggle,
    kButton,
    kList,
    kField,
    kRadioBox,
    kMenu
};

void nothing() {}

Control control(std::int32_t id, ControlKind kind, const char* caption, Geometry geometry) {
    Control made;
    made.id = id;
    made.parent = kFirstPage;
    made.kind = kind;
    made.caption = caption;
    made.geometry = geometry;
    return made;
}

/// One of each kind on the first of two pages.
Dialog sampleDialog() {
    Dialog dialog;
    dialog.id = kDialog;
    dialog.width = 6007;
    dialog.height = 2503;
    dialog.title = "Sample";
    dialog.ok = dialog.apply = dialog.cancel = dialog.help = nothing;
    dialog.open = true;
    dialog.tabs = TabControl{kTabs, {101, 211, 5801, 2203}, {}, kFirstPage, nullptr, nullptr};
    dialog.tabs->pages = {{kFirstPage, "First"}, {kSecondPage, "Second"}};
    dialog.controls = {control(kLabel, ControlKind::Label, "Name:", {101, 1009, 0, 0}),
                       control(kToggle, ControlKind::Toggle, "Swap & go", {101, 103, 2003, 121}),
                       control(kButton, ControlKind::Button, "Remove   ", {3001, 103, 1009, 144}),
                       control(kList, ControlKind::List, "", {101, 307, 5003, 599}),
                       control(kField, ControlKind::TextField, "", {1009, 1009, 1511, 144}),
                       control(kRadioBox, ControlKind::RadioBox, "", {101, 1303, 1511, 307}),
                       control(kMenu, ControlKind::OptionMenu, "", {3001, 1303, 1511, 144})};
    dialog.controls[3].items = {"a.x", "b.x", "c.x"};
    dialog.controls[3].allowsSeveral = true;
    dialog.controls[5].items = {"Left", "Right"};
    dialog.controls[6].items = {"Low", "High", "Higher"};
    for (const std::size_t choice : {5U, 6U})
        dialog.controls[choice].value = 1;
    return dialog;
}

class DialogWindowTest : public ::testing::Test {
protected:
    DialogWindowTest()
        : window_(
              dialog_, [this](DialogAction action) { told_.push_back(std::move(action)); },
              nullptr) {
        window_.show();
    }

    Dialog& dialog() { return dialog_; }
    Control& model(std::int32_t id) { return *findOf(id); }
    DialogWindow& window() { return window_; }
    void refresh() { window_.refresh(dialog_); }
    template <typename Widget>
    Widget& widget() {
        return *window_.findChild<Widget*>();
    }
    QPushButton& button(const char* text) {
        return *qobject_cast<QPushButton*>(namedWidget(window_, QLatin1String(text)));
    }
    static bool comesToTheFront(const QWidget& window) {
        return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
    }
    std::size_t toldCount() const { return told_.size(); }
    template <typename Action>
    Action told(std::size_t place = 0) const {
        return std::get<Action>(told_.at(place));
    }

private:
    Control* findOf(std::int32_t id) {
        for (Control& each : dialog_.controls)
            if (each.id == id)
                return &each;
        return nullptr;
    }

    Dialog dialog_ = sampleDialog();
    std::vector<DialogAction> told_;
    DialogWindow window_;
};

TEST_F(DialogWindowTest, TellsAToggle) {
    click(widget<QCheckBox>());
    EXPECT_EQ(told<SetToggle>().toggle, kToggle);
    EXPECT_TRUE(told<SetToggle>().on);
}

TEST_F(DialogWindowTest, SpaceTurnsAToggle) {
    QTest::keyClick(&widget<QCheckBox>(), Qt::Key_Space);
    EXPECT_TRUE(told<SetToggle>().on);
}

TEST_F(DialogWindowTest, TellsAButtonOfThePage) {
    click(button("Remove"));
    EXPECT_EQ(told<PressButton>().button, kButton);
}

TEST_F(DialogWindowTest, TellsEveryButtonAtItsFoot) {
    for (const char* text : {"OK", "Apply", "Cancel", "Help"})
        click(button(text));
    ASSERT_EQ(toldCount(), 4U);
    EXPECT_EQ(told<PressDialogButton>(0).button, DialogButton::Ok);
    EXPECT_EQ(told<PressDialogButton>(1).button, DialogButton::Apply);
    EXPECT_EQ(told<PressDialogButton>(2).button, DialogButton::Cancel);
    EXPECT_EQ(told<PressDialogButton>(3).button, DialogButton::Help);
}

TEST_F(DialogWindowTest, ButtonsWithoutACallbackAreNotThere) {
    Dialog bare = sampleDialog();
    bare.apply = bare.help = nullptr;
    DialogWindow window(
        bare, [](DialogAction) {}, nullptr);
    window.show();
    EXPECT_EQ(namedWidget(window, QStringLiteral("Apply")), nullptr);
    EXPECT_EQ(namedWidget(window, QStringLiteral("Help")), nullptr);
    EXPECT_NE(namedWidget(window, QStringLiteral("OK")), nullptr);
}

TEST_F(DialogWindowTest, TellsThePositionsSelectedInAList) {
    auto& list = widget<QListWidget>();
    const auto clickRow = [&list](int row, Qt::KeyboardModifiers keys) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, keys,
                          list.visualItemRect(list.item(row)).center());
    };
    clickRow(0, {});
    clickRow(2, Qt::ControlModifier);
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<SelectItems>(1).list, kList);
    EXPECT_EQ(told<SelectItems>(1).positions, (std::vector<std::int32_t>{1, 3}));
}

TEST_F(DialogWindowTest, TellsTheItemsOfRadioBoxAndMenuFromOne) {
    click(*window().findChildren<QRadioButton*>().at(1));
    QTest::keyClick(&widget<QComboBox>(), Qt::Key_Down);
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<ChooseItem>(0).control, kRadioBox);
    EXPECT_EQ(told<ChooseItem>(0).item, 2);
    EXPECT_EQ(told<ChooseItem>(1).control, kMenu);
    EXPECT_EQ(told<ChooseItem>(1).item, 2);
}

TEST_F(DialogWindowTest, TellsAPageThatWasTurnedTo) {
    widget<QTabWidget>().setCurrentIndex(1);
    EXPECT_EQ(told<ShowPage>().page, kSecondPage);
}

TEST_F(DialogWindowTest, TellsATextBeforeWhatIsPressedNext) {
    QTest::keyClicks(&widget<QLineEdit>(), QStringLiteral("17"));
    EXPECT_EQ(toldCount(), 0U);
    click(button("OK"));
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<TypeText>(0).field, kField);
    EXPECT_EQ(told<TypeText>(0).text, "17");
}

TEST_F(DialogWindowTest, TellsATextOnce) {
    QTest::keyClicks(&widget<QLineEdit>(), QStringLiteral("17"));
    QTest::keyClick(&widget<QLineEdit>(), Qt::Key_Tab);
    click(button("Apply"));
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<PressDialogButton>(1).button, DialogButton::Apply);
}

TEST_F(DialogWindowTest, KeepsAHalfTypedTextWhileABoxIsInFront) {
    ASSERT_TRUE(comesToTheFront(window()));
    widget<QLineEdit>().setFocus();
    QTest::keyClicks(&widget<QLineEdit>(), QStringLiteral("17"));
    QMessageBox box(&window());
    box.open();
    ASSERT_TRUE(comesToTheFront(box));
    box.close();
    EXPECT_EQ(toldCount(), 0U);
    click(button("OK"));
    EXPECT_EQ(told<TypeText>().text, "17");
}

TEST_F(DialogWindowTest, ClosingTheWindowAsksForCancelAndLeavesItOpen) {
    window().close();
    EXPECT_EQ(told<PressDialogButton>().button, DialogButton::Cancel);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(DialogWindowTest, ShowsWhatTheGuestHasChangedAndTellsNothing) {
    model(kToggle).value = 1;
    model(kField).text = "last";
    model(kList).items = {"d.x"};
    model(kList).selected = {1};
    model(kRadioBox).value = 2;
    model(kMenu).value = 3;
    refresh();
    EXPECT_TRUE(widget<QCheckBox>().isChecked());
    EXPECT_EQ(widget<QLineEdit>().text(), QStringLiteral("last"));
    EXPECT_EQ(widget<QListWidget>().count(), 1);
    EXPECT_TRUE(widget<QListWidget>().item(0)->isSelected());
    EXPECT_TRUE(window().findChildren<QRadioButton*>().at(1)->isChecked());
    EXPECT_EQ(widget<QComboBox>().currentIndex(), 2);
    EXPECT_EQ(toldCount(), 0U);
}

TEST_F(DialogWindowTest, TakesBackWhatTheGuestDidNotTake) {
    click(widget<QCheckBox>());
    refresh();
    EXPECT_FALSE(widget<QCheckBox>().isChecked());
}

TEST_F(DialogWindowTest, IsAnsweredOnceItShowsWhatCameOfTheLastThingDone) {
    EXPECT_FALSE(window().isAnswered());
    const std::function<void()> deeds[] = {[this] { click(widget<QCheckBox>()); },
                                           [this] { click(button("OK")); },
                                           [this] { widget<QTabWidget>().setCurrentIndex(1); }};
    for (const auto& act : deeds) {
        refresh();
        EXPECT_TRUE(window().isAnswered());
        act();
        EXPECT_FALSE(window().isAnswered());
    }
}

TEST_F(DialogWindowTest, LeavesATextThatIsBeingTyped) {
    QTest::keyClicks(&widget<QLineEdit>(), QStringLiteral("17"));
    model(kField).text = "1";
    refresh();
    EXPECT_EQ(widget<QLineEdit>().text(), QStringLiteral("17"));
}

TEST_F(DialogWindowTest, ShowsControlsThatCameLater) {
    Control later = control(kMenu + 1, ControlKind::Button, "Later", {3001, 1009, 1009, 144});
    later.parent = kSecondPage;
    dialog().controls.push_back(later);
    dialog().tabs->frontPage = kSecondPage;
    refresh();
    EXPECT_NE(namedWidget(window(), QStringLiteral("Later")), nullptr);
}

TEST_F(DialogWindowTest, MovesTheFocusWhereTheGuestWantsIt) {
    dialog().focus = kMenu;
    refresh();
    EXPECT_EQ(window().focusWidget(), &widget<QComboBox>());
    widget<QLineEdit>().setFocus();
    refresh();
    EXPECT_EQ(window().focusWidget(), &widget<QLineEdit>());
}

TEST_F(DialogWindowTest, TabKeyGoesInTheOrderInWhichControlsWereMade) {
    widget<QCheckBox>().setFocus();
    std::vector<const QWidget*> order;
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(window().focusWidget(), Qt::Key_Tab);
        order.push_back(window().focusWidget());
    }
    const QWidget* remove = &button("Remove");
    EXPECT_EQ(order,
              (std::vector<const QWidget*>{remove, &widget<QListWidget>(), &widget<QLineEdit>()}));
}

TEST_F(DialogWindowTest, PlacesControlsInProportionToTheirUnits) {
    const QRect list = widget<QListWidget>().geometry();
    const QRect field = widget<QLineEdit>().geometry();
    EXPECT_NEAR(list.width() / 5003.0, field.width() / 1511.0, 0.001);
    EXPECT_NEAR(list.height() / 599.0, field.height() / 144.0, 0.004);
    EXPECT_NEAR(field.x() / 1009.0, list.width() / 5003.0, 0.001);
}

TEST_F(DialogWindowTest, CutsNoCaption) {
    const auto fits = [](const QWidget& widget) {
        return widget.width() >= widget.sizeHint().width();
    };
    EXPECT_TRUE(fits(widget<QCheckBox>()));
    EXPECT_TRUE(fits(widget<QComboBox>()));
    EXPECT_TRUE(fits(*window().findChildren<QRadioButton*>().at(1)));
    EXPECT_GE(button("Remove").width(),
              button("Remove").fontMetrics().horizontalAdvance(QStringLiteral("Remove")));
}

TEST_F(DialogWindowTest, ShowsAnAmpersandOfACaption) {
    EXPECT_EQ(widget<QCheckBox>().text(), QStringLiteral("Swap && go"));
}

TEST(NameOf, AControlWithoutACaptionIsThatOfTheLabelBesideIt) {
    const Dialog dialog = sampleDialog();
    EXPECT_EQ(nameOf(dialog, dialog.controls[4]), "Name:");
    EXPECT_EQ(nameOf(dialog, dialog.controls[1]), "Swap & go");
    EXPECT_EQ(nameOf(dialog, dialog.controls[6]), "Low");
}

TEST(SpokenNameOf, AFieldIsToldWithTheFrameAroundIt) {
    Dialog dialog = sampleDialog();
    dialog.controls.push_back(
        control(kMenu + 1, ControlKind::Frame, "I-Index", {53, 907, 5003, 307}));
    EXPECT_EQ(spokenNameOf(dialog, dialog.controls[4]), "I-Index, Name:");
    EXPECT_EQ(spokenNameOf(dialog, dialog.controls[1]), "Swap & go");
}

TEST(HintFor, AnUnknownControlIsGeneral) {
    EXPECT_EQ(hintFor("Swap"), QStringLiteral("This can't be used with the present settings."));
    EXPECT_EQ(hintFor("Remove All           "), QStringLiteral("The list is empty."));
}

} // namespace
} // namespace quorvia::host
