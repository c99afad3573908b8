// SPDX-License-Identifier: GPL-3.0-or-later
// The text box of a document window: bytes in, bytes out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <QTimer>
#include <Qsci/qsciscintilla.h>

namespace kav {

/// A place in a text.
struct TextPlace {
    int line = 0;            ///< from 0
    std::size_t column = 0;  ///< bytes from the start of the line
};

/// A multi-line text box whose content is bytes: CR LF counts two, every byte is kept, on the clipboard too.
/// Positions are 0-based byte offsets.
class TextBox : public QsciScintilla {
    Q_OBJECT

  public:
    explicit TextBox(QWidget* parent = nullptr);

    /// The document's modified marker, "1" or "0".
    std::string Tag;

    /// The whole text.
    [[nodiscard]] std::string bytes() const;

    /// Length of the text in bytes.
    [[nodiscard]] std::size_t byteLength() const;

    /// The bytes from `start` up to but not including `end`; both lie within the text.
    [[nodiscard]] std::string bytesBetween(std::size_t start, std::size_t end) const;

    /// Replaces the whole text. There is no undo back into the text before.
    void setBytes(std::string_view text);

    [[nodiscard]] std::size_t selStart() const;
    [[nodiscard]] std::size_t selLength() const;
    [[nodiscard]] std::string selText() const;

    /// Puts the caret at `start`, with nothing selected. Positions beyond the end are the end.
    void setSelStart(std::size_t start);

    /// Selects `length` bytes from selStart() on, up to the end of the text, and scrolls there.
    void setSelLength(std::size_t length);

    /// The line and column of a byte offset.
    [[nodiscard]] TextPlace placeOf(std::size_t position) const;

    /// The left end of the caret at a byte offset, at the top of its line, in the viewport's pixels.
    [[nodiscard]] QPoint pointAt(std::size_t position) const;

    /// The height of a line in pixels.
    [[nodiscard]] int lineHeight() const;

    /// Puts the text in place of the selection, the caret behind it.
    void replaceSelection(std::string_view text);

    /// Replaces the whole text in one step of undo, the caret at `start` afterwards.
    void rewrite(std::string_view text, std::size_t start);

    /// Font name and size in points; a size that nobody can read is brought within what can, and
    /// one that is no number (0) is 12.
    void setTextFont(const std::string& name, int size);
    void setTextItalic(bool italic);
    void setTextBold(bool bold);

    /// Colours of text that nothing else colours, of the caret and of the selection; red in the low byte.
    /// What was set for single styles is gone.
    void setTextColours(std::uint32_t text, std::uint32_t paper);

    /// Leaves the key to the menus: the box has no command of its own for it.
    void releaseKey(const QKeySequence& key);

    // The text box's own clipboard commands change line ends and NUL bytes on their way; these keep them.
    void cut() override;
    void copy() override;
    void paste() override;

  signals:
    /// The text is being changed, by a key or by the program: it must be neither read nor changed within.
    void touched();

    /// The text has changed, by a key or by the program. Sent once the change is complete.
    void changed();

    /// The whole text is about to be replaced by setBytes().
    void replacing();

    /// The font has changed: all styles are alike again.
    void stylesReset();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Files are for the window around the text.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // Dragged text, too, travels with its bytes.
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;
    QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;

  private:
    void replaceRange(std::size_t start, std::size_t length, std::string_view text);
    void noteModification(int modificationType);
    void sendChanged();
    void applyToAllStyles();

    /// Changes from keys are announced when the text box is done with them: it must not be changed within.
    QTimer changeNotice_;
};

}  // namespace kav
