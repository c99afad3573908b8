// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/registration_plan.h"

#include <gtest/gtest.h>
#include <map>

namespace kav {

namespace {

using Keys = std::map<std::string, std::string>;

/// A class registry that keeps to the rules of the real one: a key is set only where it exists.
class ScriptedRegistry {
  public:
    ScriptedRegistry() = default;
    explicit ScriptedRegistry(Keys keys) : keys_(std::move(keys)) {}

    [[nodiscard]] std::string read(const std::string& key) const {
        const auto found = keys_.find(key);
        return found == keys_.end() ? std::string() : found->second;
    }

    void run(const RegistrationBoxes& boxes) {
        for (const RegistryStep& step : plan(boxes)) {
            if (step.kind == RegistryStep::Kind::createKey) {
                keys_.try_emplace(step.key);
            } else if (const auto found = keys_.find(step.key); found != keys_.end()) {
                found->second = step.value;
            }
        }
    }

    [[nodiscard]] std::vector<RegistryStep> plan(const RegistrationBoxes& boxes) const {
        return registrationPlan(boxes, "C:\\KAV", [this](const std::string& key) { return read(key); });
    }

    [[nodiscard]] const Keys& keys() const { return keys_; }

  private:
    Keys keys_;
};

constexpr RegistrationBoxes kKvfOnly{true, false, false};
constexpr RegistrationBoxes kZ80Only{false, true, false};
constexpr RegistrationBoxes kAsmOnly{false, false, true};
constexpr RegistrationBoxes kAll{true, true, true};

const Keys kClass{
    {"Z80AsmSrc", "Z80 Assembly Source"},
    {"Z80AsmSrc\\DefaultIcon", "C:\\KAV\\KAV Compiler.exe,1"},
    {"Z80AsmSrc\\shell\\open\\command", "C:\\KAV\\KAV Compiler.exe %1"},
    {"Z80AsmSrc\\shell\\Compile\\command", "C:\\KAV\\KAV Compiler.exe %1 &"},
};

Keys classAnd(Keys others) {
    others.insert(kClass.begin(), kClass.end());
    return others;
}

}  // namespace

TEST(Registration, WritesNothingWhenNothingIsTicked) {
    EXPECT_TRUE(ScriptedRegistry().plan({}).empty());
}

TEST(Registration, LeavesAnUnknownZ80ExtensionUnassociated) {
    ScriptedRegistry registry;
    registry.run(kZ80Only);
    EXPECT_EQ(registry.keys(), kClass);
}

TEST(Registration, AssociatesAZ80ExtensionThatIsKnown) {
    ScriptedRegistry registry(Keys{{".z80", "Other"}});
    registry.run(kZ80Only);
    EXPECT_EQ(registry.keys(), classAnd({{".z80", "Z80AsmSrc"}}));
}

TEST(Registration, AssociatesKvfForItsOwnBoxAndForTheAsmBox) {
    for (const RegistrationBoxes& boxes : {kKvfOnly, kAsmOnly}) {
        ScriptedRegistry registry;
        registry.run(boxes);
        EXPECT_EQ(registry.keys(), classAnd({{".kvf", "Z80AsmSrc"}}));
    }
}

TEST(Registration, AssociatesNoExtensionWhenAsmIsAlready) {
    ScriptedRegistry registry(Keys{{".asm", "Z80AsmSrc"}, {".z80", "Other"}});
    registry.run(kAll);
    EXPECT_EQ(registry.keys(), classAnd({{".asm", "Z80AsmSrc"}, {".z80", "Other"}}));
}

TEST(Registration, GoesByAsmAloneWhateverTheOtherExtensionsAre) {
    const ScriptedRegistry registry(classAnd({{".kvf", "Z80AsmSrc"}, {".z80", "Z80AsmSrc"}}));
    using Kind = RegistryStep::Kind;
    EXPECT_EQ(registry.plan(kAll), (std::vector<RegistryStep>{
                                       {Kind::createKey, "Z80AsmSrc"},
                                       {Kind::setDefaultValue, ".z80", "Z80AsmSrc"},
                                       {Kind::createKey, ".kvf"},
                                       {Kind::setDefaultValue, ".kvf", "Z80AsmSrc"},
                                       {Kind::createKey, ".kvf"},
                                       {Kind::setDefaultValue, ".kvf", "Z80AsmSrc"},
                                   }));
}

TEST(Registration, WritesTheClassInOrder) {
    const auto steps = ScriptedRegistry(Keys{{".asm", "Z80AsmSrc"}}).plan(kKvfOnly);
    using Kind = RegistryStep::Kind;
    EXPECT_EQ(
        steps,
        (std::vector<RegistryStep>{
            {Kind::createKey, "Z80AsmSrc"},
            {Kind::setDefaultValue, "Z80AsmSrc", "Z80 Assembly Source"},
            {Kind::createKey, "Z80AsmSrc\\DefaultIcon"},
            {Kind::setDefaultValue, "Z80AsmSrc\\DefaultIcon", "C:\\KAV\\KAV Compiler.exe,1"},
            {Kind::createKey, "Z80AsmSrc\\shell\\open\\command"},
            {Kind::setDefaultValue, "Z80AsmSrc\\shell\\open\\command", "C:\\KAV\\KAV Compiler.exe %1"},
            {Kind::createKey, "Z80AsmSrc\\shell\\Compile\\command"},
            {Kind::setDefaultValue, "Z80AsmSrc\\shell\\Compile\\command", "C:\\KAV\\KAV Compiler.exe %1 &"},
        }));
}

TEST(Registration, RewritesTheClassWhenAnyOfItsValuesDiffers) {
    for (const auto& [key, value] : kClass) {
        auto keys = classAnd({{".asm", "Z80AsmSrc"}});
        EXPECT_TRUE(ScriptedRegistry(keys).plan(kAll).empty());
        keys[key] = value + " ";
        EXPECT_EQ(ScriptedRegistry(keys).plan(kAll).size(), 8U) << key;
    }
}

TEST(Registration, ShowsWhichExtensionsAreAssociated) {
    const ScriptedRegistry registry(Keys{{".kvf", "Z80AsmSrc"}, {".z80", "Other"}, {".asm", "Z80AsmSrc"}});
    const auto read = [&](const std::string& key) { return registry.read(key); };
    EXPECT_EQ(presentRegistration(read), (RegistrationBoxes{true, false, true}));
}

}  // namespace kav
