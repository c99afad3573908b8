// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of everything that helps to read a text, for light and for dark desktops.
#include "documents/aids/aid_colours.h"

#include <algorithm>
#include <initializer_list>

namespace kav {

namespace {

/// What the colours start from; the ground that they stand on may ask for more contrast.
struct Hues {
    Colour mnemonic;
    Colour registerName;
    Colour directive;
    Colour number;
    Colour string;
    Colour comment;
    Colour label;
    Colour match;
    Colour mistake;
};

constexpr Hues kDarkHues = {
    .mnemonic = rgb(28, 84, 168),
    .registerName = rgb(128, 50, 150),
    .directive = rgb(150, 74, 0),
    .number = rgb(0, 104, 110),
    .string = rgb(164, 36, 60),
    .comment = rgb(70, 112, 60),
    .label = rgb(106, 84, 16),
    .match = rgb(0, 90, 210),
    .mistake = rgb(200, 20, 20),
};

constexpr Hues kLightHues = {
    .mnemonic = rgb(120, 176, 240),
    .registerName = rgb(214, 154, 230),
    .directive = rgb(240, 168, 96),
    .number = rgb(110, 204, 200),
    .string = rgb(244, 140, 150),
    .comment = rgb(140, 180, 124),
    .label = rgb(224, 204, 120),
    .match = rgb(150, 200, 255),
    .mistake = rgb(255, 120, 110),
};

/// A ground lets black be read, or white, and most let only one.
Colour readableInk(Colour ink, Colour paper) {
    if (contrastOf(ink, paper) >= kReadableContrast) return ink;
    return contrastOf(kBlack, paper) > contrastOf(kWhite, paper) ? kBlack : kWhite;
}

/// The paper with up to `share` percent of the tint in it, as much as leaves the ink readable.
Colour tinted(Colour paper, Colour tint, unsigned share, Colour ink) {
    while (share > 0 && contrastOf(ink, mixed(paper, tint, share)) < kReadableContrast)
        --share;
    return mixed(paper, tint, share);
}

/// The hue, brought towards the ink until it can be read on all grounds.
Colour readable(Colour hue, Colour ink, std::initializer_list<Colour> grounds) {
    constexpr unsigned kStep = 5;
    for (unsigned share = 0; share < 100; share += kStep) {
        const Colour colour = mixed(hue, ink, share);
        const bool isReadable = std::all_of(grounds.begin(), grounds.end(), [colour](Colour ground) {
            return contrastOf(colour, ground) >= kReadableContrast;
        });
        if (isReadable) return colour;
    }
    return ink;
}

}  // namespace

AidColours aidColoursOn(Colour paper, Colour ink) {
    constexpr unsigned kCurrentLineTint = 7;
    constexpr unsigned kMarginTint = 4;
    constexpr unsigned kParenthesisTint = 25;
    const Colour text = readableInk(ink, paper);
    const Colour currentLine = tinted(paper, text, kCurrentLineTint, text);
    const Colour margin = tinted(paper, text, kMarginTint, text);
    const Hues& hues = luminanceOf(text) > luminanceOf(paper) ? kLightHues : kDarkHues;
    const Colour matched = tinted(paper, hues.match, kParenthesisTint, text);
    const Colour lone = tinted(paper, hues.mistake, kParenthesisTint, text);
    const auto inText = [&](Colour hue) { return readable(hue, text, {paper, currentLine}); };
    return {
        .text = text,
        .paper = paper,
        .currentLine = currentLine,
        .mnemonic = inText(hues.mnemonic),
        .registerName = inText(hues.registerName),
        .directive = inText(hues.directive),
        .number = inText(hues.number),
        .string = inText(hues.string),
        .comment = inText(hues.comment),
        .label = inText(hues.label),
        .matchedParenthesis = readable(hues.match, text, {matched}),
        .matchedGround = matched,
        .loneParenthesis = readable(hues.mistake, text, {lone}),
        .loneGround = lone,
        .marginText = readable(mixed(text, paper, 45), text, {margin}),
        .marginPaper = margin,
        .errorMark = readable(hues.mistake, text, {margin}),
    };
}

}  // namespace kav
