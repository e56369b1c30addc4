// Tables as text for a spreadsheet.
#include <algorithm>

#include <QRegularExpression>

#include "desktop/ValuesFixture.h"
#include "desktop/values/FieldTableWindow.h"

namespace quorvia::host {
namespace {

class CopyTest : public ValuesTest {
protected:
    void SetUp() override {
        ValuesTest::SetUp();
        QApplication::clipboard()->setText(QStringLiteral("before"));
    }
    /// Of the density of the first zone.
    FieldTableWindow& openFieldTable(const std::string& size) {
        writeSample({"vortex", "--steps", "1", "--size", size});
        import({"vortex.x", "vortex_t0.00.q"});
        QTreeWidgetItem* zone = treeItem(QStringLiteral("1  vortex_t0.00.q:1"));
        zone->setExpanded(true);
        window().tree().setCurrentItem(zone->child(2));
        choose(QStringLiteral("Show Table of Field"));
        return *dynamic_cast<FieldTableWindow*>(find("fieldTable"));
    }
    static void select(QDialog& window, int firstRow, int lastRow, int firstColumn,
                       int lastColumn) {
        auto& table = *window.findChild<QTableView*>();
        table.selectionModel()->select({table.model()->index(firstRow, firstColumn),
                                        table.model()->index(lastRow, lastColumn)},
                                       QItemSelectionModel::ClearAndSelect);
    }
    static void copyFrom(ValuesWindow& window) {
        clickButton(window, "Copy");
        settle(window);
    }
    /// The numbers in the rows of the text, each row behind the other.
    static std::vector<float> numbersIn(const std::string& text) {
        std::vector<float> numbers;
        for (const QString& number :
             QString::fromStdString(text).trimmed().split(QRegularExpression("[\t\n]")))
            numbers.push_back(number.toFloat());
        return numbers;
    }
};

TEST_F(CopyTest, TakesTheWholeTableWithItsHeadings) {
    importBlanked();
    copyFrom(openHistogram(1, "F1V1", 2));
    EXPECT_EQ(clipboard(), "From\tTo\tValues\n3\t63.5\t10\n63.5\t124\t12\n");
}

TEST_F(CopyTest, TakesWhatIsSelectedAlone) {
    importBlanked();
    IBlankWindow& window = openIBlank(1);
    select(window, 1, 2, 1, 1);
    copyFrom(window);
    EXPECT_EQ(clipboard(), "6\n23\n");
    EXPECT_EQ(window.message(), "Copied: 2 cells");
}

TEST_F(CopyTest, IsDoneByItsKeysAndFromTheContextMenu) {
    importBlanked();
    IBlankWindow& window = openIBlank(2);
    window.activateWindow();
    ASSERT_TRUE(comesToTheFront(window));
    auto& table = *window.findChild<QTableView*>();
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "Value\tPoints\n1\t4\n");
    EXPECT_EQ(table.contextMenuPolicy(), Qt::ActionsContextMenu);
    ASSERT_EQ(table.actions().size(), 1);
    EXPECT_EQ(table.actions().front()->text(), QStringLiteral("&Copy"));
}

TEST_F(CopyTest, ReadsAFieldThatWasNeverOnTheScreen) {
    FieldTableWindow& window = openFieldTable("101x53");
    copyFrom(window);
    const QStringList lines =
        QString::fromStdString(clipboard()).trimmed().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 53 + 1);
    EXPECT_TRUE(QString::fromStdString(clipboard()).startsWith(QLatin1String("\ti 1\ti 2\ti 3\t")));
    std::vector<float> copied;
    for (int j = 0; j < 53; ++j) {
        const QString heading = QStringLiteral("j %1\t").arg(j + 1);
        ASSERT_TRUE(lines[j + 1].startsWith(heading));
        const std::vector<float> row = numbersIn(lines[j + 1].mid(heading.size()).toStdString());
        copied.insert(copied.end(), row.begin(), row.end());
    }
    EXPECT_EQ(copied, values(1, 3));
}

TEST_F(CopyTest, TakesARectangleOfAField) {
    FieldTableWindow& window = openFieldTable("101x53");
    select(window, 50, 51, 98, 100);
    copyFrom(window);
    const std::vector<float> all = values(1, 3);
    EXPECT_EQ(numbersIn(clipboard()),
              (std::vector<float>{all[50 * 101 + 98], all[50 * 101 + 99], all[50 * 101 + 100],
                                  all[51 * 101 + 98], all[51 * 101 + 99], all[51 * 101 + 100]}));
    EXPECT_EQ(std::ranges::count(clipboard(), '\n'), 2);
}

TEST_F(CopyTest, RefusesMoreThanAMillionCells) {
    FieldTableWindow& window = openFieldTable("1013x997");
    clickButton(window, "Copy");
    EXPECT_EQ(window.message(), "1,009,961 cells would be copied, and no more than 1,000,000 "
                                "cells can be at once. Select fewer.");
    EXPECT_EQ(clipboard(), "before");
}

TEST_F(CopyTest, IsCancelled) {
    FieldTableWindow& window = openFieldTable("101x53");
    hold(window);
    clickButton(window, "Copy");
    cancelHeld(window);
    EXPECT_EQ(window.message(), "Cancelled.");
    EXPECT_EQ(clipboard(), "before");
}

} // namespace
} // namespace quorvia::host
