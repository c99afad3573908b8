// SPDX-License-Identifier: GPL-3.0-or-later
// What all aids for the reader of a text have in common.
#include "documents/aids/text_aid.h"

#include "documents/text_box.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::size_t kLongestStart = 4096;

}  // namespace

TextAid::LineStart TextAid::startOfLine(long line) const {
    const auto number = static_cast<uintptr_t>(line);
    const auto begin =
        static_cast<std::size_t>(box_.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, number));
    const auto end =
        static_cast<std::size_t>(box_.SendScintilla(QsciScintillaBase::SCI_GETLINEENDPOSITION, number));
    const std::size_t length = std::min(end - begin, kLongestStart);
    return {box_.bytesBetween(begin, begin + length), length < end - begin};
}

}  // namespace kav
