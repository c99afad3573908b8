// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the keyboard away from windows that nobody sees.
#include "platform/desktop/hidden_focus.h"

#include <QWindow>

namespace kav {

void passFocusOnFromHidden(QWindow* focused) {
    if (focused == nullptr || focused->isVisible() || focused->transientParent() == nullptr) return;
    QWindow* owner = focused->transientParent();
    // The toolkit requests no activation of an owner while it takes the owned window for the active one.
    focused->setTransientParent(nullptr);
    owner->requestActivate();
    focused->setTransientParent(owner);
}

}  // namespace kav
