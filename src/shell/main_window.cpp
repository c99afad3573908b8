// SPDX-License-Identifier: GPL-3.0-or-later
// The one top-level window: its operations, commands and end.
#include "shell/main_window.h"

#include "documents/caption.h"
#include "documents/document_window.h"
#include "documents/find_window.h"
#include "documents/quick_list_window.h"
#include "documents/text_box.h"
#include "platform/desktop/bring_to_front.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "settings/registration_window.h"
#include "settings/settings_window.h"
#include "shell/document_arrangement.h"
#include "shell/failure_report.h"
#include "shell/menu_table.h"
#include "shell/survey_clock.h"
#include "shell/toolbar_strip.h"
#include "tasks/task_list_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

namespace kav {

Compiler::Compiler(Platform platform, ApplicationFolder applicationFolder)
    : platform_(platform),
      applicationFolder_(std::move(applicationFolder)),
      cd_(platform_.fileChooser),
      openSave_(*this),
      fileDrops_(*this, [this](const std::string& path) { openSave_.openFile(path); }),
      templates_(*this, [this](MirageKind kind) { tools_.showMirageWizard(kind); }),
      edit_(*this),
      help_(*this),
      customTools_(*this),
      build_(*this, [this]() -> dbgr& { return taskList(); }),
      tools_(*this, *this),
      recoveryWriter_([this](const std::string& path) { forgetCopy(path); }),
      documents_(new QMdiArea(this)) {
    setObjectName("Compiler");
    setWindowTitle("KAV Compiler by Tamsin Orrel");
    setCentralWidget(documents_);
    documents_->setObjectName("documents");
    documents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    documents_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Wide enough for the longest help of the toolbar.
    resize(960, 680);
    addHandlers();
    buildMenus();
    makeStatusBar();
    makeToolbarStrip();
    sur.setParent(this);
    sur.setObjectName("sur");
    sur.setInterval(1000);
    connect(&sur, &QTimer::timeout, this, [this] { sur_Timer(); });
}

Compiler::~Compiler() {
    // Documents refer to the shared values until they are gone.
    delete documents_;
}

void Compiler::makeStatusBar() {
    statusBar()->setObjectName("stat");
    firstPanel_ = new QLabel(this);
    firstPanel_->setObjectName("stat1");
    firstPanel_->setTextFormat(Qt::PlainText);
    // A long text must not widen the window.
    firstPanel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(firstPanel_, 1);
    secondPanel_ = new QLabel(this);
    secondPanel_->setObjectName("stat2");
    secondPanel_->setTextFormat(Qt::PlainText);
    // It has the room that its text needs, as far as the window has it.
    secondPanel_->setMinimumWidth(1);
    statusBar()->addWidget(secondPanel_);
    connect(documents_, &QMdiArea::subWindowActivated, this, &Compiler::showCaretStatus);
}

void Compiler::showCaretStatus() {
    const Doc* document = activeDocument();
    secondPanel_->setText(document == nullptr ? QString() : shown(document->caretStatus()));
}

void Compiler::makeToolbarStrip() {
    auto* bar = addToolBar("Picture1");
    bar->setObjectName("toolbar");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    auto* Picture1 = new ToolbarStrip(*this, bar);
    bar->addWidget(Picture1);
    connect(Picture1, &ToolbarStrip::pressed, this,
            [this](const std::string& command) { menuItem(command)->trigger(); });
}

Doc* Compiler::activeDocument() {
    return qobject_cast<Doc*>(documents_->currentSubWindow());
}

void Compiler::newfile(const std::string& text) {
    ++values_.documentCounter;
    ++values_.openDocuments;
    auto* document = new Doc(*this);
    documents_->addSubWindow(document);
    connect(document, &Doc::caretStatusChanged, this, &Compiler::showCaretStatus);
    for (const MenuEntry& entry : menuTable()) {
        if (!entry.shortcut.empty()) {
            document->txt().releaseKey(QKeySequence(shown(std::string(entry.shortcut))));
        }
    }
    document->setGeometry(initialPlace(values_.documentCounter, documents_->viewport()->size()));
    document->show();
    document->txt().setBytes(text);
    document->setCaption(documentCaption(values_.documentCounter, values_.nextDocumentTitle));
    document->takeFocus();
    document->txt().Tag = "0";
    document->recovery().textIsSafe();
    if (values_.gotoDocument != "0") document->watchForRequest();
}

void Compiler::settop(const std::string& path) {
    recentFiles_.push(path);
    showRecentFiles();
}

void Compiler::doerr(const std::string& handler, int number, const std::string& description) {
    const BoxAnswer answer =
        platform_.boxes.show({failureMessage(handler, number, description), kFailureTitle,
                              BoxIcon::Exclamation, BoxButtons::AbortRetryIgnore, BoxAnswer::Ignore});
    if (answer == BoxAnswer::Abort) {
        keepCopies();
        platform_.environment.endAtOnce(EXIT_FAILURE);
    }
    if (answer != BoxAnswer::Retry) return;
    // The count is part of the line's form; nothing advances it.
    constexpr int kErrorCount = 0;
    const std::string windir = platform_.environment.variable("windir");
    const std::string desktop =
        windir.empty() ? platform_.environment.desktopFolder() : ApplicationFolder(windir).file("Desktop");
    appendToFile(ApplicationFolder(desktop).file(std::string(kFailureLogName)),
                 failureLogLine(handler, number, description, platform_.clock.now(), kErrorCount));
}

void Compiler::requestDocument(const std::string& number) {
    values_.gotoDocument = number;
    for (QMdiSubWindow* window : documents_->subWindowList()) {
        if (auto* document = qobject_cast<Doc*>(window)) document->watchForRequest();
    }
}

void Compiler::showStatus(const std::string& text) {
    firstPanel_->setText(shown(text));
}

dbgr& Compiler::taskList() {
    if (taskList_ == nullptr) {
        taskList_ = new dbgr(*this, this);
        connect(taskList_, &dbgr::visibilityChanged, menuItem("vew_task"), &QAction::setChecked);
    }
    return *taskList_;
}

filez& Compiler::quickList() {
    if (quickList_ == nullptr) {
        quickList_ = new filez(*this, *menuItem("qfm")->menu(), this);
        connect(quickList_, &filez::visibilityChanged, menuItem("vew_list"), &QAction::setChecked);
    }
    return *quickList_;
}

void Compiler::bye_Click() {
    close();
}

void Compiler::arr_Click(int arrangement) {
    arrangeDocuments(*documents_, Arrangement(arrangement));
}

void Compiler::vew_task_Click() {
    // The toolkit has flipped the check mark already; showing and hiding the list sets it again.
    if (taskList().isVisible()) {
        taskList().hide();
    } else {
        taskList().showList();
    }
}

void Compiler::vew_list_Click() {
    if (quickList().isVisible()) {
        quickList().hide();
    } else {
        quickList().showList();
    }
}

void Compiler::fnd_Click() {
    if (values_.openDocuments == 0) return;
    if (findWindow_ == nullptr) findWindow_ = new class find(*this, this);
    bringToFront(*findWindow_);
}

void Compiler::set_Click() {
    settings dialog(applicationFolder_.file("prefs.ini"), this);
    dialog.exec();
}

void Compiler::regist_Click() {
    reg dialog(platform_.registry, applicationFolder_.path(), this);
    dialog.exec();
}

void Compiler::sur_Timer() {
    SurveyClock clock(values_.usageSeconds, preferences_.surveyAsked);
    const bool ask = clock.tick(build_.comptime().isActive());
    values_.usageSeconds = clock.usageSeconds();
    preferences_.surveyAsked = clock.surveyAsked();
    sur.setProperty("Tag", shown(clock.usageText()));
    if (!ask) return;
    try {
        help_.offerSurvey();
    } catch (const Failure&) {
        // A survey that cannot be opened is not worth a word; the menu still offers it.
        return;
    }
}

bool Compiler::event(QEvent* event) {
    // A document that is moved or sized by keys holds the mouse, which a dialog that comes up then needs.
    if (event->type() == QEvent::WindowBlocked && qobject_cast<Doc*>(QWidget::mouseGrabber()) != nullptr) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(QWidget::mouseGrabber(), &escape);
    }
    return QMainWindow::event(event);
}

