// SPDX-License-Identifier: GPL-3.0-or-later
// A main window over which tool windows are opened, clicked and read.
#pragma once

#include "platform/desktop/twips.h"
#include "windows/main_window_fixture.h"

#include <string>

#include <QAbstractButton>
#include <QImage>
#include <QPixmap>

namespace kav::test {

/// `Window` is the class of the tool window, `menuItem()` the entry that opens it.
template <typename Window>
class ToolWindowTest : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    /// The tool windows that are open; closed ones are gone once the toolkit has had its turn.
    QList<Window*> openWindows() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return compiler().template findChildren<Window*>();
    }
    Window& tool() { return *openWindows().at(0); }

    template <typename Control>
    Control& control(const char* name) {
        return *tool().template findChild<Control*>(name);
    }

    void press(const char* name) {
        QTest::mouseClick(&control<QAbstractButton>(name), Qt::LeftButton, Qt::NoModifier,
                          control<QAbstractButton>(name).rect().center() / 4);
    }

    /// Presses and releases a button at a point in centimetres.
    void clickAt(double x, double y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&tool(), button, Qt::NoModifier, pointOf(x, y));
    }

    /// The pixel that holds a point in centimetres.
    static QPoint pointOf(double x, double y) {
        return {static_cast<int>(x * kPixelsPerCentimetre), static_cast<int>(y * kPixelsPerCentimetre)};
    }

    /// The colour that the window shows at a point in centimetres.
    QColor shownAt(double x, double y) { return tool().grab().toImage().pixelColor(pointOf(x, y)); }
    QColor background() { return tool().palette().color(QPalette::Button); }

    void expectPlace(const char* name, const char* caption, const QRect& place) {
        EXPECT_EQ(control<QWidget>(name).geometry(), place) << name;
        EXPECT_EQ(control<QWidget>(name).property("text").toString().toStdString(), caption);
    }

    /// Pairs of random numbers that make discs of one colour's neighbourhood: base and step at their least.
    void scriptDiscs(int count) { desktop_.random.numbers.assign(static_cast<std::size_t>(2 * count), 0.0); }
};

}  // namespace kav::test
