// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"

#include <cerrno>
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

}  // namespace kav
