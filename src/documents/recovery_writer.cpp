// SPDX-License-Identifier: GPL-3.0-or-later
// Writes documents' copies in the background.
#include "documents/recovery_writer.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace kav {

RecoveryWriter::RecoveryWriter(std::function<void(const std::string&)> removed)
    : removed_(std::move(removed)) {}

RecoveryWriter::~RecoveryWriter() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void RecoveryWriter::write(std::shared_ptr<RecoveryFile> copy, std::string text, Written written) {
    submit({std::move(copy), std::move(text), std::move(written)});
}

void RecoveryWriter::remove(std::shared_ptr<RecoveryFile> copy) {
    submit({std::move(copy), std::nullopt, {}});
}

void RecoveryWriter::submit(Job job) {
    {
        const std::lock_guard lock(mutex_);
        const auto same = std::find_if(waiting_.begin(), waiting_.end(),
                                       [&](const Job& other) { return other.copy == job.copy; });
        if (same == waiting_.end()) {
            waiting_.push_back(std::move(job));
        } else {
            *same = std::move(job);
        }
        // Whoever changes no document has no second thread.
        if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
    }
    changed_.notify_all();
}

void RecoveryWriter::finish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_.empty() && !busy_; });
}

void RecoveryWriter::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (waiting_.empty()) return;
        const Job job = std::move(waiting_.front());
        waiting_.pop_front();
        busy_ = true;
        lock.unlock();
        perform(job);
        lock.lock();
        busy_ = false;
        changed_.notify_all();
    }
}

void RecoveryWriter::perform(const Job& job) const {
    if (!job.text) {
        const std::string path = job.copy->remove();
        if (removed_ && !path.empty()) removed_(path);
        return;
    }
    std::optional<Failure> failure;
    try {
        job.copy->write(*job.text);
    } catch (const Failure& raised) {
        failure = raised;
    } catch (const std::exception& error) {
        failure = Failure(kPathFileAccess, error.what());
    }
    if (job.written) job.written(std::move(failure));
}

}  // namespace kav
