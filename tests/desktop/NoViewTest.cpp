// The window of a program that was built without the scene.
#include <gtest/gtest.h>

#include <QLabel>

#include "desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

class NoViewTest : public DesktopTest {};

TEST_F(NoViewTest, WindowSaysThatThereIsNone) {
    const auto* text = window().view().findChild<QLabel*>(QStringLiteral("viewMessage"));
    EXPECT_TRUE(text->text().contains(QLatin1String("built without the view")));
    EXPECT_TRUE(text->isVisible());
}

} // namespace
} // namespace quorvia::host
