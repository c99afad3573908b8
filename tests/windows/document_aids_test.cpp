// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/colour.h"
#include "documents/aids/margins.h"
#include "windows/main_window_fixture.h"

#include <QPalette>

namespace kav::test {

class DocumentAid : public MainWindow {
  protected:
    using Sci = QsciScintillaBase;

    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    [[nodiscard]] TextBox& box() { return active().txt(); }

    [[nodiscard]] long marginWidth(std::uintptr_t margin) {
        return box().SendScintilla(Sci::SCI_GETMARGINWIDTHN, margin);
    }

    [[nodiscard]] long colourOfStyle(int style) {
        return box().SendScintilla(Sci::SCI_STYLEGETFORE, static_cast<uintptr_t>(style));
    }
    [[nodiscard]] long groundOfStyle(int style) {
        return box().SendScintilla(Sci::SCI_STYLEGETBACK, static_cast<uintptr_t>(style));
    }

    /// What a dark desktop does to a text box.
    void makeDark() {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(42, 42, 42));
        palette.setColor(QPalette::Text, QColor(240, 240, 240));
        box().setPalette(palette);
    }
};

class LineNumberMargin : public DocumentAid {};

TEST_F(LineNumberMargin, FollowsTheNumberOfLines) {
    const long narrow = marginWidth(kLineNumberMargin);
    EXPECT_GT(narrow, 0);
    box().setBytes(std::string(1998, '\n'));
    const long wide = marginWidth(kLineNumberMargin);
    EXPECT_GT(wide, narrow);
    box().setBytes("");
    EXPECT_EQ(marginWidth(kLineNumberMargin), narrow);
}

TEST_F(LineNumberMargin, HasRoomForItsWidestNumber) {
    box().setBytes(std::string(9998, '\n'));
    EXPECT_GE(marginWidth(kLineNumberMargin),
              box().SendScintilla(Sci::SCI_TEXTWIDTH, Sci::STYLE_LINENUMBER, "9999"));
}

TEST_F(LineNumberMargin, GrowsWithTheFont) {
    const long small = marginWidth(kLineNumberMargin);
    box().setTextFont("DejaVu Sans Mono", 30);
    EXPECT_GT(marginWidth(kLineNumberMargin), small);
}

class AidColouring : public DocumentAid {};

TEST_F(AidColouring, FollowsTheDesktopWhileTheProgramRuns) {
    makeDark();
    EXPECT_EQ(groundOfStyle(Sci::STYLE_DEFAULT), static_cast<long>(rgb(42, 42, 42)));
    EXPECT_EQ(colourOfStyle(0), static_cast<long>(rgb(240, 240, 240)));
    EXPECT_GT(luminanceOf(static_cast<Colour>(colourOfStyle(Sci::STYLE_LINENUMBER))), 0.2);
    box().setPalette(QPalette(Qt::white));
    box().setTextBold(true);
    EXPECT_LT(luminanceOf(static_cast<Colour>(colourOfStyle(Sci::STYLE_LINENUMBER))), 0.2);
}

TEST_F(AidColouring, IsNoChangeOfTheText) {
    makeDark();
    EXPECT_EQ(box().Tag, "0");
    EXPECT_FALSE(box().isUndoAvailable());
}

}  // namespace kav::test
