// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/string_converter_window.h"

#include "windows/tool_window_fixture.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace kav::test {

class StringConverterWindow : public ToolWindowTest<StrConv> {
  protected:
    void SetUp() override {
        ToolWindowTest::SetUp();
        choose("strconvopen");
    }

    QPlainTextEdit& inp() { return control<QPlainTextEdit>("inp"); }
    QPlainTextEdit& out() { return control<QPlainTextEdit>("out"); }
    void tick(const char* name) { control<QAbstractButton>(name).setChecked(true); }

    void convert(const QString& text) {
        inp().setPlainText(text);
        press("Command1");
    }

    /// The output text as bytes, by way of the Copy button.
    std::string copied() {
        press("Command2");
        return desktop_.clipboard.content;
    }

    static bool contains(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }
};

TEST_F(StringConverterWindow, HasItsControls) {
    EXPECT_EQ(tool().objectName(), "StrConv");
    EXPECT_EQ(tool().windowTitle(), "String Converter - KAV Compiler");
    EXPECT_EQ(control<QLabel>("Label1").text(),
              "This utility converts a long string of text into lines of Z80 data for display. Just type or "
              "paste text into the box on the left and click 'Convert'.");
    EXPECT_EQ(control<QCheckBox>("vcode").text(), "To VCode");
    EXPECT_EQ(control<QCheckBox>("zero").text(), "Zero Delimited");
    EXPECT_EQ(control<QRadioButton>("spaced").text(), "Spaced");
    EXPECT_EQ(control<QRadioButton>("tabbed").text(), "Tabbed");
    EXPECT_EQ(control<QAbstractButton>("Command1").text(), "Convert");
    EXPECT_EQ(control<QAbstractButton>("Command2").text(), "Copy");
    EXPECT_EQ(control<QAbstractButton>("Command3").text(), "Insert At Cursor");
    EXPECT_LT(inp().x(), out().x());
    EXPECT_EQ(inp().font().family(), out().font().family());
    EXPECT_EQ(inp().font().pointSize(), out().font().pointSize());
    EXPECT_FALSE(tool().isModal());
    EXPECT_EQ(tool().parentWidget(), &compiler());
}

TEST_F(StringConverterWindow, TakesAPasteOfNothing) {
    QGuiApplication::clipboard()->setMimeData(new QMimeData);
    inp().setPlainText("as it was");
    inp().paste();
    out().paste();
    EXPECT_EQ(inp().toPlainText(), "as it was");
    EXPECT_EQ(out().toPlainText(), "");
}

TEST_F(StringConverterWindow, TakesAPasteOfText) {
    QGuiApplication::clipboard()->setText("pasted");
    inp().paste();
    EXPECT_EQ(inp().toPlainText(), "pasted");
}

TEST_F(StringConverterWindow, ConvertsToQuotedStrings) {
    convert("0123456789abcdefg");
    EXPECT_EQ(copied(), " .db \"0123456789abcdef\"\r\n .db \"g\"");
    tick("tabbed");
    press("Command1");
    EXPECT_EQ(copied(), "\t.db \"0123456789abcdef\"\r\n\t.db \"g\"");
}

