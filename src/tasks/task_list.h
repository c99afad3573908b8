// SPDX-License-Identifier: GPL-3.0-or-later
// The task list: notes tied to a document and a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// Colours have red in the low byte and blue in the high byte.
inline constexpr std::uint32_t kTaskDefaultColour = 0;
inline constexpr std::uint32_t kTaskErrorColour = 255;

/// One entry of the list.
struct Task {
    std::string text;
    std::string tag;  ///< document number (one character), then the line number
    bool finished = false;
    std::uint32_t colour = kTaskDefaultColour;
};

/// What the window's three edit boxes hold.
struct TaskBoxes {
    std::string document;
    std::string line;
    std::string text;

    bool operator==(const TaskBoxes&) const = default;
};

/// The tasks in the order of adding, and which of them is loaded into the edit boxes. Indexes count from 1;
/// every operation that takes one raises 5 when there is no such task.
class TaskList {
  public:
    [[nodiscard]] std::size_t count() const { return tasks_.size(); }
    [[nodiscard]] const Task& task(std::size_t index) const;
    [[nodiscard]] const std::vector<Task>& tasks() const { return tasks_; }

    void add(std::string text, std::string tag, std::uint32_t colour = kTaskDefaultColour);
    void add(Task task);
    void remove(std::size_t index);
    void setFinished(std::size_t index, bool finished);

    void deleteFinished();
    void invertChecked();
    void checkAll();
    void uncheckAll();
    void clear();

    /// The user picks a task: what stands in the boxes is written back to the task that was loaded before,
    /// when its index is still within the list, and the picked task is loaded. Removing tasks does not move
    /// the remembered index.
    [[nodiscard]] TaskBoxes select(std::size_t index, const TaskBoxes& current);

  private:
    void writeBack(const TaskBoxes& boxes);
    void requireTask(std::size_t index) const;

    std::vector<Task> tasks_;
    std::size_t loadedIndex_ = 0;  // 0: none yet
};

/// The task that the boxes describe: its line number is brought to four digits, or cut to the last four.
[[nodiscard]] Task handMadeTask(std::string_view documentBox, std::string_view lineBox,
                                std::string_view textBox);

/// Where a task's tag leads.
struct GotoTarget {
    std::string document;  ///< numeric value of the tag's first character, as text
    int line = 0;          ///< numeric value of the tag's last four characters, rounded down
};

[[nodiscard]] GotoTarget gotoTargetOf(std::string_view tag);

/// The start of the selection (0-based, in bytes) that Goto makes for a line: behind the CR of the line
/// break that ends the line before, 1 for the first line, 0 when the text has no such line.
[[nodiscard]] std::size_t gotoPosition(std::string_view text, int lineNumber);

}  // namespace kav
