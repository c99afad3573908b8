// SPDX-License-Identifier: GPL-3.0-or-later
// The failure trap that command handlers run under.
#pragma once

#include "runtime/failure.h"
#include "shell/workspace.h"

#include <new>
#include <string>

namespace kav {

/// Runs `action`; a failure ends it and goes to the reporter under the handler's name.
template <typename Action>
void trapped(Workspace& workspace, const std::string& handler, Action action) {
    try {
        action();
    } catch (const Failure& failure) {
        workspace.doerr(handler, failure.number(), failure.description());
    } catch (const std::bad_alloc&) {
        workspace.doerr(handler, 7, "Out of memory");
    }
}

}  // namespace kav
