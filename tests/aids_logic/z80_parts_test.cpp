// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/z80_parts.h"

#include <gtest/gtest.h>
#include <string>

namespace kav::test {

namespace {

/// One letter a byte: what each piece of the line is.
std::string partsOf(std::string_view line) {
    constexpr std::string_view kLetters = " mrdnscl";
    std::string parts(line.size(), ' ');
    std::size_t lastEnd = 0;
    for (const Z80Token& token : z80PartsOf(line)) {
        EXPECT_LE(lastEnd, token.begin) << line;
        EXPECT_LT(token.begin, token.end) << line;
        EXPECT_LE(token.end, line.size()) << line;
        lastEnd = token.end;
        for (std::size_t i = token.begin; i < token.end; ++i)
            parts[i] = kLetters[static_cast<std::size_t>(token.part)];
    }
    return parts;
}

}  // namespace

TEST(Z80Parts, OfALine) {
    struct Case {
        std::string_view line;
        std::string_view parts;
    };
    // clang-format off
    constexpr Case kCases[] = {
        // Instructions, with registers and conditions
        {"start: ld a,(hl) ; load",       "lllll  mm r  rr  cccccc"},
        {" LD IX,(TABLE+3)",              " mm rr        n "},
        {" ex af,af'",                    " mm rr rrr"},
        {" jr nz,loop",                   " mm rr     "},
        {" bit 7,(iy+12h)",               " mmm n  rr nnn "},
        {" ld a,ixh",                     " mm r rrr"},
        {" ld a,start",                   " mm r      "},
        {" ret",                          " mmm"},
        {"\tset 5,a",                     " mmm n r"},
        // Labels
        {"loop",                          "llll"},
        {"ret",                           "lll"},
        {"  inner: djnz inner",           "  lllll  mmmm      "},
        {"- djnz -",                      "  mmmm  "},
        {"bcall(_clrLCDFull)",            "                  "},
        {"size equ 1Fh",                  "llll ddd nnn"},
        {"size .set 3",                   "llll dddd n"},
        {"size: set 3",                   "llll  ddd n"},
        // Directives, whose operands are no registers
        {".db 1,2,c",                     "ddd n n  "},
        {" .org $9D93-2",                 " dddd nnnnn n"},
        {" db 0",                         " dd n"},
        {" .dbx 0",                       "      n"},
        {".end",                          "dddd"},
        // Numbers in each form
        {" .dw $1F,1Fh,%101,101b",        " ddd nnn nnn nnnn nnnn"},
        {" .dw @17,17o,12,12d,0x1F,0b10", " ddd nnn nnn nn nnn nnnn nnnn"},
        {" .db a%10,%10",                 " ddd   nn nnn"},
        {" .db (3)%10, $%3, 10h%2",       " ddd  n  nn    n  nnn n"},
        // Strings and characters
        {" .db \"a;b\\\"c\",0 ; x",       " ddd ssssssss n ccc"},
        {" cp 'x'",                       " mm sss"},
        {" cp ';'",                       " mm sss"},
        {" cp '\\n' \\ ret",              " mm ssss   mmm"},
        {" .db \"open ; no comment",      " ddd ssssssssssssssssss"},
        {" ld a,'",                       " mm r  "},
        // Statements behind a backslash
        {" xor a \\ ret ; both",          " mmm r   mmm cccccc"},
        {" nop \\again: nop",             " mmm  lllll  mmm"},
        // Directives that begin with #
        {"#include \"ti83plus.inc\"",     "dddddddd ssssssssssssss"},
        {" #import <a b.inc> ; x",        " ddddddd sssssssss ccc"},
        {"#import <open",                 "ddddddd sssss"},
        {"#define bcall(x) rst 28h \\ .dw x", "ddddddd lllll    mmm nnn   ddd  "},
        {"#define SIZE 12",               "ddddddd llll nn"},
        {"#define f(",                    "ddddddd l "},
        {"#ifdef TI83P",                  "dddddd      "},
        {"# if 1 == 2 ; x",               "dddd n    n ccc"},
        {"#IF 1",                         "ddd n"},
        {"#nonsense 1",                   "          n"},
        {"#macro put(ch)",                "dddddd lll    "},
        // What is no source at all
        {"",                              ""},
        {"   ",                           "   "},
        {";",                             "c"},
        {"  ; ld a,b",                    "  cccccccc"},
        {"\\",                            " "},
        {"#",                             " "},
        {"#define",                       "ddddddd"},
        {"a:b:c",                         "l   r"},
        {") ( ' \"",                      "      s"},
    };
    // clang-format on
    for (const Case& expected : kCases)
        EXPECT_EQ(partsOf(expected.line), expected.parts) << expected.line;
}

TEST(Z80Parts, OfAnyBytes) {
    EXPECT_EQ(partsOf(std::string_view(" ld a,\0\xFF ; \0", 12)), " mm r    ccc");
    EXPECT_EQ(partsOf("\xC3\xA9\xFF: nop"), "        ");
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string line = {static_cast<char>(first), static_cast<char>(second), ' ', '\''};
            EXPECT_EQ(partsOf(line).size(), line.size());
        }
    }
}

TEST(Z80Parts, OfEveryCutOfALine) {
    constexpr std::string_view kLine =
        "l: ld a,'\\n' \\ .db \"x\\\"\",%10,$,af' ; c \\ #define f(a) 1Fh \\ <b>";
    for (std::size_t from = 0; from <= kLine.size(); ++from) {
        for (std::size_t to = from; to <= kLine.size(); ++to)
            EXPECT_EQ(partsOf(kLine.substr(from, to - from)).size(), to - from);
    }
}

}  // namespace kav::test
