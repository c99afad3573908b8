// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that move a document's text between its window and a file.
#include "documents/open_save_commands.h"

#include "documents/caption.h"
#include "documents/dialog_filters.h"
#include "documents/document_window.h"
#include "documents/text_box.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "runtime/lines.h"
#include "shell/trapped.h"

namespace kav {

namespace {

/// Writes the document's text, which needs no copy then. What could not be written stays marked as modified,
/// so that closing asks.
void writeText(const std::string& path, Doc& document) {
    try {
        saveFile(path, document.txt().bytes().append(kCrLf));
        document.recovery().textIsSafe();
        removeSaveLeftovers(folderOf(path));
    } catch (const Failure&) {
        document.txt().Tag = "1";
        throw;
    }
}

}  // namespace

void OpenSaveCommands::load_Click() {
    trapped(workspace_, "load_Click", [this] {
        CommonDialog& cd = workspace_.cd();
        cd.cancelError = true;
        cd.title = kOpenTitle;
        cd.filter = kOpenFilter;
        cd.showOpen();
        open(cd.fileName);
    });
}

void OpenSaveCommands::openFile(const std::string& path) {
    trapped(workspace_, "load_Click", [&] { open(path); });
}

void OpenSaveCommands::open(const std::string& path) {
    const std::string text = readFile(path);
    workspace_.settop(path);
    workspace_.values().nextDocumentTitle = path;
    workspace_.newfile(text);
}

void OpenSaveCommands::fil_Click(std::string path) {
    trapped(workspace_, "fil_Click", [&] { open(path); });
}

void OpenSaveCommands::svenotas_Click() {
    trapped(workspace_, "svenota", [this] { save(); });
}

void OpenSaveCommands::sve_Click() {
    trapped(workspace_, "sve_Click", [this] { saveAs(); });
}

void OpenSaveCommands::stpf_Click() {
    trapped(workspace_, "stpf_Click", [this] { saveToProjects(); });
}

void OpenSaveCommands::save() {
    Doc* document = workspace_.activeDocument();
    if (workspace_.values().openDocuments < 1 || document == nullptr) return;
    document->txt().Tag = "0";
    const std::string name = captionName(document->caption());
    if (name == kUntitled) {
        sve_Click();
        return;
    }
    writeText(name, *document);
}

void OpenSaveCommands::saveAs() {
    Doc* document = workspace_.activeDocument();
    if (workspace_.values().openDocuments == 0 || document == nullptr) return;
    CommonDialog& cd = workspace_.cd();
    cd.cancelError = true;
    cd.title = std::string(kSaveAsTitle) + captionName(document->caption());
    cd.filter = kSaveAsFilter;
    cd.showSave();
    writeText(cd.fileName, *document);
    workspace_.settop(cd.fileName);
    document->setCaption(captionWithName(document->caption(), cd.fileName));
}

void OpenSaveCommands::saveToProjects() {
    Doc* document = workspace_.activeDocument();
    if (workspace_.values().openDocuments < 1 || document == nullptr) return;
    document->txt().Tag = "0";
    const std::string name = workspace_.platform().boxes.ask(
        {"Enter name for this file in the projects folder", "Save to projects folder - KAV Compiler", ""});
    if (name.empty()) return;
    const std::string path = workspace_.applicationFolder().project(name + ".kvf");
    workspace_.settop(path);
    writeText(path, *document);
}

}  // namespace kav
