// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main_window_fixture.h"

namespace kav::test {

class Templates : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }
};

TEST_F(Templates, ANewKavFileAsksForItsDescription) {
    desktop_.boxes.typed = {"TITLE"};
    choose("newer");
    const InputBox& box = desktop_.boxes.askedBoxes.at(0);
    EXPECT_EQ(box.prompt, "Enter Program Shell Description");
    EXPECT_EQ(box.title, "New KAV File");
    EXPECT_EQ(box.defaultText, "TITLE");
    EXPECT_EQ(active().caption(), "Doc 2\tUntitled");
    EXPECT_NE(active().txt().bytes().find(".db \" TITLE\", 0 ; Title (Must begin with space)"),
              std::string::npos);
    EXPECT_FALSE(active().isModified());
}

TEST_F(Templates, OnlyTwentyFiveCharactersAreKept) {
    desktop_.boxes.typed = {"123456789012345678901234567890"};
    choose("newion");
    EXPECT_NE(active().txt().bytes().find("\"1234567890123456789012345\",0"), std::string::npos);
}

TEST_F(Templates, AnEmptyAnswerOpensNothing) {
    desktop_.boxes.typed = {""};
    choose("newer");
    EXPECT_EQ(documents().size(), 1);
}

TEST_F(Templates, ANewAsmFileIsEmptyAndAsksNothing) {
    choose("newasm");
    EXPECT_EQ(active().txt().bytes(), "");
    EXPECT_EQ(active().caption(), "Doc 2\tUntitled");
}

}  // namespace kav::test
