// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/published_class.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

using Keys = std::map<std::string, std::string>;

Keys registered(const std::string& folder) {
    return {{"Z80AsmSrc", "Z80 Assembly Source"},
            {"Z80AsmSrc\\DefaultIcon", folder + "\\KAV Compiler.exe,1"},
            {"Z80AsmSrc\\shell\\Compile\\command", folder + "\\KAV Compiler.exe %1 &"},
            {"Z80AsmSrc\\shell\\open\\command", folder + "\\KAV Compiler.exe %1"}};
}

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

TEST(PublishedClass, IsWhatTheKeysTell) {
    Keys keys = registered("/opt/kav");
    keys[".kvf"] = "Z80AsmSrc";
    keys[".z80"] = "Other";
    keys[".asm"] = "Z80AsmSrc";
    EXPECT_EQ(publishedClass(keys), (PublishedClass{"Z80 Assembly Source", {".asm", ".kvf"}, "/opt/kav"}));
    EXPECT_EQ(publishedClass(keys)->program(), "/opt/kav/kav-compiler");
}

TEST(PublishedClass, IsNothingWithoutACommandOfTheProgram) {
    EXPECT_EQ(publishedClass({}), std::nullopt);
    EXPECT_EQ(publishedClass({{".kvf", "Z80AsmSrc"}}), std::nullopt);
    Keys keys = registered("/opt/kav");
    keys["Z80AsmSrc\\shell\\open\\command"] = "/usr/bin/other %1";
    EXPECT_EQ(publishedClass(keys), std::nullopt);
}

TEST(PublishedClass, HasAFolderThatIsNamedLikeTheProgram) {
    EXPECT_EQ(publishedClass(registered("/a\\KAV Compiler.exe/b"))->applicationFolder,
              "/a\\KAV Compiler.exe/b");
}

TEST(PublishedClass, LeavesOutKeysThatAreNoExtension) {
    Keys keys = registered("/opt/kav");
    for (const char* key : {".", "kvf", ".k*f", ".k/f", ".k\"f", ".k.f"})
        keys[key] = "Z80AsmSrc";
    EXPECT_TRUE(publishedClass(keys)->extensions.empty());
}

TEST(MimePackage, NamesTheTypeAndItsFiles) {
    EXPECT_EQ(mimePackage({"Sources <of> Z80 & more", {".kvf", ".z80"}, "/opt/kav"}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
              "  <mime-type type=\"text/x-kav-z80\">\n"
              "    <comment>Sources &lt;of&gt; Z80 &amp; more</comment>\n"
              "    <sub-class-of type=\"text/plain\"/>\n"
              "    <icon name=\"kav-compiler\"/>\n"
              "    <glob pattern=\"*.kvf\" weight=\"60\"/>\n"
              "    <glob pattern=\"*.z80\" weight=\"60\"/>\n"
              "  </mime-type>\n"
              "</mime-info>\n");
}

TEST(DesktopEntry, OpensAFileAndCompilesIt) {
    const std::string entry = programEntry({"", {}, "/opt/kav"});
    EXPECT_TRUE(entry.starts_with("[Desktop Entry]\nType=Application\nName=KAV Compiler\n"));
    EXPECT_TRUE(holds(entry, "\nExec=/opt/kav/kav-compiler %f\n"));
    EXPECT_TRUE(holds(entry, "\nTryExec=/opt/kav/kav-compiler\n"));
    EXPECT_TRUE(holds(entry, "\nIcon=kav-compiler\n"));
    EXPECT_TRUE(holds(entry, "\nMimeType=text/x-kav-z80;\n"));
    EXPECT_TRUE(
        entry.ends_with("\nActions=Compile;\n\n[Desktop Action Compile]\nName=Compile\n"
                        "Exec=env KAV_COMPILE=1 /opt/kav/kav-compiler %f\n"));
}

TEST(DesktopEntry, OffersCompileForAFileAndNotInTheMenu) {
    const std::string entry = compileEntry({"", {}, "/opt/kav"});
    EXPECT_TRUE(holds(entry, "\nNoDisplay=true\n"));
    EXPECT_TRUE(holds(entry, "\nExec=env KAV_COMPILE=1 /opt/kav/kav-compiler %f\n"));
    EXPECT_TRUE(holds(entry, "\nMimeType=text/x-kav-z80;\n"));
}

TEST(DesktopEntry, LeavesAQuotedProgramToEnv) {
    EXPECT_TRUE(holds(programEntry({"", {}, "/my tools"}), "\nExec=env \"/my tools/kav-compiler\" %f\n"));
}

TEST(ExecArgument, QuotesWhatTheLineWouldTakeApart) {
    EXPECT_EQ(execArgument("/opt/kav-1.8_x"), "/opt/kav-1.8_x");
    EXPECT_EQ(execArgument("/a b/it's"), "\"/a b/it's\"");
    EXPECT_EQ(execArgument("100%f"), "\"100%%f\"");
    // Escaped once for the quotes and once as a value.
    EXPECT_EQ(execArgument("$HOME"), R"("\\$HOME")");
    EXPECT_EQ(execArgument("`x`"), R"("\\`x\\`")");
    EXPECT_EQ(execArgument("a\"b"), R"("a\\"b")");
    EXPECT_EQ(execArgument("a\\b"), R"("a\\\\b")");
    EXPECT_EQ(execArgument("a\nb\tc"), "\"a\\nb\\tc\"");
}

TEST(DesktopEntry, EscapesThePathThatIsNoExecLine) {
    EXPECT_TRUE(holds(programEntry({"", {}, "/a \\%\n"}), "\nTryExec=/a \\\\%\\n/kav-compiler\n"));
}

}  // namespace kav
