// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"

#include <cerrno>
#include <future>
#include <gtest/gtest.h>

namespace kav {

TEST(Failure, CarriesTheRuntimesNumberAndDescription) {
    const Failure failure = failureOf(kFileNotFound);
    EXPECT_EQ(failure.number(), 53);
    EXPECT_EQ(failure.description(), "File not found");
}

TEST(Failure, SaysWhatItIsAbout) {
    EXPECT_EQ(failureOf(kDiskFull, "a.z80").description(), "Disk full: a.z80");
}

TEST(Failure, CancelReadsAsDialogsReportIt) {
    EXPECT_EQ(failureOf(kCancelSelected).number(), 32755);
    EXPECT_EQ(failureOf(kCancelSelected).description(), "Cancel was selected.");
}

TEST(Failure, NumbersTheSystemsOwnErrors) {
    EXPECT_EQ(failureOfErrno(ENOENT, "x").number(), 53);
    EXPECT_EQ(failureOfErrno(EACCES, "x").number(), 70);
    EXPECT_EQ(failureOfErrno(ENOSPC, "x").number(), 61);
    EXPECT_EQ(failureOfErrno(ENOTDIR, "x").number(), 76);
    EXPECT_EQ(failureOfErrno(EIO, "x").number(), 75);
}

TEST(Failure, NumbersAVanishedNetworkPathAsAPathThatIsNotThere) {
    for (const int error : {EHOSTUNREACH, ENETDOWN, ENETUNREACH, ENOTCONN, ETIMEDOUT})
        EXPECT_EQ(failureOfErrno(error, "x").number(), 76) << error;
}

TEST(Failure, NumbersAFileThatHasNoRoomToGrowAsAFullDisk) {
    EXPECT_EQ(failureOfErrno(EFBIG, "x").number(), 61);
}

TEST(Failure, NumbersTheLibrarysErrors) {
    EXPECT_EQ(failureOfCode(std::make_error_code(std::errc::permission_denied), "x").number(), 70);
    EXPECT_EQ(failureOfCode(std::make_error_code(std::errc::no_space_on_device), "x").number(), 61);
    // The library's own errors are none of the system's.
    EXPECT_EQ(failureOfCode(std::make_error_code(std::future_errc::no_state), "x").number(), 75);
}

// Numbers that the system gives are errno's on one system and others elsewhere.
TEST(Failure, NumbersErrorsInTheSystemsOwnCount) {
#ifdef _WIN32
    constexpr int kAccessDenied = 5;
    constexpr int kPathNotFoundThere = 3;
#else
    constexpr int kAccessDenied = EACCES;
    constexpr int kPathNotFoundThere = ENOENT;
#endif
    EXPECT_EQ(failureOfCode({kAccessDenied, std::system_category()}, "x").number(), 70);
    EXPECT_EQ(failureOfCode({kPathNotFoundThere, std::system_category()}, "x").number(), 53);
}

}  // namespace kav
