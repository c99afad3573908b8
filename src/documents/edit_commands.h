// SPDX-License-Identifier: GPL-3.0-or-later
// The Edit menu's commands on the active document.
#pragma once

namespace kav {

class Doc;
class Workspace;

/// Cut, Copy, Paste, Delete, Select All and the optimizer. Without an open document they do nothing.
class EditCommands {
  public:
    explicit EditCommands(Workspace& workspace) : workspace_(workspace) {}

    void cut_Click();
    void cpy_Click();
    void pste_Click();
    void dlll_Click();
    void slall_Click();
    void ocode_Click();

  private:
    /// The active document, or none while no document counts as open.
    [[nodiscard]] Doc* openDocument() const;
    void copySelection(const Doc& document) const;
    void deleteSelection(const Doc& document) const;
    void optimize(const Doc& document) const;

    Workspace& workspace_;
};

}  // namespace kav