TEST_F(StringConverterWindow, JoinsTheLinesOfTheInput) {
    convert("one\ntwo\n\nthree");
    EXPECT_EQ(copied(), " .db \"onetwothree\"");
    inp().clear();
    QTest::keyClicks(&inp(), "a");
    QTest::keyClick(&inp(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&inp(), "b");
    press("Command1");
    EXPECT_EQ(copied(), " .db \"ab\"");
}

TEST_F(StringConverterWindow, KeepsEveryCharacterAsItIs) {
    convert(QString::fromUtf8("a\xC2\xA0\xC3\xA9\"\tz"));
    EXPECT_EQ(copied(), " .db \"a\xC2\xA0\xC3\xA9\"\tz\"");
}

TEST_F(StringConverterWindow, ConvertsToVCode) {
    tick("vcode");
    tick("tabbed");
    convert("This is");
    EXPECT_EQ(copied(),
              ";Compressed with Corwin Haleby's VCode algorithm\r\n"
              ";using KAV Compiler's String Converter.\r\n"
              ";Origionally 7 bytes, compressed to 3 bytes.\r\n"
              "\t.db $E3,$81,$D5,$81");
}

TEST_F(StringConverterWindow, AddsNoZeroInEitherMode) {
    tick("zero");
    convert("Zed");
    EXPECT_EQ(copied(), " .db \"Zed\"");
    tick("vcode");
    press("Command1");
    EXPECT_TRUE(copied().ends_with(" .db $5A,$65,$64"));
}

TEST_F(StringConverterWindow, ReportsAnEmptyTextWithVCodeAndEmptiesTheOutput) {
    convert("x");
    tick("vcode");
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    convert("");
    const MessageBox& box = desktop_.boxes.shownBoxes.at(0);
    EXPECT_EQ(box.title, "Non Fatal Error - KAV Compiler");
    EXPECT_TRUE(contains(box.text, "Error 5in module Command1_Click: ")) << box.text;
    EXPECT_EQ(copied(), "");
}

TEST_F(StringConverterWindow, GivesAnEmptyStringForAnEmptyTextWithoutVCode) {
    convert("");
    EXPECT_EQ(copied(), " .db \"\"");
}

TEST_F(StringConverterWindow, AsksBeforeItTruncates) {
    tick("vcode");
    desktop_.boxes.answers = {BoxAnswer::Yes};
    convert(QString(80000, '1'));
    const MessageBox& box = desktop_.boxes.shownBoxes.at(0);
    EXPECT_EQ(box.text, "Limit 80000 chars at a time. Truncate and continue?");
    EXPECT_EQ(box.title, "Cannot Convert - KAV Compiler");
    EXPECT_EQ(box.icon, BoxIcon::Information);
    EXPECT_EQ(box.buttons, BoxButtons::YesNo);
    EXPECT_TRUE(contains(copied(), ";Origionally 79999 bytes, compressed to 79999 bytes.\r\n"));
}

TEST_F(StringConverterWindow, KeepsTheOutputWhenTruncatingIsDeclined) {
    convert("before");
    tick("vcode");
    desktop_.boxes.answers = {BoxAnswer::No};
    convert(QString(80000, '1'));
    EXPECT_EQ(copied(), " .db \"before\"");
}

TEST_F(StringConverterWindow, InsertsInPlaceOfTheSelection) {
    active().txt().setBytes("abcdef");
    active().txt().Tag = "0";
    active().txt().setSelStart(1);
    active().txt().setSelLength(3);
    convert("0123456789abcdefg");
    press("Command3");
    EXPECT_EQ(active().txt().bytes(), "a .db \"0123456789abcdef\"\r\n .db \"g\"ef");
    EXPECT_TRUE(active().isModified());
}

TEST_F(StringConverterWindow, InsertsAtTheCaretWhereNothingIsSelected) {
    active().txt().setBytes("abcdef");
    active().txt().setSelStart(3);
    convert("x");
    press("Command3");
    EXPECT_EQ(active().txt().bytes(), "abc .db \"x\"def");
}

TEST_F(StringConverterWindow, InsertsNothingWithoutADocument) {
    active().close();
    ASSERT_TRUE(documents().empty());
    convert("x");
    press("Command3");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(StringConverterWindow, IsOpenedOnceAndStartsAfresh) {
    convert("x");
    tick("vcode");
    tick("tabbed");
    choose("strconvopen");
    ASSERT_EQ(openWindows().size(), 1);
    EXPECT_EQ(inp().toPlainText(), "x");
    tool().close();
    choose("strconvopen");
    ASSERT_EQ(openWindows().size(), 1);
    EXPECT_EQ(inp().toPlainText(), "");
    EXPECT_EQ(out().toPlainText(), "");
    EXPECT_FALSE(control<QCheckBox>("vcode").isChecked());
    EXPECT_TRUE(control<QRadioButton>("spaced").isChecked());
}

}  // namespace kav::test
