// SPDX-License-Identifier: GPL-3.0-or-later
// Disks that are full and folders that may not be written to, made with the system's own means.
#include "support/linux/failing_disk.h"

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace kav::test {

namespace {

constexpr uid_t kNobody = 65534;

rlimit fileSizeLimit() {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    return limit;
}

void setFileSizeLimit(rlim_t bytes) {
    rlimit limit = fileSizeLimit();
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

FullDisk::FullDisk(unsigned long bytes) : before_(fileSizeLimit().rlim_cur) {
    // Without this the system ends the program instead of failing its write.
    std::signal(SIGXFSZ, SIG_IGN);
    setFileSizeLimit(bytes);
}

FullDisk::~FullDisk() {
    setFileSizeLimit(before_);
    std::signal(SIGXFSZ, SIG_DFL);
}

ReadOnlyFolder::ReadOnlyFolder(std::filesystem::path folder)
    : folder_(std::move(folder)), before_(std::filesystem::status(folder_).permissions()), user_(geteuid()) {
    using std::filesystem::perms;
    constexpr perms kMayWrite = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(folder_, before_ & ~kMayWrite);
    holds_ = user_ != 0 || seteuid(kNobody) == 0;
}

ReadOnlyFolder::~ReadOnlyFolder() {
    if (user_ == 0 && geteuid() != 0 && seteuid(0) != 0) std::abort();
    std::error_code ignored;
    std::filesystem::permissions(folder_, before_, ignored);
}

}  // namespace kav::test
