// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the window tests in one application without a display.
#include "shell/document_frame_style.h"

#include <gtest/gtest.h>

#include <QApplication>

/// Read by the leak checker of the sanitizer build: what the toolkit leaves behind when a failure that nobody
/// catches passes through it. The program ends then.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the leak checker's name
extern "C" const char* __lsan_default_suppressions() {
    return "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new kav::DocumentFrameStyle);
    return RUN_ALL_TESTS();
}
