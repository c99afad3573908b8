// SPDX-License-Identifier: GPL-3.0-or-later
#include "emulator/emulator.h"

#include <gtest/gtest.h>

namespace kav::test {

namespace {

Program plusProgram(const std::vector<std::uint8_t>& code) {
    return {"A", code, Calculator::Ti83Plus};
}

}  // namespace

TEST(Emulator, ShowsTheTextThatAProgramPrints) {
    // ld hl,text; rst 28h, _PutS; ret
    Emulator calculator(plusProgram({0xBB, 0x6D, 0x21, 0x9C, 0x9D, 0xEF, 0x0A, 0x45, 0xC9, 'H', 'i', 0}),
                        Shell::Asm);
    EXPECT_EQ(calculator.run(), Stop::Returned);
    EXPECT_EQ(calculator.row(0), "Hi");
    EXPECT_EQ(calculator.calls(), std::vector<std::uint16_t>{0x450A});
}

TEST(Emulator, WaitsForAKeyAndGoesOnWithIt) {
    // rst 28h, _GetKey; rst 28h, _PutC; ret
    Emulator calculator(plusProgram({0xBB, 0x6D, 0xEF, 0x72, 0x49, 0xEF, 0x04, 0x45, 0xC9}), Shell::Asm);
    EXPECT_EQ(calculator.run(), Stop::WaitsForKey);
    calculator.press({'x'});
    EXPECT_EQ(calculator.run(), Stop::Returned);
    EXPECT_EQ(calculator.row(0), "x");
    EXPECT_EQ(calculator.calls(), (std::vector<std::uint16_t>{0x4972, 0x4504}));
}

TEST(Emulator, RunsRomCallsOfTheTi83) {
    // ld hl,text; call _puts; ret
    Emulator calculator({"A", {0x21, 0x2E, 0x93, 0xCD, 0x0D, 0x47, 0xC9, 'O', 'k', 0}, Calculator::Ti83},
                        Shell::Asm);
    EXPECT_EQ(calculator.run(), Stop::Returned);
    EXPECT_EQ(calculator.row(0), "Ok");
}

TEST(Emulator, StopsAtACallThatItDoesNotKnow) {
    Emulator calculator(plusProgram({0xBB, 0x6D, 0xEF, 0x34, 0x12, 0xC9}), Shell::Asm);
    EXPECT_EQ(calculator.run(), Stop::UnknownCall);
}

TEST(Emulator, StopsAProgramThatNeverEnds) {
    Emulator calculator(plusProgram({0xBB, 0x6D, 0x18, 0xFE}), Shell::Asm);
    EXPECT_EQ(calculator.run(1000), Stop::TooManySteps);
}

TEST(Emulator, WrapsAndScrollsText) {
    // ld a,'a'; ld b,130; loop: rst 28h, _PutC; djnz loop; ret
    Emulator calculator(plusProgram({0xBB, 0x6D, 0x3E, 'a', 0x06, 130, 0xEF, 0x04, 0x45, 0x10, 0xFB, 0xC9}),
                        Shell::Asm);
    EXPECT_EQ(calculator.run(), Stop::Returned);
    EXPECT_EQ(calculator.row(0), std::string(16, 'a'));
    EXPECT_EQ(calculator.row(7), "aa");
}

TEST(Emulator, DrawsSpritesAndShowsThemWithTheNextCopy) {
    // ret; jr nc,+2; "A",0; ld a,5; ld l,2; ld b,1; ld ix,sprite; call ionPutSprite; call ionFastCopy; ret
    Emulator calculator(
        plusProgram({0xBB, 0x6D, 0xC9, 0x30, 0x02, 'A',  0,    0x3E, 5,    0x2E, 2,    0x06, 1,
                     0xDD, 0x21, 0xAB, 0x9D, 0xCD, 0xC4, 0x96, 0xCD, 0xCD, 0x96, 0xC9, 0x81}),
        Shell::Ion);
    EXPECT_EQ(calculator.run(), Stop::Returned);
    EXPECT_EQ(calculator.darkPixels(), 2);
    EXPECT_TRUE(calculator.pixel(5, 2));
    EXPECT_TRUE(calculator.pixel(12, 2));
}

TEST(Emulator, RefusesAProgramWithoutTheHeaderOfItsShell) {
    EXPECT_THROW(Emulator(plusProgram({0xC9}), Shell::Asm), std::invalid_argument);
    EXPECT_THROW(Emulator(plusProgram({0xBB, 0x6D, 0xC9, 'K', 'A', 'V', 2}), Shell::Kav),
                 std::invalid_argument);
    EXPECT_THROW(Emulator(plusProgram({0xBB, 0x6D, 0xC9, 7}), Shell::Mirage), std::invalid_argument);
}

}  // namespace kav::test
