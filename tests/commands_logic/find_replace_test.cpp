// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/find_replace.h"

#include "documents/case_folding.h"
#include "runtime/code_points.h"
#include "runtime/failure.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace kav {

namespace {

using Characters = std::u32string;

Characters charactersOf(std::string_view text) {
    Characters characters;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint next = codePointAt(text, at);
        characters += next.value;
        at += next.length;
    }
    return characters;
}

/// A search as it is told, over characters that count from 1; 0 is no match.
std::size_t toldSearch(std::size_t start, Characters text, Characters wanted, Comparison comparison) {
    if (start > text.size()) return 0;
    if (comparison == Comparison::text) {
        std::transform(text.begin(), text.end(), text.begin(), foldedCase);
        std::transform(wanted.begin(), wanted.end(), wanted.begin(), foldedCase);
    }
    return text.find(wanted, start - 1) + 1;
}

struct Told {
    Characters text;
    std::size_t count = 0;
    std::size_t position = 1;
};

/// Replace All as it is told: one search from the last match on after the other, each in the snapshot, each
/// replaced in the live text, where a selection that reaches beyond the end stops there.
Told toldReplaceAll(const Characters& snapshot, const Characters& wanted, const Characters& replacement,
                    std::size_t position, Comparison comparison) {
    Told told{snapshot, 0, position};
    while (const std::size_t match = toldSearch(told.position, snapshot, wanted, comparison)) {
        told.position = match + 1;
        const std::size_t start = std::min(match - 1, told.text.size());
        told.text.replace(start, wanted.size(), replacement);
        ++told.count;
    }
    return told;
}

Replacements replaced(std::string_view text, std::string_view wanted, std::string_view replacement,
                      std::size_t position = 1) {
    return replaceAll(text, wanted, replacement, position, replaceAllComparison(false));
}

std::optional<Match> found(std::string_view text, std::string_view wanted, std::size_t position = 1,
                           bool caseSensitive = false) {
    return findMatch(text, wanted, position, findComparison(caseSensitive));
}

std::string randomText(std::mt19937& random, const std::vector<std::string>& letters, std::size_t longest) {
    std::uniform_int_distribution<std::size_t> length(0, longest);
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::string text;
    for (std::size_t left = length(random); left > 0; --left)
        text += letters[pick(random)];
    return text;
}

}  // namespace

TEST(Find, WalksFromMatchToMatch) {
    EXPECT_EQ(found("abab", "ab"), (Match{1, 2}));
    EXPECT_EQ((Match{1, 2}).selection(), (Selection{0, 2}));
    EXPECT_EQ((Match{1, 2}).nextSearchPosition(), 2U);
    EXPECT_EQ(found("abab", "ab", 2), (Match{3, 2}));
    EXPECT_FALSE(found("abab", "ab", 4).has_value());
}

TEST(Find, FindsOverlappingMatches) {
    EXPECT_EQ(found("aaa", "aa", 1), (Match{1, 2}));
    EXPECT_EQ(found("aaa", "aa", 2), (Match{2, 2}));
    EXPECT_FALSE(found("aaa", "aa", 3).has_value());
}

TEST(Find, LooksAtCaseOnlyWhenTheBoxIsTicked) {
    EXPECT_EQ(found("\tLD a", "ld"), (Match{2, 2}));
    EXPECT_FALSE(found("\tLD a", "ld", 1, true).has_value());
    EXPECT_EQ(found("LD ld", "ld", 1, true), (Match{4, 2}));
}

TEST(Find, KnowsTheCasesOfLettersBeyondAscii) {
    EXPECT_EQ(found("x\xC3\x89t\xC3\xA9", "\xC3\xA9T"), (Match{2, 3}));
    EXPECT_EQ(found("\xD0\x96", "\xD0\xB6"), (Match{1, 2}));
    // The Kelvin sign takes three bytes, the letter it folds to takes one.
    EXPECT_EQ(found("1\xE2\x84\xAA!", "k"), (Match{2, 3}));
    EXPECT_EQ(found("1k!", "\xE2\x84\xAA"), (Match{2, 1}));
    EXPECT_FALSE(found("\xC3\x89", "\xC3\xA9", 1, true).has_value());
}

