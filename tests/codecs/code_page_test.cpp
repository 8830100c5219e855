#include "codecs/code_page.h"

#include <gtest/gtest.h>

namespace morlek {
namespace {

TEST(CodePage, AccentedLettersHaveTheirCapitalsAndSignsNone) {
  EXPECT_EQ(UpperCase("az{ \xE0\xF6\xF8\xFE \x9A\x9C\x9E\xFF"),
            "AZ{ \xC0\xD6\xD8\xDE \x8A\x8C\x8E\x9F");
  for (const char* text : {"\xF7", "\xDF", "\x83", "\xB5"}) EXPECT_EQ(UpperCase(text), text);
}

}  // namespace
}  // namespace morlek
