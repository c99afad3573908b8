// SPDX-License-Identifier: GPL-3.0-or-later
// One open source file.
#include "documents/document_window.h"

#include "documents/aids/document_aids.h"
#include "documents/caption.h"
#include "documents/hidden_texts.h"
#include "documents/text_box.h"
#include "platform/desktop/text_conversion.h"
#include "platform/desktop/twips.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"
#include "shell/trapped.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>

namespace kav {

namespace {

// The window's outer size less caption bar and borders, in twips.
constexpr int kFrameHeightTwips = 450;
constexpr int kFrameWidthTwips = 100;

/// Ctrl+F4 closes a document, whatever else the desktop closes one with.
void addClosingKey(QMenu& systemMenu) {
    const QList<QKeySequence> desktops = QKeySequence::keyBindings(QKeySequence::Close);
    const QKeySequence key("Ctrl+F4");
    if (desktops.contains(key)) return;
    for (QAction* action : systemMenu.actions()) {
        if (!desktops.isEmpty() && action->shortcuts().contains(desktops.front()))
            action->setShortcuts(desktops + QList{key});
    }
}

}  // namespace

Doc::Doc(Workspace& workspace)
    : workspace_(workspace), client_(new QWidget), txt_(new TextBox(client_)), recovery_(workspace, *this) {
    setObjectName("Doc");
    setAttribute(Qt::WA_DeleteOnClose);
    setWidget(client_);
    addClosingKey(*systemMenu());
    client_->setFocusProxy(txt_);
    txt_->setTextFont(workspace.values().fontName, workspace.values().fontSize);
    aids_ = std::make_unique<DocumentAids>(*this, workspace);
    connect(txt_, &TextBox::changed, this, &Doc::txt_Change);

    Timer1.setObjectName("Timer1");
    Timer1.setInterval(1);
    connect(&Timer1, &QTimer::timeout, this, &Doc::Timer1_Timer);
}

Doc::~Doc() = default;

void Doc::setCaption(const std::string& caption) {
    caption_ = caption;
    setWindowTitle(shown(displayedCaption(caption)));
}

void Doc::setCaretStatus(const std::string& status) {
    if (status == caretStatus_) return;
    caretStatus_ = status;
    emit caretStatusChanged();
}

bool Doc::isModified() const {
    return numericValue(txt_->Tag) == 1.0;
}

void Doc::showErrors(const std::vector<LineError>& errors) {
    aids_->showErrors(errors);
}

void Doc::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    fitTextBox();
}

void Doc::fitTextBox() {
    // A maximized window's caption stands in the main window's frame and a minimized one has no room for
    // text: the text box fills the first wholly and keeps its size in the second.
    if (isMinimized()) return;
    if (isMaximized()) {
        txt_->resize(contentsRect().size());
        return;
    }
    const int textWidth = (width() * kTwipsPerPixel - kFrameWidthTwips) / kTwipsPerPixel;
    const int textHeight = (height() * kTwipsPerPixel - kFrameHeightTwips) / kTwipsPerPixel;
    if (textWidth < 0 || textHeight < 0) return;
    txt_->resize(textWidth, textHeight);
}

void Doc::txt_Change() {
    if (!mayBeHiddenText(txt_->byteLength())) return;
    const auto hidden = hiddenTextFor(txt_->bytes(), workspace_.values().usageSeconds);
    if (!hidden) return;
    switch (hidden->effect) {
        case HiddenText::Effect::Italic:
            txt_->setTextItalic(true);
            break;
        case HiddenText::Effect::Bold:
            txt_->setTextBold(true);
            break;
        case HiddenText::Effect::Browser:
            trapped(workspace_, "txt_Change", [&] {
                workspace_.platform().launcher.launch(hidden->commandLine, WindowStyle::MaximizedFocus);
            });
            return;
        case HiddenText::Effect::None:
            break;
    }
    txt_->setBytes(hidden->replacement);
}

void Doc::watchForRequest() {
    Timer1.start();
}

void Doc::Timer1_Timer() {
    SharedValues& values = workspace_.values();
    // A document's number never changes, so one that is not meant need not look again.
    Timer1.stop();
    if (captionDigit(caption_) != numericValue(values.gotoDocument)) return;
    takeFocus();
    values.gotoDocument = "0";
}

void Doc::takeFocus() {
    window()->activateWindow();
    if (mdiArea() != nullptr) mdiArea()->setActiveSubWindow(this);
    txt_->setFocus();
}

void Doc::closeEvent(QCloseEvent* event) {
    // Saving acts on the active document, so the one that is asked about has to be it.
    if (mdiArea() != nullptr) mdiArea()->setActiveSubWindow(this);
    if (isModified()) {
        const BoxAnswer answer = workspace_.platform().boxes.show(
            {captionName(caption_) + " has been modified since it was last saved. Do you want to save it?",
             "Save changes? - KAV Compiler", BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes});
        if (answer == BoxAnswer::Cancel) {
            event->ignore();
            return;
        }
        if (answer == BoxAnswer::Yes) workspace_.svenota();
        if (answer == BoxAnswer::No) recovery_.textIsSafe();
    }
    // A document closes whatever became of its saving.
    recovery_.leave();
    --workspace_.values().openDocuments;
    event->accept();
}

}  // namespace kav
