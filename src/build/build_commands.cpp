// SPDX-License-Identifier: GPL-3.0-or-later
// From a document to a calculator program, or to a list of errors.
#include "build/build_commands.h"

#include "build/build_texts.h"
#include "build/build_verdict.h"
#include "build/listing_import.h"
#include "build/program_name.h"
#include "documents/document_window.h"
#include "documents/text_box.h"
#include "platform/batch_file.h"
#include "platform/dos_path.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "shell/preferences_file.h"
#include "shell/trapped.h"
#include "tasks/task_list_window.h"

#include <utility>

namespace kav {

namespace {

std::string statusFile(const ApplicationFolder& folder) {
    return folder.file(std::string(kStatusFileName));
}

std::string listingFile(const ApplicationFolder& folder) {
    return folder.file(std::string(kListingFileName));
}

/// The folder as the batch file names it: its own form on Windows, a drive that holds all elsewhere.
std::string batchFolder(const ApplicationFolder& folder) {
    const bool isDosForm = folder.path().find('/') == std::string::npos;
    return isDosForm ? folder.path() : dosForm(folder.path());
}

}  // namespace

BuildCommands::BuildCommands(Workspace& workspace, std::function<dbgr&()> taskList)
    : workspace_(workspace), taskList_(std::move(taskList)) {
    comptime_.setObjectName("comptime");
    comptime_.setInterval(100);
    QObject::connect(&comptime_, &QTimer::timeout, [this] { comptime_Timer(); });
}

void BuildCommands::comp_Click() {
    trapped(workspace_, "comp_Click", [this] { request(); });
}

void BuildCommands::request() {
    if (workspace_.values().openDocuments == 0) return;
    Doc* document = workspace_.activeDocument();
    if (document == nullptr) return;

    state_.documentNumber = document->caption().at(4);
    state_.lastBuildText = tabPass(macroBlock() + document->txt().bytes());
    workspace_.showStatus(kStatusCompiling);
    const std::string name = askForName(document->Tag);
    document->Tag = name;
    workspace_.cd().fileName = name;
    startBuild(name, *document);
}

std::string BuildCommands::askForName(const std::string& defaultName) {
    InputBox box{kNamePrompt, kNameTitle, defaultName};
    for (;;) {
        std::string answer = workspace_.platform().boxes.ask(box);
        if (fitsProgramName(answer)) return answer;
        box.prompt = kNameTooLongPrompt;
        box.defaultText = shortenedProgramName(answer);
    }
}

void BuildCommands::startBuild(const std::string& name, Doc& document) {
    const ApplicationFolder& folder = workspace_.applicationFolder();
    if (!nameStaysInFolder(name)) throw failureOf(kBadFileName, name);
    built_ = &document;
    document.showErrors({});
    writeFile(statusFile(folder), kStatusRunning);
    writeFile(folder.file(name + ".z80"), buildSource(document.txt().bytes()));
    const std::string script = folder.file(std::string(kBatchFileName));
    writeFile(script, batchFile(batchFolder(folder), name));
    const WindowStyle style =
        workspace_.preferences().showTasm ? WindowStyle::NormalFocus : WindowStyle::Hidden;
    state_.taskId = workspace_.platform().launcher.launch(script, style);
    state_.programName = name;
    comptime_.start();
}

void BuildCommands::comptime_Timer() {
    trapped(workspace_, "comptime_Timer", [this] { poll(); });
}

void BuildCommands::poll() {
    // The timer rests while a verdict is read: should that fail, the reporter comes once and not ten times
    // a second.
    comptime_.stop();
    const Verdict verdict = verdictOf(readFile(statusFile(workspace_.applicationFolder())));
    switch (verdict) {
        case Verdict::Running:
            comptime_.start();
            return;
        case Verdict::Success:
            succeed();
            return;
        case Verdict::Failure:
            fail();
            return;
    }
}

void BuildCommands::succeed() {
    workspace_.showStatus(kStatusSuccess);
    CommonDialog& cd = workspace_.cd();
    const std::string remembered = cd.fileName;
    if (workspace_.preferences().make8xp) saveProgram(kSave8xpTitle, kSave8xpFilter, ".8xp");
    if (workspace_.preferences().make83p) saveProgram(kSave83pTitle, kSave83pFilter, ".83p");
    cd.fileName = remembered;
}

void BuildCommands::saveProgram(const char* title, const char* filter, const std::string& extension) {
    CommonDialog& cd = workspace_.cd();
    cd.cancelError = false;
    cd.title = title;
    cd.filter = filter;
    cd.showSave();
    if (cd.fileName.empty()) return;
    copyFile(workspace_.applicationFolder().file(state_.programName + extension), cd.fileName);
}

void BuildCommands::fail() {
    workspace_.showStatus(kStatusErrors);
    markErrors();
    const BoxAnswer answer =
        workspace_.platform().boxes.show({state_.programName + kErrorsQuestion, kErrorsTitle,
                                          BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes});
    if (answer == BoxAnswer::Yes) importErrors();
    if (answer != BoxAnswer::Cancel) return;
    const std::string viewer = workspace_.platform().environment.variable("windir") + "\\notepad.exe ";
    workspace_.platform().launcher.launch(viewer + listingFile(workspace_.applicationFolder()),
                                          WindowStyle::NormalFocus);
}

/// Marks nothing when the listing cannot be read: that is reported to those who ask for the errors.
void BuildCommands::markErrors() {
    if (built_.isNull()) return;
    try {
        built_->showErrors(listedErrors(readFile(listingFile(workspace_.applicationFolder()))));
    } catch (const Failure&) {
        return;
    }
}

void BuildCommands::importErrors() {
    const std::string listing = readFile(listingFile(workspace_.applicationFolder()));
    dbgr& taskList = taskList_();
    for (const ImportedTask& task : importListing(listing, state_.documentNumber)) {
        taskList.addTask(task.text, task.tag, kTaskErrorColour);
    }
    taskList.showList();
}

}  // namespace kav
