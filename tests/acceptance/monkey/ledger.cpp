// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the books on documents: what was typed is in a file, or was let go knowingly.
#include "ledger.h"

#include "documents/document_window.h"
#include "documents/text_box.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "shell/main_window.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
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
    if (!withinCommand()) active_ = compiler.activeDocument();
    if (compiler.values().openDocuments != count) {
        lose("the program counts " + std::to_string(compiler.values().openDocuments) +
             " documents where there are " + std::to_string(count));
    }
}

// Then the books may be open.
bool Ledger::withinCommand() const {
    return closing_ || QApplication::activeModalWidget() != nullptr;
}

void Ledger::open(Doc& document) {
    // A document that is met for the first time cannot have been typed into.
    entries_[&document].kept = document.txt().bytes();
    document.installEventFilter(this);
    connect(&document, &QObject::destroyed, this, [this](QObject* gone) { entries_.erase(gone); });
}

void Ledger::audit(const Doc& document, Entry& entry) {
    entry.name = document.caption();
    if (withinCommand()) return;
    const bool letGo = std::exchange(entry.letGo, false);
    const std::string text = document.txt().bytes();
    if (document.isModified() || text == entry.kept) return;
    // The program takes this text for saved.
    if (!letGo && !inAFile(text)) lose(entry.name + " is taken for saved and is not");
    entry.kept = text;
}

void Ledger::letGo() {
    if (!entries_.contains(active_)) return;
    Entry& entry = entries_.at(active_);
    std::cout << entry.name << " is let go" << std::endl;
    entry.letGo = true;
}

bool Ledger::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close || !entries_.contains(watched)) return false;
    close(*qobject_cast<Doc*>(watched), *event);
    return true;
}

void Ledger::close(Doc& document, QEvent& event) {
    Entry& entry = entries_.at(&document);
    const std::string text = document.txt().bytes();
    entry.letGo = false;
    active_ = &document;
    closing_ = true;
    // Only the document itself can tell whether it goes: it is asked here, and judged at once, before the
    // next one can be saved over its file. That it is hidden says nothing, since a document that is brought
    // to the front is hidden and shown, too.
    static_cast<QObject&>(document).event(&event);
    closing_ = false;
    if (!event.isAccepted() || entry.letGo || text == entry.kept || inAFile(text)) return;
    lose(entry.name + " is gone with " + std::to_string(text.size()) + " bytes");
}

void Ledger::lose(const std::string& what) {
    // Among the gestures that led to it.
    std::cout << "LOST: " << what << std::endl;
    losses_.push_back(what);
}

bool Ledger::watches(const std::filesystem::path& file) const {
    return std::ranges::any_of(folders_, [&](const std::filesystem::path& folder) {
        return std::ranges::mismatch(folder, file).in1 == folder.end();
    });
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
