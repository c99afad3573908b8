// SPDX-License-Identifier: GPL-3.0-or-later
// The texts that tell a desktop of the registered source files.
#include "platform/published_class.h"

#include "platform/source_class.h"

#include <algorithm>

namespace kav {

namespace {

bool isLetterOrDigit(char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

bool isExtension(std::string_view key) {
    return key.size() > 1 && key.front() == '.' && std::all_of(key.begin() + 1, key.end(), isLetterOrDigit);
}

std::string xmlText(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

/// A value of type string: what would end the line or look like an escape is escaped.
std::string entryValue(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
            case '\\':
                escaped += "\\\\";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\r':
                escaped += "\\r";
                break;
            case '\t':
                escaped += "\\t";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

/// Readers of entries look for the program under the line's first word, and some take that as it stands,
/// quotes and doubled percent signs and all. A path that has any is therefore left to `env`.
std::string openLine(const PublishedClass& sources) {
    const std::string program = execArgument(sources.program());
    return "Exec=" + std::string(program.starts_with('"') ? "env " : "") + program + " %f\n";
}

std::string compileLine(const PublishedClass& sources) {
    return std::string("Exec=env ") + kCompileVariable + "=1 " + execArgument(sources.program()) + " %f\n";
}

/// What both entries say of the program.
std::string commonLines(const PublishedClass& sources) {
    return "TryExec=" + entryValue(sources.program()) + "\nIcon=" + std::string(kIconName) +
           "\nTerminal=false\nMimeType=" + std::string(kSourceMimeType) + ";\n";
}

}  // namespace

std::optional<PublishedClass> publishedClass(const std::map<std::string, std::string>& keys) {
    const std::string name(kSourceClass);
    const auto command = keys.find(name + std::string(kOpenCommandKey));
    if (command == keys.end()) return std::nullopt;
    const std::size_t programAt = command->second.rfind(kRegisteredProgram);
    if (programAt == std::string::npos) return std::nullopt;

    PublishedClass sources;
    sources.applicationFolder = command->second.substr(0, programAt);
    const auto description = keys.find(name);
    if (description != keys.end()) sources.description = description->second;
    for (const auto& [key, value] : keys) {
        if (value == kSourceClass && isExtension(key)) sources.extensions.push_back(key);
    }
    return sources;
}

std::string mimePackage(const PublishedClass& sources) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
        "  <mime-type type=\"" +
        std::string(kSourceMimeType) + "\">\n    <comment>" + xmlText(sources.description) +
        "</comment>\n"
        "    <sub-class-of type=\"text/plain\"/>\n"
        "    <icon name=\"" +
        std::string(kIconName) + "\"/>\n";
    // Above the usual weight of 50: the user has asked for these files.
    for (const std::string& extension : sources.extensions)
        text += "    <glob pattern=\"*" + extension + "\" weight=\"60\"/>\n";
    return text + "  </mime-type>\n</mime-info>\n";
}

std::string programEntry(const PublishedClass& sources) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=KAV Compiler\n"
           "GenericName=Z80 Assembly Editor\n"
           "Comment=Write and compile Z80 assembly programs for the TI-83 and TI-83 Plus\n"
           "Categories=Development;IDE;\n"
           "Keywords=Z80;assembler;calculator;TI-83;\n"
           "StartupWMClass=kav-compiler\n" +
           openLine(sources) + commonLines(sources) +
           "Actions=Compile;\n"
           "\n"
           "[Desktop Action Compile]\n"
           "Name=Compile\n" +
           compileLine(sources);
}

std::string compileEntry(const PublishedClass& sources) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Compile with KAV Compiler\n"
           "Comment=Open a Z80 assembly source and compile it\n"
           "NoDisplay=true\n" +
           compileLine(sources) + commonLines(sources);
}

std::string execArgument(std::string_view argument) {
    constexpr std::string_view kReserved = " \t\n\"'\\><~|&;$*?#()`%";
    if (argument.find_first_of(kReserved) == std::string_view::npos) return std::string(argument);
    std::string quoted = "\"";
    for (const char character : argument) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) quoted += '\\';
        if (character == '%') quoted += '%';
        quoted += character;
    }
    return entryValue(quoted + "\"");
}

}  // namespace kav
