#include "codecs/appearance_codec.h"

#include <array>
#include <limits>

#include "codecs/hex_text.h"

namespace morlek {
namespace {

/// The codes from `high` `0` to `high` `last` belong to a class.
struct SkinGroup {
  char high;
  char last;
  std::string_view skin_class;
};

// Code 15 belongs to none.
constexpr std::array<SkinGroup, 6> kSkinGroups = {{{'0', '5', "0"},
                                                   {'1', '4', "0"},
                                                   {'2', '5', "3"},
                                                   {'3', '5', "3"},
                                                   {'4', '5', "5"},
                                                   {'5', '5', "5"}}};

}  // namespace

std::string AppearanceCodec::NormalizeAppearanceCode(std::string_view text) {
  const bool is_single_digit = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
  std::string code(text);
  if (is_single_digit) code.insert(0, 1, '0');
  if (code.size() != 2) return code;
  for (const auto& [high, last, skin_class] : kSkinGroups) {
    if (code[0] == high && code[1] >= '0' && code[1] <= last) skin_class_ = skin_class;
  }
  return code;
}

std::optional<std::uint8_t> AppearanceByte(std::string_view text) {
  const auto code = ByteTextToNumber(AppearanceCodec().NormalizeAppearanceCode(text));
  if (!code || *code < 0 || *code > std::numeric_limits<std::uint8_t>::max()) return std::nullopt;
  return static_cast<std::uint8_t>(*code);
}

}  // namespace morlek
