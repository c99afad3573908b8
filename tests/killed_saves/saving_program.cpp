// SPDX-License-Identifier: GPL-3.0-or-later
// saving_program FOLDER FIRST: starts the program's own main window in the application folder FOLDER, where
// the most recent document opens, and changes and saves that without end: numbered texts from FIRST on.
// Prints the number of each text as soon as its copy is kept.
#include "documents/document_window.h"
#include "documents/text_box.h"
#include "killed_saves/numbered_text.h"
#include "shell/document_frame_style.h"
#include "shell/main_window.h"
#include "support/scripted_platform.h"

#include <cstdlib>
#include <iostream>

#include <QAction>
#include <QApplication>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: saving_program FOLDER FIRST\n";
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(new kav::DocumentFrameStyle);
    kav::test::ScriptedPlatform desktop;
    kav::Compiler compiler(desktop.platform(), kav::ApplicationFolder(arguments[1]));
    compiler.show();
    compiler.load({});
    for (int number = std::atoi(arguments[2]);; ++number) {
        compiler.activeDocument()->txt().setBytes(kav::test::numberedText(number));
        compiler.keepCopies();
        std::cout << number << std::endl;
        compiler.menuItem("svenotas")->trigger();
        // The preferences, as at an end that the system asks for.
        compiler.values().usageSeconds = number;
        compiler.endUnasked();
    }
}
