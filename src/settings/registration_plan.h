// SPDX-License-Identifier: GPL-3.0-or-later
// Which keys of the desktop's class registry the registration dialog writes.
#pragma once

#include "platform/source_class.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// The dialog's note; its misspelling and missing blank belong to it.
inline constexpr std::string_view kRegistrationNote =
    "Check the boxes next to the files you want to register with KAV Compiler. This will not show "
    "automaticly "
    "again.To show it again go to Tools|Registry.";

/// The ticked boxes, named after the controls.
struct RegistrationBoxes {
    bool kvf = false;
    bool z80 = false;
    bool assembly = false;  ///< the control `asm`, a word that C++ keeps for itself

    bool operator==(const RegistrationBoxes&) const = default;
};

/// The default value of a key under the root for file classes; empty when the key or the value is missing.
using ReadDefaultValue = std::function<std::string(const std::string& key)>;

/// One step of the registration.
struct RegistryStep {
    enum class Kind {
        createKey,
        setDefaultValue,  ///< opens the key, never creates it: fails silently when there is none
    };
    Kind kind = Kind::createKey;
    std::string key;
    std::string value = {};

    bool operator==(const RegistryStep&) const = default;
};

/// The steps of Ok, in order. As the program has it, all three boxes ask after ".asm", the box for ".asm"
/// registers
/// ".kvf", and the key ".z80" is only set, not created. The class is written when any of its values differs.
[[nodiscard]] std::vector<RegistryStep> registrationPlan(const RegistrationBoxes& boxes,
                                                         std::string_view applicationFolder,
                                                         const ReadDefaultValue& defaultValue);

/// The boxes as they stand when the dialog opens: ticked for each extension that belongs to the source class.
[[nodiscard]] RegistrationBoxes presentRegistration(const ReadDefaultValue& defaultValue);

}  // namespace kav
