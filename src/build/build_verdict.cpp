// SPDX-License-Identifier: GPL-3.0-or-later
// The build script's verdict, as the status file tells it.
#include "build/build_verdict.h"

#include "runtime/lines.h"

namespace kav {

Verdict verdictOf(std::string_view statusFileText) {
    const std::string_view line = LineReader(statusFileText).next().value_or("");
    if (line == "2") return Verdict::Running;
    return line == "0" ? Verdict::Success : Verdict::Failure;
}

}  // namespace kav
