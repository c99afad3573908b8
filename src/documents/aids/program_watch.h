// SPDX-License-Identifier: GPL-3.0-or-later
// The facts of a document's text, kept up to date.
#pragma once

#include "documents/aids/program_facts.h"
#include "documents/aids/text_aid.h"

#include <QTimer>

namespace kav {

class Workspace;

/// Finds out what the assembler knows of a text: when the user pauses after a change, and when the text box
/// gets the keyboard, since files that it includes may have changed meanwhile. Between pauses it does
/// nothing.
class ProgramWatch : public TextAid {
    Q_OBJECT

  public:
    ProgramWatch(TextBox& box, Workspace& workspace);

    /// The facts of the text as it was at the last pause.
    [[nodiscard]] const ProgramFacts& latest() const { return facts_; }

    /// True when latest() is about the text as it is now.
    [[nodiscard]] bool isCurrent() const { return isCurrent_; }

    /// The facts of the text as it is now.
    [[nodiscard]] const ProgramFacts& current();

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    /// The facts are about another text than before, or about none.
    void renewed();

  private:
    void noteChange();
    void renew();

    Workspace& workspace_;
    ProgramFacts facts_;
    bool isCurrent_ = false;
    QTimer pause_;
};

}  // namespace kav
