// SPDX-License-Identifier: GPL-3.0-or-later
// The help file as it was built, taken apart for tests.
#include "help/help_file.h"

#include "runtime/files.h"
#include "viewer/html_scanner.h"

#include <stdexcept>

namespace kav::test {

using viewer::attributeOf;
using viewer::contentOf;
using viewer::nextTag;

const viewer::HelpBook& help() {
    static const viewer::HelpBook book(readFile(KAV_HELP_FILE));
    return book;
}

const viewer::HelpPage& page(std::string_view name) {
    for (const viewer::HelpPage& one : help().pages()) {
        if (one.name == name) return one;
    }
    throw std::out_of_range("no page " + std::string(name));
}

std::vector<std::vector<std::string>> rowsOf(const viewer::HelpPage& page) {
    std::vector<std::vector<std::string>> rows;
    for (auto tag = nextTag(page.html, 0); tag; tag = nextTag(page.html, tag->end)) {
        if (tag->closes) continue;
        if (tag->name == "tr") rows.emplace_back();
        if (tag->name == "td") rows.back().push_back(viewer::runningText(contentOf(page.html, *tag)));
    }
    return rows;
}

std::vector<Sample> samplesOf(const viewer::HelpPage& page) {
    std::vector<Sample> samples;
    for (auto tag = nextTag(page.html, 0); tag; tag = nextTag(page.html, tag->end)) {
        const auto kind = attributeOf(*tag, "class");
        if (tag->name != "pre" || tag->closes || !kind) continue;
        samples.push_back({page.name, std::string(*kind), std::string(attributeOf(*tag, "id").value_or("")),
                           viewer::plainText(contentOf(page.html, *tag))});
    }
    return samples;
}

std::string sample(std::string_view id) {
    for (const viewer::HelpPage& one : help().pages()) {
        for (const Sample& found : samplesOf(one)) {
            if (found.id == id) return found.text;
        }
    }
    throw std::out_of_range("no sample " + std::string(id));
}

}  // namespace kav::test
