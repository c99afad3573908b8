// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's start-up: its steps in their order.
#include "documents/caption.h"
#include "documents/document_window.h"
#include "documents/text_box.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "shell/date_notices.h"
#include "shell/main_window.h"
#include "shell/start_up_refusal.h"

#include <QAction>
#include <QTimer>

namespace kav {

namespace {

/// Runs one step; a failure leaves with words that say what stands in the way and what to do about it.
template <typename Step>
void refusable(StartUpStage stage, const std::string& path, Step step) {
    try {
        step();
    } catch (const Failure& failure) {
        throw Failure(failure.number(), startUpRefusal(stage, path, failure));
    }
}

}  // namespace

void Compiler::load(const std::string& commandLine) {
    readPreferences();
    sur.start();
    if (preferences_.firstRun) prepareFirstRun();
    removeSaveLeftovers(applicationFolder_.path());
    removeSaveLeftovers(applicationFolder_.project());
    if (commandLine.empty()) {
        openFirstDocument();
    } else {
        openCommandLine(commandLine);
    }
    if (preferences_.easterEggs) showDateNotices();
}

void Compiler::compileOnceUp() {
    QTimer::singleShot(0, menuItem("comp"), &QAction::trigger);
}

void Compiler::readPreferences() {
    const std::string path = applicationFolder_.file("prefs.ini");
    refusable(StartUpStage::ReadPreferences, path, [&] { preferences_ = parsePreferences(readFile(path)); });
    values_.fontName = preferences_.fontName;
    values_.fontSize = preferences_.fontSize;
    values_.usageSeconds = preferences_.usageSeconds;
    showCustomTools();
    cd_.initialFolder = applicationFolder_.project();
    recentFiles_ = RecentFiles(preferences_.recentFiles);
    showRecentFiles();
}

void Compiler::prepareFirstRun() {
    const std::string projects = applicationFolder_.project();
    refusable(StartUpStage::MakeProjectsFolder, projects, [&] { makeFolder(projects); });
    cd_.fileName = applicationFolder_.project("yourfile");
    regist_Click();
}

void Compiler::openCommandLine(const std::string& commandLine) {
    std::string text;
    refusable(StartUpStage::OpenCommandLine, commandLine, [&] { text = readFile(commandLine); });
    settop(commandLine);
    // The window is titled with what the dialog last held, not with the path.
    values_.nextDocumentTitle = cd_.fileName;
    newfile(text);
    activeDocument()->recovery().setOrigin(commandLine);
}

void Compiler::openFirstDocument() {
    if (recentFiles_.visible(1)) {
        openSave_.fil_Click(recentFiles_.item(1));
        return;
    }
    values_.nextDocumentTitle = kUntitled;
    newfile("");
}

void Compiler::showDateNotices() {
    const LocalTime today = platform_.clock.now();
    if (const auto notice = dateNotice(today)) {
        platform_.boxes.show(
            {notice->text, notice->title, BoxIcon::Exclamation, BoxButtons::Ok, BoxAnswer::Ok});
    }
    Doc* document = activeDocument();
    if (isNewYearsDay(today) && values_.openDocuments != 0 && document != nullptr) {
        document->txt().setBytes(std::string(kNewYearGreeting) + document->txt().bytes());
    }
}

void Compiler::showRecentFiles() {
    for (std::size_t slot = 1; slot <= RecentFiles::kCount; ++slot) {
        QAction* item = menuItem("fil", static_cast<int>(slot));
        item->setText(shown(recentFiles_.item(slot)).replace("&", "&&"));
        item->setVisible(recentFiles_.visible(slot));
    }
    menuItem("s_hamnibar")->setVisible(recentFiles_.separatorVisible());
}

void Compiler::showCustomTools() {
    for (int index = 0; index < 3; ++index) {
        const auto& tool = preferences_.customTools[static_cast<std::size_t>(index)];
        QAction* item = menuItem("set1", index);
        item->setText(shown(tool.name).replace("&", "&&"));
        item->setVisible(!tool.name.empty());
    }
}

}  // namespace kav
