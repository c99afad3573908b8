// SPDX-License-Identifier: GPL-3.0-or-later
// The display's keyboard and mouse, pressed by a program.
#pragma once

#include <memory>
#include <string>

namespace kav::test {

enum class MouseButton { Left = 1, Middle = 2, Right = 3, WheelUp = 4, WheelDown = 5 };

/// Presses keys and buttons as a user's hands do: the display's server passes them on to whichever window
/// they belong to. Places are pixels of the display.
class InputDevices {
  public:
    /// Connects to the display that DISPLAY names; throws std::runtime_error when there is none.
    InputDevices();
    ~InputDevices();
    InputDevices(const InputDevices&) = delete;
    InputDevices& operator=(const InputDevices&) = delete;

    void moveTo(int x, int y);
    void press(MouseButton button);
    void release(MouseButton button);

    /// One key with its modifiers, written as "ctrl+shift+Home"; names are those of the display's key
    /// symbols.
    void key(const std::string& combination);

    /// The keys of one printable ASCII character.
    void type(char character);

  private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace kav::test
