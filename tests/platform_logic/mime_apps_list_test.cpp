// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mime_apps_list.h"

#include <gtest/gtest.h>
#include <string>

namespace kav {

namespace {

std::string added(const std::string& list) {
    return withDefaultApplication(list, "text/x-k", "k.desktop");
}

std::string removed(const std::string& list) {
    return withoutDefaultApplication(list, "text/x-k", "k.desktop");
}

constexpr const char* kAlone = "[Default Applications]\ntext/x-k=k.desktop;\n";

}  // namespace

TEST(MimeAppsList, IsMadeWhereThereIsNone) {
    EXPECT_EQ(added(""), kAlone);
    EXPECT_EQ(removed(kAlone), "");
}

TEST(MimeAppsList, AddsAGroupBehindOthers) {
    const std::string others = "[Added Associations]\ntext/plain=gedit.desktop;\n";
    EXPECT_EQ(added(others), others + "\n" + kAlone);
    EXPECT_EQ(removed(added(others)), others);
}

TEST(MimeAppsList, AddsALineToTheGroupAndKeepsEveryOther) {
    const std::string before =
        "# mine\n[Default Applications]\ntext/html=browser.desktop\n\n[Added Associations]\n"
        "text/x-k=other.desktop;\n";
    EXPECT_EQ(added(before),
              "# mine\n[Default Applications]\ntext/html=browser.desktop\ntext/x-k=k.desktop;\n\n"
              "[Added Associations]\ntext/x-k=other.desktop;\n");
    EXPECT_EQ(removed(added(before)), before);
}

TEST(MimeAppsList, GoesInFrontOfTheProgramsThatWereThere) {
    const std::string before = "[Default Applications]\ntext/x-k = a.desktop;b.desktop\n";
    const std::string after = "[Default Applications]\ntext/x-k=k.desktop;a.desktop;b.desktop;\n";
    EXPECT_EQ(added(before), after);
    EXPECT_EQ(removed(after), "[Default Applications]\ntext/x-k=a.desktop;b.desktop;\n");
}

TEST(MimeAppsList, StaysTheSameWhenDoneTwice) {
    const std::string once = added("[Default Applications]\na/b=c.desktop\n");
    EXPECT_EQ(added(once), once);
    EXPECT_EQ(removed(removed(once)), removed(once));
}

TEST(MimeAppsList, LeavesWhatOthersHaveChosen) {
    for (const std::string list :
         {"", "[Default Applications]\n", "[Default Applications]\ntext/x-k=a.desktop\n",
          "[Added Associations]\ntext/x-k=k.desktop\n", "[Default Applications]\ntext/plain=k.desktop\n"}) {
        EXPECT_EQ(removed(list), list);
    }
}

TEST(MimeAppsList, EndsAnOpenLastLine) {
    EXPECT_EQ(added("[Default Applications]\na/b=c.desktop"),
              "[Default Applications]\na/b=c.desktop\ntext/x-k=k.desktop;\n");
    EXPECT_EQ(added("[Other]\na=b"), std::string("[Other]\na=b\n\n") + kAlone);
}

}  // namespace kav
