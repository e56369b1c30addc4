#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/DesktopStyle.h"
#include "desktop/view/DataSetView.h"

int main(int argc, char** argv) {
    quorvia::host::prepareViews();
    QApplication application(argc, argv);
    QApplication::setStyle(new quorvia::host::DesktopStyle);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
