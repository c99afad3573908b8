// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/colour.h"
#include "documents/aids/margins.h"
#include "documents/aids/resting_caret.h"
#include "windows/main_window_fixture.h"

#include <QPalette>
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
