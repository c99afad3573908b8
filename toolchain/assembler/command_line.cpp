// SPDX-License-Identifier: GPL-3.0-or-later
// What the user asks of kav-asm.
#include "assembler/command_line.h"

#include "assembler/characters.h"

#include <optional>

namespace kav::assembler {

namespace {

constexpr std::string_view kHelp =
    "Usage: kav-asm [options] FILE\n"
    "       kav-asm --build NAME\n"
    "Assembles Z80 source for the TI-83 and TI-83 Plus.\n"
    "\n"
    "  -o, --output FILE     write the program here (default: the source's name with\n"
    "                        .8xp, .83p or .bin)\n"
    "  -t, --target TARGET   ti83plus (.8xp, defines TI83P), ti83 (.83p, defines TI83) or\n"
    "                        bin (the bytes alone); default: what the output's\n"
    "                        extension says, else ti83plus\n"
    "  -D, --define NAME[=TEXT]\n"
    "                        define a macro; the text is 1 when none is given\n"
    "  -I, --include FOLDER  look for included files here too, after the source's own\n"
    "                        folder and before the include folder beside kav-asm\n"
    "  -l, --listing FILE    write a listing\n"
    "  -s, --symbols FILE    write the labels and their values (.sym)\n"
    "      --strict          accept nothing beyond the dialect itself\n"
    "  -h, --help            show this text\n"
    "      --version         show the version\n"
    "\n"
    "--build assembles NAME.z80 of the current folder for both calculators, as the editor\n"
    "asks for it: programs NAME.8xp and NAME.83p, listing temp.lst, verdict errLog.txt.\n"
    "\n"
    "Exit codes: 0 success, 1 errors in the source, 2 usage, 3 files.\n";

struct OptionName {
    std::string_view word;
    char letter;
    bool takesValue;
};

constexpr OptionName kOptions[] = {
    {"output", 'o', true},  {"target", 't', true},  {"define", 'D', true},
    {"include", 'I', true}, {"listing", 'l', true}, {"symbols", 's', true},
    {"strict", 'S', false}, {"help", 'h', false},   {"version", 'V', false},
};

struct Given {
    char letter;
    std::optional<std::string> value;
};

/// The option that an argument is; its value when it stands in the same argument.
Given optionOf(const std::string& argument) {
    const bool wordy = argument.starts_with("--");
    for (const OptionName& option : kOptions) {
        if (!wordy && argument[1] == option.letter) {
            if (argument.size() == 2) return {option.letter, std::nullopt};
            if (option.takesValue) return {option.letter, argument.substr(2)};
        }
        const std::string word = "--" + std::string(option.word);
        if (argument == word) return {option.letter, std::nullopt};
        if (option.takesValue && argument.starts_with(word + "=")) {
            return {option.letter, argument.substr(word.size() + 1)};
        }
    }
    throw UsageError("unknown option " + argument);
}

bool takesValue(char letter) {
    for (const OptionName& option : kOptions) {
        if (option.letter == letter) return option.takesValue;
    }
    return false;
}

Target targetCalled(const std::string& name) {
    if (name == "ti83plus") return Target::kTi83Plus;
    if (name == "ti83") return Target::kTi83;
    if (name == "bin") return Target::kBinary;
    throw UsageError("unknown target " + name + " (ti83plus, ti83 and bin are known)");
}

Target targetOfFile(const std::string& output) {
    const std::size_t period = output.rfind('.');
    const std::string extension = period == std::string::npos ? "" : output.substr(period);
    if (equalIgnoringCase(extension, ".83p")) return Target::kTi83;
    if (equalIgnoringCase(extension, ".bin")) return Target::kBinary;
    return Target::kTi83Plus;
}

std::pair<std::string, std::string> definition(const std::string& text) {
    const std::size_t equals = text.find('=');
    const std::string name = text.substr(0, equals);
    const bool isName = !name.empty() && kCharacters.isNameStart(name.front()) &&
                        kCharacters.endOfName(name, 0) == name.size();
    if (!isName) throw UsageError("a macro cannot be called \"" + name + "\"");
    return {name, equals == std::string::npos ? "1" : text.substr(equals + 1)};
}

void apply(CommandLine& line, std::optional<Target>& target, char letter, const std::string& value) {
    switch (letter) {
        case 'o':
            line.output = value;
            break;
        case 't':
            target = targetCalled(value);
            break;
        case 'D':
            line.defines.push_back(definition(value));
            break;
        case 'I':
            line.includeFolders.push_back(value);
            break;
        case 'l':
            line.listing = value;
            break;
        case 's':
            line.symbols = value;
            break;
        case 'S':
            line.strict = true;
            break;
        case 'h':
            line.help = true;
            break;
        default:
            line.version = true;
            break;
    }
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    std::optional<Target> target;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument.size() > 1 && argument.front() == '-') {
            Given given = optionOf(argument);
            if (takesValue(given.letter) && !given.value) {
                if (++i == arguments.size()) throw UsageError(argument + " needs a value");
                given.value = arguments[i];
            }
            if (takesValue(given.letter) && given.value->empty())
                throw UsageError(argument + " needs a value");
            apply(line, target, given.letter, given.value.value_or(""));
        } else if (line.source.empty() && !argument.empty()) {
            line.source = argument;
        } else {
            throw UsageError("one source file is expected, not also \"" + argument + "\"");
        }
    }
    line.target = target.value_or(targetOfFile(line.output));
    if (line.source.empty() && !line.help && !line.version) throw UsageError("a source file is expected");
    return line;
}

std::string_view helpText() {
    return kHelp;
}

}  // namespace kav::assembler
