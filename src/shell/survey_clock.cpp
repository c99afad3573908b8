// SPDX-License-Identifier: GPL-3.0-or-later
// The usage clock.
#include "shell/survey_clock.h"

#include "runtime/number_text.h"

namespace kav {

bool SurveyClock::tick(bool buildAwaited) {
    usageSeconds_ += 1;
    if (asked_ || buildAwaited || usageSeconds_ <= kSecondsBeforeQuestion) return false;
    asked_ = true;
    return true;
}

std::string SurveyClock::usageText() const {
    return plainDecimal(usageSeconds_);
}

}  // namespace kav
