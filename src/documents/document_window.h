// SPDX-License-Identifier: GPL-3.0-or-later
// One open source file.
#pragma once

#include "documents/recovery_copy.h"

#include <memory>
#include <string>
#include <vector>

#include <QMdiSubWindow>
#include <QTimer>

namespace kav {

class DocumentAids;
struct LineError;
class TextBox;
class Workspace;

/// A document window: it holds one text, carries number and name in its caption, knows whether the text was
/// changed since it was loaded or saved, asks before it closes, and comes to the front when its number is
/// called.
class Doc : public QMdiSubWindow {
    Q_OBJECT

  public:
    explicit Doc(Workspace& workspace);
    ~Doc() override;

    [[nodiscard]] TextBox& txt() const { return *txt_; }

    /// "Doc ", the number, a TAB and the name, as bytes.
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& caption);

    [[nodiscard]] bool isModified() const;

    /// Marks the lines that a build found errors in; without errors, none.
    void showErrors(const std::vector<LineError>& errors);

    /// The program name that this document was last built under.
    std::string Tag;

    /// The copy of what is in no file yet.
    [[nodiscard]] RecoveryCopy& recovery() { return recovery_; }

    /// Where the caret is and what the selection costs, in words.
    [[nodiscard]] const std::string& caretStatus() const { return caretStatus_; }
    void setCaretStatus(const std::string& status);

    /// Watches for the document number that the task list asks for, until it is taken or proves another's.
    void watchForRequest();
    [[nodiscard]] bool watchesForRequest() const { return Timer1.isActive(); }

    /// Makes this the active document and puts the caret into its text.
    void takeFocus();

  signals:
    void caretStatusChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void txt_Change();
    void Timer1_Timer();
    void fitTextBox();

    Workspace& workspace_;
    QWidget* client_;
    TextBox* txt_;
    std::string caretStatus_;
    std::unique_ptr<DocumentAids> aids_;
    QTimer Timer1;
    std::string caption_;
    RecoveryCopy recovery_;
};

}  // namespace kav