TEST(Find, MatchesAnEmptyTextUpToTheLastCharacter) {
    EXPECT_EQ(found("ab", "", 1), (Match{1, 0}));
    EXPECT_EQ(found("ab", "", 2), (Match{2, 0}));
    EXPECT_FALSE(found("ab", "", 3).has_value());
    EXPECT_FALSE(found("", "").has_value());
}

TEST(Find, NeverBeginsWithinACharacter) {
    EXPECT_EQ(found("\xC3\xA9z", "", 2), (Match{3, 0}));
    EXPECT_EQ(found("\xC3\xA9\xC3\xA9", "\xC3\xA9", 2), (Match{3, 2}));
}

TEST(Find, FindsBytesThatAreNoCharacters) {
    EXPECT_EQ(found("a\xFF\xC3z", "\xC3z"), (Match{3, 2}));
    EXPECT_EQ(found(std::string_view("a\0b", 3), std::string_view("\0b", 2)), (Match{2, 2}));
    EXPECT_FALSE(found("\xE9", "\xC9").has_value());
}

TEST(Find, GivesUpBeyondTheEnd) {
    EXPECT_FALSE(found("abc", "abcd").has_value());
    EXPECT_FALSE(found("abc", "a", 2147483647).has_value());
}

TEST(Find, SaysWhatWasNotFound) {
    EXPECT_EQ(notFoundTitle("ld a"), "Find ld a");
    EXPECT_EQ(notFoundText("ld a"), "ld a not found.");
}

TEST(Find, IsTheToldSearchOnRandomTexts) {
    std::mt19937 random(11);
    const std::vector<std::string> letters{"a", "b", "A", "\xC3\xA9", "\xC3\x89", "\xE2\x84\xAA", "k"};
    for (int round = 0; round < 20000; ++round) {
        const std::string text = randomText(random, letters, 16);
        const std::string wanted = randomText(random, letters, 3);
        for (const Comparison comparison : {Comparison::exact, Comparison::text}) {
            const std::size_t told = toldSearch(1, charactersOf(text), charactersOf(wanted), comparison);
            const auto match = findMatch(text, wanted, 1, comparison);
            ASSERT_EQ(match.has_value(), told != 0) << text << " / " << wanted;
            if (!match) continue;
            EXPECT_EQ(charactersOf(text.substr(0, match->position - 1)).size(), told - 1);
            EXPECT_EQ(charactersOf(text.substr(match->position - 1, match->length)).size(),
                      charactersOf(wanted).size());
        }
    }
}

TEST(SearchPosition, IsAWholeNumberFromOneOn) {
    EXPECT_EQ(searchPositionOf("1"), 1U);
    EXPECT_EQ(searchPositionOf(" 12 "), 12U);
    EXPECT_EQ(searchPositionOf("2.5"), 2U);
    EXPECT_EQ(searchPositionOf("3.5"), 4U);
    EXPECT_EQ(searchPositionOf("1e300"), 2147483647U);
    for (const char* text : {"", "x", "1x"}) {
        try {
            (void)searchPositionOf(text);
            ADD_FAILURE() << text;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), kTypeMismatch);
        }
    }
    for (const char* text : {"0", "-3", "0.5"}) {
        try {
            (void)searchPositionOf(text);
            ADD_FAILURE() << text;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), kInvalidCall);
        }
    }
}

TEST(ReplaceAll, ShiftsLaterReplacementsByTheDifferenceInLength) {
    const Replacements result = replaced("a a", "a", "bb");
    EXPECT_EQ(result.text, "bbbba");
    EXPECT_EQ(result.searchPosition, 4U);
    EXPECT_EQ(result.edits, (std::vector<Selection>{{0, 1}, {2, 1}}));
}

TEST(ReplaceAll, ReplacesEveryMatchOfTheSameLength) {
    EXPECT_EQ(replaced("cat cat", "cat", "dog").text, "dog dog");
    EXPECT_EQ(replaced("a\xC3\xA9 a", "a", "\xC3\xA9").text, "\xC3\xA9\xC3\xA9 \xC3\xA9");
}

