// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/aid_colours.h"
#include "documents/aids/margins.h"
#include "documents/aids/resting_caret.h"
#include "windows/main_window_fixture.h"

#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <QTimer>

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

    /// The colours that the text box is painted with.
    [[nodiscard]] AidColours colours() {
        const auto colour = [this](QPalette::ColorRole role) {
            const QColor found = box().palette().color(QPalette::Active, role);
            return rgb(static_cast<unsigned>(found.red()), static_cast<unsigned>(found.green()),
                       static_cast<unsigned>(found.blue()));
        };
        return aidColoursOn(colour(QPalette::Base), colour(QPalette::Text));
    }

    /// The ground behind the character at that position, as painted.
    [[nodiscard]] Colour paintedGroundAt(std::size_t position) {
        const auto x = box().SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, static_cast<long>(position));
        const auto y = box().SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0UL, static_cast<long>(position));
        const QImage picture = box().viewport()->grab().toImage();
        const QColor pixel = picture.pixelColor(static_cast<int>(x) + 1, static_cast<int>(y) + 1);
        return rgb(static_cast<unsigned>(pixel.red()), static_cast<unsigned>(pixel.green()),
                   static_cast<unsigned>(pixel.blue()));
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

class Z80Colours : public DocumentAid {
  protected:
    /// One letter a byte, as the lines in view are coloured: what each piece is.
    [[nodiscard]] std::string partsShown(std::size_t begin, std::size_t end) {
        box().grab();
        std::string parts;
        for (std::size_t i = begin; i < end; ++i)
            parts += " mrdnscl"[box().SendScintilla(Sci::SCI_GETSTYLEAT, i)];
        return parts;
    }
};

TEST_F(Z80Colours, OfAText) {
    box().setBytes("l: ld a,5\r\n .db \"x\" ; y\r\n");
    EXPECT_EQ(partsShown(0, box().byteLength()), "l  mm r n   ddd sss ccc  ");
}

TEST_F(Z80Colours, FollowWhatIsTyped) {
    box().setBytes(" ld a,5");
    EXPECT_EQ(partsShown(0, 7), " mm r n");
    QTest::keyClick(box().viewport(), Qt::Key_Semicolon);
    EXPECT_EQ(partsShown(0, 8), "cccccccc");
    box().undo();
    EXPECT_EQ(partsShown(0, 7), " mm r n");
}

TEST_F(Z80Colours, AppearWhereverTheTextIsScrolledTo) {
    std::string text;
    for (int i = 0; i < 5000; ++i)
        text += " nop\r\n";
    box().setBytes(text);
    EXPECT_EQ(partsShown(0, 4), " mmm");
    box().setSelStart(text.size());
    EXPECT_EQ(partsShown(text.size() - 6, text.size() - 2), " mmm");
    EXPECT_EQ(partsShown(text.size() / 2 - 12, text.size() / 2), std::string(12, ' ')) << "out of view";
    box().ensureLineVisible(2500);
    EXPECT_EQ(partsShown(15000, 15004), " mmm");
}

TEST_F(Z80Colours, OfAnyBytesAndOfALineWithoutEnd) {
    std::string text = "; NUL ? and \xFF";
    text[6] = '\0';
    box().setBytes(text + "\r\n nop" + std::string(1'000'000, 'x'));
    EXPECT_EQ(partsShown(0, 13), std::string(13, 'c'));
    EXPECT_EQ(box().byteLength(), text.size() + 6 + 1'000'000);
}

TEST_F(Z80Colours, ChangeNothingButColours) {
    box().setBytes(" ld a,5 ; x");
    box().Tag = "0";
    box().grab();
    EXPECT_EQ(box().Tag, "0");
    EXPECT_FALSE(box().isUndoAvailable());
    for (int style = 0; style < 8; ++style) {
        const auto number = static_cast<uintptr_t>(style);
        EXPECT_EQ(box().SendScintilla(Sci::SCI_STYLEGETBOLD, number), 0);
        EXPECT_EQ(box().SendScintilla(Sci::SCI_STYLEGETITALIC, number), 0);
        EXPECT_EQ(box().SendScintilla(Sci::SCI_STYLEGETUNDERLINE, number), 0);
    }
}

TEST_F(Z80Colours, StayWhenAHiddenTextTurnsItalic) {
    const long colour = colourOfStyle(1);
    EXPECT_NE(colour, colourOfStyle(0));
    box().setBytes("In the darkness bind them");
    EXPECT_EQ(colourOfStyle(1), colour);
    for (int style = 0; style < 8; ++style)
        EXPECT_EQ(box().SendScintilla(Sci::SCI_STYLEGETITALIC, static_cast<uintptr_t>(style)), 1);
}

class CurrentLineGround : public DocumentAid {};

TEST_F(CurrentLineGround, GoesWithTheCaret) {
    box().setBytes("  one\r\n  two");
    EXPECT_EQ(paintedGroundAt(0), colours().currentLine);
    EXPECT_EQ(paintedGroundAt(7), colours().paper);
    box().setSelStart(9);
    EXPECT_EQ(paintedGroundAt(0), colours().paper);
    EXPECT_EQ(paintedGroundAt(7), colours().currentLine);
}

TEST_F(CurrentLineGround, StaysWhileAnotherWindowHasTheKeyboard) {
    box().setBytes("  one");
    choose("newasm");
    ASSERT_FALSE(documents().first()->txt().hasFocus());
    documents().first()->takeFocus();
    EXPECT_EQ(paintedGroundAt(0), colours().currentLine);
    box().clearFocus();
    EXPECT_EQ(paintedGroundAt(0), colours().currentLine);
}

class ParenthesisMark : public DocumentAid {};

TEST_F(ParenthesisMark, StandsOnBothOfAPair) {
    box().setBytes(" ld a,(hl)");
    box().setSelStart(6);
    EXPECT_EQ(paintedGroundAt(6), colours().matchedGround);
    EXPECT_EQ(paintedGroundAt(9), colours().matchedGround);
    box().setSelStart(2);
    EXPECT_EQ(paintedGroundAt(6), colours().currentLine);
}

TEST_F(ParenthesisMark, TellsALoneOne) {
    box().setBytes(" ld a,(hl");
    box().setSelStart(6);
    EXPECT_EQ(paintedGroundAt(6), colours().loneGround);
    box().setSelStart(9);
    QTest::keyClick(box().viewport(), Qt::Key_ParenRight);
    EXPECT_EQ(paintedGroundAt(6), colours().matchedGround);
}

TEST_F(ParenthesisMark, LeavesALineOfMegabytesAlone) {
    box().setBytes("(" + std::string(100'000, ' ') + ")");
    EXPECT_EQ(paintedGroundAt(0), colours().currentLine) << "its partner is too far to be looked for";
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

TEST(CaretOfATextBox, StopsBlinkingUntilTheNextKey) {
    TextBox box;
    RestingCaret caret(box);
    auto* untilRest = caret.findChild<QTimer*>("untilRest");
    ASSERT_NE(untilRest, nullptr);
    const auto period = [&box] { return box.SendScintilla(QsciScintillaBase::SCI_GETCARETPERIOD); };
    const long blinking = period();
    EXPECT_GT(blinking, 0);
    box.show();

    untilRest->setInterval(0);
    QTest::keyClick(&box, Qt::Key_A);
    EXPECT_TRUE(QTest::qWaitFor([&] { return period() == 0; }));

    untilRest->setInterval(std::chrono::hours(1));
    QTest::keyClick(&box, Qt::Key_B);
    EXPECT_TRUE(QTest::qWaitFor([&] { return period() == blinking; }));
}

}  // namespace kav::test
