#include "shell/code_page_text.h"

#include <gtest/gtest.h>

namespace morlek {
namespace {

TEST(CodePageTextTest, KnowsTheCharactersOfWindows1252) {
  EXPECT_EQ(FromCodePage("\x80\x8A\x99\x9F\xA0\xC4\xFF"), QString::fromUtf8("€Š™Ÿ\u00A0Äÿ"));
  EXPECT_EQ(ToCodePage(QString::fromUtf8("aЖ中😀b")), "a???b");
}

}  // namespace
}  // namespace morlek
