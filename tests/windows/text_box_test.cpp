// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/text_box.h"

#include <gtest/gtest.h>

#include <QTest>

namespace kav::test {

TEST(TextBox, KeepsEveryByteAndEveryLineEnd) {
    TextBox box;
    std::string all = "a\r\nb\nc\rd\xFF\xC3(";
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    box.setBytes(all);
    EXPECT_EQ(box.bytes(), all);
    EXPECT_EQ(box.byteLength(), all.size());
}

TEST(TextBox, MarksEveryChangeAsModified) {
    TextBox box;
    box.Tag = "0";
    box.setBytes("");
    EXPECT_EQ(box.Tag, "1");
    box.Tag = "0";
    box.replaceSelection("x");
    EXPECT_EQ(box.Tag, "1");
}

TEST(TextBox, PositionsCountBytesAndStopAtTheEnd) {
    TextBox box;
    box.setBytes("h\xC3\xA9\r\nb");
    box.setSelStart(3);
    box.setSelLength(2);
    EXPECT_EQ(box.selText(), "\r\n");
    box.setSelStart(99);
    box.setSelLength(99);
    EXPECT_EQ(box.selStart(), 6U);
    EXPECT_EQ(box.selLength(), 0U);
}

TEST(TextBox, ReplacesTheSelectionAndStandsBehindIt) {
    TextBox box;
    box.setBytes("one two");
    box.setSelStart(0);
    box.setSelLength(3);
    box.replaceSelection(std::string_view("a\0b", 3));
    EXPECT_EQ(box.bytes(), std::string("a\0b two", 7));
    EXPECT_EQ(box.selStart(), 3U);
    EXPECT_EQ(box.selLength(), 0U);
}

TEST(TextBox, AltWithALetterIsNoText) {
    TextBox box;
    QTest::keyClick(box.viewport(), Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(box.bytes(), "");
    QTest::keyClick(box.viewport(), Qt::Key_T);
    EXPECT_EQ(box.bytes(), "t");
}

TEST(TextBox, EnterGivesCrLf) {
    TextBox box;
    box.show();
    QTest::keyClick(box.viewport(), Qt::Key_Return);
    EXPECT_EQ(box.bytes(), "\r\n");
}

TEST(TextBox, AWholeNewTextCannotBeUndone) {
    TextBox box;
    box.setBytes("first");
    box.setBytes("second");
    box.undo();
    EXPECT_EQ(box.bytes(), "second");
}

TEST(TextBox, ASizeNobodyCanReadIsBroughtWithinWhatCan) {
    TextBox box;
    const auto size = [&box] {
        return box.SendScintilla(QsciScintillaBase::SCI_STYLEGETSIZE, QsciScintillaBase::STYLE_DEFAULT);
    };
    box.setTextFont("No Such Font", 0);
    EXPECT_EQ(size(), 12);
    box.setTextFont("No Such Font", 1);
    EXPECT_EQ(size(), 6);
    box.setTextFont("No Such Font", 32767);
    EXPECT_EQ(size(), 96);
}

TEST(TextBox, TypingIntoTenMegabytesCopiesNothing) {
    TextBox box;
    std::string text;
    while (text.size() < 10'000'000)
        text += " ld a,(hl) ; a line of some length\r\n";
    box.setBytes(text);
    int changes = 0;
    QObject::connect(&box, &TextBox::changed, [&changes] { ++changes; });
    QTest::keyClicks(box.viewport(), "abc");
    QCoreApplication::processEvents();
    EXPECT_EQ(box.byteLength(), text.size() + 3);
    EXPECT_GE(changes, 1);
}

}  // namespace kav::test
