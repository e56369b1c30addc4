// Keys of menus and of what stands beside the tree: each means one thing.
#include <map>

#include <gtest/gtest.h>

#include <QLabel>
#include <QMenuBar>

#include "desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

class MenuKeysTest : public DesktopTest {};

using Keys = std::map<QString, QStringList>; // to what they stand for

QStringList meaningMore(const Keys& keys) {
    QStringList told;
    for (const auto& [key, meanings] : keys)
        if (!key.isEmpty() && meanings.size() > 1)
            told.append(key + QStringLiteral(": ") + meanings.join(QStringLiteral(", ")));
    return told;
}

TEST_F(MenuKeysTest, NoShortcutHasTwoMeanings) {
    Keys keys;
    for (const QAction* action : window().findChildren<QAction*>())
        keys[action->shortcut().toString()].append(action->text());
    EXPECT_GT(keys.size(), 5U);
    EXPECT_EQ(meaningMore(keys), QStringList());
}

TEST_F(MenuKeysTest, NoLetterOfAMenuHasTwoMeanings) {
    for (const QMenu* menu : window().menuBar()->findChildren<QMenu*>()) {
        Keys keys;
        for (const QAction* entry : menu->actions())
            keys[QKeySequence::mnemonic(entry->text()).toString()].append(entry->text());
        EXPECT_EQ(meaningMore(keys), QStringList()) << menu->title().toStdString();
    }
}

TEST_F(MenuKeysTest, NoLetterOfTheWindowHasTwoMeanings) {
    Keys keys;
    for (const QAction* menu : window().menuBar()->actions())
        keys[QKeySequence::mnemonic(menu->text()).toString()].append(menu->text());
    for (const QLabel* label : window().findChildren<QLabel*>())
        if (label->buddy() != nullptr)
            keys[QKeySequence::mnemonic(label->text()).toString()].append(label->text());
    EXPECT_EQ(meaningMore(keys), QStringList());
}

} // namespace
} // namespace quorvia::host
