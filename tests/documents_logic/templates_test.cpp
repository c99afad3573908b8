// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/templates.h"

#include "runtime/lines.h"

#include <gtest/gtest.h>

namespace kav {

TEST(Description, KeepsItsFirst25Characters) {
    EXPECT_EQ(descriptionFrom("123456789012345678901234567890"), "1234567890123456789012345");
    EXPECT_EQ(descriptionFrom("1234567890123456789012345"), "1234567890123456789012345");
}

TEST(Description, IsNeverCutInsideACharacter) {
    const std::string umlauts = "1234567890123456789012\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F";
    EXPECT_EQ(descriptionFrom(umlauts), umlauts.substr(0, 28));
}

TEST(Description, ThatIsEmptyOpensNoDocument) {
    EXPECT_EQ(descriptionFrom(""), std::nullopt);
}

TEST(KavTemplate, IsExact) {
    EXPECT_EQ(kavTemplate("TITLE"),
              ".nolist\r\n"
              "#include \"kav.inc\"\r\n"
              ".list\r\n"
              "\r\n"
              ".org    userMem-3\r\n"
              ".db     $BB,$6D\r\n"
              " ret\r\n"
              "\r\n"
              ".db \"KAV\",1           ; Header\r\n"
              ".db \" TITLE\", 0 ; Title (Must begin with space)\r\n"
              ".dw 400                ; Stack Required (set to 400 for debug purposes)\r\n"
              "\r\n"
              "start:\r\n"
              ";Put code here\r\n"
              ".end");
}

TEST(IonTemplate, IsExact) {
    EXPECT_EQ(ionTemplate("TITLE"),
              "nolist\r\n"
              " #include \"ion.inc\".list\r\n"
              "\r\n"
              "#ifdef TI83P\r\n"
              " .org progstart-2\r\n"
              "       .db $BB,$6D\r\n"
              "\r\n"
              "#else\r\n"
              "  .org progstart\r\n"
              "\r\n"
              "#endif\r\n"
              "    ret\r\n"
              " jr nc,Start\r\n"
              "  .db \"TITLE\",0\r\n"
              "\r\n"
              "start:\r\n"
              ";Put Code Here\r\n"
              ".end");
}

TEST(Templates, TakeTheDescriptionAsTyped) {
    EXPECT_EQ(linesOf(kavTemplate("a\";b"))[9], ".db \" a\";b\", 0 ; Title (Must begin with space)");
    EXPECT_EQ(linesOf(ionTemplate("a\";b"))[13], "  .db \"a\";b\",0");
}

}  // namespace kav
