// SPDX-License-Identifier: GPL-3.0-or-later
// A box for plain text of several lines.
#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

namespace kav {

/// The toolkit's box, which besides takes a paste of nothing: Qt 6.4 ends the program when what is pasted
/// comes in no format at all, as a selection does whose owner has just let it go.
class PlainTextBox : public QPlainTextEdit {
  public:
    using QPlainTextEdit::QPlainTextEdit;

  protected:
    void insertFromMimeData(const QMimeData* source) override {
        if (source != nullptr && !source->formats().isEmpty()) QPlainTextEdit::insertFromMimeData(source);
    }
};

}  // namespace kav
