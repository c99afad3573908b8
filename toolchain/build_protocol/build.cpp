// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of a build, and the verdict that is written whatever happens in them.
#include "build_protocol/build.h"

#include "build_protocol/counted_calculators.h"
#include "build_protocol/error_report.h"
#include "build_protocol/one_target.h"
#include "program_file/program_file.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "runtime/lines.h"

#include <array>
#include <exception>
#include <optional>
#include <ostream>

namespace kav {

namespace {

constexpr std::array<Calculator, 2> kTargets{Calculator::Ti83Plus, Calculator::Ti83};

struct Outcome {
    std::string listing;
    std::vector<BuildError> errors;
};

std::optional<std::string> preferencesIn(const std::string& folder) {
    try {
        return readFile(folder + "/prefs.ini");
    } catch (const Failure&) {
        return std::nullopt;
    }
}

void removeOldPrograms(const std::string& folder, const std::string& name) {
    for (const Calculator calculator : kTargets) {
        std::string path = folder;
        path.append("/").append(name).append(programExtension(calculator));
        if (fileExists(path)) removeFile(path);
    }
}

bool isCounted(const std::vector<Calculator>& counted, Calculator calculator) {
    for (const Calculator one : counted) {
        if (one == calculator) return true;
    }
    return false;
}

void describe(std::ostream& summary, const std::string& name, const TargetBuild& built, bool counted) {
    summary << "  " << name << programExtension(built.calculator) << "  " << displayName(built.calculator)
            << ": ";
    if (built.errors.empty()) {
        summary << built.size << " bytes\n";
    } else {
        summary << "not made, " << built.errors.size() << (built.errors.size() == 1 ? " error" : " errors")
                << (counted ? "\n" : " (not asked for in the settings)\n");
    }
    for (const std::string& note : built.notes)
        summary << "    " << note << '\n';
}

/// Assembles for both calculators; the listing is that of the first counted one with errors, else of the
/// first.
Outcome buildAll(const std::string& folder, const std::string& name, std::ostream& summary) {
    (void)calculatorName(name);
    removeOldPrograms(folder, name);
    const std::optional<std::string> preferences = preferencesIn(folder);
    const std::vector<Calculator> counted = countedCalculators(preferences);

    Outcome outcome;
    std::vector<CalculatorErrors> errors;
    bool listingHasErrors = false;
    for (const Calculator calculator : kTargets) {
        const TargetBuild built = buildTarget(folder, name, calculator);
        const bool counts = isCounted(counted, calculator);
        describe(summary, name, built, counts);
        if (!counts) continue;
        errors.push_back({calculator, built.errors});
        const bool first = errors.size() == 1;
        if (first || (!listingHasErrors && !built.errors.empty())) outcome.listing = built.listing;
        listingHasErrors = listingHasErrors || !built.errors.empty();
    }
    outcome.errors = mergedErrors(errors);
    return outcome;
}

/// As buildAll, with whatever ends it as an error in the first line.
Outcome buildOrError(const std::string& folder, const std::string& name, std::ostream& summary) {
    try {
        return buildAll(folder, name, summary);
    } catch (const std::exception& error) {
        return {{}, {{1, error.what()}}};
    } catch (...) {
        return {{}, {{1, "The build ended for an unknown reason"}}};
    }
}

/// True when the listing stands in the folder.
bool writeListing(const std::string& folder, const Outcome& outcome, std::ostream& summary) {
    try {
        writeFile(folder + "/temp.lst", withoutErrorBlock(outcome.listing) + errorBlock(outcome.errors));
        return true;
    } catch (const std::exception& error) {
        summary << "  no listing: " << error.what() << '\n';
        return false;
    }
}

}  // namespace

int runBuild(const std::string& folder, const std::string& name, std::ostream& summary) {
    summary << "Building " << name << '\n';
    const Outcome outcome = buildOrError(folder, name, summary);
    for (const BuildError& error : outcome.errors) {
        summary << "  line " << error.line << ": " << error.message << '\n';
    }
    const bool listed = writeListing(folder, outcome, summary);
    const int verdict = outcome.errors.empty() && listed ? 0 : 1;
    summary << (verdict == 0 ? "Success.\n" : "There were errors.\n");
    writeFile(folder + "/errLog.txt", std::to_string(verdict) + std::string(kCrLf));
    return verdict;
}

}  // namespace kav
