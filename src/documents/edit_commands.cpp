// SPDX-License-Identifier: GPL-3.0-or-later
// The Edit menu's commands on the active document.
#include "documents/edit_commands.h"

#include "documents/document_window.h"
#include "documents/edit_operations.h"
#include "documents/optimizer.h"
#include "documents/text_box.h"
#include "shell/trapped.h"

namespace kav {

Doc* EditCommands::openDocument() const {
    return workspace_.values().openDocuments == 0 ? nullptr : workspace_.activeDocument();
}

void EditCommands::cut_Click() {
    trapped(workspace_, "cut_Click", [this] {
        const Doc* document = openDocument();
        if (document == nullptr) return;
        copySelection(*document);
        document->txt().replaceSelection({});
    });
}

void EditCommands::cpy_Click() {
    trapped(workspace_, "cpy_Click", [this] {
        if (const Doc* document = openDocument()) copySelection(*document);
    });
}

void EditCommands::pste_Click() {
    trapped(workspace_, "pste_Click", [this] {
        // The one command that does not ask how many documents are open.
        const Doc* document = workspace_.activeDocument();
        if (document == nullptr) return;
        document->txt().replaceSelection(workspace_.platform().clipboard.text());
    });
}

void EditCommands::dlll_Click() {
    trapped(workspace_, "dlll_Click", [this] {
        if (const Doc* document = openDocument()) deleteSelection(*document);
    });
}

void EditCommands::slall_Click() {
    trapped(workspace_, "slall_Click", [this] {
        const Doc* document = openDocument();
        if (document == nullptr) return;
        document->txt().setSelStart(0);
        document->txt().setSelLength(document->txt().byteLength());
    });
}

void EditCommands::ocode_Click() {
    trapped(workspace_, "ocode_Click", [this] {
        if (const Doc* document = openDocument()) optimize(*document);
    });
}

void EditCommands::copySelection(const Doc& document) const {
    Clipboard& clipboard = workspace_.platform().clipboard;
    clipboard.clear();
    clipboard.setText(document.txt().selText());
}

void EditCommands::deleteSelection(const Doc& document) const {
    TextBox& txt = document.txt();
    const Selection deleted = deletedSelection(txt.bytes(), {txt.selStart(), txt.selLength()});
    // At the end of the text there is nothing to delete, and the document stays as it is.
    if (deleted.length == 0) return;
    txt.setSelStart(deleted.start);
    txt.setSelLength(deleted.length);
    txt.replaceSelection({});
}

void EditCommands::optimize(const Doc& document) const {
    const std::string code = document.txt().bytes();
    const BoxAnswer answer =
        workspace_.platform().boxes.show({std::string(kOptimizeText), std::string(kOptimizeTitle),
                                          BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::Yes});
    if (answer == BoxAnswer::No) return;
    document.txt().setBytes(optimizedCode(code));
}

}  // namespace kav
