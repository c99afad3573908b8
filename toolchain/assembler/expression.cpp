// SPDX-License-Identifier: GPL-3.0-or-later
// Expressions: 32 bits, signed, from left to right without precedence.
#include "assembler/expression.h"

#include "assembler/suggestion.h"  // nearest label to a misspelt one
#include "assembler/text.h"

namespace kav::assembler {

namespace {

constexpr int kDeepestNesting = 200;

std::int32_t toSigned(std::uint32_t bits) {
    return static_cast<std::int32_t>(bits);
}
std::uint32_t toBits(std::int32_t number) {
    return static_cast<std::uint32_t>(number);
}

std::int32_t shiftedLeft(std::int32_t number, std::int32_t by) {
    return by < 0 || by > 31 ? 0 : toSigned(toBits(number) << by);
}

std::int32_t shiftedRight(std::int32_t number, std::int32_t by) {
    if (by < 0 || by > 31) return number < 0 ? -1 : 0;
    return number >> by;
}

/// 32-bit quotient and remainder; the one quotient that overflows wraps like every other operation.
std::int32_t quotient(std::int32_t a, std::int32_t b) {
    return toSigned(static_cast<std::uint32_t>(std::int64_t{a} / b));
}
std::int32_t remainder(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(std::int64_t{a} % b);
}

}  // namespace

Value Evaluator::bad(std::string error) {
    error_ = std::move(error);
    return {Value::kBad, 0};
}

Value Evaluator::evaluate(std::string_view text, const ExpressionPlace& place) {
    text_ = trimmed(text);
    place_ = place;
    cursor_ = 0;
    if (text_.empty()) return bad("Invalid token where value expected: nothing stands here");
    if (isAnonymousReference()) return anonymousLabel(text_.front());
    const Value value = expression(0);
    if (value.state == Value::kBad || atEnd()) return value;
    return bad("Unknown token: " + shown(text_.substr(cursor_)) + " (an operator was expected)");
}

Value Evaluator::expression(int depth) {
    if (depth > kDeepestNesting) return bad("Invalid token where value expected: parentheses nest too deep");
    Value left = term(depth);
    while (left.state != Value::kBad) {
        skipBlanks();
        const std::string_view sign = operatorAtCursor();
        if (sign.empty()) break;
        cursor_ += sign.size();
        const Value right = term(depth);
        if (right.state == Value::kBad) return right;
        left = apply(sign, left, right);
    }
    return left;
}

Value Evaluator::term(int depth) {
    skipBlanks();
    if (atEnd()) return bad("Invalid token where value expected: a value is missing after " + shown(text_));
    const char c = text_[cursor_];
    if (world_.characters.isNameStart(c)) return name();
    const Number read = readNumber(text_, cursor_, !world_.strict);
    if (read.kind != NumberKind::kNone) return number();
    switch (c) {
        case '(':
            return parenthesised(depth);
        case '$':
        case '*':
            ++cursor_;
            return {Value::kKnown, place_.location};
        case '\'':
            return character();
        case '-':
        case '+':
        case '~':
            return unary(c, depth);
        case '"':
            return bad("Invalid token where value expected: " + shown(text_.substr(cursor_)) +
                       " is a string, not a value");
        default:
            return bad("Invalid token where value expected: " + shown(text_.substr(cursor_)));
    }
}

Value Evaluator::parenthesised(int depth) {
    const std::size_t opening = cursor_++;
    const Value value = expression(depth + 1);
    if (value.state == Value::kBad) return value;
    skipBlanks();
    if (atEnd() || text_[cursor_] != ')') {
        return bad("Unknown token: a ) is missing in " + shown(text_.substr(opening)));
    }
    ++cursor_;
    return value;
}

Value Evaluator::unary(char sign, int depth) {
    // A run of signs is as deep as it is long.
    if (depth > kDeepestNesting) return bad("Invalid token where value expected: too many signs");
    ++cursor_;
    const Value value = term(depth + 1);
    if (!value.known()) return value;
    if (sign == '-') return {Value::kKnown, toSigned(0U - toBits(value.number))};
    return {Value::kKnown, sign == '~' ? ~value.number : value.number};
}

Value Evaluator::number() {
    const Number read = readNumber(text_, cursor_, !world_.strict);
    const std::string_view digits = text_.substr(cursor_, read.end - cursor_);
    cursor_ = read.end;
    if (read.kind == NumberKind::kNumber) return {Value::kKnown, toSigned(read.value)};
    if (read.kind == NumberKind::kTooLarge) {
        return bad("Range of argument exceeded: " + shown(digits) + " has more than 32 bits");
    }
    return bad("Invalid token where value expected: " + shown(digits) + " is no number");
}

Value Evaluator::character() {
    const std::size_t end = behindQuoted(text_, cursor_);
    if (end <= cursor_ + 1 || text_[end - 1] != '\'') return bad("No terminating quote: " + shown(text_));
    std::size_t position = cursor_ + 1;
    const bool escaped = text_[position] == '\\' && end == position + 3;
    const std::int32_t code = escaped
                                  ? escapedCharacter(text_, position)
                                  : static_cast<std::int32_t>(static_cast<unsigned char>(text_[position]));
    cursor_ = end;
    return {Value::kKnown, code};
}

Value Evaluator::name() {
    const std::size_t end = world_.characters.endOfName(text_, cursor_);
    const std::string_view word = text_.substr(cursor_, end - cursor_);
    cursor_ = end;
    const bool local = word.front() == world_.localLabelMark;
    const Label* label = world_.symbols.find(word, local ? place_.module : 0);
    if (label != nullptr && label->defined) return {Value::kKnown, label->value};
    if (world_.usePreviousPass && label != nullptr && label->definedPreviously) {
        return {Value::kKnown, label->previousValue};
    }
    if (world_.labelsMayFollow) return {Value::kForward, 0};
    const std::string nearest = world_.suggest ? nearestLabel(word, world_.symbols) : std::string();
    return bad("Label not found: " + shownName(word) + didYouMean(nearest));
}

bool Evaluator::isAnonymousReference() const {
    if (world_.strict || (text_.front() != '+' && text_.front() != '-')) return false;
    return text_.find_first_not_of(text_.front()) == std::string_view::npos;
}

Value Evaluator::anonymousLabel(char sign) {
    const std::size_t distance = text_.size();
    const auto& behind = world_.anonymous.backward;
    if (sign == '-') {
        if (distance <= behind.size()) return {Value::kKnown, behind[behind.size() - distance]};
        return bad("Label not found: " + shownName(text_) + ", no such label stands before");
    }
    const std::size_t wanted = place_.forwardLabels + distance - 1;
    const auto& ahead = world_.anonymous.forward;
    if (wanted < ahead.size()) return {Value::kKnown, ahead[wanted]};
    const auto& previous = world_.anonymous.previousForward;
    if (world_.usePreviousPass && wanted < previous.size()) return {Value::kKnown, previous[wanted]};
    if (world_.labelsMayFollow) return {Value::kForward, 0};
    return bad("Label not found: " + shownName(text_) + ", no such label follows");
}

std::string_view Evaluator::operatorAtCursor() {
    if (atEnd()) return {};
    const std::string_view pair = text_.substr(cursor_, 2);
    for (const std::string_view sign : {"<<", ">>", "==", "!=", "<=", ">="}) {
        if (pair == sign) return pair;
    }
    constexpr std::string_view kSingle = "+-*/%&|^=<>";
    return kSingle.find(pair.front()) == std::string_view::npos ? std::string_view() : pair.substr(0, 1);
}

Value Evaluator::apply(std::string_view sign, Value left, Value right) {
    if (!left.known() || !right.known()) return {Value::kForward, 0};
    const std::int32_t a = left.number;
    const std::int32_t b = right.number;
    const bool divides = sign == "/" || sign == "%";
    if (divides && b == 0) return bad("Range of argument exceeded: division by zero in " + shown(text_));
    const auto known = [](std::int32_t number) { return Value{Value::kKnown, number}; };
    if (sign == "<<") return known(shiftedLeft(a, b));
    if (sign == ">>") return known(shiftedRight(a, b));
    if (sign == "!=") return known(a != b ? 1 : 0);
    if (sign == "<=") return known(a <= b ? 1 : 0);
    if (sign == ">=") return known(a >= b ? 1 : 0);
    switch (sign.front()) {
        case '+':
            return known(toSigned(toBits(a) + toBits(b)));
        case '-':
            return known(toSigned(toBits(a) - toBits(b)));
        case '*':
            return known(toSigned(toBits(a) * toBits(b)));
        case '/':
            return known(quotient(a, b));
        case '%':
            return known(remainder(a, b));
        case '&':
            return known(a & b);
        case '|':
            return known(a | b);
        case '^':
            return known(a ^ b);
        case '<':
            return known(a < b ? 1 : 0);
        case '>':
            return known(a > b ? 1 : 0);
        default:
            return known(a == b ? 1 : 0);
    }
}

}  // namespace kav::assembler
