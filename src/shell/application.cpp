// SPDX-License-Identifier: GPL-3.0-or-later
// The running program, and what happens to a failure that nobody caught.
#include "shell/application.h"

#include "platform/desktop/hidden_focus.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "shell/application_icon.h"
#include "shell/document_frame_style.h"

#include <cstdlib>
#include <exception>
#include <iostream>

#include <QMessageBox>
#include <QStyleFactory>
#include <QWindow>

namespace kav {

namespace {

void keepWhatWasTyped() {
    auto* application = qobject_cast<Application*>(QCoreApplication::instance());
    if (application == nullptr) return;
    try {
        emit application->failing();
    } catch (const std::exception&) {
        // The failure that ends the program is the one to tell.
        return;
    }
}

}  // namespace

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments) {
    setApplicationName("kav-compiler");
    setWindowIcon(applicationIcon());
    connect(this, &QGuiApplication::focusWindowChanged, this, passFocusOnFromHidden);
    setStyle(new DocumentFrameStyle);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const Failure& failure) {
        endWithFailure("Run-time error " + std::to_string(failure.number()) + ": " + failure.description());
    } catch (const std::exception& error) {
        endWithFailure(std::string("Unexpected error: ") + error.what());
    }
}

void Application::endWithFailure(const std::string& message) {
    keepWhatWasTyped();
    std::cerr << "kav-compiler: " << message << std::endl;
    QMessageBox box(QMessageBox::Critical, "KAV Compiler", shown(message), QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    std::_Exit(EXIT_FAILURE);
}

}  // namespace kav
