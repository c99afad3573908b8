// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the books on documents: what was typed is in a file, or was let go knowingly.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <QObject>

namespace kav {
class Compiler;
class Doc;
}  // namespace kav

namespace kav::test {

/// Watches every document window from its opening to its end, and tells what it sees on the standard output.
/// A document may go without a word only when its text is the one it was opened with, stands in a file or in
/// the copy of an unsaved text, or was let go by an answer of the user's; anything else is a loss.
class Ledger : public QObject {
    Q_OBJECT

  public:
    /// Files are looked for in these folders and below.
    explicit Ledger(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

    /// Looks at all documents. To be called often; files are looked at only while no dialog is open.
    void look(Compiler& compiler);

    /// The user gave the active document's text up.
    void letGo();

    /// Whether files are looked for where this one is.
    [[nodiscard]] bool watches(const std::filesystem::path& file) const;

    [[nodiscard]] const std::vector<std::string>& losses() const { return losses_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Entry {
        std::string name;
        /// The text that stands somewhere else as well, or that nobody misses.
        std::string kept;
        bool letGo = false;
    };

    [[nodiscard]] bool withinCommand() const;
    void open(Doc& document);
    void audit(const Doc& document, Entry& entry);
    void close(Doc& document, QEvent& event);
    void lose(const std::string& what);
    [[nodiscard]] bool inAFile(const std::string& text) const;

    std::vector<std::filesystem::path> folders_;
    std::map<const QObject*, Entry> entries_;
    const QObject* active_ = nullptr;
    /// A document is being closed, which may take a question or two.
    bool closing_ = false;
    std::vector<std::string> losses_;
};

}  // namespace kav::test
