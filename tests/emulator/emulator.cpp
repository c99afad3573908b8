// SPDX-License-Identifier: GPL-3.0-or-later
// The emulated processor: loading, running, and stepping in where the calculator's system would run.
#include "emulator/emulator.h"

#include "emulator/places.h"

#include <algorithm>
#include <bit>
#include <stdexcept>
#include <z80ex/z80ex.h>

namespace kav::test {

namespace {

constexpr std::uint16_t kReturnAddress = 0xFFF8;  // nothing else is there
constexpr std::uint16_t kStackTop = 0xFFE0;
constexpr std::uint16_t kSystemCall = 0x0028;
constexpr std::uint16_t kSystemJump = 0x0050;
constexpr std::uint16_t kLcdBusyQuick = 0x000B;
constexpr std::uint16_t kInterrupt = 0x0038;
constexpr std::size_t kMirageButtonBytes = 30;

Z80EX_BYTE readMemory(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD address, int /*m1*/, void* memory) {
    return static_cast<const std::uint8_t*>(memory)[address];
}

void writeMemory(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD address, Z80EX_BYTE value, void* memory) {
    static_cast<std::uint8_t*>(memory)[address] = value;
}

Z80EX_BYTE readNothing(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD /*port*/, void* /*user*/) {
    return 0xFF;
}
void writeNothing(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD /*port*/, Z80EX_BYTE /*value*/, void* /*user*/) {}
Z80EX_BYTE readVector(Z80EX_CONTEXT* /*cpu*/, void* /*user*/) {
    return 0xFF;
}

[[noreturn]] void throwHeader(const std::string& expected) {
    throw std::invalid_argument("the program does not begin with " + expected);
}

/// Reads a program's header byte by byte.
class Header {
  public:
    explicit Header(const std::vector<std::uint8_t>& code) : code_(code) {}

    void expect(std::initializer_list<std::uint8_t> bytes, const std::string& what) {
        for (const std::uint8_t byte : bytes) {
            if (next() != byte) throwHeader(what);
        }
    }
    std::uint8_t next() { return code_.at(position_++); }
    void skip(std::size_t count) { position_ += count; }
    void skipText() {
        while (next() != 0)
            continue;
    }
    [[nodiscard]] std::size_t position() const { return position_; }

