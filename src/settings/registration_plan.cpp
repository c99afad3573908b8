// SPDX-License-Identifier: GPL-3.0-or-later
// The registration's steps.
#include "settings/registration_plan.h"

#include <algorithm>
#include <array>

namespace kav {

namespace {

struct KeyValue {
    std::string key;
    std::string value;
};

/// The keys of the source class in the order they are written.
std::array<KeyValue, 4> classKeys(std::string_view applicationFolder) {
    const std::string name(kSourceClass);
    const std::string program = std::string(applicationFolder) + std::string(kRegisteredProgram);
    return {{
        {name, "Z80 Assembly Source"},
        {name + "\\DefaultIcon", program + ",1"},
        {name + std::string(kOpenCommandKey), program + " %1"},
        {name + std::string(kCompileCommandKey), program + " %1 &"},
    }};
}

}  // namespace

std::vector<RegistryStep> registrationPlan(const RegistrationBoxes& boxes, std::string_view applicationFolder,
                                           const ReadDefaultValue& defaultValue) {
    std::vector<RegistryStep> steps;
    const std::string name(kSourceClass);
    const auto create = [&](const std::string& key) {
        steps.push_back({RegistryStep::Kind::createKey, key});
    };
    const auto set = [&](const std::string& key, const std::string& value) {
        steps.push_back({RegistryStep::Kind::setDefaultValue, key, value});
    };

    const bool registered = defaultValue(".asm") == kSourceClass;
    if (boxes.z80 && !registered) {
        create(name);
        set(".z80", name);
    }
    if (boxes.kvf && !registered) {
        create(".kvf");
        set(".kvf", name);
    }
    if (boxes.assembly && !registered) {
        create(".kvf");
        set(".kvf", name);
    }
    if (!boxes.z80 && !boxes.kvf && !boxes.assembly) return steps;

    const auto keys = classKeys(applicationFolder);
    const bool upToDate = std::all_of(keys.begin(), keys.end(), [&](const KeyValue& wanted) {
        return defaultValue(wanted.key) == wanted.value;
    });
    if (upToDate) return steps;
    for (const KeyValue& wanted : keys) {
        create(wanted.key);
        set(wanted.key, wanted.value);
    }
    return steps;
}

RegistrationBoxes presentRegistration(const ReadDefaultValue& defaultValue) {
    RegistrationBoxes boxes;
    boxes.kvf = defaultValue(".kvf") == kSourceClass;
    boxes.z80 = defaultValue(".z80") == kSourceClass;
    boxes.assembly = defaultValue(".asm") == kSourceClass;
    return boxes;
}

}  // namespace kav
