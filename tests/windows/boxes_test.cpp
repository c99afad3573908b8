// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/desktop_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace kav::test {

namespace {

/// What the box answers when this key is pressed in it.
BoxAnswer answerTo(BoxButtons buttons, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTimer presser;
    presser.setInterval(1);
    QObject::connect(&presser, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr && box->isActiveWindow()) QTest::keyClick(box, key, modifiers);
    });
    presser.start();
    return DesktopBoxes().show({"text", "title", BoxIcon::None, buttons, BoxAnswer::Ignore});
}

}  // namespace

TEST(DesktopBoxes, LettersPressButtons) {
    EXPECT_EQ(answerTo(BoxButtons::AbortRetryIgnore, Qt::Key_A, Qt::AltModifier), BoxAnswer::Abort);
    EXPECT_EQ(answerTo(BoxButtons::AbortRetryIgnore, Qt::Key_R, Qt::AltModifier), BoxAnswer::Retry);
    EXPECT_EQ(answerTo(BoxButtons::AbortRetryIgnore, Qt::Key_I, Qt::AltModifier), BoxAnswer::Ignore);
    EXPECT_EQ(answerTo(BoxButtons::YesNoCancel, Qt::Key_Y, Qt::AltModifier), BoxAnswer::Yes);
    EXPECT_EQ(answerTo(BoxButtons::YesNoCancel, Qt::Key_N, Qt::AltModifier), BoxAnswer::No);
    EXPECT_EQ(answerTo(BoxButtons::YesNoCancel, Qt::Key_C, Qt::AltModifier), BoxAnswer::Cancel);
}

TEST(DesktopBoxes, EscapeChangesNothing) {
    EXPECT_EQ(answerTo(BoxButtons::YesNoCancel, Qt::Key_Escape, Qt::NoModifier), BoxAnswer::Cancel);
    EXPECT_EQ(answerTo(BoxButtons::YesNo, Qt::Key_Escape, Qt::NoModifier), BoxAnswer::No);
    EXPECT_EQ(answerTo(BoxButtons::AbortRetryIgnore, Qt::Key_Escape, Qt::NoModifier), BoxAnswer::Ignore);
    EXPECT_EQ(answerTo(BoxButtons::Ok, Qt::Key_Escape, Qt::NoModifier), BoxAnswer::Ok);
}

}  // namespace kav::test
