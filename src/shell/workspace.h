// SPDX-License-Identifier: GPL-3.0-or-later
// What the parts of the program see of the main window.
#pragma once

#include "platform/application_folder.h"
#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <string>

namespace kav {

class Doc;
class RecoveryWriter;
struct Preferences;

/// Values that all documents and commands share. They live as long as the program runs.
struct SharedValues {
    /// Document windows opened since start-up; the newest one's number.
    int documentCounter = 0;
    /// Document windows open now.
    int openDocuments = 0;
    /// The name that the next document window is captioned with; set before `newfile` is called.
    std::string nextDocumentTitle;
    /// The document asked to come to the front; "0" when none is.
    std::string gotoDocument = "0";
    /// Seconds of use over all runs of the program.
    double usageSeconds = 0;
    /// Font of document texts and its size in points.
    std::string fontName;
    int fontSize = 0;
};

/// The main window's abstract face: shared values and the operations that commands need.
class Workspace {
  public:
    virtual ~Workspace() = default;

    virtual Platform& platform() = 0;
    virtual const ApplicationFolder& applicationFolder() const = 0;
    virtual SharedValues& values() = 0;
    virtual const Preferences& preferences() const = 0;

    /// The one common file dialog.
    virtual CommonDialog& cd() = 0;

    /// Writes the copies of unsaved documents.
    virtual RecoveryWriter& recoveryWriter() = 0;

    /// The document window that commands act on, or none.
    virtual Doc* activeDocument() = 0;

    /// Opens a document window with the text, captioned with the next number and `nextDocumentTitle`.
    virtual void newfile(const std::string& text) = 0;

    /// Puts the path on top of the recent files.
    virtual void settop(const std::string& path) = 0;

    /// Saves the active document, as the Save command does.
    virtual void svenota() = 0;

    /// Reports a failure in the named handler to the user, who may end the program, log it or go on.
    virtual void doerr(const std::string& handler, int number, const std::string& description) = 0;

    /// Asks the document of that number to come to the front.
    virtual void requestDocument(const std::string& number) = 0;

    /// Puts the text into the first panel of the status bar.
    virtual void showStatus(const std::string& text) = 0;
};

}  // namespace kav
