// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settings_window.h"

#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace kav::test {

class SettingsWindow : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        preferences_.fontName = "Tifont";
        preferences_.browserPath = "C:\\browser.exe";
        preferences_.useInternetExplorer = true;
        preferences_.customTools[0] = {"Calculator", "calc.exe"};
        start();
    }

    std::string path() { return folder_.file("prefs.ini"); }
    std::string line(std::size_t number) { return PreferencesTable(readFile(path())).line(number); }

    /// The dialog, shown as the menu shows it but without waiting for its end.
    settings& open() {
        dialog_ = std::make_unique<settings>(path(), &compiler());
        dialog_->show();
        return *dialog_;
    }
    QCheckBox& check(const char* name) { return *dialog_->findChild<QCheckBox*>(name); }
    QLineEdit& box(const char* name) { return *dialog_->findChild<QLineEdit*>(name); }
    QComboBox& fonte() { return *dialog_->findChild<QComboBox*>("fonte"); }
    void press(const char* name) {
        QTest::mouseClick(dialog_->findChild<QPushButton*>(name), Qt::LeftButton);
    }

    /// Starts the program with the file as it is, without a normal exit in between.
    void restart() {
        dialog_.reset();
        startWithFile();
    }

  private:
    std::unique_ptr<settings> dialog_;
};

TEST_F(SettingsWindow, ShowsLinesTwoToNine) {
    EXPECT_EQ(open().windowTitle(), "Settings - KAV Compiler");
    EXPECT_EQ(fonte().currentText(), "Tifont");
    EXPECT_EQ(fonte().count(), 6);
    EXPECT_EQ(box("fontse").text(), line(3).c_str());
    EXPECT_FALSE(check("asmm").isChecked());
    EXPECT_TRUE(check("asmp").isChecked());
    // Line 7 is the main window's browser switch and this dialog's easter eggs.
    EXPECT_TRUE(check("eegg").isChecked());
    EXPECT_FALSE(check("iexplore").isChecked());
    EXPECT_EQ(box("craptxt").text(), "C:\\browser.exe");
}

TEST_F(SettingsWindow, OkWithoutChangesWritesItsHeaderAndThePlainNumbers) {
    const PreferencesTable before(readFile(path()));
    open();
    press("Command1");
    EXPECT_EQ(line(1), "DON'T TOUCHIE!!!!!!!!!!!!!");
    EXPECT_EQ(line(4), " 0 ");
    EXPECT_EQ(line(5), " 1 ");
    EXPECT_EQ(line(7), " 1 ");
    for (std::size_t number = 9; number <= kPreferenceLines; ++number)
        EXPECT_EQ(line(number), before.line(number));
}

TEST_F(SettingsWindow, OkStoresWhatWasTypedAsItIs) {
    open();
    fonte().setEditText("No such font");
    box("fontse").setText("abc");
    check("iexplore").click();
    box("craptxt").setText("/usr/bin/browser");
    press("Command1");
    EXPECT_EQ(line(2), "No such font");
    EXPECT_EQ(line(3), "abc");
    EXPECT_EQ(line(8), " 1 ");
    EXPECT_EQ(line(9), "/usr/bin/browser");
}

TEST_F(SettingsWindow, BadValuesNeitherCrashNorHideTheTextAtTheNextStart) {
    open();
    fonte().setEditText("No such font");
    box("fontse").setText("abc");
    press("Command1");
    restart();
    EXPECT_EQ(active().txt().SendScintilla(QsciScintilla::SCI_STYLEGETSIZE, QsciScintilla::STYLE_DEFAULT),
              12);
}

TEST_F(SettingsWindow, TheNextNormalExitPutsTheStartUpValuesBack) {
    open();
    fonte().setEditText("Elephant");
    press("Command1");
    compiler().close();
    EXPECT_EQ(line(1).substr(0, 12), "Don't modify");
    EXPECT_EQ(line(2), "Tifont");
}

TEST_F(SettingsWindow, EasterEggsSwitchTheBrowserAndTheBrowserBoxTheDateNoticesAfterARestart) {
    open();
    check("eegg").setChecked(false);
    check("iexplore").setChecked(true);
    press("Command1");
    restart();
    EXPECT_FALSE(compiler().preferences().useInternetExplorer);
    EXPECT_TRUE(compiler().preferences().easterEggs);
}

TEST_F(SettingsWindow, CancelWritesNothing) {
    const std::string before = readFile(path());
    open();
    box("fontse").setText("99");
    press("Command2");
    EXPECT_EQ(readFile(path()), before);
}

TEST_F(SettingsWindow, ThePathHidesOnceTheBrowserBoxIsTickedByAClick) {
    open();
    EXPECT_TRUE(box("craptxt").isVisible());
    check("iexplore").click();
    EXPECT_FALSE(box("craptxt").isVisible());
    check("iexplore").click();
    EXPECT_TRUE(box("craptxt").isVisible());
}

TEST_F(SettingsWindow, AFileThatIsMissingOrCannotBeWrittenIsAFailureThatNobodyCatches) {
    removeFile(path());
    EXPECT_THROW(open(), Failure);
    writeFile(path(), "short\r\n");
    EXPECT_THROW(open(), Failure);
}

TEST_F(SettingsWindow, TheMenuShowsItModally) {
    bool modal = false;
    QTimer::singleShot(0, [&modal] {
        QWidget* dialog = QApplication::activeModalWidget();
        modal = dialog != nullptr && dialog->objectName() == "settings";
        if (dialog != nullptr) dialog->close();
    });
    choose("set");
    EXPECT_TRUE(modal);
}

TEST_F(SettingsWindow, TabGoesThroughItAsItReads) {
    settings& dialog = open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    fonte().setFocus();
    for (const char* name : {"fontse", "asmm", "stasm", "asmp", "eegg", "iexplore", "craptxt", "Command1"}) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(dialog.focusWidget()->objectName(), name);
    }
}

}  // namespace kav::test
