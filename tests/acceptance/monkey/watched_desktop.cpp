// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's boxes and file dialog, with an ear on what the user answers.
#include "watched_desktop.h"

#include "ledger.h"

namespace kav::test {

BoxAnswer WatchedBoxes::show(const MessageBox& box) {
    const BoxAnswer answer = DesktopBoxes::show(box);
    if (box.title == "Save changes? - KAV Compiler" && answer == BoxAnswer::No) ledger_.letGo();
    // A save that could not be made was reported; the user saw it.
    if (box.title == "Non Fatal Error - KAV Compiler") ledger_.letGo();
    return answer;
}

std::string WatchedBoxes::ask(const InputBox& box) {
    std::string answer = DesktopBoxes::ask(box);
    if (box.title == "Save to projects folder - KAV Compiler" && answer.empty()) ledger_.letGo();
    return answer;
}

std::optional<std::string> WatchedFileChooser::choose(const FileQuestion& question) {
    auto path = DesktopFileChooser::choose(question);
    // A click meant for something else may have led the dialog away; there the monkey touches nothing.
    if (path && !ledger_.watches(*path)) path.reset();
    if (!path && question.kind == FileQuestion::Kind::Save) ledger_.letGo();
    return path;
}

}  // namespace kav::test
