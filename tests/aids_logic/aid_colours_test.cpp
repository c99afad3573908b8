// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/aid_colours.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace kav::test {

namespace {

std::vector<Colour> coloursInText(const AidColours& colours) {
    return {colours.text,   colours.mnemonic, colours.registerName, colours.directive,
            colours.number, colours.string,   colours.comment,      colours.label};
}

void expectReadable(Colour paper, Colour ink) {
    const AidColours colours = aidColoursOn(paper, ink);
    for (const Colour colour : coloursInText(colours)) {
        EXPECT_GE(contrastOf(colour, colours.paper), 4.5) << std::hex << colour << " on " << paper;
        EXPECT_GE(contrastOf(colour, colours.currentLine), 4.5)
            << std::hex << colour << " on the current line " << colours.currentLine;
    }
    EXPECT_GE(contrastOf(colours.matchedParenthesis, colours.matchedGround), 4.5) << std::hex << paper;
    EXPECT_GE(contrastOf(colours.loneParenthesis, colours.loneGround), 4.5) << std::hex << paper;
    EXPECT_GE(contrastOf(colours.marginText, colours.marginPaper), 4.5) << std::hex << paper;
    EXPECT_GE(contrastOf(colours.errorMark, colours.marginPaper), 4.5) << std::hex << paper;
}

}  // namespace

TEST(Colours, KnownContrasts) {
    EXPECT_NEAR(contrastOf(kBlack, kWhite), 21.0, 1e-9);
    EXPECT_NEAR(contrastOf(kWhite, kWhite), 1.0, 1e-9);
    EXPECT_NEAR(contrastOf(rgb(0x77, 0x77, 0x77), kWhite), 4.48, 0.005);
    EXPECT_NEAR(contrastOf(rgb(255, 0, 0), kWhite), 4.0, 0.005);
    EXPECT_NEAR(contrastOf(rgb(0, 0, 255), kWhite), 8.59, 0.005);
}

TEST(Colours, MixChannelByChannel) {
    EXPECT_EQ(mixed(rgb(10, 20, 30), rgb(110, 120, 130), 50), rgb(60, 70, 80));
    EXPECT_EQ(mixed(rgb(1, 2, 3), kWhite, 0), rgb(1, 2, 3));
    EXPECT_EQ(mixed(rgb(1, 2, 3), rgb(7, 8, 9), 100), rgb(7, 8, 9));
}

TEST(AidColours, AreReadableOnALightAndOnADarkDesktop) {
    expectReadable(kWhite, kBlack);
    expectReadable(rgb(42, 42, 42), rgb(240, 240, 240));
    expectReadable(kBlack, kWhite);
}

TEST(AidColours, AreReadableOnAnyPaper) {
    for (unsigned red = 0; red <= 255; red += 51)
        for (unsigned green = 0; green <= 255; green += 51)
            for (unsigned blue = 0; blue <= 255; blue += 51)
                for (const Colour ink : {kBlack, kWhite, rgb(101, 123, 131)})
                    expectReadable(rgb(red, green, blue), ink);
}

TEST(AidColours, CanBeToldApart) {
    for (const auto& [paper, ink] : {std::pair(kWhite, kBlack), std::pair(rgb(42, 42, 42), kWhite)}) {
        const AidColours all = aidColoursOn(paper, ink);
        const std::vector<Colour> colours = coloursInText(all);
        EXPECT_EQ(std::set<Colour>(colours.begin(), colours.end()).size(), colours.size());
        const std::set<Colour> grounds = {all.paper, all.currentLine, all.matchedGround, all.loneGround};
        EXPECT_EQ(grounds.size(), 4U);
    }
}

TEST(AidColours, KeepTheDesktopsOwnTextWhereItCanBeRead) {
    const AidColours colours = aidColoursOn(rgb(250, 245, 230), rgb(60, 60, 60));
    EXPECT_EQ(colours.text, rgb(60, 60, 60));
    EXPECT_EQ(colours.paper, rgb(250, 245, 230));
    EXPECT_NE(colours.currentLine, colours.paper);
}

}  // namespace kav::test
