// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps a copy of an unsaved document's text.
#include "documents/recovery_copy.h"

#include "documents/caption.h"
#include "documents/document_window.h"
#include "documents/recovery_file.h"
#include "documents/recovery_schedule.h"
#include "documents/recovery_writer.h"
#include "documents/text_box.h"
#include "shell/trapped.h"

#include <exception>

#include <QCoreApplication>
#include <QPointer>

namespace kav {

namespace {

// The name under which a failure to write a copy is reported.
constexpr const char* kHandler = "recovery_Timer";

}  // namespace

RecoveryCopy::RecoveryCopy(Workspace& workspace, const Doc& document)
    : workspace_(workspace), document_(document) {
    recovery.setParent(this);
    recovery.setObjectName("recovery");
    recovery.setSingleShot(true);
    connect(&recovery, &QTimer::timeout, this, &RecoveryCopy::recovery_Timer);
    connect(&document.txt(), &TextBox::touched, this, &RecoveryCopy::txt_Touched);
}

RecoveryCopy::~RecoveryCopy() {
    try {
        writeChanges();
    } catch (const std::exception&) {
        // With no memory left for the text, what the last copy has is what stays.
        return;
    }
}

void RecoveryCopy::setOrigin(const std::string& path) {
    origin_ = path;
    originCaption_ = document_.caption();
}

void RecoveryCopy::txt_Touched() {
    unsafe_ = true;
    if (!unwritten_) oldestUnwritten_.start();
    unwritten_ = true;
    recovery.start(copyDelay(std::chrono::milliseconds(oldestUnwritten_.elapsed())));
}

void RecoveryCopy::recovery_Timer() {
    trapped(workspace_, kHandler, [this] { writeChanges(); });
}

void RecoveryCopy::writeChanges() {
    recovery.stop();
    if (!unwritten_) return;
    workspace_.recoveryWriter().write(
        file(), document_.txt().bytes(), [self = QPointer(this)](const std::optional<Failure>& failure) {
            const auto tell = [self, failure] {
                if (self) self->written(failure);
            };
            QMetaObject::invokeMethod(QCoreApplication::instance(), tell, Qt::QueuedConnection);
        });
    unwritten_ = false;
}

void RecoveryCopy::written(const std::optional<Failure>& failure) {
    if (!failure) {
        reported_ = false;
        return;
    }
    if (!unsafe_) return;
    if (!unwritten_) oldestUnwritten_.start();
    unwritten_ = true;
    // Nobody is interrupted while typing: the next pause tries again. And one report of a full disk is
    // enough.
    if (recovery.isActive() || reported_) return;
    reported_ = true;
    workspace_.doerr(kHandler, failure->number(), failure->description());
}

void RecoveryCopy::textIsSafe() {
    recovery.stop();
    if (file_ != nullptr) workspace_.recoveryWriter().remove(file_);
    file_.reset();
    unsafe_ = unwritten_ = reported_ = false;
}

void RecoveryCopy::leave() {
    if (!unsafe_) return;
    recovery.stop();
    workspace_.recoveryWriter().finish();
    trapped(workspace_, kHandler, [this] {
        if (unwritten_ || !file()->isWritten()) file()->write(document_.txt().bytes());
    });
    file_.reset();
    unsafe_ = unwritten_ = false;
}

const std::shared_ptr<RecoveryFile>& RecoveryCopy::file() {
    if (file_ == nullptr) {
        const std::string& caption = document_.caption();
        const std::string name = caption == originCaption_ ? origin_ : captionTrueName(caption);
        file_ = std::make_shared<RecoveryFile>(workspace_.applicationFolder(), captionNumber(caption), name);
    }
    return file_;
}

}  // namespace kav
