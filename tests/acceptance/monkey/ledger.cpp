// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the books on documents: what was typed is in a file, or was let go knowingly.
#include "ledger.h"

#include "documents/document_window.h"
#include "documents/text_box.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "shell/main_window.h"

#include <cstdint>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>

namespace kav::test {

namespace {

/// True for a saved file, which ends in one line end more than its text, and for the copy of an unsaved text,
/// which is the text itself.
bool holds(const std::filesystem::directory_entry& file, const std::string& text) {
    std::error_code gone;
    const std::uintmax_t size = file.file_size(gone);
    if (size != text.size() && size != text.size() + 2) return false;
    try {
        const std::string content = readFile(file.path().string());
        return content == text || content == text + "\r\n";
    } catch (const Failure&) {
        // The program removes copies of unsaved texts while this looks.
        return false;
    }
}

}  // namespace

void Ledger::look(Compiler& compiler) {
    int count = 0;
    for (QMdiSubWindow* window : compiler.findChild<QMdiArea*>("documents")->subWindowList()) {
        auto* document = qobject_cast<Doc*>(window);
        if (document == nullptr) continue;
        // What is closed is hidden before it is gone.
        if (!document->isHidden()) ++count;
        if (!entries_.contains(document)) open(*document);
        if (!document->isHidden()) audit(*document, entries_.at(document));
    }
    // While a dialog asks, the document that it asks about stays the same.
    if (QApplication::activeModalWidget() == nullptr) active_ = compiler.activeDocument();
    if (compiler.values().openDocuments != count) {
        losses_.push_back("the program counts " + std::to_string(compiler.values().openDocuments) +
                          " documents where there are " + std::to_string(count));
    }
}

void Ledger::open(Doc& document) {
    // A document that is met for the first time cannot have been typed into.
    entries_[&document].kept = document.txt().bytes();
    document.installEventFilter(this);
    connect(&document, &QObject::destroyed, this, [this](QObject* gone) { entries_.erase(gone); });
}

void Ledger::audit(const Doc& document, Entry& entry) {
    entry.name = document.caption();
    entry.text = document.txt().bytes();
    // Within a command the books may be open.
    if (QApplication::activeModalWidget() != nullptr) return;
    entry.closing = false;
    const bool letGo = std::exchange(entry.letGo, false);
    if (document.isModified() || entry.text == entry.kept) return;
    // The program takes this text for saved.
    if (!letGo && !inAFile(entry.text)) losses_.push_back(entry.name + " is taken for saved and is not");
    entry.kept = entry.text;
}

void Ledger::letGo() {
    if (entries_.contains(active_)) entries_.at(active_).letGo = true;
}

bool Ledger::eventFilter(QObject* watched, QEvent* event) {
    const auto known = entries_.find(watched);
    if (known == entries_.end()) return false;
    Entry& entry = known->second;
    if (event->type() == QEvent::Close) {
        entry.text = qobject_cast<Doc*>(watched)->txt().bytes();
        entry.letGo = false;
        entry.closing = true;
        active_ = watched;
    } else if (event->type() == QEvent::Hide && entry.closing) {
        judge(entry);
    }
    return false;
}

void Ledger::judge(const Entry& entry) {
    if (entry.letGo || entry.text == entry.kept || inAFile(entry.text)) return;
    losses_.push_back(entry.name + " is gone with " + std::to_string(entry.text.size()) + " bytes");
}

bool Ledger::inAFile(const std::string& text) const {
    for (const std::filesystem::path& folder : folders_) {
        for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
            std::error_code gone;
            if (file.is_regular_file(gone) && holds(file, text)) return true;
        }
    }
    return false;
}

}  // namespace kav::test
