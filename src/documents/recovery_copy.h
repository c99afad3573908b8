// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps a copy of an unsaved document's text.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace kav {

class Doc;
class Failure;
class RecoveryFile;
class Workspace;

/// Nothing typed is lost: while a document's text is in no file, a copy of it stands in the projects folder,
/// where the QuickList offers it after a crash. The copy is written in the background when the keys rest,
/// and goes when the text has been saved or given up.
class RecoveryCopy : public QObject {
    Q_OBJECT

  public:
    /// `document` outlives this.
    RecoveryCopy(Workspace& workspace, const Doc& document);

    /// An end that asked nothing keeps what was typed.
    ~RecoveryCopy() override;

    /// The file that the text came from, for a document whose caption does not say it.
    void setOrigin(const std::string& path);

    /// The text as it stands is in a file, or the user has given it up: its copy goes.
    void textIsSafe();

    /// Hands changes that are in no copy to the background writer, now.
    void writeChanges();

    /// The document closes with a text that is in no file: writes the copy before this returns, and leaves it
    /// for a later run. A failure is reported.
    void leave();

  private:
    void txt_Touched();
    void recovery_Timer();
    void written(const std::optional<Failure>& failure);
    [[nodiscard]] const std::shared_ptr<RecoveryFile>& file();

    Workspace& workspace_;
    const Doc& document_;
    QTimer recovery;
    QElapsedTimer oldestUnwritten_;
    /// The text differs from all files but the copy.
    bool unsafe_ = false;
    /// The text differs from the copy, too.
    bool unwritten_ = false;
    bool reported_ = false;
    std::shared_ptr<RecoveryFile> file_;
    std::string origin_;
    std::string originCaption_;
};

}  // namespace kav
