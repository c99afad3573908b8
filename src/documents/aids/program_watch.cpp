// SPDX-License-Identifier: GPL-3.0-or-later
// The facts of a document's text, kept up to date.
#include "documents/aids/program_watch.h"

#include "documents/text_box.h"
#include "shell/preferences_file.h"
#include "shell/workspace.h"

#include <QEvent>

namespace kav {

namespace {

constexpr int kPauseMilliseconds = 300;

/// The calculator that a build for both is judged by first.
bool isForTi83(const Preferences& preferences) {
    return preferences.make83p && !preferences.make8xp;
}

}  // namespace

ProgramWatch::ProgramWatch(TextBox& box, Workspace& workspace) : TextAid(box), workspace_(workspace) {
    pause_.setSingleShot(true);
    pause_.setInterval(kPauseMilliseconds);
    connect(&pause_, &QTimer::timeout, this, &ProgramWatch::renew);
    connect(&box_, &TextBox::changed, this, &ProgramWatch::noteChange);
    box_.installEventFilter(this);
}

const ProgramFacts& ProgramWatch::current() {
    if (!isCurrent_) renew();
    return facts_;
}

bool ProgramWatch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &box_ && event->type() == QEvent::FocusIn) pause_.start();
    return TextAid::eventFilter(watched, event);
}

void ProgramWatch::noteChange() {
    isCurrent_ = false;
    pause_.start();
}

void ProgramWatch::renew() {
    pause_.stop();
    // A text that is too long to be read is not even copied.
    const bool isRead = box_.byteLength() <= kLongestReadDocument;
    facts_ = isRead ? ProgramFacts(box_.bytes(), {workspace_.applicationFolder().path(),
                                                  isForTi83(workspace_.preferences())})
                    : ProgramFacts();
    isCurrent_ = true;
    emit renewed();
}

}  // namespace kav
