// SPDX-License-Identifier: GPL-3.0-or-later
// Where the maker can be reached and what the Help menu opens.
#pragma once

#include <string_view>

namespace kav {

inline constexpr std::string_view kContactAddress = "tamsin.orrel@kav-compiler.example";
inline constexpr std::string_view kHomePage = "https://www.kav-compiler.example/";
inline constexpr std::string_view kSurveyPage = "https://www.kav-compiler.example/survey";

}  // namespace kav
