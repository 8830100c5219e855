#include "codecs/code_page.h"

#include <algorithm>
#include <array>

namespace morlek {
namespace {

constexpr char32_t kFirstOwn = 0x80;
constexpr char32_t kFirstLatin = 0xA0;
constexpr char32_t kEnd = 0x100;

/// The characters of the bytes 0x80 to 0x9F; all other bytes are the character of their number.
constexpr std::array<char16_t, kFirstLatin - kFirstOwn> kOwnCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

char16_t ToUnicode(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  const bool is_own = code >= kFirstOwn && code < kFirstLatin;
  return is_own ? kOwnCharacters.at(code - kFirstOwn) : char16_t{code};
}

std::optional<char> FromUnicode(char32_t character) {
  if (character < kFirstOwn || (character >= kFirstLatin && character < kEnd)) {
    return static_cast<char>(character);
  }
  const auto found = std::ranges::find(kOwnCharacters, character);
  if (found == kOwnCharacters.end()) return std::nullopt;
  return static_cast<char>(kFirstOwn + static_cast<char32_t>(found - kOwnCharacters.begin()));
}

char UpperCase(char character) {
  constexpr int kCaseDistance = 0x20;
  constexpr unsigned char kDivisionSign = 0xF7;
  const auto code = static_cast<unsigned char>(character);
  const auto capital = [](int value) { return static_cast<char>(value); };

  if (code >= 'a' && code <= 'z') return capital(code - kCaseDistance);
  if (code >= 0xE0 && code <= 0xFE && code != kDivisionSign) return capital(code - kCaseDistance);
  // s with a caron, the ligature oe, z with a caron
  if (code == 0x9A || code == 0x9C || code == 0x9E) return capital(code - 0x10);
  constexpr unsigned char kSmallYWithDiaeresis = 0xFF;
  return code == kSmallYWithDiaeresis ? capital(0x9F) : character;
}

std::string UpperCase(std::string_view text) {
  std::string capitals(text);
  std::ranges::transform(capitals, capitals.begin(),
                         [](char character) { return UpperCase(character); });
  return capitals;
}

}  // namespace morlek
