// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/hidden_focus.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>

namespace kav::test {

class HiddenFocus : public testing::Test {
  protected:
    void SetUp() override {
        owner_.show();
        owned_.show();
        other_.show();
        other_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other_));
    }

    QWidget owner_;
    QDialog owned_{&owner_};
    QWidget other_;
};

TEST_F(HiddenFocus, GoesToTheWindowThatOwnsTheHiddenOne) {
    owned_.hide();
    passFocusOnFromHidden(owned_.windowHandle());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&owner_));
    EXPECT_EQ(owned_.windowHandle()->transientParent(), owner_.windowHandle());
}

TEST_F(HiddenFocus, StaysWithAVisibleWindow) {
    passFocusOnFromHidden(owned_.windowHandle());
    QTest::qWait(50);
    EXPECT_TRUE(other_.isActiveWindow());
}

TEST_F(HiddenFocus, HasNowhereToGoWithoutAnOwner) {
    owner_.hide();
    passFocusOnFromHidden(owner_.windowHandle());
    passFocusOnFromHidden(nullptr);
    QTest::qWait(50);
    EXPECT_TRUE(other_.isActiveWindow());
}

}  // namespace kav::test
