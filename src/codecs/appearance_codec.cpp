#include "codecs/appearance_codec.h"

#include <limits>

#include "codecs/hex_text.h"

namespace morlek {

std::string AppearanceCodec::NormalizeAppearanceCode(std::string_view text) {
  const bool is_single_digit = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
  std::string code(text);
  if (is_single_digit) code.insert(0, 1, '0');
  skin_class_.Follow(code);
  return code;
}

std::optional<std::uint8_t> AppearanceByte(std::string_view text) {
  const auto code = ByteTextToNumber(AppearanceCodec().NormalizeAppearanceCode(text));
  if (!code || *code < 0 || *code > std::numeric_limits<std::uint8_t>::max()) return std::nullopt;
  return static_cast<std::uint8_t>(*code);
}

}  // namespace morlek
