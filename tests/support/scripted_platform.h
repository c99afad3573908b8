// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop that answers from a script and remembers what it was asked.
#pragma once

#include "platform/platform.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace kav::test {

/// Takes the next scripted answer; asking without one is a mistake of the test or of the program.
template <typename Answer>
Answer nextOf(std::deque<Answer>& answers, const std::string& question) {
    if (answers.empty()) throw std::logic_error("nothing is scripted for: " + question);
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

class ScriptedBoxes : public Boxes {
  public:
    std::deque<BoxAnswer> answers;
    std::deque<std::string> typed;
    std::vector<MessageBox> shownBoxes;
    std::vector<InputBox> askedBoxes;

    BoxAnswer show(const MessageBox& box) override {
        shownBoxes.push_back(box);
        return nextOf(answers, box.title + ": " + box.text);
    }
    std::string ask(const InputBox& box) override {
        askedBoxes.push_back(box);
        return nextOf(typed, box.title);
    }
};

class ScriptedFileChooser : public FileChooser {
  public:
    std::deque<std::optional<std::string>> answers;
    std::vector<FileQuestion> questions;

    std::optional<std::string> choose(const FileQuestion& question) override {
        questions.push_back(question);
        return nextOf(answers, question.title);
    }
};

class ScriptedLauncher : public ProcessLauncher {
  public:
    struct Launch {
        std::string commandLine;
        WindowStyle style;
    };
    std::vector<Launch> launches;
    /// Runs in place of the process, and may raise what starting it would.
    std::function<void(const std::string&)> process = [](const std::string&) {};

    long launch(const std::string& commandLine, WindowStyle style) override {
        launches.push_back({commandLine, style});
        process(commandLine);
        return static_cast<long>(launches.size());
    }
};

class ScriptedClipboard : public Clipboard {
  public:
    std::string content;

    void clear() override { content.clear(); }
    void setText(const std::string& text) override { content = text; }
    std::string text() override { return content; }
};

class ScriptedClock : public Clock {
  public:
    LocalTime time{2004, 6, 15, 12, 0, 0};

    LocalTime now() override { return time; }
};

class ScriptedRandomNumbers : public RandomNumbers {
  public:
    std::deque<double> numbers;

    double next() override { return nextOf(numbers, "a random number"); }
};

class ScriptedEnvironment : public Environment {
  public:
    std::map<std::string, std::string> variables;
    std::string desktop;
    std::optional<int> endedAtOnce;
    std::optional<int> ended;

    std::string variable(const std::string& name) override { return variables[name]; }
    std::string desktopFolder() override { return desktop; }
    void endAtOnce(int exitCode) override { endedAtOnce = exitCode; }
    void end(int exitCode) override { ended = exitCode; }
};

class ScriptedRegistry : public ClassRegistry {
  public:
    std::map<std::string, std::string> keys;

    std::string defaultValue(const std::string& key) override {
        const auto found = keys.find(key);
        return found == keys.end() ? std::string() : found->second;
    }
    void createKey(const std::string& key) override { keys.try_emplace(key); }
    void setDefaultValue(const std::string& key, const std::string& value) override {
        if (keys.contains(key)) keys[key] = value;
    }
};

/// All scripted services, and the Platform that hands them to the program.
struct ScriptedPlatform {
    ScriptedBoxes boxes;
    ScriptedFileChooser fileChooser;
    ScriptedLauncher launcher;
    ScriptedClipboard clipboard;
    ScriptedClock clock;
    ScriptedRandomNumbers random;
    ScriptedEnvironment environment;
    ScriptedRegistry registry;

    Platform platform() {
        return {boxes, fileChooser, launcher, clipboard, clock, random, environment, registry};
    }
};

}  // namespace kav::test
