// SPDX-License-Identifier: GPL-3.0-or-later
// The usage clock, which asks for the survey once.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The question, with the buttons Yes and No.
inline constexpr std::string_view kSurveyTitle = "Please Fill Out Survey - KAV Compiler";
inline constexpr std::string_view kSurveyText =
    "In order to get user feedback I have posted a survey on the internet. Now that you have used KAV "
    "Compiler for "
    "a few hours could you fill out the survey? This popup will never occur again. To take the survey click "
    "yes or "
    "go to Help|Take Survey. Do you want to go to the survey?";

/// Counts the seconds of use over all runs of the program.
class SurveyClock {
  public:
    /// How many seconds of use the question waits for: it comes when there are more.
    static constexpr double kSecondsBeforeQuestion = 7199;

    SurveyClock(double usageSeconds, bool surveyAsked) : usageSeconds_(usageSeconds), asked_(surveyAsked) {}

    /// Counts one second. True when the question is to be asked now; it counts as asked from then on,
    /// whatever the answer. It is never asked while a build's result is awaited, but at the first tick behind
    /// that.
    bool tick(bool buildAwaited);

    [[nodiscard]] double usageSeconds() const { return usageSeconds_; }
    [[nodiscard]] bool surveyAsked() const { return asked_; }
    /// The seconds as decimal text.
    [[nodiscard]] std::string usageText() const;

  private:
    double usageSeconds_;
    bool asked_;
};

}  // namespace kav