  private:
    const std::vector<std::uint8_t>& code_;
    std::size_t position_ = 0;
};

}  // namespace

Emulator::Emulator(const Program& program, Shell shell)
    : places_(&placesOf(program.calculator)),
      calculator_(program.calculator),
      cpu_(z80ex_create(readMemory, memory_.data(), writeMemory, memory_.data(), readNothing, nullptr,
                        writeNothing, nullptr, readVector, nullptr),
           z80ex_destroy) {
    rows_.fill(std::string(16, ' '));
    addSystemCalls();
    addLibrary(shell);
    load(program, shell);
}

Emulator::~Emulator() = default;

void Emulator::load(const Program& program, Shell shell) {
    const bool plus = program.calculator == Calculator::Ti83Plus;
    Header header(program.code);
    if (plus) header.expect({0xBB, 0x6D}, "BB 6D");
    std::size_t origin = places_->programStart - (plus ? 2U : 0U);
    if (shell != Shell::Asm) header.expect({0xC9}, "a ret");
    if (shell == Shell::Kav) {
        origin -= 1;  // the shell drops BB 6D and the ret
        header.expect({'K', 'A', 'V', 1}, "the KAV header");
        if (header.next() != ' ') throwHeader("a title that begins with a blank");
        header.skipText();
        header.skip(2);
    }
    if (shell == Shell::Mirage) {
        const std::uint8_t kind = header.next();
        if (kind != 1 && kind != 3) throwHeader("a kind that MirageOS knows");
        header.skip(kMirageButtonBytes);
        if (kind == 3) {
            const int low = header.next();
            quitRoutine_ = static_cast<std::uint16_t>(low + header.next() * 256);
        }
        header.skipText();
    }
    if (origin + program.code.size() > kStackTop - 256U)
        throw std::invalid_argument("the program is too large");
    std::copy(program.code.begin(), program.code.end(),
              memory_.begin() + static_cast<std::ptrdiff_t>(origin));
    set(regPC, static_cast<std::uint16_t>(origin + header.position()));
    set(regAF, 0);  // Ion starts its programs with the carry clear
    set(regSP, kStackTop);
    set(regIY, places_->flags);
    push(kReturnAddress);
}

void Emulator::press(std::initializer_list<std::uint8_t> codes) {
    keys_.insert(keys_.end(), codes.begin(), codes.end());
}

Stop Emulator::run(long steps) {
    stopped_ = false;
    for (long step = 0; step < steps; ++step) {
        const std::uint16_t counter = get(regPC);
        if (counter == kReturnAddress) return Stop::Returned;
        if (!trap(counter)) {
            do {
                z80ex_step(cpu_.get());
            } while (z80ex_last_op_type(cpu_.get()) != 0);
            if (z80ex_doing_halt(cpu_.get()) != 0) z80ex_int(cpu_.get());
        }
        if (stopped_) return stop_;
    }
    return Stop::TooManySteps;
}

Stop Emulator::quit() {
    if (quitRoutine_ == 0) throwHeader("the address of a quit routine");
    set(regSP, kStackTop);
    push(kReturnAddress);
    set(regPC, quitRoutine_);
    return run();
}

bool Emulator::trap(std::uint16_t counter) {
    const bool plus = calculator_ == Calculator::Ti83Plus;
    if (library_.contains(counter)) {
        shellCalls_.push_back(counter);
        serve(library_, counter);
        return true;
    }
    if (plus && (counter == kSystemCall || counter == kSystemJump)) {
        const std::uint16_t numberAt = pop();
        calls_.push_back(word(numberAt));
        if (counter == kSystemCall) push(static_cast<std::uint16_t>(numberAt + 2));
        serve(systemCalls_, word(numberAt));
        return true;
    }
    if (!plus && counter >= 0x4000 && counter < 0x8000) {
        calls_.push_back(counter);
        serve(systemCalls_, counter);
        return true;
    }
    if (counter == kInterrupt || counter == kLcdBusyQuick) {
        set(regPC, pop());
        return true;
    }
    if (counter >= 0x8000) return false;
    stopped_ = true;
    stop_ = Stop::UnknownCall;
    return true;
}

void Emulator::serve(const std::map<std::uint16_t, Routine>& routines, std::uint16_t entry) {
    const auto found = routines.find(entry);
    if (found == routines.end()) {
        stopped_ = true;
        stop_ = Stop::UnknownCall;
        return;
    }
    const std::uint16_t counterBefore = get(regPC);
    const std::uint16_t stackBefore = get(regSP);
    (this->*found->second)();
    if (!stopped_) {
        set(regPC, pop());
        return;
    }
    // A call that waits for a key is made again when the run goes on.
    set(regPC, counterBefore);
    set(regSP, stackBefore);
    if (calculator_ == Calculator::Ti83Plus && counterBefore == kSystemCall) {
        push(static_cast<std::uint16_t>(pop() - 2));
    }
    calls_.pop_back();
}

std::uint16_t Emulator::word(std::uint16_t address) const {
    const auto next = static_cast<std::uint16_t>(address + 1);
    return static_cast<std::uint16_t>(memory_[address] + memory_[next] * 256);
}

std::uint16_t Emulator::pop() {
    const std::uint16_t stack = get(regSP);
    set(regSP, static_cast<std::uint16_t>(stack + 2));
    return word(stack);
}

void Emulator::push(std::uint16_t value) {
    const auto stack = static_cast<std::uint16_t>(get(regSP) - 2);
    memory_[stack] = static_cast<std::uint8_t>(value & 0xFF);
    memory_[static_cast<std::uint16_t>(stack + 1)] = static_cast<std::uint8_t>(value >> 8);
    set(regSP, stack);
}

std::uint16_t Emulator::get(int reg) const {
    return z80ex_get_reg(cpu_.get(), static_cast<Z80_REG_T>(reg));
}

void Emulator::set(int reg, std::uint16_t value) {
    z80ex_set_reg(cpu_.get(), static_cast<Z80_REG_T>(reg), value);
}

void Emulator::setA(std::uint8_t value) {
    set(regAF, static_cast<std::uint16_t>((get(regAF) & 0xFF) | (value << 8)));
}

void Emulator::spoil(std::initializer_list<int> registers) {
    for (const int reg : registers)
        set(reg, 0xDEAD);
}

bool Emulator::pixel(int x, int y) const {
    const int byte = y * 12 + x / 8;
    return (display_.at(static_cast<std::size_t>(byte)) & (0x80 >> (x % 8))) != 0;
}

int Emulator::darkPixels() const {
    int count = 0;
    for (const std::uint8_t byte : display_)
        count += std::popcount(byte);
    return count;
}

std::string Emulator::row(int number) const {
    const std::string& text = rows_.at(static_cast<std::size_t>(number));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string Emulator::screen() const {
    std::string text;
    for (int number = 0; number < 8; ++number)
        text += row(number) + '\n';
    return text;
}

}  // namespace kav::test