TEST(ReplaceAll, ReadsTheCaseBoxTheOtherWayRound) {
    EXPECT_EQ(replaceAll("LD ld", "ld", "XX", 1, replaceAllComparison(false)).text, "LD XX");
    EXPECT_EQ(replaceAll("LD ld", "ld", "XX", 1, replaceAllComparison(true)).text, "XX XX");
}

TEST(ReplaceAll, StartsAtTheSearchPosition) {
    EXPECT_EQ(replaced("a a a", "a", "b", 2).text, "a b b");
    const Replacements behind = replaced("a a a", "a", "b", 6);
    EXPECT_EQ(behind.text, "a a a");
    EXPECT_EQ(behind.searchPosition, 6U);
}

TEST(ReplaceAll, ChangesNothingWithoutAMatch) {
    const Replacements result = replaced("abc", "x", "y");
    EXPECT_EQ(result.text, "abc");
    EXPECT_TRUE(result.edits.empty());
    EXPECT_EQ(result.searchPosition, 1U);
}

TEST(ReplaceAll, ReplacesOverlappingMatchesOneAfterTheOther) {
    EXPECT_EQ(replaced("aaa", "aa", "b").text, "bb");
    EXPECT_EQ(replaced("abab", "ab", "").text, "ab");
}

TEST(ReplaceAll, PutsItsTextBeforeEveryCharacterWhenNothingIsSought) {
    EXPECT_EQ(replaced("ab", "", "-").text, "--ab");
    EXPECT_EQ(replaced("\xC3\xA9\xC3\xA9", "", "-").text, "--\xC3\xA9\xC3\xA9");
}

TEST(ReplaceAll, CutsNoCharacterInTwo) {
    // The shifted second place is the one of the first letter behind the replacement, all of it.
    EXPECT_EQ(replaced("x\xC3\xA9x", "x", "12").text, "1212x");
    EXPECT_EQ(replaced("xx\xC3\xA9xx", "xx", "1").text, "1\xC3\xA9x1");
}

TEST(ReplaceAll, IsTheToldRuleOnRandomTexts) {
    std::mt19937 random(5);
    const std::vector<std::string> ascii{"a", "b", "A", " "};
    const std::vector<std::string> mixed{"a", "A", "\xC3\xA9", "\xC3\x89", "\xF0\x9F\x90\xB8", "\xE2\x84\xAA",
                                         "k"};
    for (int round = 0; round < 30000; ++round) {
        const auto& letters = round % 2 == 0 ? ascii : mixed;
        const std::string text = randomText(random, letters, 20);
        const std::string wanted = randomText(random, letters, 3);
        const std::string replacement = randomText(random, letters, 4);
        const std::size_t character = 1 + static_cast<std::size_t>(round) % 3;
        const Characters snapshot = charactersOf(text);
        std::size_t position = 1;
        for (std::size_t i = 1; i < character; ++i) {
            position += position <= text.size() ? codePointAt(text, position - 1).length : 1;
        }
        for (const Comparison comparison : {Comparison::exact, Comparison::text}) {
            const Told told = toldReplaceAll(snapshot, charactersOf(wanted), charactersOf(replacement),
                                             character, comparison);
            const Replacements result = replaceAll(text, wanted, replacement, position, comparison);
            ASSERT_EQ(charactersOf(result.text), told.text)
                << text << " / " << wanted << " / " << replacement;
            ASSERT_EQ(result.edits.size(), told.count);
            const bool bytesAreCharacters = snapshot.size() == text.size();
            ASSERT_TRUE(!bytesAreCharacters || result.searchPosition == told.position)
                << text << " / " << wanted;
            std::string edited = text;
            for (const Selection& edit : result.edits)
                edited.replace(edit.start, edit.length, replacement);
            ASSERT_EQ(edited, result.text);
        }
    }
}

TEST(ReplaceAll, TakesLargeTextsInOneScan) {
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "some text of fifty bytes and then what is sought: x";
    const Replacements result = replaced(text, "x", "longer");
    EXPECT_EQ(result.edits.size(), 200000U);
    // A wanted text that nearly matches everywhere costs no more.
    const std::string same(1000000, 'a');
    EXPECT_TRUE(replaced(same, std::string(100000, 'a') + "b", "").edits.empty());
    EXPECT_EQ(replaced(same, std::string(1000, 'a'), "b").edits.size(), 999001U);
}

}  // namespace kav
