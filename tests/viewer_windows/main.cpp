// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the viewer's window tests in one application without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
