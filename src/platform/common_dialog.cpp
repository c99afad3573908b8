// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's one file dialog.
#include "platform/common_dialog.h"

#include "runtime/failure.h"

namespace kav {

void CommonDialog::show(FileQuestion::Kind kind) {
    const auto chosen = chooser_.choose({kind, title, filter, fileName, initialFolder});
    if (!chosen && cancelError) throw failureOf(kCancelSelected);
    fileName = chosen.value_or("");
}

}  // namespace kav
