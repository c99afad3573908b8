// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the application and ends it on a failure that nobody caught.
#include "platform/desktop/desktop_boxes.h"
#include "platform/desktop/desktop_environment.h"
#include "platform/desktop/desktop_file_chooser.h"
#include "platform/desktop/desktop_services.h"
#include "platform/native_services.h"
#include "platform/published_class.h"
#include "runtime/failure.h"
#include "shell/application.h"
#include "shell/main_window.h"

#include <exception>
#include <string>

namespace {

/// The whole command line behind the program's name: one path, blanks and all.
std::string commandLineOf(int argumentCount, char** arguments) {
    std::string line;
    for (int i = 1; i < argumentCount; ++i) {
        if (i > 1) line += ' ';
        line += arguments[i];
    }
    return line;
}

/// Whether the desktop's "Compile" has started the program. Programs that are started from here are not asked
/// the same.
bool takeCompileRequest() {
    const bool requested = qgetenv(kav::kCompileVariable) == "1";
    qunsetenv(kav::kCompileVariable);
    return requested;
}

kav::ApplicationFolder applicationFolder() {
    try {
        return kav::usersApplicationFolder();
    } catch (const kav::Failure& failure) {
        kav::Application::endWithFailure(failure.description());
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const bool compile = takeCompileRequest();
    // The toolkit takes its own options out of the line first.
    kav::Application application(argumentCount, arguments);
    const kav::ApplicationFolder folder = applicationFolder();
    const kav::NativeServices native = kav::nativeServices(folder);
    kav::DesktopBoxes boxes;
    kav::DesktopFileChooser fileChooser;
    kav::DesktopClipboard clipboard;
    kav::SystemClock clock;
    kav::SeededRandomNumbers random;
    kav::DesktopEnvironment environment;
    try {
        kav::Compiler compiler(
            {boxes, fileChooser, *native.launcher, clipboard, clock, random, environment, *native.registry},
            folder);
        QObject::connect(&application, &kav::Application::failing, &compiler, &kav::Compiler::keepCopies);
        QObject::connect(&application, &QGuiApplication::commitDataRequest, &compiler,
                         &kav::Compiler::keepCopies, Qt::DirectConnection);
        compiler.show();
        compiler.load(commandLineOf(argumentCount, arguments));
        if (compile) compiler.compileOnceUp();
        const kav::EndWatch endWatch = kav::watchForEnd([&compiler] { compiler.endUnasked(); });
        return kav::Application::exec();
    } catch (const kav::Failure& failure) {
        kav::Application::endWithFailure(failure.description());
    } catch (const std::exception& error) {
        kav::Application::endWithFailure(std::string("Unexpected error: ") + error.what());
    }
}
