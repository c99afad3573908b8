// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/toolbar_strip.h"

#include "shell/addresses.h"
#include "shell/toolbar_picture.h"
#include "shell/toolbar_regions.h"
#include "windows/main_window_fixture.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

namespace kav::test {

class Toolbar : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    QWidget& strip() { return *compiler().findChild<QWidget*>("Picture1"); }

    void send(QEvent::Type type, double x, Qt::MouseButton button) {
        const QPointF place(x, 8);
        QMouseEvent event(type, place, strip().mapToGlobal(place), button, button, Qt::NoModifier);
        QApplication::sendEvent(&strip(), &event);
    }
    void press(double x, Qt::MouseButton button = Qt::LeftButton) {
        send(QEvent::MouseButtonPress, x, button);
    }
    void moveTo(double x) { send(QEvent::MouseMove, x, Qt::NoButton); }
};

TEST_F(Toolbar, ShowsHelpForEveryRegion) {
    for (const ToolbarRegion& region : toolbarRegions()) {
        moveTo(region.left);
        EXPECT_EQ(status(), toolbarHelp(region, folder_.path().string()));
        moveTo(region.right - 0.1);
        EXPECT_EQ(status(), toolbarHelp(region, folder_.path().string()));
    }
}

TEST_F(Toolbar, EveryRegionNamesAnEntryOfTheMenu) {
    for (const ToolbarRegion& region : toolbarRegions())
        EXPECT_NE(compiler().menuItem(std::string(region.command)), nullptr);
}

TEST_F(Toolbar, KeepsTheHelpBeyondTheLastRegion) {
    moveTo(317);
    const std::string help = status();
    EXPECT_EQ(help.substr(0, 7), "Mail Me");
    moveTo(318);
    EXPECT_EQ(status(), help);
    press(318);
    EXPECT_TRUE(desktop_.launcher.launches.empty());
}

TEST_F(Toolbar, FractionsOfAPixelBelongToTheirRegion) {
    desktop_.boxes.typed = {"", ""};
    press(15.9);
    press(16);
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(0).title, "New KAV File");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(1).title, "New Ion File");
}

TEST_F(Toolbar, APressWithAnyButtonRunsTheMenuEntry) {
    active().txt().setBytes("text");
    active().setCaption("Doc 1\t" + folder_.file("a.z80"));
    press(100, Qt::RightButton);
    EXPECT_EQ(readFile(folder_.file("a.z80")), "text\r\n");
    press(40, Qt::MiddleButton);
    EXPECT_EQ(documents().size(), 2);
    active().txt().setBytes("cut");
    active().txt().selectAll();
    press(150);
    EXPECT_EQ(desktop_.clipboard.content, "cut");
}

TEST_F(Toolbar, ThePictureFillsEveryRegion) {
    EXPECT_EQ(strip().width(), 318);
    QImage image(2 * kToolbarStripWidth, 2 * kToolbarStripHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(2, 2);
    drawToolbarPicture(painter);
    painter.end();
    const QRgb ground = image.pixel(0, 0);
    for (const ToolbarRegion& region : toolbarRegions()) {
        int drawn = 0;
        for (int x = 2 * region.left; x < 2 * region.right; ++x) {
            for (int y = 0; y < image.height(); ++y)
                drawn += image.pixel(x, y) != ground ? 1 : 0;
        }
        EXPECT_GT(drawn, 60) << region.command;
        // Nothing reaches over into the next region.
        for (int y = 0; y < image.height(); ++y)
            EXPECT_EQ(image.pixel(2 * region.left, y), ground) << region.command;
    }
}

}  // namespace kav::test
