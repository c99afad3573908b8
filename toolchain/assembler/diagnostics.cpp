// SPDX-License-Identifier: GPL-3.0-or-later
// Collects the messages of a pass in the order of the source.
#include "assembler/diagnostics.h"

#include <algorithm>

namespace kav::assembler {

namespace {

constexpr std::size_t kMostRemarks = 1000;  // warnings and notes that are kept

/// A message must stay on one line, whatever the source holds.
std::string onOneLine(std::string text) {
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    }
    return text;
}

}  // namespace

void Diagnostics::clear() {
    entries_.clear();
    errorCount_ = 0;
}

void Diagnostics::add(Severity severity, const Location& where, const std::string& text) {
    const bool included = where.file != where.mainFile;
    const std::string place = included ? *where.file + " line " + std::to_string(where.line) + ": " : "";
    const std::string file = where.mainFile != nullptr ? *where.mainFile : "";
    entries_.push_back({where.order, {severity, file, where.userLine, onOneLine(place + text)}});
}

void Diagnostics::error(const Location& where, const std::string& text) {
    add(Severity::kError, where, text);
    if (++errorCount_ >= maxErrors_) throw PassAbandoned();
}

void Diagnostics::fatal(const Location& where, const std::string& text) {
    add(Severity::kError, where, text);
    ++errorCount_;
    throw PassAbandoned();
}

void Diagnostics::warning(const Location& where, const std::string& text) {
    if (entries_.size() < kMostRemarks + errorCount_) add(Severity::kWarning, where, text);
}

void Diagnostics::note(const Location& where, const std::string& text) {
    if (entries_.size() < kMostRemarks + errorCount_) add(Severity::kNote, where, text);
}

std::vector<Message> Diagnostics::sorted() const {
    std::vector<Entry> ordered = entries_;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const Entry& a, const Entry& b) { return a.order < b.order; });
    std::vector<Message> messages;
    messages.reserve(ordered.size());
    for (Entry& entry : ordered)
        messages.push_back(std::move(entry.message));
    return messages;
}

}  // namespace kav::assembler
