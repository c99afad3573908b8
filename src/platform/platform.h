// SPDX-License-Identifier: GPL-3.0-or-later
// All that the program asks of a desktop, in one hand.
#pragma once

#include "platform/boxes.h"
#include "platform/class_registry.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/file_chooser.h"
#include "platform/process_launcher.h"
#include "platform/random_numbers.h"

namespace kav {

/// References to the desktop's services; whoever makes a Platform owns them.
struct Platform {
    Boxes& boxes;
    FileChooser& fileChooser;
    ProcessLauncher& launcher;
    Clipboard& clipboard;
    Clock& clock;
    RandomNumbers& random;
    Environment& environment;
    ClassRegistry& registry;
};

}  // namespace kav
