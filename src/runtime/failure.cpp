// SPDX-License-Identifier: GPL-3.0-or-later
// The runtime's failure numbers and their descriptions.
#include "runtime/failure.h"

#include <array>
#include <cerrno>
#include <utility>

namespace kav {

namespace {

constexpr std::array<std::pair<FailureNumber, const char*>, 11> kDescriptions{{
    {kInvalidCall, "Invalid procedure call or argument"},
    {kSubscriptOutOfRange, "Subscript out of range"},
    {kTypeMismatch, "Type mismatch"},
    {kBadFileName, "Bad file name or number"},
    {kFileNotFound, "File not found"},
    {kDiskFull, "Disk full"},
    {kInputPastEnd, "Input past end of file"},
    {kPermissionDenied, "Permission denied"},
    {kPathFileAccess, "Path/File access error"},
    {kPathNotFound, "Path not found"},
    {kCancelSelected, "Cancel was selected."},
}};

}  // namespace

Failure::Failure(int number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

Failure failureOf(FailureNumber number, const std::string& about) {
    for (const auto& [known, description] : kDescriptions) {
        if (known != number) continue;
        return {number, about.empty() ? std::string(description) : std::string(description) + ": " + about};
    }
    throw std::invalid_argument("no such failure number");
}

Failure failureOfErrno(int errorNumber, const std::string& about) {
    switch (errorNumber) {
        case ENOENT:
            return failureOf(kFileNotFound, about);
        case ENOTDIR:
        // A network path that is gone.
        case EHOSTUNREACH:
        case ENETDOWN:
        case ENETUNREACH:
        case ENOTCONN:
        case ETIMEDOUT:
#ifdef EHOSTDOWN
        case EHOSTDOWN:
#endif
#ifdef ESTALE
        case ESTALE:
#endif
            return failureOf(kPathNotFound, about);
        case EACCES:
        case EPERM:
        case EROFS:
            return failureOf(kPermissionDenied, about);
        case ENOSPC:
        // No more room for this user, or for a file of this size.
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return failureOf(kDiskFull, about);
        case ENAMETOOLONG:
        case EINVAL:
            return failureOf(kBadFileName, about);
        default: {
            const std::string reason = std::generic_category().message(errorNumber);
            return failureOf(kPathFileAccess, about + " (" + reason + ")");
        }
    }
}

Failure failureOfCode(const std::error_code& error, const std::string& about) {
    const std::error_condition condition = error.default_error_condition();
    if (condition.category() == std::generic_category()) return failureOfErrno(condition.value(), about);
    return failureOf(kPathFileAccess, about + " (" + error.message() + ")");
}

}  // namespace kav
