// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/source_line.h"

#include <gtest/gtest.h>
#include <string>

namespace kav::test {

namespace {

/// The pieces of the line, each with the first letters of what it is.
std::string pieces(std::string_view line) {
    constexpr const char* kNames[] = {"label", "op", "dir", "hash", "name", "num", "str", "rem"};
    std::string text;
    for (const Piece& piece : piecesOf(line)) {
        if (!text.empty()) text += ' ';
        text += kNames[static_cast<int>(piece.kind)];
        text += '[';
        text += line.substr(piece.begin, piece.end - piece.begin);
        text += ']';
    }
    return text;
}

}  // namespace

TEST(SourceLine, IsLabelOperationOperandsAndComment) {
    EXPECT_EQ(pieces("loop: ld a,(table+1) ; ld b"),
              "label[loop] op[ld] name[a] name[table] num[1] rem[; ld b]");
    EXPECT_EQ(pieces("loop djnz loop"), "label[loop] op[djnz] name[loop]");
    EXPECT_EQ(pieces(" here: nop"), "label[here] op[nop]");
    EXPECT_EQ(pieces("\tret"), "op[ret]");
    EXPECT_EQ(pieces("put(a)"), "op[put] name[a]") << "a macro's call defines nothing";
    EXPECT_EQ(pieces("- djnz -"), "op[djnz]") << "a label without a name";
    EXPECT_EQ(pieces("+:ret"), "op[ret]");
    EXPECT_EQ(pieces(""), "");
    EXPECT_EQ(pieces(" ; only"), "rem[; only]");
}

TEST(SourceLine, HasDirectivesWithTheirPeriod) {
    EXPECT_EQ(pieces(" .db \"a;b\",5 ;c"), "dir[.db] str[\"a;b\"] num[5] rem[;c]");
    EXPECT_EQ(pieces("five .equ 5"), "label[five] dir[.equ] num[5]");
    EXPECT_EQ(pieces("five = x"), "label[five] name[x]");
    EXPECT_EQ(pieces(" ."), "dir[.]");
}

TEST(SourceLine, BeginsAfreshBehindABackslash) {
    EXPECT_EQ(pieces(" ld a,1 \\ inc a\\next: ret"),
              "op[ld] name[a] num[1] op[inc] name[a] label[next] op[ret]");
}

TEST(SourceLine, ReadsNumbersAsTheAssemblerDoes) {
    EXPECT_EQ(pieces(" .dw $1F,1Fh,%101,@17,12,5%3"),
              "dir[.dw] num[$1F] num[1Fh] num[%101] num[@17] num[12] num[5] num[3]");
    EXPECT_EQ(pieces(" ld a,'x'"), "op[ld] name[a] num['x']");
    EXPECT_EQ(pieces(" ex af,af' ; c"), "op[ex] name[af] name[af] rem[; c]");
    EXPECT_EQ(pieces(" jr $+2"), "op[jr] num[2]");
    EXPECT_EQ(pieces(" .db 9z"), "dir[.db] num[9z]");
}

TEST(SourceLine, KnowsWhatFollowsAHash) {
    EXPECT_EQ(pieces("#include \"a\\b.inc\" ; c"), "hash[#include] str[\"a\\b.inc\"] rem[; c]");
    EXPECT_EQ(pieces("#include ti83plus.inc"), "hash[#include] str[ti83plus.inc]");
    EXPECT_EQ(pieces("  #ifdef TI83P"), "hash[#ifdef] name[TI83P]");
    EXPECT_EQ(pieces("#define put(x,y) ld a,x \\ ld b,y"),
              "hash[#define] label[put] name[x] name[y] op[ld] name[a] name[x] op[ld] name[b] name[y]");
    EXPECT_EQ(pieces("#define equ .equ"), "hash[#define] label[equ] dir[.equ]");
    EXPECT_EQ(pieces("#macro put(x)"), "hash[#macro] label[put] name[x]");
    EXPECT_EQ(pieces("#"), "hash[#]");
    EXPECT_EQ(pieces("#define p(x"), "hash[#define] label[p] name[x]");
}

TEST(SourceLine, EndsWhereAQuoteIsNotClosed) {
    EXPECT_EQ(pieces(" .db \"abc ; d"), "dir[.db] str[\"abc ; d]");
    EXPECT_EQ(pieces("#include \"abc"), "hash[#include] str[\"abc]");
    EXPECT_EQ(pieces(" ld a,'"), "op[ld] name[a]");
}

TEST(SourceLine, EndsForAnyBytes) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string line{static_cast<char>(first), static_cast<char>(second), '"'};
            std::size_t from = 0;
            for (const Piece& piece : piecesOf(line)) {
                EXPECT_LE(from, piece.begin);
                EXPECT_LT(piece.begin, piece.end);
                from = piece.end;
            }
            EXPECT_LE(from, line.size());
        }
    }
}

}  // namespace kav::test
