// SPDX-License-Identifier: GPL-3.0-or-later
#include "assembler/expression.h"

#include <gtest/gtest.h>

namespace kav::assembler {

namespace {

class Expressions : public testing::Test {
  protected:
    std::int32_t valueOf(std::string_view text) {
        const Value value = evaluator_.evaluate(text, place_);
        EXPECT_TRUE(value.known()) << text << ": " << evaluator_.error();
        return value.number;
    }

    std::string errorOf(std::string_view text) {
        EXPECT_EQ(evaluator_.evaluate(text, place_).state, Value::kBad) << text;
        return evaluator_.error();
    }

    SymbolTable symbols_;
    AnonymousLabels anonymous_;
    CharacterTable characters_;
    ExpressionWorld world_{symbols_, anonymous_, characters_};
    Evaluator evaluator_{world_};
    ExpressionPlace place_{0x1234, 1, 0};
};

}  // namespace

TEST_F(Expressions, AreReadFromLeftToRight) {
    EXPECT_EQ(valueOf("1+2*3+4"), 13);
    EXPECT_EQ(valueOf("1+(2*3)+4"), 11);
    EXPECT_EQ(valueOf(" 2 * ( 3 + 4 ) "), 14);
}

TEST_F(Expressions, KnowTheLocation) {
    EXPECT_EQ(valueOf("$"), 0x1234);
    EXPECT_EQ(valueOf("*"), 0x1234);
    EXPECT_EQ(valueOf("***"), 0x1234 * 0x1234);
    EXPECT_EQ(valueOf("$-$1234"), 0);
}

TEST_F(Expressions, TakePercentForModuloBehindAValue) {
    EXPECT_EQ(valueOf("%101"), 5);
    EXPECT_EQ(valueOf("17%5"), 2);
    EXPECT_EQ(valueOf("%10001%%101"), 2);
}

TEST_F(Expressions, AreSignedAndHave32Bits) {
    EXPECT_EQ(valueOf("$80000000"), INT32_MIN);
    EXPECT_EQ(valueOf("-$80000000"), INT32_MIN);
    EXPECT_EQ(valueOf("$80000000/-1"), INT32_MIN);
    EXPECT_EQ(valueOf("$80000000%-1"), 0);
    EXPECT_EQ(valueOf("$7FFFFFFF+1"), INT32_MIN);
    EXPECT_EQ(valueOf("-8>>1"), -4);
    EXPECT_EQ(valueOf("1<<31"), INT32_MIN);
    EXPECT_EQ(valueOf("1<<32"), 0);
    EXPECT_EQ(valueOf("1<<-1"), 0);
    EXPECT_EQ(valueOf("-1>>99"), -1);
}

TEST_F(Expressions, WaitForLabelsThatMayFollow) {
    EXPECT_EQ(evaluator_.evaluate("later+1", place_).state, Value::kForward);
    world_.labelsMayFollow = false;
    EXPECT_EQ(errorOf("later+1"), "Label not found: (later)");
}

TEST_F(Expressions, UseTheValueOfThePassBefore) {
    symbols_.define("later", 0, 7, LabelKind::kAddress, {});
    symbols_.beginPass();
    EXPECT_EQ(evaluator_.evaluate("later", place_).state, Value::kForward);
    world_.usePreviousPass = true;
    EXPECT_EQ(valueOf("later"), 7);
}

TEST_F(Expressions, FindLocalLabelsInTheirModule) {
    symbols_.define("_here", 1, 5, LabelKind::kAddress, {});
    symbols_.define("_here", 2, 6, LabelKind::kAddress, {});
    EXPECT_EQ(valueOf("_HERE"), 5);
    place_.module = 2;
    EXPECT_EQ(valueOf("_here"), 6);
}

TEST_F(Expressions, SayWhatIsWrong) {
    EXPECT_EQ(errorOf(""), "Invalid token where value expected: nothing stands here");
    EXPECT_EQ(errorOf("1+"), "Invalid token where value expected: a value is missing after 1+");
    EXPECT_EQ(errorOf("1/(2-2)"), "Range of argument exceeded: division by zero in 1/(2-2)");
    EXPECT_EQ(errorOf("2)"), "Unknown token: ) (an operator was expected)");
    EXPECT_EQ(errorOf("'a"), "No terminating quote: 'a");
}

TEST_F(Expressions, KnowOtherNumberFormsUnlessStrict) {
    EXPECT_EQ(valueOf("0x1F+0b101"), 0x24);
    world_.strict = true;
    EXPECT_EQ(errorOf("0x1F"), "Invalid token where value expected: 0x1F is no number");
}

TEST(Numbers, AreReadInEveryForm) {
    const auto valueOf = [](std::string_view text) {
        const Number number = readNumber(text, 0, true);
        EXPECT_EQ(number.kind, NumberKind::kNumber) << text;
        EXPECT_EQ(number.end, text.size()) << text;
        return number.value;
    };
    EXPECT_EQ(valueOf("$1f"), 0x1FU);
    EXPECT_EQ(valueOf("1Fh"), 0x1FU);
    EXPECT_EQ(valueOf("0Bh"), 0x0BU);
    EXPECT_EQ(valueOf("1010b"), 10U);
    EXPECT_EQ(valueOf("%1010"), 10U);
    EXPECT_EQ(valueOf("@17"), 15U);
    EXPECT_EQ(valueOf("17o"), 15U);
    EXPECT_EQ(valueOf("12d"), 12U);
    EXPECT_EQ(valueOf("0x1D"), 0x1DU);
    EXPECT_EQ(valueOf("4294967295"), 0xFFFFFFFFU);
}

TEST(Numbers, AreTold) {
    EXPECT_EQ(readNumber("$", 0, true).kind, NumberKind::kNone);
    EXPECT_EQ(readNumber("$+1", 0, true).kind, NumberKind::kNone);
    EXPECT_EQ(readNumber("%x", 0, true).kind, NumberKind::kNone);
    EXPECT_EQ(readNumber("name", 0, true).kind, NumberKind::kNone);
    EXPECT_EQ(readNumber("12x", 0, true).kind, NumberKind::kInvalid);
    EXPECT_EQ(readNumber("h", 0, true).kind, NumberKind::kNone);
    EXPECT_EQ(readNumber("4294967296", 0, true).kind, NumberKind::kTooLarge);
}

}  // namespace kav::assembler
