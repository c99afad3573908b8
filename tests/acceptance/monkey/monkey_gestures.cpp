// SPDX-License-Identifier: GPL-3.0-or-later
// A user without a plan: its gestures.
#include "monkey.h"
#include "shell/main_window.h"
#include "shell/menu_table.h"
#include "shell/toolbar_regions.h"

#include <algorithm>
#include <array>

#include <QAbstractButton>
#include <QApplication>
#include <QMenuBar>
#include <QScreen>

namespace kav::test {

namespace {

constexpr std::array<std::string_view, 16> kWords{" ld a,0",
                                                  "cp 0",
                                                  "label:",
                                                  " .db \"text\",0",
                                                  "#include \"ti83plus.inc\"",
                                                  ";",
                                                  "\"",
                                                  "%10101010",
                                                  "Make me laugh!",
                                                  "ffff",
                                                  "0",
                                                  "1",
                                                  "-1",
                                                  " ",
                                                  "65535",
                                                  "xyz & <b>"};

constexpr std::array<const char*, 32> kEditingKeys{
    "Return",         "BackSpace", "Delete",     "Left",       "Right",     "Up",        "Down",
    "Home",           "End",       "Prior",      "Next",       "ctrl+Home", "ctrl+End",  "shift+Left",
    "shift+Up",       "shift+End", "shift+Home", "shift+Down", "ctrl+z",    "ctrl+y",    "ctrl+x",
    "ctrl+c",         "ctrl+v",    "Tab",        "shift+Tab",  "space",     "ctrl+Left", "ctrl+Right",
    "ctrl+shift+End", "Insert",    "Escape",     "ctrl+Tab"};

/// The shortcut as the keyboard driver spells it.
std::string spelled(std::string_view shortcut) {
    std::string keys;
    for (const char c : shortcut)
        keys += c;
    const auto replace = [&keys](std::string_view from, std::string_view to) {
        const std::size_t at = keys.find(from);
        if (at != std::string::npos) keys.replace(at, from.size(), to);
    };
    replace("Ctrl+", "ctrl+");
    replace("Del", "Delete");
    // A letter stands for its key.
    if (keys.starts_with("ctrl+") && keys.size() == 6) keys[5] = static_cast<char>(std::tolower(keys[5]));
    return keys;
}

QList<QWidget*> reachableChildren(const QWidget& window) {
    QList<QWidget*> children;
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (child->isVisible() && child->isEnabled() && child->window() == &window) children << child;
    }
    return children;
}

}  // namespace

void Monkey::key(const std::string& combination) {
    then([this, combination] {
        say("key " + combination);
        devices_.key(combination);
    });
}

void Monkey::type(std::string_view text) {
    then([this, text = std::string(text)] {
        say("types " + text);
        for (const char c : text)
            devices_.type(c);
    });
}

void Monkey::moveTo(const QPoint& global) {
    const QScreen* screen = QApplication::primaryScreen();
    // The screen's very edge is nobody's.
    const QRect area = screen->geometry().adjusted(1, 1, -1, -1);
    const QPoint inside(std::clamp(global.x(), area.left(), area.right()),
                        std::clamp(global.y(), area.top(), area.bottom()));
    const double scale = screen->devicePixelRatio();
    devices_.moveTo(static_cast<int>(inside.x() * scale), static_cast<int>(inside.y() * scale));
}

void Monkey::click(const QWidget& widget, const QPoint& place, MouseButton button) {
    const QPoint global = widget.mapToGlobal(place);
    then([this, global] { moveTo(global); });
    then([this, button] { devices_.press(button); });
    then([this, button] { devices_.release(button); });
}

void Monkey::wait(int milliseconds) {
    then([this, milliseconds] { waitUntil_ = elapsed_.elapsed() + milliseconds; });
}

// A template builds as it stands, so that a success comes about now and then.
void Monkey::planBuild() {
    key("ctrl+n");
    wait(50);
    key("Return");
    wait(50);
    key("ctrl+l");
    wait(50);
    type("game");
    key("Return");
    wait(300);
}

void Monkey::planPause() {
    wait(static_cast<int>(below(400)));
}

void Monkey::planTyping() {
    type(oneOf(kWords));
    if (chance(50)) key("Return");
}

void Monkey::planEditing() {
    const std::string keys = oneOf(kEditingKeys);
    for (std::size_t times = 1 + below(4); times > 0; --times)
        key(keys);
}

void Monkey::planShortcut() {
    std::vector<std::string> shortcuts;
    for (const MenuEntry& entry : menuTable()) {
        if (!entry.shortcut.empty()) shortcuts.push_back(spelled(entry.shortcut));
    }
    key(oneOf(shortcuts));
    wait(30);
}

void Monkey::planMenu() {
    const QMenuBar& bar = *compiler_.menuBar();
    QList<QAction*> menus = bar.actions();
    QAction* menu = menus[static_cast<qsizetype>(below(static_cast<std::size_t>(menus.size())))];
    say("menu '" + menu->text().toStdString() + "'");
    click(bar, bar.actionGeometry(menu).center());
    wait(20);
}

void Monkey::planToolbar() {
    const QWidget& strip = *compiler_.findChild<QWidget*>("Picture1");
    const ToolbarRegion& region = oneOf(toolbarRegions());
    say("toolbar " + std::string(region.command));
    click(strip, {static_cast<int>(region.left) + 3, strip.height() / 2});
    wait(30);
}

void Monkey::planClick(QWidget& window) {
    const QList<QWidget*> children = reachableChildren(window);
    const QWidget& widget =
        children.isEmpty()
            ? window
            : *children[static_cast<qsizetype>(below(static_cast<std::size_t>(children.size())))];
    const QPoint place = placeIn(widget.rect());
    const MouseButton button = chance(80)   ? MouseButton::Left
                               : chance(50) ? MouseButton::Right
                               : chance(50) ? MouseButton::WheelDown
                                            : MouseButton::Middle;
    const auto* pressed = qobject_cast<const QAbstractButton*>(&widget);
    say(std::string("click on ") + widget.metaObject()->className() + " " +
        widget.objectName().toStdString() +
        (pressed == nullptr ? "" : " '" + pressed->text().toStdString() + "'"));
    click(widget, place, button);
    if (chance(15)) click(widget, place, button);
}

void Monkey::planDrag(QWidget& window) {
    const QList<QWidget*> children = reachableChildren(window);
    if (children.isEmpty()) return wait(10);
    const QWidget& widget =
        *children[static_cast<qsizetype>(below(static_cast<std::size_t>(children.size())))];
    const QPoint from = widget.mapToGlobal(placeIn(widget.rect()));
    const QPoint to =
        chance(70) ? widget.mapToGlobal(placeIn(widget.rect())) : window.mapToGlobal(placeIn(window.rect()));
    const MouseButton button = chance(85) ? MouseButton::Left : MouseButton::Right;
    say(std::string("drag on ") + widget.metaObject()->className() + " " + widget.objectName().toStdString());
    then([this, from] { moveTo(from); });
    then([this, button] { devices_.press(button); });
    then([this, from, to] { moveTo((from + to) / 2); });
    then([this, to] { moveTo(to); });
    then([this, button] { devices_.release(button); });
}

void Monkey::planResize(QWidget& window) {
    const QSize size(static_cast<int>(below(900)), static_cast<int>(below(700)));
    const QPointer<QWidget> resized(&window);
    then([this, resized, size] {
        if (resized == nullptr) return;
        say("size " + std::to_string(size.width()) + " by " + std::to_string(size.height()));
        resized->resize(size);
    });
    wait(20);
}

}  // namespace kav::test
