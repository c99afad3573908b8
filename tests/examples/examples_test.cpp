// SPDX-License-Identifier: GPL-3.0-or-later
// Each example is built as the editor builds it, then run, and must show what it promises.
#include "emulator/emulator.h"
#include "support/application_folder.h"

#include <gtest/gtest.h>

namespace kav::test {

namespace {

constexpr std::uint8_t kRight = 0x01;
constexpr std::uint8_t kLeft = 0x02;
constexpr std::uint8_t kUp = 0x03;
constexpr std::uint8_t kDown = 0x04;
constexpr std::uint8_t kEnter = 0x05;
constexpr std::uint8_t kClear = 0x09;
constexpr std::uint8_t kGraph = 0x44;

/// The example, built for both calculators when it serves both, and read back from its program file.
Program example(const std::string& name, Calculator calculator = Calculator::Ti83Plus) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    folder.tick(calculator == Calculator::Ti83, true);
    folder.build(name, readFile(std::string(KAV_EXAMPLES_FOLDER) + "/" + name + ".z80"));
    return folder.program(name, calculator);
}

std::string screenOf(std::initializer_list<const char*> rows) {
    std::string text;
    for (const char* row : rows)
        text += std::string(row) + '\n';
    for (std::size_t row = rows.size(); row < 8; ++row)
        text += '\n';
    return text;
}

/// Runs a program that must come to a key, and presses it.
void pressWhenAsked(Emulator& calculator, std::uint8_t key) {
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    calculator.press({key});
}

/// Both calculators, for the examples that serve both.
class IonExamples : public testing::TestWithParam<Calculator> {};

}  // namespace

TEST(Examples, HelloPrintsItsGreetingAndWaitsForAKey) {
    Emulator calculator(example("hello"), Shell::Asm);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.screen(), screenOf({"Hello, world!", "Press a key."}));
    calculator.press({kEnter});
    EXPECT_EQ(calculator.run(), Stop::Returned);
    EXPECT_EQ(calculator.screen(), screenOf({}));
}

TEST(Examples, MacrosOfTheEditorPrintAndWait) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    folder.tick(false, true);
    folder.build("macros",
                 "#define dispause(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45,$EF,$72,$49\r\n"
                 "#define disp(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45\r\n"
                 "#define pause() .db $EF,$72,$49\r\n"
                 "#define pausecsc() .db $EF,$18,$40,$FE,$00,$28,$F9\r\n"
                 "#include \"ti83plus.inc\"\r\n .org userMem-2\r\n .db $BB,$6D\r\n"
                 " disp(one)\r\n pause()\r\n dispause(two)\r\n pausecsc()\r\n ret\r\n"
                 "one: .db \"one \",0\r\ntwo: .db \"two\",0\r\n");
    Emulator calculator(folder.program("macros", Calculator::Ti83Plus), Shell::Asm);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "one");
    pressWhenAsked(calculator, kEnter);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "one two");
    calculator.press({kEnter});
    EXPECT_EQ(calculator.run(10'000), Stop::TooManySteps);  // waits for a scan code
    calculator.press({0x09});
    EXPECT_EQ(calculator.run(), Stop::Returned);
}

TEST(Examples, KavShellProgramCountsKeys) {
    Emulator calculator(example("kavshell"), Shell::Kav);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "Keys:    0");
    pressWhenAsked(calculator, kEnter);
    pressWhenAsked(calculator, kUp);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "Keys:    2");
    calculator.press({kClear});
    EXPECT_EQ(calculator.run(), Stop::Returned);
}

TEST(Examples, MirageProgramDrawsItsButtonAndAText) {
    Emulator calculator(example("mirage"), Shell::Mirage);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_TRUE(calculator.pixel(45, 20));  // the button's first dark pixel, five from its left
    EXPECT_FALSE(calculator.pixel(44, 20));
    EXPECT_TRUE(calculator.pixel(40, 25));
    EXPECT_TRUE(calculator.pixel(54, 25));
    EXPECT_EQ(calculator.darkPixels(), 57);
    ASSERT_EQ(calculator.smallTexts().size(), 1U);
    EXPECT_EQ(calculator.smallTexts()[0].text, "Have a nice day!");
    EXPECT_EQ(calculator.smallTexts()[0].column, 29);
    EXPECT_EQ(calculator.smallTexts()[0].row, 42);
    constexpr std::uint16_t kLargeSprite = 0x408C;
    constexpr std::uint16_t kFastCopy = 0x4092;
    const std::vector<std::uint16_t> drawing = {kLargeSprite, kFastCopy};
    EXPECT_EQ(calculator.shellCalls(), drawing);
    calculator.press({kEnter});
    EXPECT_EQ(calculator.run(), Stop::Returned);
}

