// SPDX-License-Identifier: GPL-3.0-or-later
// The one top-level window.
#pragma once

#include "build/build_commands.h"
#include "documents/edit_commands.h"
#include "documents/open_save_commands.h"
#include "documents/recovery_writer.h"
#include "documents/template_commands.h"
#include "shell/file_drops.h"
#include "shell/help_commands.h"
#include "shell/preferences_file.h"
#include "shell/recent_files.h"
#include "shell/workspace.h"
#include "tools/custom_tool_commands.h"
#include "tools/tool_commands.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include <QMainWindow>
#include <QPointer>

class QAction;
class QLabel;
class QMdiArea;
class QMenu;

namespace kav {

class dbgr;
class filez;
class find;

/// The frame that holds the document windows: menu, status bar, start-up and shutdown, and the operations
/// that every part of the program calls. Commands live with their subjects; the menu names them.
class Compiler : public QMainWindow, public Workspace {
    Q_OBJECT

  public:
    Compiler(Platform platform, ApplicationFolder applicationFolder);
    ~Compiler() override;

    /// Start-up: reads the preferences, prepares a first run, opens the command line's file, the most recent
    /// one or an empty document. A failure leaves as Failure; nothing has been written then.
    void load(const std::string& commandLine);

    /// Chooses Compile once the window is up.
    void compileOnceUp();

    /// Writes what is in no file yet into the copies of its documents, before this returns. What cannot be
    /// written keeps none of the others from it.
    void keepCopies();

    /// The end that the system asks for: nobody is asked, unsaved texts stay as copies.
    void endUnasked();

    Platform& platform() override { return platform_; }
    const ApplicationFolder& applicationFolder() const override { return applicationFolder_; }
    SharedValues& values() override { return values_; }
    const Preferences& preferences() const override { return preferences_; }
    CommonDialog& cd() override { return cd_; }
    RecoveryWriter& recoveryWriter() override { return recoveryWriter_; }
    Doc* activeDocument() override;
    void newfile(const std::string& text) override;
    void settop(const std::string& path) override;
    void svenota() override { openSave_.svenotas_Click(); }
    void doerr(const std::string& handler, int number, const std::string& description) override;
    void requestDocument(const std::string& number) override;
    void showStatus(const std::string& text) override;

    /// The task list, made when it is first needed.
    dbgr& taskList();

    /// The QuickList, made when it is first needed.
    filez& quickList();

    /// The menu entry of that name, and of that index where several share a name.
    [[nodiscard]] QAction* menuItem(const std::string& name, int index = -1) const;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    using Handler = std::function<void()>;

    void bye_Click();
    void arr_Click(int arrangement);
    void vew_task_Click();
    void vew_list_Click();
    void fnd_Click();
    void set_Click();
    void regist_Click();
    void sur_Timer();

    void buildMenus();
    void addMenuEntry(QMenu& menu, const struct MenuEntry& entry);
    void addHandlers();
    void addEditHandlers();
    void addToolHandlers();
    void addHelpHandlers();
    void addHandler(const std::string& name, Handler handler, int index = -1);
    void makeStatusBar();
    void showCaretStatus();
    void makeToolbarStrip();

    void readPreferences();
    void prepareFirstRun();
    void openCommandLine(const std::string& commandLine);
    void openFirstDocument();
    void showDateNotices();
    void showRecentFiles();
    void showCustomTools();

    bool closeDocuments();
    void forgetCopy(const std::string& path);
    void shutDown();

    Platform platform_;
    ApplicationFolder applicationFolder_;
    SharedValues values_;
    Preferences preferences_;
    RecentFiles recentFiles_;
    CommonDialog cd_;
    OpenSaveCommands openSave_;
    FileDrops fileDrops_;
    TemplateCommands templates_;
    EditCommands edit_;
    HelpCommands help_;
    CustomToolCommands customTools_;
    BuildCommands build_;
    ToolCommands tools_;
    RecoveryWriter recoveryWriter_;

    QMdiArea* documents_;
    QLabel* firstPanel_ = nullptr;
    QLabel* secondPanel_ = nullptr;
    QTimer sur;
    std::map<std::pair<std::string, int>, QAction*> menuItems_;
    std::map<std::pair<std::string, int>, Handler> handlers_;
    dbgr* taskList_ = nullptr;
    filez* quickList_ = nullptr;
    QPointer<class find> findWindow_;
};

}  // namespace kav
