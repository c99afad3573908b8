// SPDX-License-Identifier: GPL-3.0-or-later
// The task list: notes tied to a document and a line.
#include "tasks/task_list.h"

#include "runtime/code_points.h"
#include "runtime/failure.h"
#include "runtime/lines.h"
#include "runtime/number_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kav {

namespace {

constexpr std::size_t kLineDigits = 4;

/// The last four characters, all of a shorter text.
std::string_view lineField(std::string_view text) {
    const std::size_t count = characterCount(text);
    if (count <= kLineDigits) return text;
    return text.substr(firstCharacters(text, count - kLineDigits).size());
}

}  // namespace

void TaskList::requireTask(std::size_t index) const {
    if (index >= 1 && index <= tasks_.size()) return;
    throw failureOf(kInvalidCall, "there is no task " + std::to_string(index));
}

const Task& TaskList::task(std::size_t index) const {
    requireTask(index);
    return tasks_[index - 1];
}

void TaskList::add(std::string text, std::string tag, std::uint32_t colour) {
    add(Task{std::move(text), std::move(tag), false, colour});
}

void TaskList::add(Task task) {
    tasks_.push_back(std::move(task));
}

void TaskList::remove(std::size_t index) {
    requireTask(index);
    tasks_.erase(tasks_.begin() + static_cast<std::ptrdiff_t>(index - 1));
}

void TaskList::setFinished(std::size_t index, bool finished) {
    requireTask(index);
    tasks_[index - 1].finished = finished;
}

void TaskList::deleteFinished() {
    std::erase_if(tasks_, [](const Task& task) { return task.finished; });
}

void TaskList::invertChecked() {
    for (Task& task : tasks_)
        task.finished = !task.finished;
}

void TaskList::checkAll() {
    for (Task& task : tasks_)
        task.finished = true;
}

void TaskList::uncheckAll() {
    for (Task& task : tasks_)
        task.finished = false;
}

void TaskList::clear() {
    tasks_.clear();
}

TaskBoxes TaskList::select(std::size_t index, const TaskBoxes& current) {
    requireTask(index);
    writeBack(current);
    loadedIndex_ = index;
    const Task& picked = task(index);
    return {firstCharacters(picked.tag, 1), std::string(lineField(picked.tag)), picked.text};
}

void TaskList::writeBack(const TaskBoxes& boxes) {
    if (loadedIndex_ == 0 || loadedIndex_ > tasks_.size()) return;
    Task& loaded = tasks_[loadedIndex_ - 1];
    loaded.text = boxes.text;
    loaded.tag = boxes.document + boxes.line;
}

Task handMadeTask(std::string_view documentBox, std::string_view lineBox, std::string_view textBox) {
    Task task;
    task.text = "Document";
    task.text.append(documentBox).append(" Line ").append(lineBox).append(" ").append(textBox);
    task.tag = documentBox;
    task.tag += lineField(std::string(kLineDigits, '0').append(lineBox));
    return task;
}

GotoTarget gotoTargetOf(std::string_view tag) {
    // Four characters can spell more than any line number: "9E99".
    constexpr double kHighestLine = 1e9;
    const double line = std::floor(numericValue(lineField(tag)));
    return {plainDecimal(numericValue(firstCharacters(tag, 1))),
            static_cast<int>(std::clamp(line, -kHighestLine, kHighestLine))};
}

std::size_t gotoPosition(std::string_view text, int lineNumber) {
    // Positions count from 1 here, as those in the walk do.
    std::size_t position = 1;
    for (int line = 1; line < lineNumber; ++line) {
        // The walk looks from position + 1 on, which is offset `position`.
        const std::size_t lineEnd = text.find(kCrLf, position);
        if (lineEnd == std::string_view::npos) return 0;
        position = lineEnd + 1;
    }
    return position;
}

}  // namespace kav
