// SPDX-License-Identifier: GPL-3.0-or-later
// The display's keyboard and mouse, pressed by a program.
#include "input_devices.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <stdexcept>
#include <vector>

namespace kav::test {

struct InputDevices::Connection {
    Display* display = XOpenDisplay(nullptr);

    ~Connection() {
        if (display != nullptr) XCloseDisplay(display);
    }

    void send(KeySym symbol, bool down) const {
        const KeyCode code = XKeysymToKeycode(display, symbol);
        if (code == 0) throw std::runtime_error("the keyboard has no key " + std::to_string(symbol));
        XTestFakeKeyEvent(display, code, down ? True : False, CurrentTime);
    }

    /// Presses the keys in their order, lets them go in the reverse one.
    void chord(const std::vector<KeySym>& symbols) const {
        for (const KeySym symbol : symbols)
            send(symbol, true);
        for (auto symbol = symbols.rbegin(); symbol != symbols.rend(); ++symbol)
            send(*symbol, false);
        XSync(display, False);
    }
};

namespace {

KeySym symbolOf(const std::string& name) {
    if (name == "ctrl") return XK_Control_L;
    if (name == "shift") return XK_Shift_L;
    if (name == "alt") return XK_Alt_L;
    const KeySym symbol = XStringToKeysym(name.c_str());
    if (symbol == NoSymbol) throw std::runtime_error("there is no key " + name);
    return symbol;
}

}  // namespace

InputDevices::InputDevices() : connection_(std::make_unique<Connection>()) {
    if (connection_->display == nullptr) throw std::runtime_error("there is no display");
}

InputDevices::~InputDevices() = default;

void InputDevices::moveTo(int x, int y) {
    constexpr int kCurrentScreen = -1;
    XTestFakeMotionEvent(connection_->display, kCurrentScreen, x, y, CurrentTime);
    XSync(connection_->display, False);
}

void InputDevices::press(MouseButton button) {
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), True, CurrentTime);
    XSync(connection_->display, False);
}

void InputDevices::release(MouseButton button) {
    XTestFakeButtonEvent(connection_->display, static_cast<unsigned>(button), False, CurrentTime);
    XSync(connection_->display, False);
}

void InputDevices::key(const std::string& combination) {
    std::vector<KeySym> symbols;
    std::size_t start = 0;
    for (std::size_t end = combination.find('+'); end != std::string::npos;
         start = end + 1, end = combination.find('+', start)) {
        symbols.push_back(symbolOf(combination.substr(start, end - start)));
    }
    symbols.push_back(symbolOf(combination.substr(start)));
    connection_->chord(symbols);
}

void InputDevices::type(char character) {
    // The symbols of printable ASCII characters are their codes.
    const auto symbol = static_cast<KeySym>(static_cast<unsigned char>(character));
    const KeyCode code = XKeysymToKeycode(connection_->display, symbol);
    const bool shifted = XkbKeycodeToKeysym(connection_->display, code, 0, 0) != symbol;
    connection_->chord(shifted ? std::vector<KeySym>{XK_Shift_L, symbol} : std::vector<KeySym>{symbol});
}

}  // namespace kav::test
