// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/dialog_filters.h"

#include <gtest/gtest.h>

namespace kav {

using Filters = std::vector<DialogFilter>;
using Patterns = std::vector<std::string>;

TEST(DialogFilters, OpenOffersAllSupportedFilesFirst) {
    const Filters filters = parseFilter(kOpenFilter);
    ASSERT_EQ(filters.size(), 6U);
    EXPECT_EQ(filters[0].caption, "All Supported Files(*.kvf,*.z80,*.asm,*.inc,*.txt)");
    EXPECT_EQ(filters[0].patterns, (Patterns{"*.kvf", "*.z80", "*.asm", "*.inc", "*.txt"}));
    EXPECT_EQ(filters[2], (DialogFilter{"Asm", {"*.asm"}}));
    EXPECT_EQ(filters[5], (DialogFilter{"All Files(*.*)", {"*.*"}}));
}

TEST(DialogFilters, OpenAndSaveAsAreExact) {
    EXPECT_EQ(kOpenFilter,
              "All Supported Files(*.kvf,*.z80,*.asm,*.inc,*.txt)|*.kvf;*.z80;*.asm;*.inc;*.txt|Z80 Assembly "
              "Source(*.z80)|*.z80|Asm|*.asm|TASM Include File(*.inc)|*.inc|ASCII Text(*.txt)|*.txt|All "
              "Files(*.*)|*.*");
    EXPECT_EQ(kSaveAsFilter,
              "KAV Compiler File(*.kvf)|*.kvf|Z80 Assembly Source(*.z80)|*.z80|Asm|*.asm|TASM Include "
              "File(*.inc)|*.inc|ASCII Text(*.txt)|*.txt|All Files(*.*)|*.*");
}

TEST(DialogFilters, OddTextsAreReadAsFarAsTheyGo) {
    EXPECT_EQ(parseFilter(""), Filters{});
    EXPECT_EQ(parseFilter("All"), (Filters{{"All", {"*.*"}}}));
    EXPECT_EQ(parseFilter("A|*.a;;*.b"), (Filters{{"A", {"*.a", "*.b"}}}));
    EXPECT_EQ(parseFilter("A|*.a|B"), (Filters{{"A", {"*.a"}}, {"B", {"*.*"}}}));
}

}  // namespace kav
