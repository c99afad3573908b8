// SPDX-License-Identifier: GPL-3.0-or-later
// Program files through libtifiles, which knows the containers and their checksums.
#include "program_file/program_file.h"

#include "runtime/failure.h"
#include "runtime/files.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <mutex>
#include <system_error>
#include <tifiles.h>

namespace kav {

namespace fs = std::filesystem;

namespace {

constexpr std::uint8_t kProtectedProgram = 0x06;

CalcModel modelOf(Calculator calculator) {
    return calculator == Calculator::Ti83 ? CALC_TI83 : CALC_TI83P;
}

struct ContentDeleter {
    void operator()(FileContent* content) const { tifiles_content_delete_regular(content); }
};
using Content = std::unique_ptr<FileContent, ContentDeleter>;

struct EntryDeleter {
    void operator()(VarEntry* entry) const { tifiles_ve_delete(entry); }
};
using Entry = std::unique_ptr<VarEntry, EntryDeleter>;

void startLibrary() {
    static std::once_flag started;
    std::call_once(started, [] { tifiles_library_init(); });
}

Content newContent(CalcModel model) {
    startLibrary();
    Content content(tifiles_content_create_regular(model));
    if (!content) throw std::bad_alloc();
    return content;
}

void checkSize(Calculator calculator, std::size_t size) {
    const std::size_t limit = largestProgram(calculator);
    if (size <= limit) return;
    throw ProgramFileError("Program too large for the " + displayName(calculator) + ": it has " +
                           std::to_string(size) + " bytes, " + std::to_string(limit) + " is the limit");
}

Entry entryOf(const std::string& name, const std::vector<std::uint8_t>& code) {
    const std::size_t size = kLengthWord + code.size();
    Entry entry(tifiles_ve_create_alloc_data(static_cast<std::uint32_t>(size)));
    if (!entry || entry->data == nullptr) throw std::bad_alloc();
    std::snprintf(entry->name, sizeof entry->name, "%s", name.c_str());
    entry->type = kProtectedProgram;
    entry->size = static_cast<std::uint32_t>(size);
    entry->data[0] = static_cast<std::uint8_t>(code.size() & 0xFF);
    entry->data[1] = static_cast<std::uint8_t>(code.size() >> 8);
    std::copy(code.begin(), code.end(), entry->data + kLengthWord);
    return entry;
}

Calculator calculatorOf(CalcModel model) {
    return model == CALC_TI83 ? Calculator::Ti83 : Calculator::Ti83Plus;
}

}  // namespace

void writeProgram(const std::string& path, std::string_view programName, Calculator calculator,
                  const std::vector<std::uint8_t>& code) {
    const std::string name = calculatorName(programName);
    checkSize(calculator, code.size());

    const Content content = newContent(modelOf(calculator));
    // The library puts the time here; without it the same source gives the same file.
    std::fill(std::begin(content->comment), std::end(content->comment), '\0');
    std::snprintf(content->comment, sizeof content->comment, "Made with KAV Compiler");
    tifiles_content_add_entry(content.get(), entryOf(name, code).release());

    const std::string neighbour = path + ".new";
    const int error = tifiles_file_write_regular(neighbour.c_str(), content.get(), nullptr);
    std::error_code renaming;
    if (error == 0) fs::rename(pathOf(neighbour), pathOf(path), renaming);
    if (error == 0 && !renaming) return;
    std::error_code ignored;
    fs::remove(pathOf(neighbour), ignored);
    throw error != 0 ? failureOf(kPathFileAccess, path) : failureOfCode(renaming, path);
}

Program readProgram(const std::string& path) {
    startLibrary();
    if (tifiles_file_is_regular(path.c_str()) == 0) {
        throw ProgramFileError(printable(path) + " is no calculator program");
    }
    Content content = newContent(tifiles_file_get_model(path.c_str()));
    if (tifiles_file_read_regular(path.c_str(), content.get()) != 0) {
        (void)content.release();  // the library has freed what it could not read
        throw ProgramFileError(printable(path) + " cannot be read as a calculator program");
    }
    if (content->checksum != content->stored_checksum) {
        throw ProgramFileError(printable(path) + " has a wrong checksum");
    }
    if (content->num_entries != 1 || content->entries[0]->type != kProtectedProgram) {
        throw ProgramFileError(printable(path) + " holds no protected program");
    }
    const VarEntry& entry = *content->entries[0];
    const std::size_t length =
        entry.size < kLengthWord ? 0 : entry.data[0] + (std::size_t{entry.data[1]} << 8);
    if (length + kLengthWord != entry.size) {
        throw ProgramFileError(printable(path) + " has a length word that does not fit its content");
    }
    const std::uint8_t* const code = entry.data + kLengthWord;
    return {entry.name, {code, code + length}, calculatorOf(content->model)};
}

}  // namespace kav
