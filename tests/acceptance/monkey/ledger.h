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

/// Watches every document window from its opening to its end. A document may go without a word only when its
/// text is the one it was opened with, stands in a file or in the copy of an unsaved text, or was let go by
/// an answer of the user's; anything else is a loss.
class Ledger : public QObject {
    Q_OBJECT

  public:
    /// Files are looked for in these folders and below.
    explicit Ledger(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

    /// Looks at all documents. To be called often; files are looked at only while no dialog is open.
    void look(Compiler& compiler);

    /// The user gave the active document's text up.
    void letGo();

    [[nodiscard]] const std::vector<std::string>& losses() const { return losses_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Entry {
        std::string name;
        /// The text that stands somewhere else as well, or that nobody misses.
        std::string kept;
        std::string text;
        bool letGo = false;
        bool closing = false;
    };

    void open(Doc& document);
    void audit(const Doc& document, Entry& entry);
    void judge(const Entry& entry);
    [[nodiscard]] bool inAFile(const std::string& text) const;

    std::vector<std::filesystem::path> folders_;
    std::map<const QObject*, Entry> entries_;
    const QObject* active_ = nullptr;
    std::vector<std::string> losses_;
};

}  // namespace kav::test
