// SPDX-License-Identifier: GPL-3.0-or-later
// Collects the messages of a pass in the order of the source.
#pragma once

#include "assembler/message.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <vector>

namespace kav::assembler {

/// A place in the source.
struct Location {
    const std::string* file = nullptr;      ///< the name of the file that holds the line
    const std::string* mainFile = nullptr;  ///< the name of the user's document
    int line = 0;                           ///< in `file`
    int userLine = 0;                       ///< in the user's document
    std::uint32_t order = 0;                ///< counts the lines that were read
};

/// Ends a pass at once: there were too many errors, or one behind which nothing can make sense.
class PassAbandoned : public std::exception {
  public:
    [[nodiscard]] const char* what() const noexcept override { return "assembly abandoned"; }
};

class Diagnostics {
  public:
    explicit Diagnostics(std::size_t maxErrors) : maxErrors_(maxErrors) {}

    /// Forgets all messages.
    void clear();

    /// Notes an error. Throws PassAbandoned when there are as many as there may be.
    void error(const Location& where, const std::string& text);

    /// Notes an error and abandons the pass.
    [[noreturn]] void fatal(const Location& where, const std::string& text);

    void warning(const Location& where, const std::string& text);
    void note(const Location& where, const std::string& text);

    [[nodiscard]] std::size_t errorCount() const { return errorCount_; }

    /// The messages in the order of the lines they are about.
    [[nodiscard]] std::vector<Message> sorted() const;

  private:
    struct Entry {
        std::uint32_t order;
        Message message;
    };

    void add(Severity severity, const Location& where, const std::string& text);

    std::vector<Entry> entries_;
    std::size_t maxErrors_;
    std::size_t errorCount_ = 0;
};

}  // namespace kav::assembler
