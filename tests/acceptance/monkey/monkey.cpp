// SPDX-License-Identifier: GPL-3.0-or-later
// A user without a plan: its rhythm, and what it does with which window.
#include "monkey.h"

#include "shell/main_window.h"

#include <array>
#include <iostream>

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QWindow>

namespace kav::test {

namespace {

constexpr int kStepMilliseconds = 4;

/// What names the user gives: good ones, too long ones, and ones that programs trip over.
constexpr std::array<std::string_view, 12> kNames{
    "game",  "a", "GAME2", "sprite1", "much too long a name", "8bytes12", "two words", "&touch",
    "a.z80", "'", "..",    "x/y"};

/// Files that stand in the projects folder from the beginning, and some that do not.
constexpr std::array<std::string_view, 7> kFiles{"hello.z80", "bytes.txt",   "empty.kvf", "long.asm",
                                                 "game.kvf",  "missing.kvf", "a.kvf"};

/// Whether the list shows a file that is there no more: opening it would end the program.
bool showsMissingFile(const QWidget& window, const std::string& folder) {
    const auto* files = window.findChild<QListWidget*>("files");
    if (files == nullptr) return false;
    for (int row = 0; row < files->count(); ++row) {
        if (!QFileInfo::exists(QString::fromStdString(folder) + "/" + files->item(row)->text())) return true;
    }
    return false;
}

}  // namespace

Monkey::Monkey(Compiler& compiler, Ledger& ledger, unsigned seed, int seconds)
    : compiler_(compiler), ledger_(ledger), random_(seed), end_(qint64{seconds} * 1000) {
    timer_.setInterval(kStepMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &Monkey::tick);
}

void Monkey::start() {
    elapsed_.start();
    timer_.start();
}

std::size_t Monkey::below(std::size_t limit) {
    return random_() % limit;
}

QPoint Monkey::placeIn(const QRect& area) {
    const auto along = [this](int length) {
        return length < 1 ? 0 : static_cast<int>(below(static_cast<std::size_t>(length)));
    };
    return area.topLeft() + QPoint(along(area.width()), along(area.height()));
}

void Monkey::say(const std::string& what) {
    const QWidget* window = QApplication::activeWindow();
    const std::string title = window == nullptr ? "no window" : window->windowTitle().toStdString();
    std::cout << elapsed_.elapsed() << " [" << title << "] " << what << std::endl;
}

void Monkey::tick() {
    ledger_.look(compiler_);
    if (elapsed_.elapsed() < waitUntil_) return;
    if (steps_.empty()) plan();
    if (steps_.empty()) return;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    step();
}

void Monkey::plan() {
    if (QWidget* popup = QApplication::activePopupWidget()) return planInPopup(*popup);
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) window = QApplication::activeWindow();
    if (window == nullptr) window = &compiler_;
    // What the display does not show yet gets no clicks.
    if (window->windowHandle() == nullptr || !window->windowHandle()->isExposed()) return wait(20);
    if (!window->isActiveWindow()) return click(*window, {5, 5});
    if (auto* box = qobject_cast<QMessageBox*>(window)) return planInMessageBox(*box);
    if (auto* dialog = qobject_cast<QFileDialog*>(window)) return planInFileDialog(*dialog);
    if (auto* box = qobject_cast<QInputDialog*>(window)) return planInInputBox(*box);
    if (elapsed_.elapsed() > end_) return planFarewell();
    if (showsMissingFile(*window, compiler_.applicationFolder().project())) return key("alt+F4");
    planInWindow(*window);
}

void Monkey::planFarewell() {
    key("alt+F4");
    wait(100);
}

void Monkey::planInPopup(QWidget& popup) {
    if (auto* menu = qobject_cast<QMenu*>(&popup)) return planInMenu(*menu);
    key(chance(50) ? "Escape" : "Return");
}

void Monkey::planInMenu(QMenu& menu) {
    if (chance(20)) return key("Escape");
    QList<QAction*> entries;
    for (QAction* entry : menu.actions()) {
        // Leaving is for the end.
        if (entry->isVisible() && !entry->isSeparator() && entry->objectName() != "bye") entries << entry;
    }
    if (entries.isEmpty()) return key("Escape");
    const QAction* entry = entries[static_cast<qsizetype>(below(static_cast<std::size_t>(entries.size())))];
    say("menu entry '" + entry->text().toStdString() + "'");
    click(menu, menu.actionGeometry(const_cast<QAction*>(entry)).center());
}

void Monkey::planInMessageBox(QMessageBox& box) {
    QList<QAbstractButton*> buttons;
    for (QAbstractButton* button : box.buttons()) {
        if (box.standardButton(button) != QMessageBox::Abort) buttons << button;
    }
    const QAbstractButton* button =
        buttons[static_cast<qsizetype>(below(static_cast<std::size_t>(buttons.size())))];
    say("button '" + button->text().toStdString() + "'");
    click(*button, button->rect().center());
    // The box is gone in a moment.
    wait(30);
}

// Stays in the folder where the dialog opens: whatever is saved is saved there.
void Monkey::planInFileDialog(QFileDialog& dialog) {
    const std::size_t choice = below(10);
    if (choice < 3) {
        key("Escape");
    } else if (choice < 9) {
        const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
        const std::string_view file = saves && chance(50) ? oneOf(kNames) : oneOf(kFiles);
        // A slash would lead elsewhere.
        if (file.find('/') != std::string_view::npos || file == "..") return key("Escape");
        key("Home");
        key("shift+End");
        type(file);
        key("Return");
    } else {
        key("Return");
    }
    wait(50);
}

void Monkey::planInInputBox(QDialog& /*box*/) {
    if (chance(25)) return key("Escape");
    type(oneOf(kNames));
    key("Return");
    wait(30);
}

void Monkey::planInWindow(QWidget& window) {
    const std::size_t choice = below(100);
    if (&window == &compiler_) {
        if (choice < 25) return planTyping();
        if (choice < 40) return planEditing();
        if (choice < 52) return planShortcut();
        if (choice < 64) return planMenu();
        if (choice < 70) return planToolbar();
        if (choice < 84) return planClick(window);
        if (choice < 94) return planDrag(window);
        if (choice < 96) return key("ctrl+F4");
        if (choice < 98) return planBuild();
        return planPause();
    }
    if (choice < 15) return planTyping();
    if (choice < 25) return planEditing();
    if (choice < 75) return planClick(window);
    if (choice < 82) return planDrag(window);
    if (choice < 86) return planResize(window);
    if (choice < 90) return key("Escape");
    if (choice < 94) return key("alt+F4");
    // Another window of the program may have the next turn.
    if (choice < 97 && !window.isModal()) return click(compiler_, {5, 5});
    planPause();
}

}  // namespace kav::test
