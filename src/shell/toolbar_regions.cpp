// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar strip's regions.
#include "shell/toolbar_regions.h"

#include "shell/addresses.h"

#include <algorithm>
#include <array>

namespace kav {

namespace {

// clang-format off
constexpr std::array<ToolbarRegion, 17> kRegions{{
    {  0,  16, "newer",    "New KAV File-Creates a new file with the KAV header."},
    { 16,  33, "newion",   "New Ion File-Creates a new file with the Ion header."},
    { 33,  50, "newasm",   "New Blank File-Creates a new file with no header."},
    { 50,  67, "nmf",      "New Mirage File-Creates a new file with the Mirage header."},
    { 67,  89, "load",     "Open-Opens a file from your hard drive"},
    { 89, 111, "svenotas", "Save-Saves a file to your hard drive"},
    {111, 123, "stpf",     "Save to Projects Folder-Saves a file to "},
    {123, 145, "comp",     "Compile-This calls TASM and DevPac to assemble the file into a .8xp and/or .83p"},
    {145, 167, "cut",      "Cut-This copies the selected text onto the clipboard and deletes it from the document"},
    {167, 184, "cpy",      "Copy-This copies the selected text onto the clipboard."},
    {184, 194, "pste",     "Paste-This copies the clipboard onto the selected text/where the cursor is."},
    {194, 211, "dlll",     "Delete-This deletes the selected text."},
    {211, 235, "fnd",      "Find-This opens the find dialog to search for text and/or replace certain text with other text."},
    {235, 256, "set",      "Settings-This opens the settings dialog."},
    {256, 279, "abt",      "About-Displays version and copyright notice."},
    {279, 296, "mwp",      "Visit my Webpage-Opens your browser (set under settings) and goes to my webpage, "},
    {296, 318, "emlme",    "Mail Me-This sends me an e-mail message through the mailto method of your browser (set under settings), my address is "},
}};
// clang-format on

constexpr std::string_view kProjectsHelpEnd = "\\Projects which can then be opened using the quicklist";

}  // namespace

std::span<const ToolbarRegion> toolbarRegions() {
    return kRegions;
}

const ToolbarRegion* toolbarRegionAt(double x) {
    const auto* const region = std::find_if(kRegions.begin(), kRegions.end(),
                                            [x](const ToolbarRegion& known) { return x < known.right; });
    return region == kRegions.end() ? nullptr : region;
}

std::string toolbarHelp(const ToolbarRegion& region, std::string_view applicationFolder) {
    std::string help(region.help);
    if (region.command == "stpf") help.append(applicationFolder).append(kProjectsHelpEnd);
    if (region.command == "mwp") help += kHomePage;
    if (region.command == "emlme") help += kContactAddress;
    return help;
}

}  // namespace kav
