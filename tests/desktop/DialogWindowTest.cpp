// A window of a dialog that no guest stands behind: what it shows, and what it tells.
#include "desktop/dialog/DialogWindow.h"

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

#include "desktop/Patience.h"
#include "desktop/Person.h"
#include "desktop/dialog/ControlNames.h"

namespace quorvia::host {
namespace {

enum Id_e : std::int32_t {
    dialogId = 1,
    tabsId,
    firstPageId,
    secondPageId,
    labelId,
    toggleId,
    buttonId,
    listId,
    fieldId,
    radioBoxId,
    menuId
};

void nothing() {}

Control_s control(std::int32_t id, ControlKind_e kind, const char* caption, Geometry_s geometry) {
    Control_s made;
    made.id = id;
    made.parent = firstPageId;
    made.kind = kind;
    made.caption = caption;
    made.geometry = geometry;
    return made;
}

/// One of each kind on the first of two pages.
Dialog_s sampleDialog() {
    Dialog_s dialog;
    dialog.id = dialogId;
    dialog.width = 6007;
    dialog.height = 2503;
    dialog.title = "Sample";
    dialog.ok = dialog.apply = dialog.cancel = dialog.help = nothing;
    dialog.open = true;
    dialog.tabs = TabControl_s{tabsId, {101, 211, 5801, 2203}, {}, firstPageId, nullptr, nullptr};
    dialog.tabs->pages = {{firstPageId, "First"}, {secondPageId, "Second"}};
    dialog.controls = {
        control(labelId, ControlKind_e::Label, "Name:", {101, 1009, 0, 0}),
        control(toggleId, ControlKind_e::Toggle, "Swap & go", {101, 103, 2003, 121}),
        control(buttonId, ControlKind_e::Button, "Remove   ", {3001, 103, 1009, 144}),
        control(listId, ControlKind_e::List, "", {101, 307, 5003, 599}),
        control(fieldId, ControlKind_e::TextField, "", {1009, 1009, 1511, 144}),
        control(radioBoxId, ControlKind_e::RadioBox, "", {101, 1303, 1511, 307}),
        control(menuId, ControlKind_e::OptionMenu, "", {3001, 1303, 1511, 144})};
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

    Dialog_s& dialog() { return dialog_; }
    Control_s& model(std::int32_t id) { return *findOf(id); }
    DialogWindow& window() { return window_; }
    void refresh() { window_.refresh(dialog_); }
    template <typename Widget>
    Widget& widget() {
        return *window_.findChild<Widget*>();
    }
    QPushButton& button(const char* text) {
        return *qobject_cast<QPushButton*>(namedWidget(window_, QLatin1String(text)));
    }
    std::size_t toldCount() const { return told_.size(); }
    template <typename Action>
    Action told(std::size_t place = 0) const {
        return std::get<Action>(told_.at(place));
    }

private:
    Control_s* findOf(std::int32_t id) {
        for (Control_s& each : dialog_.controls)
            if (each.id == id)
                return &each;
        return nullptr;
    }

    Dialog_s dialog_ = sampleDialog();
    std::vector<DialogAction> told_;
    DialogWindow window_;
};

TEST_F(DialogWindowTest, TellsAToggle) {
    click(widget<QCheckBox>());
    EXPECT_EQ(told<SetToggle_s>().toggle, toggleId);
    EXPECT_TRUE(told<SetToggle_s>().on);
}

TEST_F(DialogWindowTest, SpaceTurnsAToggle) {
    QTest::keyClick(&widget<QCheckBox>(), Qt::Key_Space);
    EXPECT_TRUE(told<SetToggle_s>().on);
}

TEST_F(DialogWindowTest, TellsAButtonOfThePage) {
    click(button("Remove"));
    EXPECT_EQ(told<PressButton_s>().button, buttonId);
}

TEST_F(DialogWindowTest, TellsEveryButtonAtItsFoot) {
    for (const char* text : {"OK", "Apply", "Cancel", "Help"})
        click(button(text));
    ASSERT_EQ(toldCount(), 4U);
    EXPECT_EQ(told<PressDialogButton_s>(0).button, DialogButton_e::Ok);
    EXPECT_EQ(told<PressDialogButton_s>(1).button, DialogButton_e::Apply);
    EXPECT_EQ(told<PressDialogButton_s>(2).button, DialogButton_e::Cancel);
    EXPECT_EQ(told<PressDialogButton_s>(3).button, DialogButton_e::Help);
}

TEST_F(DialogWindowTest, ButtonsWithoutACallbackAreNotThere) {
    Dialog_s bare = sampleDialog();
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
    EXPECT_EQ(told<SelectItems_s>(1).list, listId);
    EXPECT_EQ(told<SelectItems_s>(1).positions, (std::vector<std::int32_t>{1, 3}));
}

TEST_F(DialogWindowTest, TellsTheItemsOfRadioBoxAndMenuFromOne) {
    click(*window().findChildren<QRadioButton*>().at(1));
    QTest::keyClick(&widget<QComboBox>(), Qt::Key_Down);
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<ChooseItem_s>(0).control, radioBoxId);
    EXPECT_EQ(told<ChooseItem_s>(0).item, 2);
    EXPECT_EQ(told<ChooseItem_s>(1).control, menuId);
    EXPECT_EQ(told<ChooseItem_s>(1).item, 2);
}

TEST_F(DialogWindowTest, TellsAPageThatWasTurnedTo) {
    widget<QTabWidget>().setCurrentIndex(1);
    EXPECT_EQ(told<ShowPage_s>().page, secondPageId);
}

TEST_F(DialogWindowTest, TellsATextBeforeWhatIsPressedNext) {
    QTest::keyClicks(&widget<QLineEdit>(), QStringLiteral("17"));
    EXPECT_EQ(toldCount(), 0U);
    click(button("OK"));
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<TypeText_s>(0).field, fieldId);
    EXPECT_EQ(told<TypeText_s>(0).text, "17");
}

