// SPDX-License-Identifier: GPL-3.0-or-later
// The one failure that commands raise and handlers trap, with the runtime's numbers and descriptions.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace kav {

/// A failed operation. `number()` is the runtime's failure code, `what()` its description, to which the
/// raiser may have added what it was about ("File not found: a.z80").
class Failure : public std::runtime_error {
  public:
    Failure(int number, const std::string& description);

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] std::string description() const { return what(); }

  private:
    int number_;
};

/// The runtime's failure codes.
enum FailureNumber : int {
    kInvalidCall = 5,
    kSubscriptOutOfRange = 9,
    kTypeMismatch = 13,
    kBadFileName = 52,
    kFileNotFound = 53,
    kDiskFull = 61,
    kInputPastEnd = 62,
    kPermissionDenied = 70,
    kPathFileAccess = 75,
    kPathNotFound = 76,
    kCancelSelected = 32755,
};

/// The failure of the given number with the runtime's own description, followed by ": " and `about` when
/// that is not empty. Throws std::invalid_argument for a number that is not a FailureNumber.
[[nodiscard]] Failure failureOf(FailureNumber number, const std::string& about = {});

/// The failure that a C library call left in errno, as the runtime would number it.
[[nodiscard]] Failure failureOfErrno(int errorNumber, const std::string& about);

/// The failure that the standard library tells in an error code, which may be the system's own and not
/// errno's.
[[nodiscard]] Failure failureOfCode(const std::error_code& error, const std::string& about);

}  // namespace kav
