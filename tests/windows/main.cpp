// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the window tests in one application without a display.
#include "shell/document_frame_style.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new kav::DocumentFrameStyle);
    return RUN_ALL_TESTS();
}
