// SPDX-License-Identifier: GPL-3.0-or-later
// What a build writes into the application folder, and what it remembers.
#include "build/build_files.h"

#include "platform/dos_path.h"  // shortFolderName
#include "runtime/lines.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::string_view kMacroBlock =
    ";These are KAV Compiler's built in macros.\r\n"
    "APP_PUSH_ERRORHT .equ 59h\r\n"
    "APP_POP_ERRORHT  .equ 5Ch\r\n"
    "#define AppOnErr(xxxx)  ld hl, xxxx     \\ call APP_PUSH_ERRORHT\r\n"
    "#define AppOffErr()     call APP_POP_ERRORHT\r\n"
    "#define dispause(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45,$EF,$72,$49\r\n"
    "#define disp(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45\r\n"
    "#define pause() .db $EF,$72,$49\r\n"
    "#define pausecsc() .db $EF,$18,$40,$FE,$00,$28,$F9\r\n"
    ";End of KAV Compiler's macros.\r\n";

constexpr std::size_t kDriveLength = 2;      // "C:"
constexpr std::size_t kDriveRootLength = 3;  // the drive and its backslash

}  // namespace

std::string macroBlock() {
    return std::string(kMacroBlock);
}

std::string buildSource(std::string_view documentText) {
    return macroBlock().append(documentText).append(kCrLf);
}

std::string tabPass(std::string_view text) {
    constexpr std::string_view kIndentedLine = "\r\n ";
    std::string result(text);
    // A TAB never makes a new match, so what lies behind the search need not be searched again.
    for (std::size_t at = result.find(kIndentedLine); at != std::string::npos;
         at = result.find(kIndentedLine, at + kIndentedLine.size())) {
        result[at + kCrLf.size()] = '\t';
    }
    return result;
}

std::string changeDirectoryLine(std::string_view applicationFolder) {
    std::string line = "cd\\";
    std::string_view rest = applicationFolder.substr(std::min(kDriveLength, applicationFolder.size()));
    while (!rest.empty()) {
        const std::size_t end = rest.find('\\');
        const std::string_view segment = rest.substr(0, end);
        if (!segment.empty()) line += shortFolderName(segment) + "\\";
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return line;
}

std::string batchFile(std::string_view applicationFolder, std::string_view programName) {
    std::string text(applicationFolder.substr(0, kDriveRootLength));
    text += kCrLf;
    text += changeDirectoryLine(applicationFolder);
    text += kCrLf;
    text += "asm ";
    text += programName;
    text += kCrLf;
    return text;
}

}  // namespace kav
