// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's file dialog.
#include "platform/desktop/desktop_file_chooser.h"

#include "platform/desktop/dialog_owner.h"
#include "platform/desktop/text_conversion.h"
#include "platform/dialog_filter.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QTreeView>

namespace kav {

namespace {

/// The patterns of a filter such as "Asm (*.asm *.inc)".
QStringList patternsOf(const QString& nameFilter) {
    const qsizetype open = nameFilter.lastIndexOf('(');
    return nameFilter.mid(open + 1).chopped(1).split(' ');
}

QStringList nameFiltersOf(const std::string& filter) {
    QStringList nameFilters;
    for (const DialogFilter& entry : parseFilter(filter)) {
        QStringList patterns;
        // "*.*" means every file here, with or without a dot.
        for (const std::string& pattern : entry.patterns)
            patterns << (pattern == "*.*" ? "*" : shown(pattern));
        // The captions name their patterns already; the dialog shows them behind the caption once.
        const QString caption = shown(entry.caption).section('(', 0, 0).trimmed();
        nameFilters << caption + " (" + patterns.join(' ') + ")";
    }
    return nameFilters;
}

/// The ending that a name gets which is typed without one.
QString suffixOf(const QString& nameFilter) {
    const QString first = patternsOf(nameFilter).value(0);
    return first.startsWith("*.") ? first.mid(2) : QString();
}

void presetName(QFileDialog& dialog, const FileQuestion& question) {
    const QString preset = pathString(question.fileName);
    const QFileInfo info(preset);
    if (info.isAbsolute() && info.dir().exists()) dialog.setDirectory(info.dir());
    if (!info.fileName().isEmpty()) dialog.selectFile(info.fileName());
}

/// Sizes, types and dates stand there whole; names get the room that is left.
void showDetails(QFileDialog& dialog) {
    dialog.resize(720, 420);
    const auto* list = dialog.findChild<QTreeView*>("treeView");
    if (list == nullptr) return;
    QHeaderView& columns = *list->header();
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setSectionResizeMode(0, QHeaderView::Stretch);
}

}  // namespace

std::optional<std::string> DesktopFileChooser::choose(const FileQuestion& question) {
    QFileDialog dialog(dialogOwner());
    dialog.setObjectName("CommonDialog");
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setWindowTitle(shown(question.title));
    const bool saves = question.kind == FileQuestion::Kind::Save;
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDirectory(pathString(question.initialFolder));
    const QStringList nameFilters = nameFiltersOf(question.filter);
    dialog.setNameFilters(nameFilters);
    presetName(dialog, question);
    showDetails(dialog);
    if (saves && !nameFilters.isEmpty()) {
        dialog.setDefaultSuffix(suffixOf(nameFilters.first()));
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                         [&dialog](const QString& chosen) { dialog.setDefaultSuffix(suffixOf(chosen)); });
    }
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return pathBytes(dialog.selectedFiles().value(0));
}

}  // namespace kav
