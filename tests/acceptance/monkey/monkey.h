// SPDX-License-Identifier: GPL-3.0-or-later
// A user without a plan.
#pragma once

#include "input_devices.h"
#include "ledger.h"

#include <deque>
#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QTimer>

class QDialog;
class QFileDialog;
class QMenu;
class QMessageBox;
class QWidget;

namespace kav::test {

/// Clicks, types and shuts windows of the program, one gesture after the other, as its random numbers tell.
/// A gesture is a row of steps; after each step the program has a moment to answer. The monkey stays in the
/// program's windows, presses no Abort, and closes the program when its time is over.
class Monkey : public QObject {
    Q_OBJECT

  public:
    Monkey(Compiler& compiler, Ledger& ledger, unsigned seed, int seconds);

    void start();

  private:
    using Step = std::function<void()>;

    void tick();
    void plan();
    void planInPopup(QWidget& popup);
    void planInMenu(QMenu& menu);
    void planInMessageBox(QMessageBox& box);
    void planInFileDialog(QFileDialog& dialog);
    void planInInputBox(QDialog& box);
    void planInWindow(QWidget& window);
    void planTyping();
    void planShortcut();
    void planMenu();
    void planToolbar();
    void planClick(QWidget& window);
    void planDrag(QWidget& window);
    void planEditing();
    void planBuild();
    void planPause();
    void planResize(QWidget& window);
    void planFarewell();

    [[nodiscard]] std::size_t below(std::size_t limit);
    [[nodiscard]] bool chance(int percent) { return below(100) < static_cast<std::size_t>(percent); }
    [[nodiscard]] QPoint placeIn(const QRect& area);
    template <typename List>
    auto& oneOf(const List& list) {
        return list[below(list.size())];
    }

    void then(Step step) { steps_.push_back(std::move(step)); }
    void say(const std::string& what);
    void key(const std::string& combination);
    void type(std::string_view text);
    void click(const QWidget& widget, const QPoint& place, MouseButton button = MouseButton::Left);
    void moveTo(const QPoint& global);
    void wait(int milliseconds);

    Compiler& compiler_;
    Ledger& ledger_;
    InputDevices devices_;
    std::mt19937 random_;
    QTimer timer_;
    QElapsedTimer elapsed_;
    qint64 end_;
    qint64 waitUntil_ = 0;
    std::deque<Step> steps_;
};

}  // namespace kav::test
