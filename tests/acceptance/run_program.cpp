// SPDX-License-Identifier: GPL-3.0-or-later
// run_program FILE: reads a program file back, runs it on the emulated calculator until it waits for a key or
// ends, and prints what its text screen shows.
#include "emulator/emulator.h"
#include "program_file/program_file.h"

#include <exception>
#include <iostream>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: run_program FILE\n";
        return 2;
    }
    try {
        const kav::Program program = kav::readProgram(arguments[1]);
        kav::test::Emulator calculator(program, kav::test::Shell::Asm);
        calculator.run();
        std::cout << program.name << '\n' << calculator.screen() << '\n';
    } catch (const std::exception& error) {
        std::cerr << "run_program: " << error.what() << '\n';
        return 1;
    }
}
