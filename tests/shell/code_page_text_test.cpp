#include "shell/code_page_text.h"

#include <gtest/gtest.h>

#include <set>

namespace morlek {
namespace {

TEST(CodePageTextTest, EveryByteIsOneCharacterOfItsOwnAndComesBack) {
  std::set<char16_t> characters;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const QString shown = FromCodePage(text);
    ASSERT_EQ(shown.size(), 1) << byte;
    characters.insert(shown[0].unicode());
    EXPECT_EQ(ToCodePage(shown), text) << byte;
  }
  EXPECT_EQ(characters.size(), 256U);
}

TEST(CodePageTextTest, KnowsTheCharactersOfWindows1252) {
  EXPECT_EQ(FromCodePage("\x80\x8A\x99\x9F\xA0\xC4\xFF"), QString::fromUtf8("€Š™Ÿ\u00A0Äÿ"));
  EXPECT_EQ(ToCodePage(QString::fromUtf8("aЖ中😀b")), "a???b");
}

}  // namespace
}  // namespace morlek
