// SPDX-License-Identifier: GPL-3.0-or-later
// All that helps to read a document's text.
#pragma once

#include "documents/aids/text_aid.h"

#include <memory>
#include <utility>
#include <vector>

#include <QObject>

namespace kav {

class Doc;
class ErrorMarks;
class TextBox;
class Workspace;
struct LineError;

/// Owns the aids of one document, and hands them the desktop's colours. They are gone before its text box.
class DocumentAids : public QObject {
  public:
    DocumentAids(Doc& document, Workspace& workspace);

    /// Marks the lines that a build found errors in; without errors, none.
    void showErrors(const std::vector<LineError>& errors);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Attaches an aid to the text box; what it needs besides comes behind.
    template <typename Aid, typename... Needs>
    Aid& add(Needs&... needs) {
        auto aid = std::make_unique<Aid>(box_, needs...);
        Aid& added = *aid;
        aids_.push_back(std::move(aid));
        return added;
    }

    void applyColours();

    TextBox& box_;
    std::vector<std::unique_ptr<TextAid>> aids_;
    ErrorMarks* errorMarks_;  // one of them
};

}  // namespace kav
