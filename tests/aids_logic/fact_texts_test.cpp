// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/fact_texts.h"

#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kav::test {

TEST(CostText, TellsSizeAndTime) {
    EXPECT_EQ(costText({2, {7, 7}, 0}), "2 bytes, 7 T");
    EXPECT_EQ(costText({1, {4, 4}, 0}), "1 byte, 4 T");
    EXPECT_EQ(costText({4, {20, 15}, 0}), "4 bytes, 20/15 T");
    EXPECT_EQ(costText({3, {}, 0}), "3 bytes");
    EXPECT_EQ(costText({}), "");
}

TEST(CostText, TellsWhatIsLeftOut) {
    EXPECT_EQ(costText({2, {7, 7}, 1}), "2 bytes, 7 T, 1 line left out");
    EXPECT_EQ(costText({0, {}, 2}), "2 lines left out");
}

TEST(CaretText, TellsLineAndColumn) {
    EXPECT_EQ(caretText(3, 7), "Line 3, column 7");
}

class Hover : public testing::Test {
  protected:
    void SetUp() override {
        makeFolder(folder_.file("include"));
        writeFile(folder_.file("include/names.inc"),
                  "far .equ 8000h\r\nless .equ -2\r\n#define both(x,y) ld a,x \\ ld b,y\r\n");
    }

    /// The text for the place of the | in the last line of a document that begins with an include.
    std::string at(std::string line, const std::string& before = {}) {
        const std::size_t column = line.find('|');
        line.erase(column, 1);
        const std::string above = "#include \"names.inc\"\r\n" + before;
        const int number = 1 + static_cast<int>(std::count(above.begin(), above.end(), '\n'));
        const ProgramFacts facts(above + line + "\r\n", {folder_.path().string(), false});
        return hoverTextAt(line, number, column, facts).text;
    }

    TemporaryFolder folder_;
};

TEST_F(Hover, OverANameTellsItsValueAndPlace) {
    EXPECT_EQ(at(" ld hl,f|ar"), "far = $8000 (32768)\nnames.inc, line 1");
    EXPECT_EQ(at(" ld hl,|FAR"), "far = $8000 (32768)\nnames.inc, line 1");
    EXPECT_EQ(at(" ld a,|less"), "less = $FFFE (-2)\nnames.inc, line 2");
    EXPECT_EQ(at(" jp |here", " .org 9D95h\r\nhere: nop\r\n"), "here = $9D95 (40341)\nline 3");
    EXPECT_EQ(at("he|re: nop"), "here = $0000 (0)\nline 2");
    EXPECT_EQ(at(" call |APP_PUSH_ERRORHT"), "APP_PUSH_ERRORHT = $59 (89)\nbuilt in");
}

TEST_F(Hover, OverAMacroTellsItsText) {
    EXPECT_EQ(at(" bo|th(1,2)"), "#define both(x,y) ld a,x \\ ld b,y\nnames.inc, line 3");
    EXPECT_EQ(at(" |pause()"), "#define pause() .db $EF,$72,$49\nbuilt in");
}

TEST_F(Hover, OverANumberTellsItInOtherRadices) {
    EXPECT_EQ(at(" ld a,|$1F"), "$1F = 31 = %00011111");
    EXPECT_EQ(at(" ld hl,10|00"), "$03E8 = 1000 = %0000001111101000");
    EXPECT_EQ(at(" ld a,%10|1"), "$05 = 5 = %00000101");
    EXPECT_EQ(at(" ld a,'|A'"), "$41 = 65 = %01000001");
    EXPECT_EQ(at(" ld a,'|\\n'"), "$0A = 10 = %00001010");
}

TEST_F(Hover, OverAnInstructionTellsItsBytesAndTime) {
    EXPECT_EQ(at(" l|d hl,far"), "21 00 80\n3 bytes, 10 T");
    EXPECT_EQ(at(" ld h|l,far"), "21 00 80\n3 bytes, 10 T");
    EXPECT_EQ(at("here: dj|nz here"), "10 FE\n2 bytes, 13/8 T");
    EXPECT_EQ(at(" nop \\ re|t"), "C9\n1 byte, 10 T");
}

TEST_F(Hover, OverDataTellsItsFirstBytes) {
    EXPECT_EQ(at(" .d|b \"AB\",3"), "41 42 03\n3 bytes");
    EXPECT_EQ(at(" .db \"A|B\",3"), "41 42 03\n3 bytes");
    EXPECT_EQ(at(" .fi|ll 20,1"), "01 01 01 01 01 01 01 01 01 01 01 01 01 01 01 01 ...\n20 bytes");
}

TEST_F(Hover, OverAllElseTellsNothing) {
    EXPECT_EQ(at(" nop ; fa|r"), "");
    EXPECT_EQ(at(" nop|  "), "");
    EXPECT_EQ(at(" jp no|where"), "");
    EXPECT_EQ(at(" fr|ob"), "");
    EXPECT_EQ(at(" ld a,|9z"), "");
    EXPECT_EQ(at("#inc|lude \"names.inc\""), "");
}

TEST(HoverRange, IsTheWordThatItIsAbout) {
    const HoverText hover = hoverTextAt(" ld a,31", 1, 7, {});
    EXPECT_EQ(hover.begin, 6U);
    EXPECT_EQ(hover.end, 8U);
    EXPECT_EQ(hoverTextAt("", 1, 0, {}).text, "");
    EXPECT_EQ(hoverTextAt(" nop", 1, 99, {}).text, "");
}

}  // namespace kav::test
