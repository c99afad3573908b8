// SPDX-License-Identifier: GPL-3.0-or-later
// The caret, which stops blinking when nobody types.
#include "documents/aids/resting_caret.h"

#include "documents/text_box.h"

#include <chrono>

namespace kav {

namespace {

/// As long as other desktops' text boxes blink.
constexpr std::chrono::seconds kUntilRest{10};

}  // namespace

RestingCaret::RestingCaret(TextBox& box)
    : TextAid(box), period_(static_cast<int>(box.SendScintilla(QsciScintillaBase::SCI_GETCARETPERIOD))) {
    untilRest_.setParent(this);
    untilRest_.setObjectName("untilRest");
    untilRest_.setSingleShot(true);
    untilRest_.setInterval(kUntilRest);
    untilRest_.setTimerType(Qt::VeryCoarseTimer);
    connect(&untilRest_, &QTimer::timeout, this, &RestingCaret::rest);
    connect(&box_, &QsciScintillaBase::SCN_UPDATEUI, this, &RestingCaret::blink);
    connect(&box_, &QsciScintillaBase::SCN_FOCUSIN, this, &RestingCaret::blink);
}

void RestingCaret::blink() {
    if (!untilRest_.isActive()) {
        box_.SendScintilla(QsciScintillaBase::SCI_SETCARETPERIOD, static_cast<uintptr_t>(period_));
    }
    untilRest_.start();
}

void RestingCaret::rest() {
    // Without a period the text box shows the caret all the time.
    box_.SendScintilla(QsciScintillaBase::SCI_SETCARETPERIOD, 0UL);
}

}  // namespace kav
