#include "codecs/code_page.h"

#include <gtest/gtest.h>

namespace morlek {
namespace {

TEST(CodePage, CapitalsOfAll256Characters) {
  // Windows-1252: the Latin alphabet, the accented block 32 above its capitals but for the division
  // sign, and four letters apart. Sharp s, florin and micro have no capital in the page.
  for (int code = 0; code < 256; ++code) {
    int capital = code;
    if (code >= 'a' && code <= 'z') capital = code - 32;
    if (code >= 0xE0 && code <= 0xFE && code != 0xF7) capital = code - 32;
    if (code == 0x9A || code == 0x9C || code == 0x9E) capital = code - 16;
    if (code == 0xFF) capital = 0x9F;
    EXPECT_EQ(UpperCase(static_cast<char>(code)), static_cast<char>(capital)) << code;
  }
}

}  // namespace
}  // namespace morlek
