// SPDX-License-Identifier: GPL-3.0-or-later
// A main window over a scripted desktop and an application folder of its own.
#pragma once

#include "documents/document_window.h"
#include "documents/text_box.h"
#include "runtime/files.h"
#include "shell/main_window.h"
#include "support/scripted_platform.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QStatusBar>
#include <QTest>

namespace kav::test {

class MainWindow : public testing::Test {
  protected:
    void SetUp() override {
        makeFolder(folder_.file("Projects"));
        preferences_.fontName = "DejaVu Sans Mono";
        preferences_.fontSize = 12;
        preferences_.make8xp = true;
    }

    /// Starts the program as a user would, with the preferences as they stand in `preferences_`.
    Compiler& start(const std::string& commandLine = {}) {
        writeFile(folder_.file("prefs.ini"), formatPreferences(preferences_));
        return startWithFile(commandLine);
    }

    /// Starts it with the preferences file as it is on disk.
    Compiler& startWithFile(const std::string& commandLine = {}) {
        compiler_ =
            std::make_unique<Compiler>(desktop_.platform(), ApplicationFolder(folder_.path().string()));
        compiler_->show();
        compiler_->load(commandLine);
        return *compiler_;
    }

    [[nodiscard]] Compiler& compiler() { return *compiler_; }
    [[nodiscard]] Doc& active() { return *compiler_->activeDocument(); }

    /// Documents that are open now; closed ones are gone once the toolkit has had its turn.
    [[nodiscard]] QList<Doc*> documents() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return compiler_->findChildren<Doc*>();
    }

    void choose(const std::string& menuItem, int index = -1) {
        compiler_->menuItem(menuItem, index)->trigger();
    }

    [[nodiscard]] std::string status() {
        return compiler_->statusBar()->findChild<QLabel*>("stat1")->text().toStdString();
    }

    TemporaryFolder folder_;
    ScriptedPlatform desktop_;
    Preferences preferences_;

  private:
    std::unique_ptr<Compiler> compiler_;
};

}  // namespace kav::test
