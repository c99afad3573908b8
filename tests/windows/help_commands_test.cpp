// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"
#include "shell/addresses.h"
#include "shell/survey_clock.h"
#include "shell/web_links.h"
#include "windows/main_window_fixture.h"

namespace kav::test {

class Help : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        preferences_.browserPath = "/usr/bin/browser";
    }

    std::string started() { return desktop_.launcher.launches.at(0).commandLine; }

    /// One second passes.
    void tick() {
        auto* sur = compiler().findChild<QTimer*>("sur");
        QTimerEvent event(sur->timerId());
        QApplication::sendEvent(sur, &event);
    }

    void awaitBuild() {
        desktop_.boxes.typed = {"X"};
        choose("comp");
    }
};

TEST_F(Help, ContentsStartsTheHelpViewer) {
    start();
    desktop_.environment.variables["windir"] = "C:\\WINDOWS";
    choose("rdme");
    EXPECT_EQ(started(), "C:\\WINDOWS\\winhelp.exe " + folder_.path().string() + "\\kavhelp.hlp");
    EXPECT_EQ(desktop_.launcher.launches[0].style, WindowStyle::MaximizedFocus);
}

TEST_F(Help, AboutShowsVersionAndTerms) {
    start();
    desktop_.boxes.answers = {BoxAnswer::Ok};
    choose("abt");
    EXPECT_EQ(desktop_.boxes.shownBoxes.at(0).title, "About KAV Compiler");
    EXPECT_EQ(desktop_.boxes.shownBoxes.at(0).text, kAboutText);
    EXPECT_EQ(desktop_.boxes.shownBoxes.at(0).icon, BoxIcon::Information);
}

TEST_F(Help, AddressesOpenInTheUsersBrowser) {
    start();
    for (const char* command : {"mwp", "emlme", "takesurvay"})
        choose(command);
    ASSERT_EQ(desktop_.launcher.launches.size(), 3U);
    EXPECT_EQ(started(), "/usr/bin/browser " + std::string(kHomePage));
    EXPECT_EQ(desktop_.launcher.launches[1].commandLine,
              "/usr/bin/browser mailto:" + std::string(kContactAddress) + "?subject=KAV Compiler Mailer");
    EXPECT_EQ(desktop_.launcher.launches[2].commandLine, "/usr/bin/browser " + std::string(kSurveyPage));
    EXPECT_EQ(desktop_.launcher.launches[2].style, WindowStyle::MaximizedFocus);
}

TEST_F(Help, AddressesOpenInTheFixedBrowserWhenThatIsChosen) {
    preferences_.useInternetExplorer = true;
    start();
    choose("emlme");
    EXPECT_EQ(started(), "C:\\Program Files\\Internet Explorer\\iexplore.exe mailto:" +
                             std::string(kContactAddress) + "?subject=KAV Compiler Mailer IE");
}

TEST_F(Help, ABrowserThatIsNotThereIsReported) {
    start();
    desktop_.launcher.process = [](const std::string&) { throw failureOf(kFileNotFound); };
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("mwp");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 53in module mwp_Click"), std::string::npos);
}

TEST_F(Help, TheSurveyQuestionComesOnceAfterTwoHours) {
    preferences_.usageSeconds = 7198;
    start();
    tick();
    EXPECT_EQ(compiler().findChild<QTimer*>("sur")->property("Tag"), "7199");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    desktop_.boxes.answers = {BoxAnswer::Yes};
    tick();
    EXPECT_EQ(compiler().values().usageSeconds, 7200);
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
    EXPECT_EQ(desktop_.boxes.shownBoxes[0].title, "Please Fill Out Survey - KAV Compiler");
    EXPECT_EQ(desktop_.boxes.shownBoxes[0].text, kSurveyText);
    EXPECT_EQ(desktop_.boxes.shownBoxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(started(), "/usr/bin/browser " + std::string(kSurveyPage));
    tick();
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
}

TEST_F(Help, TheSurveyAnsweredNoCountsAsAsked) {
    preferences_.usageSeconds = 9000;
    start();
    desktop_.boxes.answers = {BoxAnswer::No};
    tick();
    EXPECT_TRUE(desktop_.launcher.launches.empty());
    EXPECT_TRUE(compiler().preferences().surveyAsked);
    compiler().close();
    EXPECT_TRUE(parsePreferences(readFile(folder_.file("prefs.ini"))).surveyAsked);
}

TEST_F(Help, ABuildPostponesTheSurveyQuestion) {
    preferences_.usageSeconds = 9000;
    start();
    awaitBuild();
    tick();
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    desktop_.boxes.answers = {BoxAnswer::No, BoxAnswer::No};
    writeFile(folder_.file("errLog.txt"), "1\r\n");
    ASSERT_TRUE(QTest::qWaitFor([this] { return desktop_.boxes.shownBoxes.size() == 1; }));
    EXPECT_NE(desktop_.boxes.shownBoxes[0].text, kSurveyText);
    tick();
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 2U);
    EXPECT_EQ(desktop_.boxes.shownBoxes[1].text, kSurveyText);
}

TEST_F(Help, ASurveyThatCannotBeOpenedIsNotReported) {
    preferences_.usageSeconds = 9000;
    start();
    desktop_.launcher.process = [](const std::string&) { throw failureOf(kFileNotFound); };
    desktop_.boxes.answers = {BoxAnswer::Yes};
    tick();
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
}

}  // namespace kav::test
