// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/registration_window.h"

#include "platform/linux/linux_class_registry.h"
#include "runtime/files.h"
#include "settings/registration_plan.h"
#include "support/temporary_folder.h"
#include "windows/main_window_fixture.h"

#include <QCheckBox>
#include <QPushButton>

namespace kav::test {

class Registration : public testing::Test {
  protected:
    void press(QDialog& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    void tickAndOk(const std::vector<const char*>& boxes) {
        reg dialog(registry_, "/opt/kav", nullptr);
        for (const char* box : boxes)
            dialog.findChild<QCheckBox*>(box)->setChecked(true);
        press(dialog, "Command1");
    }
    std::string value(const std::string& key) { return registry_.defaultValue(key); }

    TemporaryFolder folder_;
    LinuxClassRegistry registry_{UserFolders{folder_.file("data"), folder_.file("settings")}};
};

TEST_F(Registration, ShowsItsNoteAndWhatIsRegistered) {
    registry_.createKey(".kvf");
    registry_.setDefaultValue(".kvf", "Z80AsmSrc");
    const reg dialog(registry_, "/opt/kav", nullptr);
    EXPECT_EQ(dialog.windowTitle(), "Registry");
    EXPECT_EQ(dialog.findChild<QLabel*>("Label3")->text().toStdString(), kRegistrationNote);
    EXPECT_TRUE(dialog.findChild<QCheckBox*>("kvf")->isChecked());
    EXPECT_FALSE(dialog.findChild<QCheckBox*>("z80")->isChecked());
}

TEST_F(Registration, TickingZ80AloneWritesTheClassAndLeavesZ80Alone) {
    tickAndOk({"z80"});
    EXPECT_EQ(value("Z80AsmSrc"), "Z80 Assembly Source");
    EXPECT_EQ(value("Z80AsmSrc\\shell\\Compile\\command"), "/opt/kav\\KAV Compiler.exe %1 &");
    EXPECT_EQ(value(".z80"), "");
}

TEST_F(Registration, TickingAsmRegistersKvf) {
    tickAndOk({"asm"});
    EXPECT_EQ(value(".kvf"), "Z80AsmSrc");
    EXPECT_EQ(value(".asm"), "");
}

TEST_F(Registration, OkTellsTheDesktopAndCancelDoesNot) {
    const std::string entry = folder_.file("data/applications/kav-compiler.desktop");
    reg dialog(registry_, "/opt/kav", nullptr);
    dialog.findChild<QCheckBox*>("kvf")->setChecked(true);
    press(dialog, "Command2");
    EXPECT_FALSE(fileExists(entry));
    tickAndOk({"kvf"});
    EXPECT_TRUE(fileExists(entry));
}

TEST_F(Registration, AnAssociatedAsmStopsEveryExtension) {
    registry_.createKey(".asm");
    registry_.setDefaultValue(".asm", "Z80AsmSrc");
    tickAndOk({"kvf", "z80", "asm"});
    EXPECT_EQ(value(".kvf"), "");
    EXPECT_EQ(value("Z80AsmSrc"), "Z80 Assembly Source");
}

TEST_F(Registration, TickingNothingOrCancelWritesNothing) {
    tickAndOk({});
    reg dialog(registry_, "/opt/kav", nullptr);
    dialog.findChild<QCheckBox*>("kvf")->setChecked(true);
    press(dialog, "Command2");
    EXPECT_FALSE(fileExists(folder_.file("data")));
}

TEST_F(Registration, AKeyThatIsMissingIsNotSet) {
    registry_.setDefaultValue(".z80", "x");
    EXPECT_EQ(value(".z80"), "");
    registry_.createKey("a\\b");
    registry_.setDefaultValue("a", "x");
    EXPECT_EQ(value("a"), "x");
}

}  // namespace kav::test
