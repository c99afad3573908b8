// SPDX-License-Identifier: GPL-3.0-or-later
// Which failure an action raises.
#pragma once

#include "runtime/failure.h"

namespace kav::test {

/// The number of the failure that the action raises, 0 when it raises none.
template <typename Action>
int failureNumberOf(Action action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return 0;
}

}  // namespace kav::test
