// SPDX-License-Identifier: GPL-3.0-or-later
// Variables, desktop folder and the end of the process.
#pragma once

#include "platform/environment.h"

namespace kav {

class DesktopEnvironment : public Environment {
  public:
    std::string variable(const std::string& name) override;
    std::string desktopFolder() override;
    void endAtOnce(int exitCode) override;
    void end(int exitCode) override;
};

}  // namespace kav