TEST(Examples, MirageProgramWithExitCodeTidiesUpWhenTheShellQuitsIt) {
    Emulator calculator(example("miragex"), Shell::Mirage);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "Working...");
    EXPECT_EQ(calculator.quit(), Stop::Returned);
    EXPECT_EQ(calculator.screen(), screenOf({"All tidied up."}));
}

TEST_P(IonExamples, BallMovesWithTheArrowKeysAndStaysOnTheScreen) {
    Emulator calculator(example("ion", GetParam()), Shell::Ion);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.darkPixels(), 28);
    EXPECT_TRUE(calculator.pixel(44 + 2, 28));
    pressWhenAsked(calculator, kRight);
    pressWhenAsked(calculator, kDown);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_TRUE(calculator.pixel(52 + 2, 36));
    EXPECT_EQ(calculator.darkPixels(), 28);
    for (int step = 0; step < 20; ++step) {
        pressWhenAsked(calculator, kLeft);
        pressWhenAsked(calculator, kUp);
    }
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_TRUE(calculator.pixel(4 + 2, 4));
    calculator.press({kClear});
    EXPECT_EQ(calculator.run(), Stop::Returned);
}

TEST_P(IonExamples, LanternCanBePlayedToItsEnd) {
    Emulator calculator(example("lantern", GetParam()), Shell::Ion);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    ASSERT_EQ(calculator.smallTexts().size(), 1U);
    EXPECT_EQ(calculator.smallTexts()[0].text, "The Lantern");
    EXPECT_TRUE(calculator.pixel(47, 12));
    calculator.press({kEnter});

    const auto expectAfter = [&](std::uint8_t key, std::initializer_list<const char*> rows) {
        pressWhenAsked(calculator, key);
        ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
        EXPECT_EQ(calculator.screen(), screenOf(rows));
    };
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.screen(), screenOf({"You are in the", "hall of an old", "castle. A dark",
                                             "stair goes down.", "Doors lead left", "and right."}));
    expectAfter(kUp, {"You cannot go", "there."});
    expectAfter(kEnter, {"There is nothing", "to take."});
    expectAfter(kDown, {"It is too dark", "to find a thing.", "Something", "breathes near", "you."});
    expectAfter(kEnter, {"There is nothing", "to take."});
    pressWhenAsked(calculator, kUp);
    expectAfter(kRight, {"The library.", "Dust lies on all", "shelves. On a", "table stands a", "lantern."});
    expectAfter(kEnter, {"You take the", "lantern. It", "burns!"});
    expectAfter(kEnter, {"There is nothing", "to take."});
    pressWhenAsked(calculator, kLeft);
    expectAfter(kRight, {"The library.", "Dust lies on all", "shelves. The", "table is empty", "now."});
    pressWhenAsked(calculator, kLeft);
    expectAfter(kLeft, {"The castle gate.", "It is locked,", "and the wind", "sings behind it."});
    pressWhenAsked(calculator, kRight);
    expectAfter(kDown, {"The lantern", "shows a cellar.", "A key hangs on", "the wall."});
    expectAfter(kEnter, {"You take the", "key."});
    pressWhenAsked(calculator, kUp);
    expectAfter(kDown, {"The cellar is", "empty but for a", "rat. It looks at", "you."});
    pressWhenAsked(calculator, kUp);
    expectAfter(kLeft, {"The key turns", "and the gate", "opens. You are", "free!"});
    calculator.press({kEnter});
    EXPECT_EQ(calculator.run(), Stop::Returned);
}

TEST_P(IonExamples, LanternShowsTheMapWithThePlayerOnIt) {
    Emulator calculator(example("lantern", GetParam()), Shell::Ion);
    pressWhenAsked(calculator, kEnter);
    pressWhenAsked(calculator, kGraph);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    const int playerAndRooms = calculator.darkPixels();
    EXPECT_EQ(playerAndRooms, 4 * 28 + 14);
    EXPECT_TRUE(calculator.pixel(44 + 3, 20 + 1));
    calculator.press({kEnter});
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "You are in the");
}

INSTANTIATE_TEST_SUITE_P(BothCalculators, IonExamples,
                         testing::Values(Calculator::Ti83Plus, Calculator::Ti83), [](const auto& tested) {
                             return tested.param == Calculator::Ti83 ? "Ti83" : "Ti83Plus";
                         });

}  // namespace kav::test
