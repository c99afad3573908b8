// SPDX-License-Identifier: GPL-3.0-or-later
// Writes documents' copies in the background.
#pragma once

#include "documents/recovery_file.h"
#include "runtime/failure.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace kav {

/// The one thread beside the program's own: it writes and removes the copies it is handed, one after the
/// other, so that a slow disk is never felt while typing. It shares nothing with the rest but those copies;
/// behaviour stays on the program's own thread.
class RecoveryWriter {
  public:
    /// Told on the writer's thread how a write has ended: nothing, or the failure.
    using Written = std::function<void(std::optional<Failure>)>;

    /// `removed` is told, on the writer's thread, the path of each copy that has been removed.
    explicit RecoveryWriter(std::function<void(const std::string&)> removed = {});

    /// Waits until all is written.
    ~RecoveryWriter();
    RecoveryWriter(const RecoveryWriter&) = delete;
    RecoveryWriter& operator=(const RecoveryWriter&) = delete;

    /// Writes the text as the copy. A text that still waits for its turn is passed over for a newer one.
    void write(std::shared_ptr<RecoveryFile> copy, std::string text, Written written);

    /// Removes the copy, and drops what waits to be written to it.
    void remove(std::shared_ptr<RecoveryFile> copy);

    /// Waits until nothing is left to do. The copies belong to the caller then, until it hands one over
    /// again.
    void finish();

  private:
    struct Job {
        std::shared_ptr<RecoveryFile> copy;
        std::optional<std::string> text;  ///< nothing for a removal
        Written written;
    };

    void submit(Job job);
    void run();
    void perform(const Job& job) const;

    std::function<void(const std::string&)> removed_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Job> waiting_;
    bool busy_ = false;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace kav