TEST_F(DialogWindowTest, TellsATextOnce) {
    QTest::keyClicks(&widget<QLineEdit>(), QStringLiteral("17"));
    QTest::keyClick(&widget<QLineEdit>(), Qt::Key_Tab);
    click(button("Apply"));
    ASSERT_EQ(toldCount(), 2U);
    EXPECT_EQ(told<PressDialogButton_s>(1).button, DialogButton_e::Apply);
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
    EXPECT_EQ(told<TypeText_s>().text, "17");
}

TEST_F(DialogWindowTest, ClosingTheWindowAsksForCancelAndLeavesItOpen) {
    window().close();
    EXPECT_EQ(told<PressDialogButton_s>().button, DialogButton_e::Cancel);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(DialogWindowTest, ShowsWhatTheGuestHasChangedAndTellsNothing) {
    model(toggleId).value = 1;
    model(fieldId).text = "last";
    model(listId).items = {"d.x"};
    model(listId).selected = {1};
    model(radioBoxId).value = 2;
    model(menuId).value = 3;
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
    model(fieldId).text = "1";
    refresh();
    EXPECT_EQ(widget<QLineEdit>().text(), QStringLiteral("17"));
}

TEST_F(DialogWindowTest, ShowsControlsThatCameLater) {
    Control_s later = control(menuId + 1, ControlKind_e::Button, "Later", {3001, 1009, 1009, 144});
    later.parent = secondPageId;
    dialog().controls.push_back(later);
    dialog().tabs->frontPage = secondPageId;
    refresh();
    EXPECT_NE(namedWidget(window(), QStringLiteral("Later")), nullptr);
}

TEST_F(DialogWindowTest, MovesTheFocusWhereTheGuestWantsIt) {
    dialog().focus = menuId;
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
    const Dialog_s dialog = sampleDialog();
    EXPECT_EQ(nameOf(dialog, dialog.controls[4]), "Name:");
    EXPECT_EQ(nameOf(dialog, dialog.controls[1]), "Swap & go");
    EXPECT_EQ(nameOf(dialog, dialog.controls[6]), "Low");
}

TEST(SpokenNameOf, AFieldIsToldWithTheFrameAroundIt) {
    Dialog_s dialog = sampleDialog();
    dialog.controls.push_back(
        control(menuId + 1, ControlKind_e::Frame, "I-Index", {53, 907, 5003, 307}));
    EXPECT_EQ(spokenNameOf(dialog, dialog.controls[4]), "I-Index, Name:");
    EXPECT_EQ(spokenNameOf(dialog, dialog.controls[1]), "Swap & go");
}

TEST(HintFor, AnUnknownControlIsGeneral) {
    EXPECT_EQ(hintFor("Swap"), QStringLiteral("This can't be used with the present settings."));
    EXPECT_EQ(hintFor("Remove All           "), QStringLiteral("The list is empty."));
}

} // namespace
} // namespace quorvia::host
