#include "shell/code_page_text.h"

#include <QList>
#include <algorithm>
#include <array>

namespace morlek {
namespace {

constexpr char32_t kFirstOwn = 0x80;
constexpr char32_t kFirstLatin = 0xA0;
constexpr char32_t kEnd = 0x100;

/// The characters of the bytes 0x80 to 0x9F; all other bytes are the character of their number.
constexpr std::array<char16_t, 32> kOwnCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ToByte(char32_t character) {
  if (character < kFirstOwn || (character >= kFirstLatin && character < kEnd)) {
    return static_cast<char>(character);
  }
  const auto found = std::ranges::find(kOwnCharacters, character);
  if (found == kOwnCharacters.end()) return '?';
  return static_cast<char>(kFirstOwn + static_cast<char32_t>(found - kOwnCharacters.begin()));
}

}  // namespace

QString FromCodePage(std::string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    const bool is_own = byte >= kFirstOwn && byte < kFirstLatin;
    result += QChar(is_own ? kOwnCharacters.at(byte - kFirstOwn) : char16_t{byte});
  }
  return result;
}

std::string ToCodePage(const QString& text) {
  std::string result;
  for (const char32_t character : text.toUcs4()) result += ToByte(character);
  return result;
}

}  // namespace morlek
