#include "codecs/code_page.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace morlek {
namespace {

TEST(CodePage, BytesAreTheCharactersOfWindows1252AndBack) {
  std::string own;
  for (int byte = 0x7F; byte <= 0xA1; ++byte) own += static_cast<char>(byte);
  std::u16string characters;
  for (const char byte : own) characters += ToUnicode(byte);
  EXPECT_EQ(characters,
            u"\x7F€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8DŽ\x8F"
            u"\x90‘’“”•–—˜™š›œ\x9DžŸ\u00A0¡");
  for (int byte = 0; byte < 0x100; ++byte) {
    const auto code = static_cast<char>(byte);
    EXPECT_EQ(FromUnicode(ToUnicode(code)), code) << byte;
  }
}

TEST(CodePage, CharactersThatItLacksHaveNoByte) {
  // Numbers of bytes that show others, and characters beyond the bytes, also of other planes.
  for (const char32_t character :
       {U'\x80', U'\x9F', U'\u0100', U'\u4E2D', U'\U0001F600', U'\U000120AC', U'\uFFFD'}) {
    EXPECT_EQ(FromUnicode(character), std::nullopt) << static_cast<std::uint32_t>(character);
  }
}

}  // namespace
}  // namespace morlek
