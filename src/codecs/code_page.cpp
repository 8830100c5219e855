#include "codecs/code_page.h"

#include <algorithm>

namespace morlek {

char UpperCase(char character) {
  constexpr int kCaseDistance = 0x20;
  constexpr unsigned char kDivisionSign = 0xF7;
  const auto code = static_cast<unsigned char>(character);
  const auto capital = [](int value) { return static_cast<char>(value); };

  if (code >= 'a' && code <= 'z') return capital(code - kCaseDistance);
  if (code >= 0xE0 && code <= 0xFE && code != kDivisionSign) return capital(code - kCaseDistance);
  switch (code) {
    case 0x9A:  // s with a caron, the ligature oe, z with a caron
    case 0x9C:
    case 0x9E:
      return capital(code - 0x10);
    case 0xFF:  // y with a diaeresis
      return capital(0x9F);
    default:
      return character;
  }
}

std::string UpperCase(std::string_view text) {
  std::string capitals(text);
  std::ranges::transform(capitals, capitals.begin(),
                         [](char character) { return UpperCase(character); });
  return capitals;
}

}  // namespace morlek
