// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/text_box.h"
#include "platform/desktop/desktop_services.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace std::string_literals;

namespace kav::test {

namespace {

std::string awkwardText() {
    return "a\r\nlone\rand\nbytes\xFF\xC3(\0end"s;
}

}  // namespace

TEST(DesktopClipboard, GivesBackTheVeryBytesThatItTook) {
    DesktopClipboard clipboard;
    clipboard.setText(awkwardText());
    EXPECT_EQ(clipboard.text(), awkwardText());
    clipboard.setText("");
    EXPECT_EQ(clipboard.text(), "");
}

TEST(DesktopClipboard, EndsEveryLineOfAnotherProgramsTextInCrLf) {
    QGuiApplication::clipboard()->setText("one\ntwo\r\nthree\rfour");
    EXPECT_EQ(DesktopClipboard().text(), "one\r\ntwo\r\nthree\r\nfour");
}

TEST(DesktopClipboard, ShowsOtherProgramsTheDesktopsLineEnds) {
    DesktopClipboard().setText("one\r\ntwo");
#ifdef _WIN32
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "one\r\ntwo");
#else
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "one\ntwo");
#endif
}

TEST(DesktopClipboard, TheTextBoxesOwnCopyAndPasteKeepEveryByte) {
    TextBox from;
    from.setBytes(awkwardText());
    from.selectAll();
    from.copy();
    EXPECT_EQ(DesktopClipboard().text(), awkwardText());
    TextBox to;
    to.paste();
    EXPECT_EQ(to.bytes(), awkwardText());
}

TEST(DesktopClipboard, TheTextBoxesOwnKeysKeepEveryByteToo) {
    TextBox box;
    box.setBytes(awkwardText());
    box.selectAll();
    QTest::keyClick(box.viewport(), Qt::Key_Insert, Qt::ControlModifier);
    QTest::keyClick(box.viewport(), Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(box.bytes(), "");
    QTest::keyClick(box.viewport(), Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(box.bytes(), awkwardText());
}

TEST(DesktopClipboard, TheTextBoxPastesAnotherProgramsLinesWithCrLf) {
    QGuiApplication::clipboard()->setText("one\ntwo");
    TextBox box;
    box.paste();
    EXPECT_EQ(box.bytes(), "one\r\ntwo");
}

}  // namespace kav::test
