// SPDX-License-Identifier: GPL-3.0-or-later
// The window for a file: the help's for a help file, the listing's for any other.
#include "viewer/viewer_window.h"

#include "platform/desktop/text_conversion.h"
#include "runtime/files.h"
#include "viewer/help_book.h"
#include "viewer/help_window.h"
#include "viewer/listing_window.h"

namespace kav::viewer {

std::unique_ptr<QWidget> windowFor(const QString& path) {
    const std::string content = readFile(pathBytes(path));
    if (HelpBook::isBook(content)) return std::make_unique<HelpWindow>(content);
    return std::make_unique<ListingWindow>(path, content);
}

QString cannotShow(const QString& path, const QString& reason) {
    QString text = QString("The file cannot be shown: %1.").arg(reason);
    if (path.endsWith(".hlp", Qt::CaseInsensitive)) {
        return text +
               "\n\nThe help file stands in the folder of KAV Compiler. "
               "Installing the program again brings it back.";
    }
    if (path.endsWith("temp.lst", Qt::CaseInsensitive)) {
        return text + "\n\nA build writes the listing. Compile once more (Ctrl+L).";
    }
    return text;
}

}  // namespace kav::viewer