void Compiler::closeEvent(QCloseEvent* event) {
    if (!closeDocuments()) {
        event->ignore();
        return;
    }
    shutDown();
    event->accept();
}

void Compiler::endUnasked() {
    keepCopies();
    shutDown();
}

void Compiler::keepCopies() {
    recoveryWriter_.finish();
    for (QMdiSubWindow* window : documents_->subWindowList()) {
        if (auto* document = qobject_cast<Doc*>(window)) document->recovery().writeChanges();
    }
    recoveryWriter_.finish();
}

void Compiler::forgetCopy(const std::string& path) {
    // Copies are removed on the writer's thread, and the list lives on this one.
    const auto forget = [this, path] {
        if (quickList_ != nullptr) quickList_->forget(path);
    };
    QMetaObject::invokeMethod(this, forget, Qt::QueuedConnection);
}

bool Compiler::closeDocuments() {
    for (QMdiSubWindow* window : documents_->subWindowList()) {
        if (!window->close()) return false;
    }
    return true;
}

void Compiler::shutDown() {
    sur.stop();
    build_.comptime().stop();
    preferences_.usageSeconds = values_.usageSeconds;
    preferences_.recentFiles = recentFiles_.items();
    saveFile(applicationFolder_.file("prefs.ini"), formatPreferences(preferences_));
    platform_.environment.end(EXIT_SUCCESS);
}

}  // namespace kav
