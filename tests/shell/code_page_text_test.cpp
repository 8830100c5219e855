#include "shell/code_page_text.h"

#include <gtest/gtest.h>

namespace morlek {
namespace {

TEST(CodePageTextTest, KnowsTheCharactersOfWindows1252) {
  std::string own;
  for (int byte = 0x80; byte < 0xA0; ++byte) own += static_cast<char>(byte);
  EXPECT_EQ(FromCodePage(own + "\xA0\xC4\xFF"),
            QString::fromUtf8("€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
                              "\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0Äÿ"));
  EXPECT_EQ(ToCodePage(QString::fromUtf8("aЖ中😀b")), "a???b");
}

}  // namespace
}  // namespace morlek
