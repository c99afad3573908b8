// SPDX-License-Identifier: GPL-3.0-or-later
// A calculator for tests: runs a program on an emulated Z80 and stands in for the calculator's system calls.
#pragma once

#include "program_file/program_file.h"

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct _z80_cpu_context;

namespace kav::test {

/// Who starts the program, which decides where its code begins and which library is at hand.
enum class Shell { Asm, Ion, Mirage, Kav };

/// Why a run ended.
enum class Stop { Returned, WaitsForKey, TooManySteps, UnknownCall };

/// Text written with the small font, and where.
struct SmallText {
    int column = 0;
    int row = 0;
    std::string text;
};

/// A calculator with one program in its memory.
class Emulator {
  public:
    /// Loads the program where `shell` puts it. Throws std::invalid_argument when its header is not the
    /// one that the shell looks for.
    Emulator(const Program& program, Shell shell);
    ~Emulator();
    Emulator(const Emulator&) = delete;
    Emulator& operator=(const Emulator&) = delete;

    /// The codes that the next key reads give: key codes for _GetKey, scan codes for _GetCSC.
    void press(std::initializer_list<std::uint8_t> codes);

    /// Runs on until the program returns, waits for a key, or has done `steps` instructions.
    Stop run(long steps = 2'000'000);

    /// Starts the routine whose address stands in the header, as the shell does when its user quits.
    Stop quit();

    /// One of the eight rows of the text screen, without the blanks at its end.
    [[nodiscard]] std::string row(int number) const;
    /// Everything on the text screen, rows separated by line feeds.
    [[nodiscard]] std::string screen() const;
    [[nodiscard]] const std::vector<SmallText>& smallTexts() const { return smallTexts_; }

    /// True when the pixel of the display (not of the buffer) is dark.
    [[nodiscard]] bool pixel(int x, int y) const;
    [[nodiscard]] int darkPixels() const;

    [[nodiscard]] std::uint8_t memory(std::uint16_t address) const { return memory_[address]; }
    /// The numbers of the system calls (TI-83 Plus) or the addresses of the ROM calls (TI-83), in order.
    [[nodiscard]] const std::vector<std::uint16_t>& calls() const { return calls_; }
    /// The entry points of the shell's library that were called, in order.
    [[nodiscard]] const std::vector<std::uint16_t>& shellCalls() const { return shellCalls_; }

  private:
    using Routine = void (Emulator::*)();
    struct Places;
    static const Places& placesOf(Calculator calculator);

    void load(const Program& program, Shell shell);
    bool trap(std::uint16_t counter);
    void serve(const std::map<std::uint16_t, Routine>& routines, std::uint16_t entry);
    void addSystemCalls();
    void addLibrary(Shell shell);

    [[nodiscard]] std::uint16_t word(std::uint16_t address) const;
    std::uint16_t pop();
    void push(std::uint16_t value);
    [[nodiscard]] std::uint16_t get(int reg) const;
    void set(int reg, std::uint16_t value);
    void setA(std::uint8_t value);
    /// Most calls leave rubbish in the registers; a program that counts on them is found out.
    void spoil(std::initializer_list<int> registers);

    void putCharacter(std::uint8_t character);
    void newLine();
    void showBuffer();
    void xorByte(int x, int y, std::uint8_t bits);
    bool nextKey(std::uint8_t& code);

    void doNothing();
    void clearScreen();
    void homeUp();
    void putS();
    void putC();
    void putMap();
    void dispHl();
    void vPutS();
    void clearBuffer();
    void getKey();
    void getCsc();
    void putSprite();
    void largeSprite();
    void random();

    std::array<std::uint8_t, 65536> memory_{};
    std::array<std::uint8_t, 768> display_{};
    std::array<std::string, 8> rows_;
    std::vector<SmallText> smallTexts_;
    std::vector<std::uint16_t> calls_;
    std::vector<std::uint16_t> shellCalls_;
    std::deque<std::uint8_t> keys_;
    std::map<std::uint16_t, Routine> systemCalls_;
    std::map<std::uint16_t, Routine> library_;
    const Places* places_;
    Calculator calculator_;
    std::uint16_t quitRoutine_ = 0;
    std::uint32_t randomState_ = 1;
    bool stopped_ = false;
    Stop stop_ = Stop::Returned;
    std::unique_ptr<_z80_cpu_context, void (*)(_z80_cpu_context*)> cpu_;
};

}  // namespace kav::test
